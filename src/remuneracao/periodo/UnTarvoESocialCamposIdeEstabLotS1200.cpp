#include "remuneracao/periodo/UnTarvoESocialCamposIdeEstabLotS1200.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasEmpregado.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"
#include "imports/valores/UnTarvoUtilsGeral.h"
#include "regras/UnTarvoESocialCamposSqlLotacao.h"
#include "remuneracao/anteriores/UnTarvoESocialCamposLotacoesS1200.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposIdeEstabLotS1200::TTarvoESocialCamposIdeEstabLotS1200(TTarvoESocialCamposS1200IOP& AinfoBind1200)
    : TTarvoESocialCamposGrupoBase("{4F4E70CA-8CEC-4C54-96CA-D2574558832C}"), FInfoBind(AinfoBind1200),
      FListaIdsEmpregado(AinfoBind1200.ListaIdsEmpregado()), FListaIdsPrestServico(AinfoBind1200.ListaIdsPrestServico())
{}

const TPropriedades& TTarvoESocialCamposIdeEstabLotS1200::Tabela()
{
    using Eu = TTarvoESocialCamposIdeEstabLotS1200;
    static const TPropriedades tabela{
        {"tpInsc", &Eu::tpInsc, TFieldRelacionado("TPINSCRICAO")},
        {"nrInsc", &Eu::nrInsc, TFieldRelacionado("INSCRICAO")},
        {"qtdDiasAv", &Eu::qtdDiasAv, TFieldRelacionado("DIASTRAB")},
        {"codLotacao", &Eu::codLotacao, TFieldRelacionado("CODIGOESOCIAL")},
        {"IdFilial", &Eu::IdFilial},
        {"IdDepto", &Eu::IdDepto},
        {"remunPerApur", &Eu::remunPerApur},
        {"codCateg", &Eu::codCateg},
    };
    return tabela;
}

std::string TTarvoESocialCamposIdeEstabLotS1200::BuscarSQLDados()
{
    return regras::SqlInscricaoDaLotacao(IdFilial, IdDepto);
}

void TTarvoESocialCamposIdeEstabLotS1200::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    FListaCamposModificados = AListaCamposModificados;
    FiltrarTrabalhadoresPorLotacao();
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    CarregarDadosRemunPerApur();
}

void TTarvoESocialCamposIdeEstabLotS1200::FiltrarTrabalhadoresPorLotacao()
{
    static constexpr std::string_view SQL_PRESTADORES = R"(SELECT RPA.IDPRESTSERVICO
FROM RPA
WHERE RPA.DATAPAGTO BETWEEN %1:s AND %2:s
  AND RPA.IDPRESTSERVICO IN (%0:s)
  AND RPA.%4:s = %3:d
ORDER BY RPA.IDPRESTSERVICO)";
    // In a department a calculation counts only when a date of it is the last day of the period. The difference to the
    // establishment is meant.
    const auto LInicio = IdDepto == 0 ? FInfoBind.DataInicio() : FInfoBind.DataFim();
    FListaIdsEmpregado = BuscarEmpregadosDaLotacao(FListaIdsEmpregado, LInicio, FInfoBind.DataFim(), IdFilial, IdDepto);

    const auto LIds = TTarvoConsultasGeral::BuscarListaDeIds(
        Format(SQL_PRESTADORES, TTarvoUtilsGeral::ConverterTListParaMultisselecao(FListaIdsPrestServico),
               FormatarDataDB(FInfoBind.DataInicio(), true), FormatarDataDB(FInfoBind.DataFim(), true),
               IdDepto == 0 ? IdFilial : IdDepto, IdDepto == 0 ? "IDFILIAL" : "IDDEPARTAMENTO"));
    FListaIdsPrestServico.clear();
    for (const auto LId : LIds)
        AdicionarSemRepetir(FListaIdsPrestServico, LId);
}

void TTarvoESocialCamposIdeEstabLotS1200::CarregarDadosRemunPerApur()
{
    for (const auto LId : FListaIdsEmpregado) {
        FInfoBind.SetTipoEmpregado(TTipoTrabalhador::Empregado);
        // A contract that starts after the period is left out.
        if (FInfoBind.DataFim() >= TTarvoConsultasEmpregado::BuscarAdmissaoOuTransfDefinitivaInicial(LId))
            CarregarRemunPerApur(TTipoTrabalhador::Empregado, LId);
    }
    for (const auto LId : FListaIdsPrestServico) {
        FInfoBind.SetTipoEmpregado(TTipoTrabalhador::Prestador);
        CarregarRemunPerApur(TTipoTrabalhador::Prestador, LId);
    }
}

void TTarvoESocialCamposIdeEstabLotS1200::CarregarRemunPerApur(TTipoTrabalhador ATipo, std::int64_t AIdTrabalhador)
{
    FInfoBind.SetIdEmpregado(AIdTrabalhador);
    auto LRemuneracao = std::make_unique<TTarvoESocialCamposRemunPerApurS1200>(FInfoBind, IdFilial, IdDepto);
    if (ATipo == TTipoTrabalhador::Empregado)
        LRemuneracao->codCateg = codCateg;
    LRemuneracao->CarregarDados(FListaCamposModificados);
    if (!LRemuneracao->itensRemun.empty())
        remunPerApur.push_back(std::move(LRemuneracao));
}

} // namespace tarvo::remuneracao
