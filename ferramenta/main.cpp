#include "ferramenta/UnComandos.h"
#include "framework/UnTarvoESocialCamposVersao.h"
#include "imports/banco/UnOvraUtilsDbFirebird.h"

int main(int argc, char** argv)
{
    using namespace tarvo::ferramenta;
    tarvo::PrepararPastaDeTravas();
    const TPrograma LPrograma{
        "esocial-campos",
        "Carrega os dados dos eventos do eSocial do banco da folha de pagamento.",
        tarvo::VersaoDaBiblioteca(),
        "esocial-campos COMANDO [OPÇÕES]; veja 'esocial-campos --ajuda'",
        "Exemplos:\n"
        "  esocial-campos criar-banco --banco folha.fdb --exemplo\n"
        "  esocial-campos eventos S-1000\n"
        "  esocial-campos carregar S-1000 --banco folha.fdb --AIDEmpresa 1 --AData 2021-03-01\n"
        "\n"
        "A ajuda de um comando: esocial-campos carregar --ajuda. O resultado vai para a saída padrão, as mensagens "
        "para a\n"
        "saída de erros. Saída 0: feito; 1: a carga ou o banco falhou; 2: uso errado.",
        {ComandoCriarBanco(), ComandoEventos(), ComandoCarregar(), ComandoReverter(), ComandoLote(),
         ComandoIncidencias()}};
    return ExecutarPrograma(LPrograma, argc, argv);
}
