#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1000 and S-1298 ideEmpregador: kind and number of the employer's inscription, from SC00_EMPRESA.
class TTarvoESocialCamposIdEmpregador : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposIdEmpregador(std::int64_t AIDEmpresa);

    /// The raw code of the kind, unlike the text that infoCadastro gives.
    std::string TipoInscricao;
    std::string Inscricao;
    std::int64_t IDEmpresa() const { return FIDEmpresa; }

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpresa;
};

} // namespace tarvo::tabelas
