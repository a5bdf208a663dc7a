/* Corrects the name of a position from C: shows the statements that write it back, and runs them when asked.
 *
 *   corrigir_cargo folha.fdb 8 "Analista de Sistemas" [--executar]
 */
#include <stdio.h>
#include <string.h>
#include <tarvo_esocial.h>

static tarvo_situacao corrigir(tarvo_conexao *conexao, const char *cargo, const char *nome, int executar)
{
    const char *argumento = "AIDCargosDescr";
    tarvo_evento *evento = NULL;
    tarvo_textos *comandos = NULL;
    tarvo_situacao situacao;
    size_t i;

    /* One moment from the load to the write-back: a change of somebody else in between isn't overwritten. */
    situacao = tarvo_iniciar_instantaneo(conexao);
    if (situacao == TARVO_FEITO)
        situacao = tarvo_evento_criar(conexao, "S-1030", &argumento, &cargo, 1, &evento);
    if (situacao == TARVO_FEITO)
        situacao = tarvo_evento_carregar(evento, NULL);
    if (situacao == TARVO_FEITO)
        situacao = tarvo_evento_definir(evento, "InfoCargo.DadosCargo.nmCargo", nome);
    if (situacao == TARVO_FEITO)
        situacao = tarvo_evento_reverter(evento, &comandos);
    for (i = 0; i < tarvo_textos_quantidade(comandos); ++i)
        puts(tarvo_textos_item(comandos, i));
    if (situacao == TARVO_FEITO && executar)
        situacao = tarvo_executar(conexao, comandos);
    tarvo_liberar_textos(comandos);
    tarvo_evento_liberar(evento);
    return situacao;
}

int main(int argc, char **argv)
{
    tarvo_conexao *conexao = NULL;
    tarvo_situacao situacao;
    const int executar = argc == 5 && strcmp(argv[4], "--executar") == 0;

    if (argc != 4 && !executar) {
        fputs("Uso: corrigir_cargo BANCO CARGO NOME [--executar]\n", stderr);
        return TARVO_USO_ERRADO;
    }
    /* User and password from ISC_USER and ISC_PASSWORD. */
    situacao = tarvo_conectar(argv[1], NULL, NULL, &conexao);
    if (situacao == TARVO_FEITO)
        situacao = corrigir(conexao, argv[2], argv[3], executar);
    if (situacao != TARVO_FEITO)
        fprintf(stderr, "%s\n", tarvo_erro());
    tarvo_desconectar(conexao);
    return situacao;
}
