#include "remuneracao/periodo/UnTarvoESocialCamposInfoPerApurS1200.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasEmpresa.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"
#include "imports/valores/UnTarvoUtilsGeral.h"
#include "remuneracao/anteriores/UnTarvoESocialCamposLotacoesS1200.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposInfoPerApurS1200::TTarvoESocialCamposInfoPerApurS1200(TTarvoESocialCamposS1200IOP& AinfoBind1200)
    : TTarvoESocialCamposGrupoBase("{CE849CA7-40F8-4183-915B-AE3D37151892}"), FInfoBind(AinfoBind1200)
{}

const TPropriedades& TTarvoESocialCamposInfoPerApurS1200::Tabela()
{
    using Eu = TTarvoESocialCamposInfoPerApurS1200;
    static const TPropriedades tabela{
        {"ideEstabLot", &Eu::ideEstabLot},
        {"codCateg", &Eu::codCateg},
    };
    return tabela;
}

void TTarvoESocialCamposInfoPerApurS1200::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    // A complementary run by agreement has nothing in the current period.
    const auto LTipoFolha = FInfoBind.TipoFolha();
    if ((LTipoFolha == 1 || LTipoFolha == 3) && FInfoBind.SubTipoFolha() == 4 && FInfoBind.TipoFolhaCompl() == 1)
        return;
    CarregarDadosideEstabLot();
}

void TTarvoESocialCamposInfoPerApurS1200::CarregarDadosideEstabLot()
{
    FTipoQuebraEmpresa = TTarvoConsultasEmpresa::BuscarTipoQuebraGpsGfipEmpresa(FInfoBind.IdEmpresa());
    FIdDeptosEstabLot.clear();
    FIdEstabsEstabLot.clear();
    if (!FInfoBind.ListaIdsEmpregado().empty())
        CarregarLotacoesDoEmpregado();
    if (!FInfoBind.ListaIdsPrestServico().empty())
        CarregarLotacoesDoPrestServ();
    for (const auto LIdFilial : FIdEstabsEstabLot)
        CarregarIdeEstabLot(LIdFilial, 0);
    if (FTipoQuebraEmpresa == TTipoQuebraGpsGfip::Departamento)
        for (const auto LIdDepto : FIdDeptosEstabLot)
            CarregarIdeEstabLot(0, LIdDepto);
}

void TTarvoESocialCamposInfoPerApurS1200::CarregarIdeEstabLot(std::int64_t AIdFilial, std::int64_t AIdDepto)
{
    auto LLotacao = std::make_unique<TTarvoESocialCamposIdeEstabLotS1200>(FInfoBind);
    LLotacao->IdFilial = AIdFilial;
    LLotacao->IdDepto = AIdDepto;
    LLotacao->codCateg = codCateg;
    LLotacao->CarregarDados();
    if (!LLotacao->remunPerApur.empty())
        ideEstabLot.push_back(std::move(LLotacao));
}

void TTarvoESocialCamposInfoPerApurS1200::CarregarLotacoesDoEmpregado()
{
    static constexpr std::string_view SQL =
        R"(SELECT DISTINCT CALCULO.IDFILIAL, COALESCE(CALCULO.IDDEPARTAMENTO, 0) IDDEPTO
FROM CALCULO
WHERE (CALCULO.DATA_INICIO BETWEEN %1:S AND %2:S OR CALCULO.DATA_FIM BETWEEN %1:S AND %2:S )
  AND CALCULO.IDEMPREGADO IN (%0:S)
UNION
SELECT DISTINCT CALC_QUEBRA.IDFILIAL, COALESCE(CALC_QUEBRA.IDDEPARTAMENTO, 0) IDDEPTO
FROM CALCULO
JOIN CALC_QUEBRA ON (CALCULO.IDCALCULO = CALC_QUEBRA.IDCALCULO)
WHERE (CALCULO.DATA_INICIO BETWEEN %1:S AND %2:S OR CALCULO.DATA_FIM BETWEEN %1:S AND %2:S )
  AND CALCULO.IDEMPREGADO IN (%0:S)
ORDER BY 1, 2)";
    CarregarLotacoes(Format(SQL, TTarvoUtilsGeral::ConverterTListParaMultisselecao(FInfoBind.ListaIdsEmpregado()),
                            FormatarDataDB(FInfoBind.DataInicio(), true), FormatarDataDB(FInfoBind.DataFim(), true)));
}

void TTarvoESocialCamposInfoPerApurS1200::CarregarLotacoesDoPrestServ()
{
    static constexpr std::string_view SQL = R"(SELECT DISTINCT RPA.IDFILIAL, COALESCE(RPA.IDDEPARTAMENTO,0) IDDEPTO
FROM RPA
JOIN SC00_FILIAL ON (RPA.IDFILIAL = SC00_FILIAL.IDFILIAL)
WHERE RPA.IDPRESTSERVICO IN (%0:s)
  AND SC00_FILIAL.IDEMPRESA = %1:d
  AND RPA.DATAPAGTO BETWEEN %2:s AND %3:s
ORDER BY 1, 2)";
    CarregarLotacoes(Format(SQL, TTarvoUtilsGeral::ConverterTListParaMultisselecao(FInfoBind.ListaIdsPrestServico()),
                            FInfoBind.IdEmpresa(), FormatarDataDB(FInfoBind.DataInicio(), true),
                            FormatarDataDB(FInfoBind.DataFim(), true)));
}

void TTarvoESocialCamposInfoPerApurS1200::CarregarLotacoes(const std::string& ASql)
{
    const auto LCds = TTarvoConsultasGeral::BuscarRegistros(ASql);
    for (; !LCds->Eof(); LCds->Next()) {
        const auto LIdDepto = LCds->FieldByName("IDDEPTO").AsLargeInt();
        if (FTipoQuebraEmpresa == TTipoQuebraGpsGfip::Departamento && LIdDepto != 0)
            AdicionarSemRepetir(FIdDeptosEstabLot, LIdDepto);
        else
            AdicionarSemRepetir(FIdEstabsEstabLot, LCds->FieldByName("IDFILIAL").AsLargeInt());
    }
}

} // namespace tarvo::remuneracao
