#include "remuneracao/anteriores/UnTarvoESocialCamposRemunPerAnt.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposRemunPerAnt::TTarvoESocialCamposRemunPerAnt(TTarvoESocialCamposS1200IOP& AinfoBind1200)
    : TTarvoESocialCamposRemunS1200(AinfoBind1200, 0, 0)
{}

std::string TTarvoESocialCamposRemunPerAnt::BuscarSQLDados()
{
    if (FInfoBind.TipoEmpregado() != TTipoTrabalhador::Empregado)
        return {};
    return TTarvoESocialCamposRemunS1200::BuscarSQLDados();
}

void TTarvoESocialCamposRemunPerAnt::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposRemunS1200::CarregarDados(AListaCamposModificados);
    if (FInfoBind.TipoEmpregado() != TTipoTrabalhador::Empregado)
        return;
    GerarListaItensRemunEmpregados(TTagOrigem::toRemunPerAnt, AListaCamposModificados);
    infoAgNocivo.CarregarDados(AListaCamposModificados);
    CarregarDadosinfoTrabInterm();
}

void TTarvoESocialCamposRemunPerAnt::CarregarDadosinfoTrabInterm() const
{
    static constexpr std::string_view SQL = R"(SELECT FP_CONTRAINTERM.IDCONTRAINTERM
FROM FP_CONTRAINTERM
WHERE FP_CONTRAINTERM.IDEMPREGADO = %0:D
  AND (FP_CONTRAINTERM.DATAINICIO BETWEEN %1:S AND %2:S OR FP_CONTRAINTERM.DATAFIM BETWEEN %1:S AND %2:S))";
    const auto LContratos = TTarvoConsultasGeral::BuscarListaDeIds(Format(SQL, FInfoBind.IdEmpregado(),
                                                                          FormatarDataDB(FInfoBind.DataInicio(), true),
                                                                          FormatarDataDB(FInfoBind.DataFim(), true)));
    // Each is read by the id of the contract, not of a convocation, and let go: an earlier period reports none.
    for (const auto LIdContrato : LContratos)
        TTarvoESocialCamposInfoTrabInterm(LIdContrato).CarregarDados();
}

} // namespace tarvo::remuneracao
