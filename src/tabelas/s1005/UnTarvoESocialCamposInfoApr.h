#pragma once

#include "regras/UnTarvoESocialCamposSqlLugar.h"
#include "tabelas/s1005/UnTarvoESocialCamposInfoEntEduc.h"

namespace tarvo::tabelas {

/// S-1005 infoApr: apprentices. Source: SC00_FILIALCFG or SC00_DEPARTAMENTOCFG 90/58/1.
class TTarvoESocialCamposInfoApr : public TTarvoESocialCamposGrupoBase {
public:
    /// Reads the educational entities. Raises EDatabaseError.
    TTarvoESocialCamposInfoApr(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData);

    /// Read at construction, so that a reload leaves it as it is.
    TListaDeGrupos<TTarvoESocialCamposInfoEntEduc> InfoEntEduc;
    std::string contApr;
    /// The number of the process; the row holds its id.
    std::string nrProcJud;
    std::string contEntEd;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    void CarregarInfoEntEduc();

    regras::TLugar FLugar;
    TDateTime FData;
};

} // namespace tarvo::tabelas
