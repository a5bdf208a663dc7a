#include "remuneracao/UnTarvoESocialCamposRemunPerAnt.h"

#include "imports/UnOvraFormat.h"
#include "imports/UnTarvoConsultasESocial.h"
#include "imports/UnTarvoConsultasGeral.h"
#include "imports/UnTarvoUtilsDb.h"
#include "remuneracao/UnTarvoESocialCamposS1200DadosCalculo.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposRemunPerAnt::TTarvoESocialCamposRemunPerAnt(TTarvoESocialCamposS1200IOP& AinfoBind1200)
    : TTarvoESocialCamposGrupoBase("{63D2CB1F-629B-4C36-8E0E-2755F61D9AA5}"), infoAgNocivo(AinfoBind1200),
      FInfoBind(AinfoBind1200)
{}

const TPropriedades& TTarvoESocialCamposRemunPerAnt::Propriedades() const
{
    using Eu = TTarvoESocialCamposRemunPerAnt;
    static const TPropriedades tabela{
        {"IdFilial", &Eu::IdFilial},
        {"IdDepto", &Eu::IdDepto},
        {"indSimples", &Eu::indSimples},
        {"matricula", &Eu::matricula, TFieldRelacionado("MATRICULA")},
        {"itensRemun", &Eu::itensRemun},
        {"infoAgNocivo", &Eu::infoAgNocivo},
        {"infoTrabInterm", &Eu::infoTrabInterm},
    };
    return tabela;
}

std::string TTarvoESocialCamposRemunPerAnt::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT EMPREGADOS.CODIGOESOCIAL AS MATRICULA
FROM EMPREGADOS
WHERE EMPREGADOS.IDEMPREGADO = %0:D)";
    if (FInfoBind.TipoEmpregado() != TTipoTrabalhador::Empregado)
        return {};
    return Format(SQL, FInfoBind.IdEmpregado());
}

void TTarvoESocialCamposRemunPerAnt::AtribuirValoresManualmente()
{
    indSimples = TTarvoConsultasESocial::BuscarIndSimples(IdFilial, IdDepto, FInfoBind.DataFim());
}

void TTarvoESocialCamposRemunPerAnt::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    if (FInfoBind.TipoEmpregado() != TTipoTrabalhador::Empregado)
        return;
    GerarListaItensRemunEmpregados(AListaCamposModificados);
    infoAgNocivo.CarregarDados(AListaCamposModificados);
    CarregarDadosinfoTrabInterm();
}

void TTarvoESocialCamposRemunPerAnt::GerarListaItensRemunEmpregados(
    const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposS1200DadosCalculo LDadosCalculo(FInfoBind, IdFilial, IdDepto, TTagOrigem::toRemunPerAnt);
    LDadosCalculo.CarregarListaDadosCalculo();
    GerarListaItensRemun(FInfoBind, LDadosCalculo.ListaDadosCalculo, AListaCamposModificados, itensRemun);
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
