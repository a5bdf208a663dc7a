#include <CLI/CLI.hpp>

#include <cstdio>

#include "bench/UnGeradorDeEmpresa.h"
#include "imports/banco/UnOvraUtilsDbFirebird.h"

// Grows the company of a database made by `esocial-campos criar-banco --exemplo`.

// NOLINTNEXTLINE(bugprone-exception-escape): whatever went wrong may end it
int main(int argc, char** argv)
{
    using namespace tarvo;
    PrepararPastaDeTravas();
    std::string LBanco;
    int LTrabalhadores = 1000;
    std::uint32_t LSemente = 20210301;
    CLI::App LApp("Acrescenta trabalhadores gerados à empresa 1 de um banco com a empresa de exemplo");
    LApp.set_help_flag("--ajuda", "mostra esta ajuda");
    LApp.add_option("--banco", LBanco, "o banco, como em esocial-campos")->required();
    LApp.add_option("--trabalhadores", LTrabalhadores, "quantos")->check(CLI::PositiveNumber);
    LApp.add_option("--semente", LSemente, "a mesma semente dá a mesma empresa");
    CLI11_PARSE(LApp, argc, argv);
    try {
        TOvraConnection LConexao(ParametrosDaConexao(LBanco));
        bancada::GerarTrabalhadores(LConexao, LTrabalhadores, LSemente);
        // What the generator left to clean is not the load's to pay.
        LConexao.Consultar("SELECT COUNT(*) FROM CALCULO");
        return 0;
    } catch (const std::exception& LErro) {
        std::fprintf(stderr, "%s\n", LErro.what());
        return 1;
    }
}
