#pragma once

#include "desligamento/s2299/UnTarvoESocialCamposProcCSS2299.h"
#include "desligamento/s2299/verbas/UnTarvoESocialCamposdmDevS2299.h"
#include "desligamento/s2299/verbas/UnTarvoESocialCamposinfoMVS2299.h"
#include "desligamento/s2299/verbas/UnTarvoESocialCamposprocJudTrabS2299.h"
#include "desligamento/verbas/UnTarvoESocialCamposverbasRescDesligamento.h"

namespace tarvo::desligamento {

/// S-2299 verbasResc: what the dismissal paid, one demonstrative a calculation. The constructor reads the company and
/// the day of the dismissal. Sources: CALCULO, RESC_COMPL, the complementary calculations by agreement.
class TTarvoESocialCamposverbasRescS2299
    : public TTarvoESocialCamposverbasRescDesligamento<TdmDevS2299IOP, TTarvoESocialCamposdmDevS2299,
                                                       TTarvoESocialCamposprocJudTrabS2299,
                                                       TTarvoESocialCamposinfoMVS2299> {
public:
    explicit TTarvoESocialCamposverbasRescS2299(std::int64_t AIdEmpregado);

    TTarvoESocialCamposProcCSS2299 procCs;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string SqlDosDemonstrativos(const TdmDevS2299IOP& ADmDev) const override;
    void AlimentarDemonstrativo(TdmDevS2299IOP& ADmDev, const TOvraClientDataSet& ACds) const override;
};

} // namespace tarvo::desligamento
