#pragma once

#include "desligamento/s2299/UnTarvoESocialCamposConsigFGTS.h"
#include "desligamento/s2299/UnTarvoESocialCamposTransfTitS2299.h"
#include "desligamento/s2299/UnTarvoESocialCampossucessaoVincS2299.h"
#include "desligamento/s2299/UnTarvoESocialCamposverbasRescS2299.h"
#include "desligamento/verbas/UnTarvoESocialCamposquarentena.h"

namespace tarvo::desligamento {

/// S-2299 infoDeslig: reason and day of the dismissal, the notice, alimony on the FGTS, and what was paid. The
/// constructor reads the day, by dismissal or by definitive transfer. Sources: EMPREGADOS, TAB_RESCISAO,
/// FP_EMPREGADOSDET 4/1, SC00_EMPREGADOCFG 90/14/3, the calls of intermittent work.
class TTarvoESocialCamposinfoDeslig : public TTarvoESocialCamposGrupoBase {
public:
    /// ADataInicioEventosPeriodicos: a dismissal before it shows no amounts.
    TTarvoESocialCamposinfoDeslig(std::int64_t AIdEmpregado, TDateTime ADataInicioEventosPeriodicos);

    /// Where the register has none, that of the transfer.
    std::string mtvDeslig;
    TDateTime dtDeslig;
    /// The indemnified days as they stand.
    std::string indPagtoAPI;
    std::string dtProjFimAPI;
    /// "1" when the alimony's setting started by the day of the dismissal, else "0".
    std::string pensAlim;
    std::string percAliment;
    std::string vrAlim;
    std::string nrCertObito;
    std::string nrProcTrab;
    std::string indCumprParc;
    std::string observacao;
    /// Days of the calls that lie in the month; -1 for a worker who isn't intermittent.
    std::int32_t QteDiasinterm = 0;
    std::int32_t VerbaCfgPensao = 0;
    TDateTime DtIniConfigFGTS;
    TTarvoESocialCampossucessaoVincS2299 sucessaoVincS2299;
    TTarvoESocialCamposTransfTitS2299 transfTit;
    TTarvoESocialCamposverbasRescS2299 verbasResc;
    TTarvoESocialCamposquarentena quarentena;
    TTarvoESocialCamposConsigFGTS ConsigFGTS;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;
    void AtribuirValoresManualmente() override;

private:
    void AtribuirMotivoDaTransferencia();
    bool ValidouEnvioVerbasRescisorias() const;

    std::int64_t FIdEmpregado;
    TDateTime FDataInicioEventosPeriodicos;
};

} // namespace tarvo::desligamento
