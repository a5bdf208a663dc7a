#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "regras/UnTarvoESocialCamposSqlLugar.h"

namespace tarvo::tabelas {

/// S-1020 ideLotacao: the code. Source: SC00_DEPTO or SC00_FILIAL.
class TTarvoESocialCamposIdeLotacao : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposIdeLotacao(std::int64_t AIDEstab, std::int64_t AIDDepto);

    std::string codLotacao;
    /// Start of a department; an establishment has none.
    TDateTime iniValid;
    /// For the caller to fill.
    TDateTime fimValid;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    regras::TLugar FLugar;
};

} // namespace tarvo::tabelas
