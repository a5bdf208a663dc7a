#pragma once

#include "desligamento/s2299/UnTarvoESocialCamposdmDevS2299.h"
#include "desligamento/verbas/UnTarvoESocialCamposinfoMVDesligamento.h"
#include "desligamento/verbas/UnTarvoESocialCamposprocJudTrabDesligamento.h"
#include "desligamento/verbas/UnTarvoESocialCamposverbasRescDesligamento.h"

namespace tarvo::desligamento {

/// S-2299 procCs: a process of the establishment on the union contribution or on a dismissal's rubrics. Source:
/// ES02_SPPROC of the establishment that the worker was placed in on the day of the dismissal.
class TTarvoESocialCamposProcCSS2299 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposProcCSS2299(std::int64_t AIDEmpregado);

    std::string nrProcJud;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

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
