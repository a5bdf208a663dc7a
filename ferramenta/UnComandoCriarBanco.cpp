#include <iostream>
#include <memory>

#include "banco/UnBancoEmbutido.h"
#include "ferramenta/UnComandos.h"
#include "ferramenta/UnContexto.h"
#include "ferramenta/UnErros.h"
#include "imports/banco/UnOvraScriptSql.h"

namespace tarvo::ferramenta {

namespace {

struct TOpcoes {
    TOpcoesDoContexto Ligacao;
    bool Exemplo = false;
};

int CriarBanco(const TOpcoes& AOpcoes)
{
    const auto LParametros = ParametrosDaLigacao(AOpcoes.Ligacao);
    TOvraConnection::CriarBanco(LParametros);
    try {
        TOvraConnection LConexao(LParametros);
        for (const auto& LScript : ScriptsDoEsquema())
            ExecutarScriptSql(LConexao, LScript.Texto);
        if (AOpcoes.Exemplo)
            for (const auto& LScript : ScriptsDoExemplo())
                ExecutarScriptSql(LConexao, LScript.Texto);
    } catch (const Exception&) {
        // Half a database helps nobody, and would stand in the way of the next try.
        try {
            TOvraConnection::ApagarBanco(LParametros);
        } catch (const EDatabaseError&) {
            std::cerr << "O banco ficou incompleto e não pôde ser apagado: " << LParametros.BancoDeDados << "\n";
        }
        throw;
    }
    std::cerr << "Banco criado: " << LParametros.BancoDeDados
              << (AOpcoes.Exemplo ? " (com a empresa de exemplo)\n" : "\n");
    return SAIDA_FEITO;
}

} // namespace

TComando ComandoCriarBanco()
{
    const auto LOpcoes = std::make_shared<TOpcoes>();
    TComando LComando{"criar-banco", "cria um banco da folha novo, vazio ou com a empresa de exemplo",
                      "esocial-campos criar-banco --banco ARQUIVO [--exemplo]"};
    AdicionarOpcoesDeLigacao(LComando, LOpcoes->Ligacao);
    LComando.Opcoes.push_back({"--exemplo", &LOpcoes->Exemplo, "põe nele a empresa de exemplo"});
    LComando.Executar = [LOpcoes] { return CriarBanco(*LOpcoes); };
    return LComando;
}

} // namespace tarvo::ferramenta
