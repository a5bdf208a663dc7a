#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "remuneracao/anteriores/UnTarvoESocialCamposinfoPerAntS1200.h"
#include "remuneracao/periodo/UnTarvoESocialCamposInfoPerApurS1200.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200IOP.h"
#include "remuneracao/s1200/UnTarvoESocialCamposinfoComplCont.h"

namespace tarvo::remuneracao {

/// S-1200 dmDev: what is due to the worker for one run of the month, in the current or in an earlier period. The
/// parameter object stands on the run; the load moves it back to the month of the event for an earlier period.
class TTarvoESocialCamposDmDevS1200 : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposDmDevS1200(TTarvoESocialCamposS1200IOP& AinfoBind1200, std::int32_t ACategoriaEmpregado);

    std::string ideDmDev;
    std::int32_t codCateg;
    /// Loaded only for a run of the current period.
    TTarvoESocialCamposInfoPerApurS1200 infoPerApur;
    /// Loaded only for a run of an earlier period.
    TTarvoESocialCamposinfoPerAntS1200 infoPerAnt;
    TTarvoESocialCamposinfoComplCont infoComplCont;
    bool GerarInfoPerApur = false;
    bool GerarInfoPerAnt = false;
    /// The month of the event, set before the load; left unset on a receipt.
    TDateTime DataInicioOriginal;
    TDateTime DataFimOriginal;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }

private:
    void AlimentarIdeDmDev();

    TTarvoESocialCamposS1200IOP& FInfoBind;
};

} // namespace tarvo::remuneracao
