#pragma once

#include "regras/UnTarvoESocialCamposSqlLugar.h"
#include "tabelas/s1005/UnTarvoESocialCamposInfoApr.h"
#include "tabelas/s1005/UnTarvoESocialCamposInfoPCD.h"

namespace tarvo::tabelas {

/// S-1005 infoTrab: the time record. Source: SC00_FILIALCFG or SC00_DEPARTAMENTOCFG 90/7/1.
class TTarvoESocialCamposInfoTrab : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposInfoTrab(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData);

    TTarvoESocialCamposInfoApr InfoApr;
    TTarvoESocialCamposInfoPCD InfoPCD;
    std::string RegPt;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    regras::TLugar FLugar;
    TDateTime FData;
};

} // namespace tarvo::tabelas
