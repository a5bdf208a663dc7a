#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>
#include <unistd.h>

#include <array>
#include <memory>
#include <optional>

#include "ferramenta/UnBarraDeProgresso.h"
#include "ferramenta/UnCarga.h"
#include "ferramenta/UnComandos.h"
#include "ferramenta/UnContexto.h"
#include "ferramenta/UnErros.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposBuscaIncidVerbas.h"

namespace tarvo::ferramenta {

namespace {

using regras::TTarvoESocialCamposBuscaIncidVerbas;
using regras::TTipoRetornoIncidVerbas;

/// The tributes in the order of the search's arguments.
constexpr std::array<const char*, 4> TRIBUTOS{"--inss", "--irrf", "--fgts", "--cs"};

struct TOpcoes {
    TOpcoesDoContexto Contexto;
    std::optional<std::string> Verba;
    std::array<std::optional<std::string>, 4> Tipos;
    std::optional<std::string> Atualizar;
    bool CargaInicial = false;
};

std::int64_t LerVerba(const char* AOpcao, const std::string& ATexto)
{
    try {
        return StrToInt64(ATexto);
    } catch (const EConvertError&) {
        throw EUsoErrado(std::string(AOpcao) + ": '" + ATexto + "' não é um número inteiro");
    }
}

regras::TTipoRetornoIncidVerbas LerTipo(const char* AOpcao, const std::string& ATexto)
{
    if (ATexto.size() != 1 || ATexto.front() < '0' || ATexto.front() > '3')
        throw EUsoErrado(std::string(AOpcao) + " é 0 (todos os códigos), 1 (normal), 2 (RRA) ou 3 (processo), e não '" +
                         ATexto + "'");
    return static_cast<regras::TTipoRetornoIncidVerbas>(ATexto.front() - '0');
}

int Mostrar(std::int64_t AIdVerba, const std::array<regras::TTipoRetornoIncidVerbas, 4>& ATipos)
{
    const auto LIncid = regras::TTarvoESocialCamposBuscaIncidVerbas::BuscarIncidencias(AIdVerba, ATipos[0], ATipos[1],
                                                                                       ATipos[2], ATipos[3]);
    rapidjson::StringBuffer LBuffer;
    rapidjson::Writer<rapidjson::StringBuffer> LEscritor(LBuffer);
    const auto Lista = [&](const char* ANome, const std::vector<std::int32_t>& ACodigos) {
        LEscritor.Key(ANome);
        LEscritor.StartArray();
        for (const auto LCodigo : ACodigos)
            LEscritor.Int(LCodigo);
        LEscritor.EndArray();
    };
    LEscritor.StartObject();
    LEscritor.Key("FCodVerba");
    LEscritor.Int(LIncid.FCodVerba);
    Lista("FListInss", LIncid.FListInss);
    Lista("FListIrrf", LIncid.FListIrrf);
    Lista("FListFgts", LIncid.FListFgts);
    Lista("FListCs", LIncid.FListCs);
    LEscritor.EndObject();
    EscreverResultado(std::string(LBuffer.GetString()) + "\n");
    return SAIDA_FEITO;
}

int Atualizar(std::int64_t AIdVerba)
{
    // The library stores code 0 for any id, also for one that no rubric has.
    if (!TTarvoConsultasGeral::EncontrouRegistros(
            Format("SELECT TAB_VERBAS.IDVERBA FROM TAB_VERBAS WHERE TAB_VERBAS.IDVERBA = %0:d", AIdVerba)))
        throw Exception("A verba " + std::to_string(AIdVerba) + " não existe");
    regras::TTarvoESocialCamposBuscaIncidVerbas LBusca(AIdVerba);
    LBusca.AtualizarIncidVerba();
    if (!LBusca.ResultStatus().Sucesso)
        throw Exception("Verba " + std::to_string(AIdVerba) + ": " + LBusca.ResultStatus().Mensagem);
    return SAIDA_FEITO;
}

/// Each rubric that fails is named, and the others go on.
int EfetuarCargaInicial()
{
    int LSaida = SAIDA_FEITO;
    TBarraDeProgresso LBarra(STDERR_FILENO, "Incidências");
    // It always answers with success; what failed is told here.
    static_cast<void>(regras::TTarvoESocialCamposBuscaIncidVerbas::EfetuarCargaInicialIncidencias(
        [&](std::int64_t AIdVerba, const TResultStatus& AStatus, std::size_t AFeitas, std::size_t ATotal) {
            LBarra.Avancar(AFeitas, ATotal);
            if (AStatus.Sucesso)
                return;
            LSaida = SAIDA_FALHA;
            LBarra.EscreverLinha("Verba " + std::to_string(AIdVerba) + ": " + AStatus.Mensagem);
        }));
    return LSaida;
}

int Executar(const TOpcoes& AOpcoes)
{
    const bool LMostrar = AOpcoes.Verba.has_value();
    const bool LAtualizar = AOpcoes.Atualizar.has_value();
    if (int{LMostrar} + int{LAtualizar} + int{AOpcoes.CargaInicial} != 1)
        throw EUsoErrado("Informe um de --verba, --atualizar e --carga-inicial");
    std::array<regras::TTipoRetornoIncidVerbas, 4> LTipos{};
    for (std::size_t i = 0; i < TRIBUTOS.size(); ++i) {
        if (!AOpcoes.Tipos[i])
            continue;
        if (!LMostrar)
            throw EUsoErrado(std::string(TRIBUTOS[i]) + " só vai com --verba");
        LTipos[i] = LerTipo(TRIBUTOS[i], *AOpcoes.Tipos[i]);
    }
    const auto LIdVerba = LMostrar     ? LerVerba("--verba", *AOpcoes.Verba)
                          : LAtualizar ? LerVerba("--atualizar", *AOpcoes.Atualizar)
                                       : 0;
    TContexto LContexto(AOpcoes.Contexto);
    const int LSaida = LMostrar ? Mostrar(LIdVerba, LTipos) : LAtualizar ? Atualizar(LIdVerba) : EfetuarCargaInicial();
    LContexto.ConferirRastro();
    return LSaida;
}

} // namespace

TComando ComandoIncidencias()
{
    const auto LOpcoes = std::make_shared<TOpcoes>();
    TComando LComando{"incidencias", "mostra as incidências de uma verba ou grava as de uma ou de todas",
                      "esocial-campos incidencias --banco LIGACAO --verba ID [--inss K] [--irrf K] [--fgts K] "
                      "[--cs K] | --atualizar ID | --carga-inicial"};
    AdicionarOpcoesDoContexto(LComando, LOpcoes->Contexto);
    LComando.Opcoes.push_back({"--verba", &LOpcoes->Verba, "mostra os códigos de incidência desta verba", "ID"});
    constexpr std::array DESCRICOES{"previdência social", "imposto de renda", "FGTS", "contribuição sindical"};
    for (std::size_t i = 0; i < TRIBUTOS.size(); ++i)
        LComando.Opcoes.push_back(
            {TRIBUTOS[i], &LOpcoes->Tipos[i],
             std::string("códigos pedidos para ") + DESCRICOES[i] + ": 0 todos, 1 normal, 2 RRA, 3 processo", "K"});
    LComando.Opcoes.push_back({"--atualizar", &LOpcoes->Atualizar, "grava de novo os códigos desta verba", "ID"});
    LComando.Opcoes.push_back(
        {"--carga-inicial", &LOpcoes->CargaInicial, "grava de novo os códigos de todas as verbas"});
    LComando.Executar = [LOpcoes] { return Executar(*LOpcoes); };
    return LComando;
}

} // namespace tarvo::ferramenta
