#include "remuneracao/anteriores/UnTarvoESocialCamposIdePeriodoS1200.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasEmpresa.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"
#include "imports/valores/UnTarvoUtilsDatas.h"
#include "imports/valores/UnTarvoUtilsGeral.h"
#include "remuneracao/anteriores/UnTarvoESocialCamposLotacoesS1200.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposIdePeriodoS1200::TTarvoESocialCamposIdePeriodoS1200(TTarvoESocialCamposS1200IOP& AinfoBind1200)
    : TTarvoESocialCamposGrupoBase("{C5D747B0-D80C-4EC3-B2A9-999E104CAB0E}"), FInfoBind(AinfoBind1200),
      FTipoQuebraEmpresa(TTarvoConsultasEmpresa::BuscarTipoQuebraGpsGfipEmpresa(AinfoBind1200.IdEmpresa()))
{}

const TPropriedades& TTarvoESocialCamposIdePeriodoS1200::Tabela()
{
    using Eu = TTarvoESocialCamposIdePeriodoS1200;
    static const TPropriedades tabela{
        {"perRef", &Eu::perRef},
        {"ideEstabLot", &Eu::ideEstabLot},
    };
    return tabela;
}

void TTarvoESocialCamposIdePeriodoS1200::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    CarregarDadosideEstabLot(AListaCamposModificados);
    perRef = FInfoBind.PerRef;
    if (FInfoBind.Chave == 6) {
        const auto LDataRescisao = BuscarDataRescisaoNormal();
        if (!LDataRescisao.Vazia())
            perRef = LDataRescisao;
    }
}

void TTarvoESocialCamposIdePeriodoS1200::CarregarDadosideEstabLot(
    const TListaCamposModificados* AListaCamposModificados)
{
    CarregarLotacoesDoEmpregado();
    for (const auto LIdFilial : FIdEstabsEstabLot)
        CarregarIdeEstabLot(LIdFilial, 0, AListaCamposModificados);
    if (FTipoQuebraEmpresa == TTipoQuebraGpsGfip::Departamento)
        for (const auto LIdDepto : FIdDeptosEstabLot)
            CarregarIdeEstabLot(0, LIdDepto, AListaCamposModificados);
}

void TTarvoESocialCamposIdePeriodoS1200::CarregarIdeEstabLot(std::int64_t AIdFilial, std::int64_t AIdDepto,
                                                             const TListaCamposModificados* AListaCamposModificados)
{
    auto LLotacao = std::make_unique<TTarvoESocialCamposIdeEstabLotS1200PerAnt>(FInfoBind);
    LLotacao->IdFilial = AIdFilial;
    LLotacao->IdDepto = AIdDepto;
    LLotacao->CarregarDados(AListaCamposModificados);
    if (!LLotacao->remunPerAnt.empty())
        ideEstabLot.push_back(std::move(LLotacao));
}

void TTarvoESocialCamposIdePeriodoS1200::CarregarLotacoesDoEmpregado()
{
    static constexpr std::string_view COLUNAS = R"(SC00_FILIAL.IDFILIAL,
  COALESCE(SC00_DEPTO.IDDEPTO, 0) IDDEPTO,
  COALESCE(SC00_DEPTO.TIPODEPTO, 0) TIPODEPTO)";
    const auto LCds = TTarvoConsultasGeral::BuscarRegistros(SqlCalculosPorLotacao(
        COLUNAS, FInfoBind.ListaIdsEmpregado(), PrimeiroDiaDoMes(FInfoBind.PerRef), UltimoDiaDoMes(FInfoBind.PerRef),
        true, Format("SC00_EMPRESA.IDEMPRESA = %0:D", FInfoBind.IdEmpresa()), "1, 2"));
    for (; !LCds->Eof(); LCds->Next()) {
        const auto LIdDepto = LCds->FieldByName("IDDEPTO").AsLargeInt();
        const auto LTipoDepto = LCds->FieldByName("TIPODEPTO").AsInteger();
        // A department with a registration of its own counts as its establishment here, unlike in the current period.
        if (FTipoQuebraEmpresa == TTipoQuebraGpsGfip::Departamento && LTipoDepto != 2 && LTipoDepto != 3 &&
            LIdDepto != 0)
            AdicionarSemRepetir(FIdDeptosEstabLot, LIdDepto);
        else
            AdicionarSemRepetir(FIdEstabsEstabLot, LCds->FieldByName("IDFILIAL").AsLargeInt());
    }
}

TDateTime TTarvoESocialCamposIdePeriodoS1200::BuscarDataRescisaoNormal() const
{
    static constexpr std::string_view SQL = R"(SELECT DISTINCT CALCULO.DATA_INICIO
FROM CALCULO
WHERE CALCULO.TIPO = '05'
  AND CALCULO.SUBTIPO = 0
  AND CALCULO.IDEMPREGADO = (SELECT FIRST 1 RESCISAOCOMPLEMENTAR.IDEMPREGADO
                             FROM CALCULO RESCISAOCOMPLEMENTAR
                             WHERE RESCISAOCOMPLEMENTAR.TIPO = '05'
                               AND RESCISAOCOMPLEMENTAR.SUBTIPO = 2
                               %0:s
                               AND RESCISAOCOMPLEMENTAR.DATA_PAGTO = %1:s
                             ORDER BY RESCISAOCOMPLEMENTAR.DATA_PAGTO DESC, RESCISAOCOMPLEMENTAR.IDCALCULO)
ORDER BY CALCULO.DATA_INICIO)";
    return TTarvoConsultasGeral::BuscarData(Format(
        SQL,
        FormatarListaParaClausulaIN("RESCISAOCOMPLEMENTAR", "IDEMPREGADO",
                                    TTarvoUtilsGeral::ConverterTListParaMultisselecao(FInfoBind.ListaIdsEmpregado()),
                                    "AND"),
        FormatarDataDB(FInfoBind.DataPagto(), true)));
}

} // namespace tarvo::remuneracao
