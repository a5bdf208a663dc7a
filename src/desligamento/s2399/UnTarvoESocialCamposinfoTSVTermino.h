#pragma once

#include "desligamento/s2399/UnTarvoESocialCamposverbasRescS2399.h"
#include "desligamento/verbas/UnTarvoESocialCamposquarentena.h"

namespace tarvo::desligamento {

/// S-2399 infoTSVTermino: reason and day of the end, alimony, and what was paid. The constructor reads the day, by
/// dismissal or by definitive transfer. Sources: EMPREGADOS, TAB_RESCISAO, SC00_EMPREGADOCFG 90/14/3 (the open row).
class TTarvoESocialCamposinfoTSVTermino : public TTarvoESocialCamposGrupoBase {
public:
    /// ADataInicioEventosPeriodicos: an end before it shows no amounts.
    TTarvoESocialCamposinfoTSVTermino(std::int64_t AIdEmpregado, TDate ADataInicioEventosPeriodicos);

    TDateTime dtTerm;
    /// For the caller, unlike in S-2299.
    std::string pensAlim;
    std::string mtvDesligTSV;
    TDateTime DtInicioCfg;
    double percAliment = 0;
    std::string CategoriaEmpregado;
    TTarvoESocialCamposverbasRescS2399 verbasResc;
    TTarvoESocialCamposquarentena quarentena;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    bool ValidouGeracaoVerbas() const;

    std::int64_t FIdEmpregado;
    TDate FDataInicioEventosPeriodicos;
};

} // namespace tarvo::desligamento
