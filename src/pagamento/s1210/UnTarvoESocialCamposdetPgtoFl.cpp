#include "pagamento/s1210/UnTarvoESocialCamposdetPgtoFl.h"

#include <algorithm>

#include "imports/UnOvraEsocialReinfControleAmbientes.h"
#include "imports/UnOvraExcecoes.h"
#include "imports/consultas/UnTarvoConsultasESocial.h"
#include "imports/consultas/UnTarvoConsultasEmpregado.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/consultas/UnTarvoConsultasVerbas.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "pagamento/s1210/UnTarvoESocialCamposSqlS1210.h"
#include "pagamento/s1210/UnTarvoESocialCamposVerbasS1210.h"
#include "regras/UnTarvoESocialCamposBuscaIncidVerbas.h"
#include "regras/UnTarvoESocialCamposIdeDmDev.h"
#include "regras/UnTarvoESocialCamposIncidIrrf.h"

namespace tarvo::pagamento {

namespace {

constexpr std::int32_t PAGAMENTO_DA_RESCISAO = 2;
constexpr std::int32_t PAGAMENTO_DO_TERMINO = 3;

} // namespace

TTarvoESocialCamposdetPgtoFl::TTarvoESocialCamposdetPgtoFl(const TTarvoESocialCamposS1210IOP& AInfoBind)
    : TTarvoESocialCamposGrupoBase("{C58D0A11-3699-4653-A1AE-06F04449D246}"), infoPgtoParc(AInfoBind.IdEmpregado),
      FInfoBind(AInfoBind)
{}

const TPropriedades& TTarvoESocialCamposdetPgtoFl::Tabela()
{
    using Eu = TTarvoESocialCamposdetPgtoFl;
    static const TPropriedades tabela{
        {"perRef", &Eu::perRef},
        {"ideDmDev", &Eu::ideDmDev},
        {"indPgtoTt", &Eu::indPgtoTt},
        {"vrLiq", &Eu::vrLiq},
        {"nrRecArq", &Eu::nrRecArq},
        {"retPgtoTot", &Eu::retPgtoTot},
        {"infoPgtoParc", &Eu::infoPgtoParc},
        {"ValidouGeracao", &Eu::ValidouGeracao},
    };
    return tabela;
}

void TTarvoESocialCamposdetPgtoFl::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    FListaCamposModificados = AListaCamposModificados;
    AtribuirFiltroIntermitente();
    AlimentarPropriedadesDaTag();
    BuscarListaretPgtoTot();
    ValidarEvento();
}

void TTarvoESocialCamposdetPgtoFl::AtribuirFiltroIntermitente()
{
    FFiltroIntermitente = FInfoBind.IDIntermitente != 0
                              ? Format(" AND CALCULO.IDDETCONVOCACAO  =%0:d", FInfoBind.IDIntermitente)
                              : " AND CALCULO.IDDETCONVOCACAO IS NULL";
}

void TTarvoESocialCamposdetPgtoFl::AlimentarPropriedadesDaTag()
{
    perRef = BuscarPerRef();
    ideDmDev = GerarIdeDmDev();
    indPgtoTt = tpSimNao::Sim;
    vrLiq = BuscarValorTotal();
    nrRecArq = BuscarNumeroRecibo();
}

std::string TTarvoESocialCamposdetPgtoFl::BuscarPerRef() const
{
    static constexpr std::string_view ANO_MES = "YYYY-MM";
    if (FInfoBind.tpPgto != 1 && FInfoBind.tpPgto != 5)
        return {};
    if (FInfoBind.TipoFolha == TTiposFolha::ParticipacaoNosLucros)
        return FormatDateTime(ANO_MES, FInfoBind.DataPagto);
    if (FInfoBind.TipoFolha == TTiposFolha::DecimoTerceiro && FInfoBind.SubTipoFolha == 0)
        return FormatDateTime("YYYY", FInfoBind.DataInicio);
    if (FInfoBind.DataAcordoConvencao.Vazia())
        return FormatDateTime(ANO_MES, FInfoBind.DataInicio);
    // By agreement: a dismissal refers to the month of its payment, any other run to that of the agreement.
    return FormatDateTime(ANO_MES, FInfoBind.TipoFolha == TTiposFolha::Rescisao ? FInfoBind.DataPagto
                                                                                : FInfoBind.DataAcordoConvencao);
}

std::string TTarvoESocialCamposdetPgtoFl::GerarIdeDmDev() const
{
    using enum regras::TFormaIdeDmDev;
    regras::TDadosIdeDmDev LDados{.TipoFolha = StrToInt64Def(CodigoDaFolha(FInfoBind.TipoFolha), 0),
                                  .SubTipoFolha = FInfoBind.SubTipoFolha,
                                  .TipoFolhaCompl = FInfoBind.TipoFolhaCompl,
                                  .NrRecibo = FInfoBind.NumeroRecibo,
                                  .Data = FInfoBind.DataInicio};
    // Here a convocation counts when it is greater than zero; the remuneration takes any that isn't zero.
    if (FInfoBind.IDIntermitente > 0)
        LDados.IdDetConvocacao = FInfoBind.IDIntermitente;
    switch (FInfoBind.TipoFolha) {
    case TTiposFolha::Rescisao:
        LDados.Forma = Rescisao;
        break;
    case TTiposFolha::Rpa:
        LDados.Forma = Recibo;
        LDados.Data = FInfoBind.DataPagto;
        break;
    case TTiposFolha::ParticipacaoNosLucros:
        LDados.Data = FInfoBind.DataPagto;
        break;
    default:
        break;
    }
    if (TTarvoConsultasEmpregado::ExistemVariosVinculosAtivosComCategDiferentes(FInfoBind.IdEmpresa, FInfoBind.Cpf,
                                                                                FInfoBind.DataInicio))
        LDados.CodCateg = FInfoBind.CodigoCategoria;
    return regras::FormarIdeDmDev(LDados);
}

static constexpr std::string_view SQL_LIQUIDO_DA_FOLHA = R"(SELECT CALCULO.VALOR
FROM CALCULO
JOIN TAB_VERBAS ON (CALCULO.COD_VERBA=TAB_VERBAS.CODIGO)
WHERE TAB_VERBAS.FORMULA = '%0:s'
  %1:s%2:s)";

static constexpr std::string_view SQL_LIQUIDO_DO_RECIBO = R"(SELECT RPAVALOR.VALOR
FROM RPAVALOR
JOIN RPA ON (RPA.IDRPA=RPAVALOR.IDRPA)
JOIN SC00_FILIAL ON (SC00_FILIAL.IDFILIAL=RPA.IDFILIAL)
JOIN RPATPVALOR ON (RPATPVALOR.IDRPATPVALOR=RPAVALOR.IDRPATPVALOR)
%0:s)";

long double TTarvoESocialCamposdetPgtoFl::BuscarValorTotal() const
{
    if (FInfoBind.TipoFolha == TTiposFolha::Rpa)
        return BuscarSomaDoSql(
            Format(SQL_LIQUIDO_DO_RECIBO, FiltroDoRecibo(FInfoBind, "RPATPVALOR.NOME = 'VLRLIQUIDO'")),
            "RPAVALOR.IDRPAVALOR");
    return BuscarSomaDoSql(Format(SQL_LIQUIDO_DA_FOLHA, FInfoBind.TipoFolha == TTiposFolha::Rescisao ? "8J" : "98A",
                                  FiltroDoDemonstrativo(FInfoBind), FFiltroIntermitente),
                           "CALCULO.IDCALCULO");
}

static constexpr std::string_view SQL_EMPREGADO_DO_DEMONSTRATIVO = R"(SELECT CALCULO.IDEMPREGADO
FROM CALCULO
%0:s
%1:s)";

std::string TTarvoESocialCamposdetPgtoFl::BuscarNumeroRecibo() const
{
    if (FInfoBind.tpPgto != PAGAMENTO_DA_RESCISAO && FInfoBind.tpPgto != PAGAMENTO_DO_TERMINO)
        return {};
    const auto LIdEmpregado = TTarvoConsultasGeral::BuscarInteiro(Format(
        SQL_EMPREGADO_DO_DEMONSTRATIVO, FiltroDoDemonstrativo(FInfoBind, "WHERE"), OrdemDaChave("CALCULO.IDCALCULO")));
    return TTarvoConsultasESocial::BuscarNumeroDeRecibo(
        FInfoBind.IdEmpresa,
        FInfoBind.tpPgto == PAGAMENTO_DA_RESCISAO ? TTipoEventoFolha::tefS2299 : TTipoEventoFolha::tefS2399,
        LIdEmpregado, 0, BuscarInstanciaOvraEsocialReinfControleAmbientes().BuscarTpAmbParaXML(), TDateTime());
}

void TTarvoESocialCamposdetPgtoFl::BuscarListaretPgtoTot()
{
    if (FInfoBind.TipoTrabalhador != TTipoTrabalhador::Empregado)
        BuscarListaretPgtoTotPrestServico();
    else
        BuscarListaretPgtoTotEmpregado();
}

template <class TValidar, class TNomear>
void TTarvoESocialCamposdetPgtoFl::AdicionarVerbasDeRetencao(const std::string& ASql, std::string_view AColuna,
                                                             TValidar AValidar, TNomear ANomear)
{
    const auto LCds = TTarvoConsultasGeral::BuscarRegistros(ASql);
    bool LReprovada = false;
    while (!LCds->Eof()) {
        const auto LId = LCds->FieldByName(AColuna).AsLargeInt();
        // A rubric that fails is neither passed nor reported: it is tested once more, and then the load ends, since
        // what was withheld must not be left out in silence.
        if (!AValidar(LId)) {
            if (LReprovada) {
                const auto [LCodigo, LNome] = ANomear(LId);
                throw Exception(Format("Verba %0:s sem incidência de IRRF de retenção (31 a 35, 51 a 55 ou 81 a 83): "
                                       "%1:s, no demonstrativo %2:s pago em %3:s",
                                       LCodigo, LNome, ideDmDev, DateTimeToStr(FInfoBind.DataPagto)));
            }
            LReprovada = true;
            continue;
        }
        auto LVerba = std::make_unique<TTarvoESocialCamposretPgtoTot>(FInfoBind);
        LVerba->IdVerba = LId;
        LVerba->CarregarDados(FListaCamposModificados);
        retPgtoTot.push_back(std::move(LVerba));
        LReprovada = false;
        LCds->Next();
    }
}

static constexpr std::string_view SQL_VERBAS_DE_RETENCAO = R"(SELECT DISTINCT TAB_VERBAS.IDVERBA
FROM TAB_VERBAS
JOIN CALCULO ON (CALCULO.COD_VERBA=TAB_VERBAS.CODIGO)
WHERE (TAB_VERBAS.FORMULA LIKE '5E%%' OR TAB_VERBAS.FORMULA LIKE '99G%%' OR TAB_VERBAS.FORMULA LIKE '99H%%'
    OR TAB_VERBAS.FORMULA IN ('99F','99I','99K','99M'))
  AND CALCULO.VALOR > 0
  %0:s%1:s
ORDER BY TAB_VERBAS.IDVERBA)";

void TTarvoESocialCamposdetPgtoFl::BuscarListaretPgtoTotEmpregado()
{
    AdicionarVerbasDeRetencao(
        Format(SQL_VERBAS_DE_RETENCAO, FiltroDoDemonstrativo(FInfoBind), FFiltroIntermitente), "IDVERBA",
        [this](std::int64_t AId) { return ValidouIncidenciaDaVerba(AId); },
        [](std::int64_t AId) {
            const auto LFiltro = Format("WHERE TAB_VERBAS.IDVERBA = %0:d", AId);
            return std::pair(TTarvoConsultasGeral::BuscarValor("TAB_VERBAS", "CODIGO", LFiltro),
                             TTarvoConsultasGeral::BuscarValor("TAB_VERBAS", "NOME", LFiltro));
        });
}

static constexpr std::string_view SQL_VERBAS_DE_RETENCAO_DO_RECIBO = R"(SELECT DISTINCT RPATPVALOR.IDRPATPVALOR
FROM RPATPVALOR
JOIN RPAVALOR ON (RPAVALOR.IDRPATPVALOR=RPATPVALOR.IDRPATPVALOR)
JOIN RPA ON (RPA.IDRPA=RPAVALOR.IDRPA)
JOIN SC00_FILIAL ON (SC00_FILIAL.IDFILIAL=RPA.IDFILIAL)
%0:s
ORDER BY RPATPVALOR.IDRPATPVALOR)";

void TTarvoESocialCamposdetPgtoFl::BuscarListaretPgtoTotPrestServico()
{
    AdicionarVerbasDeRetencao(
        Format(SQL_VERBAS_DE_RETENCAO_DO_RECIBO,
               FiltroDoRecibo(FInfoBind, "RPATPVALOR.NOME = 'VLRIRRF' AND RPAVALOR.VALOR > 0")),
        "IDRPATPVALOR", [this](std::int64_t AId) { return ValidouIncidenciaDaVerbaRpa(AId); },
        [](std::int64_t AId) {
            return std::pair(IntToStr(AId),
                             TTarvoConsultasGeral::BuscarValor("RPATPVALOR", "DESCRICAO",
                                                               Format("WHERE RPATPVALOR.IDRPATPVALOR = %0:d", AId)) +
                                 " (RPA)");
        });
}

bool TTarvoESocialCamposdetPgtoFl::ValidouIncidenciaDaVerba(std::int64_t AIdVerba) const
{
    using enum regras::TTipoRetornoIncidVerbas;
    const auto LProcessos = TTarvoConsultasVerbas::BuscarTiposDeTributosComProcessoParaVerbaNaEmpresa(
        AIdVerba, FInfoBind.IdEmpresa, FInfoBind.DataInicio);
    const auto LCodigos = regras::TTarvoESocialCamposBuscaIncidVerbas::BuscarIncidencias(
                              AIdVerba, trNormal, LProcessos.IRRF ? trProcesso : trNormal, trNormal, trNormal)
                              .FListIrrf;
    return std::any_of(LCodigos.begin(), LCodigos.end(), regras::EhRetencaoDeIrrf);
}

bool TTarvoESocialCamposdetPgtoFl::ValidouIncidenciaDaVerbaRpa(std::int64_t AId) const
{
    return regras::EhRetencaoDeIrrf(BuscarCodigosDaVerbaRpa(AId).codIncIRRF);
}

// The engine reads the comment away; it stays, as the rule that it tells is easily taken for an error. The '%' are
// plain characters: NOT IN compares whole texts.
static constexpr std::string_view FORMULAS_FORA_DA_VALIDACAO =
    "'1G' ,'1J','1Q','1T','1EAA','1EAB','1EBA','1EBB', '700A', '900A', '98A', '99B', '99BA', '99BB', '99BC', '8J', "
    "'7D', '96%', '97%', '99J%', '99CB'";
static constexpr std::string_view SQL_VALIDACAO = R"(SELECT CALCULO.RDB$DB_KEY
FROM CALCULO
JOIN TAB_VERBAS ON (CALCULO.COD_VERBA=TAB_VERBAS.CODIGO)
WHERE FORMULA NOT IN (%0:S)
  %1:S
  /* A VERBA DEVE ESTAR ZERADA OU ESTAR RELACIONADA COM AS RUBRICAS '9905', '9930', '9931', '9932' POIS NESSES CASOS O EVENTO S1200 ENVIA A BASE E NAO O VALOR */
  AND ((CALCULO.VALOR > 0)
    OR EXISTS(SELECT FIRST 1 FP_RUBRICARELAC.RDB$DB_KEY
      FROM FP_RUBRICARELAC
      JOIN FP_ESOCIALTABELA ON (FP_ESOCIALTABELA.IDESOCIALTABELA = FP_RUBRICARELAC.IDESOCIALTABELA)
      WHERE FP_RUBRICARELAC.IDVERBA = TAB_VERBAS.IDVERBA
        AND FP_RUBRICARELAC.DATAINICIO <= CALCULO.DATA_INICIO
        AND ((FP_RUBRICARELAC.DATAFIM >= CALCULO.DATA_FIM) OR (FP_RUBRICARELAC.DATAFIM IS NULL))
        AND FP_ESOCIALTABELA.CODIGO IN ('9905', '9930', '9931', '9932'))))";

void TTarvoESocialCamposdetPgtoFl::ValidarEvento()
{
    ValidouGeracao = vrLiq > 0 || TTarvoConsultasGeral::EncontrouRegistros(Format(
                                      SQL_VALIDACAO, FORMULAS_FORA_DA_VALIDACAO, FiltroDoDemonstrativo(FInfoBind)));
}

} // namespace tarvo::pagamento
