#include "catalogo/UnTarvoESocialCamposCatalogo.h"

#include <algorithm>
#include <limits>

#include "catalogo/UnTarvoESocialCamposChavesDoLote.h"
#include "desligamento/s2299/UnTarvoESocialCamposS2299.h"
#include "desligamento/s2399/UnTarvoESocialCamposS2399.h"
#include "framework/UnOvraSerializacaoObject.h"
#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/banco/UnOvraConnection.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "pagamento/s1210/UnTarvoESocialCamposS1210.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200.h"
#include "rural/fechamento/UnTarvoESocialCamposS1295.h"
#include "rural/fechamento/UnTarvoESocialCamposS1298.h"
#include "rural/fechamento/UnTarvoESocialCamposS1299.h"
#include "rural/s1250/UnTarvoESocialCamposS1250.h"
#include "rural/s1260/UnTarvoESocialCamposS1260.h"
#include "rural/s1280/UnTarvoESocialCamposS1280.h"
#include "sst/s2210/UnTarvoESocialCamposS2210.h"
#include "sst/s2220/UnTarvoESocialCamposS2220.h"
#include "sst/s2221/UnTarvoESocialCamposS2221.h"
#include "sst/s2240/UnTarvoESocialCamposS2240.h"
#include "sst/s2241/UnTarvoESocialCamposS2241.h"
#include "sst/s2245/UnTarvoESocialCamposS2245.h"
#include "tabelas/s1000/UnTarvoESocialCamposS1000.h"
#include "tabelas/s1005/UnTarvoESocialCamposS1005.h"
#include "tabelas/s1010/UnTarvoESocialCamposS1010.h"
#include "tabelas/s1020/UnTarvoESocialCamposS1020.h"
#include "tabelas/s1030/UnTarvoESocialCamposS1030.h"
#include "tabelas/s1035/UnTarvoESocialCamposS1035.h"
#include "tabelas/s1040/UnTarvoESocialCamposS1040.h"
#include "tabelas/s1050/UnTarvoESocialCamposS1050.h"
#include "tabelas/s1060/UnTarvoESocialCamposS1060.h"
#include "tabelas/s1070/UnTarvoESocialCamposS1070.h"
#include "trabalhador/s2100/UnTarvoESocialCamposS2100.h"
#include "trabalhador/s2190/UnTarvoESocialCamposS2190.h"
#include "trabalhador/s2200/UnTarvoESocialCamposS2200.h"
#include "trabalhador/s2205/UnTarvoESocialCamposS2205.h"
#include "trabalhador/s2206/UnTarvoESocialCamposS2206.h"
#include "trabalhador/s2230/UnTarvoESocialCamposS2230.h"
#include "trabalhador/s2250/UnTarvoESocialCamposS2250.h"
#include "trabalhador/s2260/UnTarvoESocialCamposS2260.h"
#include "trabalhador/s2298/UnTarvoESocialCamposS2298.h"
#include "trabalhador/s2300/UnTarvoESocialCamposS2300.h"
#include "trabalhador/s2306/UnTarvoESocialCamposS2306.h"
#include "trabalhador/s3000/UnTarvoESocialCamposS3000.h"

namespace tarvo {

namespace {

using namespace catalogo;

using enum TTipoArgumento;

/// An event whose constructor takes everything and that needs no parameter object.
template <class T, class... A>
TEventoConstruidoDe<T> Evento(const A&... AArgumentos)
{
    return {nullptr, std::make_unique<T>(AArgumentos...)};
}

TEventoConstruidoDe<pagamento::TTarvoESocialCamposS1210> EventoS1210(const TArgumentosDeEvento& A)
{
    auto LInfoBind = std::make_shared<pagamento::TTarvoESocialCamposS1210IOP>();
    LInfoBind->IdEmpresa = A.Id("IdEmpresa");
    LInfoBind->Cpf = A.Texto("Cpf");
    LInfoBind->DataInicio = A.Data("DataInicio");
    LInfoBind->DataFim = A.Data("DataFim");
    LInfoBind->DataInicioVigencia = A.Data("DataInicioVigencia");
    LInfoBind->TipoTrabalhador = static_cast<TTipoTrabalhador>(A.Inteiro("TipoTrabalhador"));
    auto LEvento = std::make_unique<pagamento::TTarvoESocialCamposS1210>(*LInfoBind);
    return {std::move(LInfoBind), std::move(LEvento)};
}

constexpr TArgumentoDeEvento TIPO_CONEXAO{
    "ATipoConexao", taInteiro, "1 folha, 2 Brenco no banco da folha, outro valor Brenco em banco próprio (--brenco)"};

constexpr TArgumentoDeEvento TIPO_EVENTO_S2230{"ATipoEvento", taInteiro, "1 início do afastamento, 2 término", true, 2,
                                               nullptr,       1};

/// A value of a key as text of an argument, and as JSON.
std::pair<std::string, std::string> LerChave(const TConjuntoDeLinhas& ALinhas, std::size_t ALinha, std::size_t AColuna)
{
    const auto LTipo = ALinhas.Colunas()[AColuna].Tipo;
    if (LTipo == TTipoColuna::Data || LTipo == TTipoColuna::DataHora) {
        const auto LTexto = FormatDateTime("yyyy-mm-dd", ALinhas.Data(ALinha, AColuna));
        return {LTexto, "\"" + LTexto + "\""};
    }
    const auto LTexto = ALinhas.Texto(ALinha, AColuna);
    return {LTexto, LTipo == TTipoColuna::Inteiro ? LTexto : TextoJson(LTexto)};
}

} // namespace

// One entry an event, in layout order. The names of the arguments are the constructor's, or those of the parameter
// object's properties that the caller sets.
const std::vector<TEventoDoCatalogo>& CatalogoDeEventos()
{
    static const std::vector<TEventoDoCatalogo> LCatalogo{
        {"S-1000",
         "Informações do empregador",
         {{"AIDEmpresa", taId, "código interno da empresa"}, {"AData", taData, "data de referência"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<tabelas::TTarvoESocialCamposS1000>(A.Id("AIDEmpresa"), A.Data("AData"));
         }},
        {"S-1005",
         "Estabelecimentos, obras ou unidades de órgãos públicos",
         {{"AIDEstab", taId, "código interno do estabelecimento, 0 para informar o departamento"},
          {"AIDDepto", taId, "código interno do departamento, 0 para informar o estabelecimento"},
          {"AData", taData, "data de referência"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<tabelas::TTarvoESocialCamposS1005>(A.Id("AIDEstab"), A.Id("AIDDepto"), A.Data("AData"));
         },
         LoteDaEmpresa<LUGARES_DA_EMPRESA>({{"AData", taData, "data de referência"}})},
        {"S-1010",
         "Tabela de rubricas",
         {{"AIdVerba", taId, "código interno da verba; 0 para uma rubrica de RPA"},
          {"AidEmpresa", taId, "código interno da empresa"},
          {"AIdRubricaRpa", taId, "código interno da relação da rubrica de RPA; 0 para uma verba"},
          {"ADataGeracao", taData, "data de referência"},
          {"codIncCP", taInteiro, "incidência para a previdência social", false},
          {"codIncIRRF", taInteiro, "incidência para o imposto de renda", false},
          {"codIncFGTS", taInteiro, "incidência para o FGTS", false},
          {"codIncSIND", taInteiro, "incidência para a contribuição sindical", false}},
         [](const TArgumentosDeEvento& A) {
             // Without any of the codes the event gets none at all, and leaves them empty.
             std::shared_ptr<regras::TCodigosIncidenciaVerba> LCodigos;
             if (A.Informado("codIncCP") || A.Informado("codIncIRRF") || A.Informado("codIncFGTS") ||
                 A.Informado("codIncSIND"))
                 LCodigos = std::make_shared<regras::TCodigosIncidenciaVerba>(regras::TCodigosIncidenciaVerba{
                     A.Inteiro("codIncCP"), A.Inteiro("codIncIRRF"), A.Inteiro("codIncFGTS"), A.Inteiro("codIncSIND")});
             auto LEvento = Evento<tabelas::TTarvoESocialCamposS1010>(
                 A.Id("AIdVerba"), A.Id("AidEmpresa"), A.Id("AIdRubricaRpa"), A.Data("ADataGeracao"), LCodigos.get());
             LEvento.Parametros = LCodigos;
             return LEvento;
         },
         LoteDaEmpresa<RUBRICAS_DA_EMPRESA, AID_EMPRESA>({{"ADataGeracao", taData, "data de referência"}})},
        {"S-1020",
         "Lotações tributárias",
         {{"AIDEstab", taId, "código interno do estabelecimento"},
          {"AIDDepto", taId, "código interno do departamento, 0 para informar o estabelecimento"},
          {"AData", taData, "data de referência"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<tabelas::TTarvoESocialCamposS1020>(A.Id("AIDEstab"), A.Id("AIDDepto"), A.Data("AData"));
         },
         LoteDaEmpresa<LOTACOES_DA_EMPRESA>({{"AData", taData, "data de referência"}})},
        {"S-1030",
         "Cargos e empregos públicos",
         {{"AIDCargosDescr", taId, "código interno do cargo"}},
         [](const TArgumentosDeEvento& A) { return Evento<tabelas::TTarvoESocialCamposS1030>(A.Id("AIDCargosDescr")); },
         LoteDaEmpresa<CARGOS_DA_EMPRESA>()},
        {"S-1035",
         "Carreiras públicas",
         {{"AIdCargoDescr", taId, "código interno da carreira", true, -1, "AIDCargosDescr"}},
         [](const TArgumentosDeEvento& A) { return Evento<tabelas::TTarvoESocialCamposS1035>(A.Id("AIdCargoDescr")); },
         LoteDaEmpresa<CARGOS_DA_EMPRESA>()},
        {"S-1040",
         "Funções e cargos em comissão",
         {{"AIDCargosDescr", taId, "código interno da função"}},
         [](const TArgumentosDeEvento& A) { return Evento<tabelas::TTarvoESocialCamposS1040>(A.Id("AIDCargosDescr")); },
         LoteDaEmpresa<CARGOS_DA_EMPRESA>()},
        {"S-1050",
         "Tabela de horários e turnos de trabalho",
         {{"AIdHorario", taId, "código interno do horário"},
          {"AIdHorarioDet", taId, "código interno do detalhe do horário; 0 para um dia da semana"},
          {"ADiaSemana", taInteiro, "dia da semana, de 0 (domingo) a 6 (sábado)", true, 6}},
         [](const TArgumentosDeEvento& A) {
             return Evento<tabelas::TTarvoESocialCamposS1050>(A.Id("AIdHorario"), A.Id("AIdHorarioDet"),
                                                              static_cast<TDiaSemana>(A.Inteiro("ADiaSemana")));
         },
         LoteDaEmpresa<HORARIOS_DA_EMPRESA>()},
        {"S-1060",
         "Ambientes de trabalho",
         {{"AIdAmbiente", taId, "código interno do ambiente"}},
         [](const TArgumentosDeEvento& A) { return Evento<tabelas::TTarvoESocialCamposS1060>(A.Id("AIdAmbiente")); },
         LoteDaEmpresa<AMBIENTES_DA_EMPRESA>()},
        {"S-1070",
         "Processos administrativos e judiciais",
         {{"AIdProcesso", taId, "código interno do processo"}},
         [](const TArgumentosDeEvento& A) { return Evento<tabelas::TTarvoESocialCamposS1070>(A.Id("AIdProcesso")); },
         LoteDaEmpresa<PROCESSOS_DA_EMPRESA>()},
        {"S-1200",
         "Remuneração de trabalhador vinculado ao RGPS",
         {{"IdEmpresa", taId, "código interno da empresa"},
          {"Cpf", taCpf, "CPF do trabalhador, como está no cadastro"},
          {"DataInicio", taData, "primeiro dia do mês"},
          {"DataFim", taData, "último dia do mês"},
          {"IndApuracao", taInteiro, "0 mensal (padrão), 1 anual (13º salário)", false, 1}},
         [](const TArgumentosDeEvento& A) {
             auto LParametros = std::make_shared<remuneracao::TTarvoESocialCamposS1200IOP>();
             LParametros->SetIdEmpresa(A.Id("IdEmpresa"));
             LParametros->SetCpf(A.Texto("Cpf"));
             LParametros->SetDataInicio(A.Data("DataInicio"));
             LParametros->SetDataFim(A.Data("DataFim"));
             LParametros->SetIndApuracao(static_cast<tpIndApuracao>(A.Inteiro("IndApuracao")));
             auto LEvento = std::make_unique<remuneracao::TTarvoESocialCamposS1200>(*LParametros);
             return TEventoConstruidoDe<remuneracao::TTarvoESocialCamposS1200>{std::move(LParametros),
                                                                               std::move(LEvento)};
         },
         TLoteDoEvento{{{"IdEmpresa", taId, "código interno da empresa"},
                        {"DataInicio", taData, "primeiro dia do mês"},
                        {"DataFim", taData, "último dia do mês"},
                        {"IndApuracao", taInteiro, "0 mensal (padrão), 1 anual (13º salário)", false, 1}},
                       SqlDosCpfsGuardados}},
        {"S-1210",
         "Pagamentos de rendimentos do trabalho",
         {{"IdEmpresa", taId, "código interno da empresa"},
          {"Cpf", taCpf, "CPF do beneficiário"},
          {"DataInicio", taData, "primeiro dia do período"},
          {"DataFim", taData, "último dia do período"},
          // Taken as the remuneration takes it, so that one command line serves both.
          {"IndApuracao", taInteiro, "0 mensal, 1 anual; não muda os pagamentos", false, 1},
          {"TipoTrabalhador", taInteiro, "0 empregado (padrão), 1 prestador de serviço", false, 1},
          {"DataInicioVigencia", taData, "início do leiaute: o que é anterior vai como pagamento anterior", false}},
         EventoS1210,
         TLoteDoEvento{
             {{"IdEmpresa", taId, "código interno da empresa"},
              {"DataInicio", taData, "primeiro dia do período"},
              {"DataFim", taData, "último dia do período"},
              {"IndApuracao", taInteiro, "0 mensal, 1 anual; não muda os pagamentos", false, 1},
              {"TipoTrabalhador", taInteiro, "0 empregado (padrão), 1 prestador de serviço", false, 1},
              {"DataInicioVigencia", taData, "início do leiaute: o que é anterior vai como pagamento anterior", false}},
             SqlDosCpfsPelosDigitos}},
        {"S-1250",
         "Aquisição de produção rural",
         {{"AIDEstabelecimento", taId, "código interno do estabelecimento"},
          {"ADataInicio", taData, "primeiro dia do período"},
          {"ADataFim", taData, "último dia do período"},
          TIPO_CONEXAO},
         [](const TArgumentosDeEvento& A) {
             return Evento<rural::TTarvoESocialCamposS1250>(A.Id("AIDEstabelecimento"), A.Data("ADataInicio"),
                                                            A.Data("ADataFim"),
                                                            static_cast<TTipoConexao>(A.Inteiro("ATipoConexao")));
         },
         LoteDaEmpresa<ESTABELECIMENTOS_DA_EMPRESA>({{"ADataInicio", taData, "primeiro dia do período"},
                                                     {"ADataFim", taData, "último dia do período"},
                                                     TIPO_CONEXAO})},
        {"S-1260",
         "Comercialização da produção rural própria",
         {{"AIdFilial", taId, "código interno do estabelecimento"}},
         [](const TArgumentosDeEvento& A) { return Evento<rural::TTarvoESocialCamposS1260>(A.Id("AIdFilial")); },
         LoteDaEmpresa<FILIAIS_DA_EMPRESA>()},
        {"S-1280",
         "Informações complementares aos eventos periódicos",
         {{"AIdEmpresa", taId, "código interno da empresa"}, {"ACompetencia", taData, "primeiro dia da competência"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<rural::TTarvoESocialCamposS1280>(A.Id("AIdEmpresa"), A.Data("ACompetencia"));
         }},
        {"S-1295",
         "Solicitação de totalização para pagamento em contingência",
         {},
         [](const TArgumentosDeEvento&) { return Evento<rural::TTarvoESocialCamposS1295>(); }},
        {"S-1298",
         "Reabertura dos eventos periódicos",
         {{"AIDEmpresa", taId, "código interno da empresa"}},
         [](const TArgumentosDeEvento& A) { return Evento<rural::TTarvoESocialCamposS1298>(A.Id("AIDEmpresa")); }},
        {"S-1299",
         "Fechamento dos eventos periódicos",
         {{"AIdEmpresa", taInteiro, "código interno da empresa"},
          {"ADataInicio", taData, "primeiro dia do período"},
          {"ADataFim", taData, "último dia do período"},
          {"AIndApur", taInteiro, "0 mensal, 1 décimo terceiro", true, 1}},
         [](const TArgumentosDeEvento& A) {
             return Evento<rural::TTarvoESocialCamposS1299>(A.Inteiro("AIdEmpresa"), A.Data("ADataInicio"),
                                                            A.Data("ADataFim"),
                                                            static_cast<tpIndApuracao>(A.Inteiro("AIndApur")));
         }},
        {"S-2100",
         "Cadastramento inicial do vínculo",
         {{"AIDEmpregado", taId, "código interno do empregado"}, {"ADataGeracao", taData, "data de referência"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<trabalhador::TTarvoESocialCamposS2100>(A.Id("AIDEmpregado"), A.Data("ADataGeracao"));
         },
         LoteDaEmpresaPor(SqlDosTrabalhadores<false>, {{"ADataGeracao", taData, "data de referência"}})},
        {"S-2190",
         "Admissão de trabalhador, registro preliminar",
         {{"AIDEmpregado", taId, "código interno do empregado"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<trabalhador::TTarvoESocialCamposS2190>(A.Id("AIDEmpregado"));
         },
         LoteDaEmpresaPor(SqlDosTrabalhadores<false>)},
        {"S-2200",
         "Admissão de trabalhador",
         {{"AIDEmpresa", taId, "código interno da empresa"},
          {"AIDEmpregado", taId, "código interno do empregado"},
          {"ADataGeracao", taData, "data de referência"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<trabalhador::TTarvoESocialCamposS2200>(A.Id("AIDEmpresa"), A.Id("AIDEmpregado"),
                                                                  A.Data("ADataGeracao"));
         },
         LoteDaEmpresaPor(SqlDosTrabalhadores<false>, {{"ADataGeracao", taData, "data de referência"}}, AID_EMPRESA)},
        {"S-2205",
         "Alteração de dados cadastrais do trabalhador",
         {{"AIDEmpregado", taId, "código interno do empregado"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<trabalhador::TTarvoESocialCamposS2205>(A.Id("AIDEmpregado"));
         },
         LoteDaEmpresa<EMPREGADOS_DA_EMPRESA>()},
        {"S-2206",
         "Alteração de contrato de trabalho",
         {{"AIDEmpregado", taId, "código interno do empregado"}, {"AData", taData, "data de referência"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<trabalhador::TTarvoESocialCamposS2206>(A.Id("AIDEmpregado"), A.Data("AData"));
         },
         LoteDaEmpresaPor(SqlDosTrabalhadores<false>, {{"AData", taData, "data de referência"}})},
        {"S-2210",
         "Comunicação de acidente de trabalho",
         {{"AIdTabCat", taId, "código interno da CAT"}},
         [](const TArgumentosDeEvento& A) { return Evento<sst::TTarvoESocialCamposS2210>(A.Id("AIdTabCat")); },
         LoteDaEmpresa<CATS_DA_EMPRESA>()},
        {"S-2220",
         "Monitoramento da saúde do trabalhador",
         {{"AIDEmpregado", taId, "código interno do empregado"}},
         [](const TArgumentosDeEvento& A) { return Evento<sst::TTarvoESocialCamposS2220>(A.Id("AIDEmpregado")); },
         LoteDaEmpresa<EMPREGADOS_DA_EMPRESA>()},
        {"S-2221",
         "Exame toxicológico do motorista profissional",
         {{"AIdExameToxicologico", taId, "código interno do exame"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<sst::TTarvoESocialCamposS2221>(A.Id("AIdExameToxicologico"));
         },
         LoteDaEmpresa<EXAMES_DA_EMPRESA>()},
        {"S-2230",
         "Afastamento temporário",
         {{"AIdSituacao", taId, "código interno da situação"}, TIPO_EVENTO_S2230},
         [](const TArgumentosDeEvento& A) {
             return Evento<trabalhador::TTarvoESocialCamposS2230>(
                 A.Id("AIdSituacao"), static_cast<TTipoEventoS2230>(A.Inteiro("ATipoEvento")));
         },
         LoteDaEmpresaPor(SqlDosAfastamentos, {TIPO_EVENTO_S2230})},
        {"S-2240",
         "Condições ambientais do trabalho: fatores de risco",
         {{"AIdFatRisco", taId, "código interno do fator de risco"}},
         [](const TArgumentosDeEvento& A) { return Evento<sst::TTarvoESocialCamposS2240>(A.Id("AIdFatRisco")); }},
        {"S-2241",
         "Insalubridade, periculosidade e aposentadoria especial",
         {{"AIdInsalPeric", taId, "código interno da condição"}},
         [](const TArgumentosDeEvento& A) { return Evento<sst::TTarvoESocialCamposS2241>(A.Id("AIdInsalPeric")); }},
        {"S-2245",
         "Treinamentos e capacitações",
         {{"AIdCursoEmpregado", taId, "código interno do curso do empregado"}},
         [](const TArgumentosDeEvento& A) { return Evento<sst::TTarvoESocialCamposS2245>(A.Id("AIdCursoEmpregado")); },
         LoteDaEmpresa<CURSOS_DA_EMPRESA>()},
        {"S-2250",
         "Aviso prévio",
         {{"AIdAvisoPrevio", taId, "código interno do aviso prévio"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<trabalhador::TTarvoESocialCamposS2250>(A.Id("AIdAvisoPrevio"));
         },
         LoteDaEmpresa<AVISOS_DA_EMPRESA>()},
        {"S-2260",
         "Convocação para trabalho intermitente",
         {{"AIdEmpregado", taId, "código interno do empregado"}, {"ADataInicio", taData, "data da convocação"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<trabalhador::TTarvoESocialCamposS2260>(A.Id("AIdEmpregado"), A.Data("ADataInicio"));
         },
         LoteDaEmpresa<CONVOCACOES_DA_EMPRESA>()},
        {"S-2298",
         "Reintegração",
         {{"AIdEmpregado", taId, "código interno do empregado"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<trabalhador::TTarvoESocialCamposS2298>(A.Id("AIdEmpregado"));
         }},
        {"S-2299",
         "Desligamento",
         {{"AIdEmpregado", taId, "código interno do empregado"},
          {"ADataInicioEventosPeriodicos", taData, "início dos eventos periódicos da empresa"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<desligamento::TTarvoESocialCamposS2299>(A.Id("AIdEmpregado"),
                                                                   A.Data("ADataInicioEventosPeriodicos"));
         },
         TLoteDoEvento{{{"IdEmpresa", taId, "código interno da empresa"},
                        {"DataInicio", taData, "primeiro dia do período do desligamento"},
                        {"DataFim", taData, "último dia do período do desligamento"},
                        {"ADataInicioEventosPeriodicos", taData, "início dos eventos periódicos da empresa"}},
                       SqlDosDesligados<false>}},
        {"S-2300",
         "Trabalhador sem vínculo de emprego, início",
         {{"AIdEmpregado", taId, "código interno do empregado"}, {"ADataGeracao", taData, "data de referência"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<trabalhador::TTarvoESocialCamposS2300>(A.Id("AIdEmpregado"), A.Data("ADataGeracao"));
         },
         LoteDaEmpresaPor(SqlDosTrabalhadores<true>, {{"ADataGeracao", taData, "data de referência"}})},
        {"S-2306",
         "Trabalhador sem vínculo de emprego, alteração",
         {{"AIdEmpregado", taId, "código interno do empregado"}, {"AData", taData, "data de referência"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<trabalhador::TTarvoESocialCamposS2306>(A.Id("AIdEmpregado"), A.Data("AData"));
         },
         LoteDaEmpresaPor(SqlDosTrabalhadores<true>, {{"AData", taData, "data de referência"}})},
        {"S-2399",
         "Trabalhador sem vínculo de emprego, término",
         {{"AIdEmpregado", taId, "código interno do empregado"},
          {"ADataInicioEventosPeriodicos", taData, "início dos eventos periódicos da empresa"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<desligamento::TTarvoESocialCamposS2399>(A.Id("AIdEmpregado"),
                                                                   A.Data("ADataInicioEventosPeriodicos"));
         },
         TLoteDoEvento{{{"IdEmpresa", taId, "código interno da empresa"},
                        {"DataInicio", taData, "primeiro dia do período do desligamento"},
                        {"DataFim", taData, "último dia do período do desligamento"},
                        {"ADataInicioEventosPeriodicos", taData, "início dos eventos periódicos da empresa"}},
                       SqlDosDesligados<true>}},
        {"S-3000",
         "Exclusão de evento",
         {{"AIdEvento", taId, "código interno do evento enviado"}},
         [](const TArgumentosDeEvento& A) { return Evento<trabalhador::TTarvoESocialCamposS3000>(A.Id("AIdEvento")); },
         LoteDaEmpresaPor(SqlDosEventosAceitos)},
    };
    return LCatalogo;
}

TEventoConstruido TConstrutorDeEvento::operator()(const TArgumentosDeEvento& AArgumentos) const
{
    return FConstruir(AArgumentos);
}

const char* ExemploDoTipo(TTipoArgumento ATipo)
{
    switch (ATipo) {
    case taId:
        return "ID";
    case taInteiro:
        return "NUMERO";
    case taData:
        return "AAAA-MM-DD";
    case taCpf:
        return "CPF";
    case taTexto:
        return "TEXTO";
    }
    return "VALOR";
}

const TEventoDoCatalogo& BuscarEventoDoCatalogo(std::string_view ACodigo)
{
    const auto& LCatalogo = CatalogoDeEventos();
    const auto LEvento = std::find_if(LCatalogo.begin(), LCatalogo.end(),
                                      [&](const auto& AEvento) { return MesmoTexto(AEvento.Codigo, ACodigo); });
    if (LEvento == LCatalogo.end())
        throw EArgumentoInvalido("Evento desconhecido: '" + std::string(ACodigo) + "'");
    return *LEvento;
}

TEventoConstruido ConstruirEvento(std::string_view ACodigo, const std::map<std::string, std::string>& AArgumentos)
{
    const auto& LEvento = BuscarEventoDoCatalogo(ACodigo);
    return LEvento.Construir(TArgumentosDeEvento(LEvento.Argumentos, AArgumentos));
}

std::vector<TChaveDoLote> BuscarChavesDoLote(std::string_view ACodigo,
                                             const std::map<std::string, std::string>& AArgumentos)
{
    const auto& LEvento = BuscarEventoDoCatalogo(ACodigo);
    if (!LEvento.Lote)
        throw EArgumentoInvalido("O evento " + std::string(LEvento.Codigo) + " não é carregado em lote");
    const auto LLinhas = OvraConnection().Consultar(
        LEvento.Lote->SqlDasChaves(TArgumentosDeEvento(LEvento.Lote->Argumentos, AArgumentos)));

    // What the batch alone needs, such as the company, is no argument of the event.
    std::map<std::string, std::string> LComuns;
    for (const auto& [LNome, LTexto] : AArgumentos)
        if (std::any_of(LEvento.Argumentos.begin(), LEvento.Argumentos.end(),
                        [&LNome = LNome](const auto& AArgumento) { return MesmoTexto(AArgumento.Nome, LNome); }))
            LComuns.emplace(LNome, LTexto);

    const auto& LColunas = LLinhas.Colunas();
    std::vector<TChaveDoLote> LChaves;
    LChaves.reserve(LLinhas.QuantidadeDeLinhas());
    for (std::size_t LLinha = 0; LLinha < LLinhas.QuantidadeDeLinhas(); ++LLinha) {
        TChaveDoLote LChave{LComuns, {}};
        for (std::size_t LColuna = 0; LColuna < LColunas.size(); ++LColuna) {
            const auto LArgumento =
                std::find_if(LEvento.Argumentos.begin(), LEvento.Argumentos.end(), [&](const auto& AArgumento) {
                    return MesmoTexto(AArgumento.Nome, LColunas[LColuna].Nome);
                });
            const std::string LNome =
                LArgumento == LEvento.Argumentos.end() ? LColunas[LColuna].Nome : LArgumento->Nome;
            auto [LTexto, LJson] = LerChave(LLinhas, LLinha, LColuna);
            LChave.Argumentos.insert_or_assign(LNome, std::move(LTexto));
            LChave.Json += (LColuna == 0 ? "" : ",") + (LColunas.size() == 1 ? LJson : TextoJson(LNome) + ":" + LJson);
        }
        if (LColunas.size() > 1)
            LChave.Json = "{" + LChave.Json + "}";
        LChaves.push_back(std::move(LChave));
    }
    return LChaves;
}

TArgumentosDeEvento::TArgumentosDeEvento(const std::vector<TArgumentoDeEvento>& ADefinicoes,
                                         const std::map<std::string, std::string>& ATextos)
{
    for (const auto& [LNome, LTexto] : ATextos) {
        const auto LDefinicao =
            std::find_if(ADefinicoes.begin(), ADefinicoes.end(), [&, &LNome = LNome](const auto& AItem) {
                return MesmoTexto(AItem.Nome, LNome) || (AItem.OutroNome && MesmoTexto(AItem.OutroNome, LNome));
            });
        if (LDefinicao == ADefinicoes.end())
            throw EArgumentoInvalido("Argumento desconhecido: --" + LNome);
        const auto Recusar = [&, &LNomeDoArgumento = LDefinicao->Nome,
                              &LValor = LTexto](const std::string& AMotivo) -> void {
            throw EArgumentoInvalido(std::string("Argumento --") + LNomeDoArgumento + ": '" + LValor + "' " + AMotivo);
        };
        TValor LLido;
        LLido.Texto = LTexto;
        switch (LDefinicao->Tipo) {
        case taId:
        case taInteiro:
            try {
                LLido.Inteiro = StrToInt64(LTexto);
            } catch (const EConvertError&) {
                Recusar("não é um número inteiro");
            }
            if (LDefinicao->Tipo == taInteiro && (LLido.Inteiro < std::numeric_limits<std::int32_t>::min() ||
                                                  LLido.Inteiro > std::numeric_limits<std::int32_t>::max()))
                Recusar("está fora da faixa");
            if (LDefinicao->UltimoOrdinal >= 0 &&
                (LLido.Inteiro < LDefinicao->PrimeiroOrdinal || LLido.Inteiro > LDefinicao->UltimoOrdinal))
                Recusar("não é um dos valores, de " + IntToStr(LDefinicao->PrimeiroOrdinal) + " a " +
                        IntToStr(LDefinicao->UltimoOrdinal));
            break;
        case taData:
            LLido.Data = LerDataIso(LTexto).value_or(TDateTime());
            if (LLido.Data.Vazia())
                Recusar("não é uma data AAAA-MM-DD");
            break;
        case taCpf:
            if (std::none_of(LTexto.begin(), LTexto.end(), EhDigito) ||
                LTexto.find_first_not_of("0123456789.-") != std::string::npos)
                Recusar("não é um CPF");
            break;
        case taTexto:
            if (!Utf8Valido(LTexto))
                Recusar("não é um texto UTF-8");
            break;
        }
        if (!FValores.emplace(Minusculas(LDefinicao->Nome), std::move(LLido)).second)
            throw EArgumentoInvalido(std::string("Argumento repetido: --") + LDefinicao->Nome);
    }
    std::string LFaltam;
    for (const auto& LDefinicao : ADefinicoes)
        if (LDefinicao.Obrigatorio && !Informado(LDefinicao.Nome))
            LFaltam += std::string(LFaltam.empty() ? "--" : ", --") + LDefinicao.Nome;
    if (!LFaltam.empty())
        throw EArgumentoInvalido("Falta informar " + LFaltam);
}

bool TArgumentosDeEvento::Informado(std::string_view ANome) const { return FValores.contains(Minusculas(ANome)); }

const TArgumentosDeEvento::TValor& TArgumentosDeEvento::Buscar(std::string_view ANome) const
{
    static const TValor LVazio;
    const auto LItem = FValores.find(Minusculas(ANome));
    return LItem == FValores.end() ? LVazio : LItem->second;
}

std::int64_t TArgumentosDeEvento::Id(std::string_view ANome) const { return Buscar(ANome).Inteiro; }

std::int32_t TArgumentosDeEvento::Inteiro(std::string_view ANome) const
{
    return static_cast<std::int32_t>(Buscar(ANome).Inteiro);
}

TDateTime TArgumentosDeEvento::Data(std::string_view ANome) const { return Buscar(ANome).Data; }

std::string TArgumentosDeEvento::Texto(std::string_view ANome) const { return Buscar(ANome).Texto; }

} // namespace tarvo
