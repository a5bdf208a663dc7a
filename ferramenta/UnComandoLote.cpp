#include <unistd.h>

#include <memory>

#include "ferramenta/UnBarraDeProgresso.h"
#include "ferramenta/UnCarga.h"
#include "ferramenta/UnComandos.h"
#include "ferramenta/UnContexto.h"
#include "ferramenta/UnErros.h"
#include "framework/UnOvraSerializacaoObject.h"
#include "framework/UnTarvoESocialCamposCaminhos.h"
#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/valores/UnOvraConversoes.h"

namespace tarvo::ferramenta {

namespace {

struct TOpcoes {
    TEventoDaLinha Evento;
    TOpcoesDoContexto Contexto;
    TOpcoesDaCarga Carga;
    std::string Parte;
};

/// Every Numero-th key of Total, counted from 1.
struct TParte {
    std::size_t Numero = 1;
    std::size_t Total = 1;
};

TParte LerParte(const std::string& ATexto)
{
    const auto LBarra = ATexto.find('/');
    const auto LNumero = StrToInt64Def(ATexto.substr(0, LBarra), 0);
    const auto LTotal = LBarra == std::string::npos ? 0 : StrToInt64Def(ATexto.substr(LBarra + 1), 0);
    if (LNumero < 1 || LTotal < LNumero)
        throw EUsoErrado("--parte é K/N, com K de 1 a N, e não '" + ATexto + "'");
    return {static_cast<std::size_t>(LNumero), static_cast<std::size_t>(LTotal)};
}

/// The line of one key; false when its load failed. ECaminhoInvalido for a path that no key has.
bool CarregarChave(TContexto& AContexto, const std::string& ACodigo, const TChaveDoLote& AChave,
                   const TOpcoesDaCarga& AOpcoes, std::string& ALinha)
{
    ALinha = "{\"chave\":" + AChave.Json;
    const auto Falhar = [&](const std::exception& AErro) {
        ALinha += ",\"erro\":" + TextoJson(AErro.what()) + "}\n";
        return false;
    };
    try {
        AContexto.IniciarInstantaneo();
        ALinha += ",\"evento\":" + Carregar(ACodigo, AChave.Argumentos, AOpcoes).Evento->ToJson().AsJSON() + "}\n";
        return true;
    } catch (const ECaminhoVazio& LErro) {
        return Falhar(LErro); // the next key may have what this one lacks
    } catch (const ECaminhoInvalido&) {
        throw;
    } catch (const std::exception& LErro) {
        return Falhar(LErro);
    }
}

int CarregarLote(const TOpcoes& AOpcoes)
{
    const auto& LCodigo = AOpcoes.Evento.Codigo();
    const auto& LArgumentos = AOpcoes.Evento.Argumentos;
    // A wrong argument is told before the database is asked for.
    static_cast<void>(TArgumentosDeEvento(BuscarEventoDoCatalogo(LCodigo).Lote->Argumentos, LArgumentos));
    const auto LParte = AOpcoes.Parte.empty() ? TParte() : LerParte(AOpcoes.Parte);
    TContexto LContexto(AOpcoes.Contexto);
    const auto LChaves = BuscarChavesDoLote(LCodigo, LArgumentos);

    int LSaida = SAIDA_FEITO;
    TBarraDeProgresso LBarra(STDERR_FILENO, LCodigo);
    const auto LMinhas = LChaves.size() < LParte.Numero ? 0 : (LChaves.size() - LParte.Numero) / LParte.Total + 1;
    const bool LNoTerminal = isatty(STDOUT_FILENO) == 1;
    std::size_t LFeitas = 0;
    for (auto LIndice = LParte.Numero - 1; LIndice < LChaves.size(); LIndice += LParte.Total) {
        LBarra.Avancar(LFeitas, LMinhas);
        std::string LLinha;
        if (!CarregarChave(LContexto, LCodigo, LChaves[LIndice], AOpcoes.Carga, LLinha))
            LSaida = SAIDA_FALHA;
        if (LNoTerminal)
            LBarra.Apagar();
        EscreverResultado(LLinha);
        LBarra.Avancar(++LFeitas, LMinhas);
    }
    LContexto.ConferirRastro();
    return LSaida;
}

} // namespace

TComando ComandoLote()
{
    const auto LOpcoes = std::make_shared<TOpcoes>();
    TComando LComando{"lote", "carrega um evento para toda a empresa, uma linha JSON por trabalhador ou chave",
                      "esocial-campos lote EVENTO --banco LIGACAO --ARGUMENTO VALOR ... [--parte K/N]"};
    AdicionarOpcoesDoContexto(LComando, LOpcoes->Contexto);
    AdicionarOpcoesDaCarga(LComando, LOpcoes->Carga);
    LComando.Opcoes.push_back({"--parte", &LOpcoes->Parte, "carrega só cada N-ésima chave, a partir da K-ésima", "K/N",
                               TTextoAceito::NaoVazio});
    AdicionarEventos(
        LComando, LOpcoes->Evento, [](const TEventoDoCatalogo& AEvento) { return AEvento.Lote.has_value(); },
        [](const TEventoDoCatalogo& AEvento) -> const std::vector<TArgumentoDeEvento>& {
            return AEvento.Lote->Argumentos;
        });
    LComando.Executar = [LOpcoes] { return CarregarLote(*LOpcoes); };
    return LComando;
}

} // namespace tarvo::ferramenta
