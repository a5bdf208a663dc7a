#pragma once

#include <firebird/Interface.h>

#include <cstddef>
#include <string_view>

#include "imports/banco/UnOvraConnection.h"
#include "imports/firebird/UnOvraFirebirdStatus.h"

namespace tarvo::firebird {

/// An attachment and its one transaction, which starts when the first statement needs it.
class TSessao {
public:
    explicit TSessao(const TParametrosConexao& AParametros);
    TSessao(const TSessao&) = delete;
    TSessao& operator=(const TSessao&) = delete;
    /// Undoes an open transaction. Its statements must be gone.
    ~TSessao();

    static void CriarBanco(const TParametrosConexao& AParametros);
    void ApagarBanco();

    Firebird::IAttachment& Anexo() { return *FAnexo; }
    /// Starts one where there is none.
    Firebird::ITransaction* TransacaoCorrente();
    bool EmTransacao() const { return FTransacao != nullptr; }
    void IniciarTransacao(TOvraConnection::TIsolamento AIsolamento);
    void Confirmar();
    void Desfazer();

    /// Prepares a text that has so many parameters. EDatabaseError when it has others, and when it is a statement that
    /// starts or ends a transaction, which TSessao does itself.
    TReferencia<Firebird::IStatement> Preparar(std::string_view ASql, std::size_t AParametros = 0);

    void DefinirVigia(TVigiaSql AVigia) { FVigia = std::move(AVigia); }
    void Vigiar(TPassoSql APasso) const
    {
        if (FVigia)
            FVigia(APasso);
    }

private:
    TReferencia<Firebird::IStatement> PrepararTexto(std::string_view ASql);

    TReferencia<Firebird::IAttachment> FAnexo;
    TReferencia<Firebird::ITransaction> FTransacao;
    TVigiaSql FVigia;
};

} // namespace tarvo::firebird
