/* The C interface as a host in C uses it, on two databases with the sample company: teste_c BANCO OUTRO_BANCO.
 * The first failed check ends it. */
#include "c/tarvo_esocial.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#define CONFERIR(condicao)                                                                                             \
    do {                                                                                                               \
        if (!(condicao)) {                                                                                             \
            fprintf(stderr, "%s:%d: %s\nErro: %s\n", __FILE__, __LINE__, #condicao, tarvo_erro());                     \
            exit(1);                                                                                                   \
        }                                                                                                              \
    } while (0)

#define RECUSADO(chamada, situacao, texto)                                                                             \
    do {                                                                                                               \
        CONFERIR((chamada) == (situacao));                                                                             \
        CONFERIR(strstr(tarvo_erro(), texto) != NULL);                                                                 \
    } while (0)

static const char NM_CARGO[] = "InfoCargo.DadosCargo.nmCargo";

static tarvo_evento *criar(tarvo_conexao *conexao, const char *codigo, const char *nome, const char *valor)
{
    tarvo_evento *evento = NULL;
    CONFERIR(tarvo_evento_criar(conexao, codigo, &nome, &valor, 1, &evento) == TARVO_FEITO);
    return evento;
}

static tarvo_evento *cargo(tarvo_conexao *conexao)
{
    tarvo_evento *evento = criar(conexao, "s-1030", "aidcargosdescr", "8");
    CONFERIR(tarvo_evento_carregar(evento, NULL) == TARVO_FEITO);
    return evento;
}

static tarvo_evento *empregador(tarvo_conexao *conexao)
{
    const char *nomes[] = {"AIDEmpresa", "AData"};
    const char *valores[] = {"1", "2021-03-01"};
    tarvo_evento *evento = NULL;
    CONFERIR(tarvo_evento_criar(conexao, "S-1000", nomes, valores, 2, &evento) == TARVO_FEITO);
    return evento;
}

static int contem(tarvo_evento *evento, const char *texto)
{
    char *json = NULL;
    int achou;
    CONFERIR(tarvo_evento_json(evento, 0, &json) == TARVO_FEITO);
    achou = strstr(json, texto) != NULL;
    tarvo_liberar_texto(json);
    return achou;
}

static int cargo_contem(tarvo_conexao *conexao, const char *texto)
{
    tarvo_evento *evento = cargo(conexao);
    const int achou = contem(evento, texto);
    tarvo_evento_liberar(evento);
    return achou;
}

/* What needs no database. */
static void referencia(void)
{
    tarvo_textos *textos = NULL;
    char *texto = NULL;
    CONFERIR(strchr(tarvo_versao(), '.') != NULL && *tarvo_erro() == '\0');
    CONFERIR(tarvo_eventos(&textos) == TARVO_FEITO && tarvo_textos_quantidade(textos) == 38);
    CONFERIR(strcmp(tarvo_textos_item(textos, 0), "S-1000") == 0 && tarvo_textos_item(textos, 38) == NULL);
    tarvo_liberar_textos(textos);
    CONFERIR(tarvo_argumentos("S-1000", 0, &textos) == TARVO_FEITO && tarvo_textos_quantidade(textos) == 2);
    CONFERIR(strcmp(tarvo_textos_item(textos, 1), "AData") == 0);
    tarvo_liberar_textos(textos);
    CONFERIR(tarvo_esquema("S-1000", &texto) == TARVO_FEITO && strstr(texto, "\"infoCadastro\"") != NULL);
    tarvo_liberar_texto(texto);
    CONFERIR(tarvo_referencia("S-1000", &texto) == TARVO_FEITO && strstr(texto, "AIDEmpresa") != NULL);
    tarvo_liberar_texto(texto);

    RECUSADO(tarvo_argumentos("S-9999", 0, &textos), TARVO_USO_ERRADO, "S-9999");
    CONFERIR(textos == NULL && tarvo_textos_quantidade(NULL) == 0 && tarvo_textos_item(NULL, 0) == NULL);
    RECUSADO(tarvo_esquema(NULL, &texto), TARVO_USO_ERRADO, "código");
    RECUSADO(tarvo_eventos(NULL), TARVO_USO_ERRADO, "Falta informar");
    tarvo_liberar_textos(NULL);
    tarvo_liberar_texto(NULL);
    tarvo_evento_liberar(NULL);
    tarvo_desconectar(NULL);
}

static void uso_errado(tarvo_conexao *conexao, const char *banco)
{
    const char *nomes[] = {"AIDEmpresa", "AData", "aidempresa"};
    const char *valores[] = {"1", "31/12/2021", "2"};
    tarvo_conexao *nenhuma = conexao;
    tarvo_evento *evento = NULL;
    tarvo_textos *comandos = NULL;
    char *json = NULL;

    RECUSADO(tarvo_conectar("/nao/existe.fdb", NULL, NULL, &nenhuma), TARVO_FALHA, "/nao/existe.fdb");
    CONFERIR(nenhuma == NULL);
    RECUSADO(tarvo_conectar("", NULL, NULL, &nenhuma), TARVO_USO_ERRADO, "banco");
    RECUSADO(tarvo_conectar(banco, NULL, NULL, NULL), TARVO_USO_ERRADO, "conexao");
    RECUSADO(tarvo_definir_ambiente(conexao, 3), TARVO_USO_ERRADO, "3");
    RECUSADO(tarvo_conectar_brenco(conexao, "/nao/existe.fdb", NULL, NULL), TARVO_FALHA, "/nao/existe.fdb");

    RECUSADO(tarvo_evento_criar(NULL, "S-1000", nomes, valores, 2, &evento), TARVO_USO_ERRADO, "conexão");
    RECUSADO(tarvo_evento_criar(conexao, "S-9999", nomes, valores, 2, &evento), TARVO_USO_ERRADO, "S-9999");
    RECUSADO(tarvo_evento_criar(conexao, "S-1000", nomes, valores, 1, &evento), TARVO_USO_ERRADO, "AData");
    RECUSADO(tarvo_evento_criar(conexao, "S-1000", nomes, valores, 2, &evento), TARVO_USO_ERRADO, "31/12/2021");
    RECUSADO(tarvo_evento_criar(conexao, "S-1000", NULL, valores, 2, &evento), TARVO_USO_ERRADO, "nomes");
    valores[1] = "2021-12-31";
    RECUSADO(tarvo_evento_criar(conexao, "S-1000", nomes, valores, 3, &evento), TARVO_USO_ERRADO, "repetido");
    nomes[2] = nomes[0];
    RECUSADO(tarvo_evento_criar(conexao, "S-1000", nomes, valores, 3, &evento), TARVO_USO_ERRADO, "repetido");
    valores[0] = NULL;
    RECUSADO(tarvo_evento_criar(conexao, "S-1000", nomes, valores, 2, &evento), TARVO_USO_ERRADO, "AIDEmpresa");
    CONFERIR(evento == NULL);

    evento = criar(conexao, "S-1030", "AIDCargosDescr", "8");
    CONFERIR(*tarvo_erro() == '\0');
    RECUSADO(tarvo_evento_json(evento, 0, &json), TARVO_USO_ERRADO, "carregado");
    RECUSADO(tarvo_evento_reverter(evento, &comandos), TARVO_USO_ERRADO, "carregado");
    RECUSADO(tarvo_evento_definir(evento, NM_CARGO, "x"), TARVO_USO_ERRADO, "carregado");
    RECUSADO(tarvo_evento_desligar_grupo(evento, "InfoCargo.nada"), TARVO_USO_ERRADO, "InfoCargo.nada");
    CONFERIR(tarvo_evento_carregar(evento, "") == TARVO_FEITO);
    RECUSADO(tarvo_evento_definir(evento, "InfoCargo.nada", "x"), TARVO_USO_ERRADO, "InfoCargo.nada");
    RECUSADO(tarvo_evento_definir(evento, NM_CARGO, "\xff"), TARVO_USO_ERRADO, "UTF-8");
    RECUSADO(tarvo_evento_definir(evento, NM_CARGO, NULL), TARVO_USO_ERRADO, "valor");
    RECUSADO(tarvo_executar(conexao, NULL), TARVO_USO_ERRADO, "comandos");
    tarvo_evento_liberar(evento);

    evento = empregador(conexao);
    CONFERIR(tarvo_evento_carregar(evento, NULL) == TARVO_FEITO);
    RECUSADO(tarvo_evento_definir(evento, "InfoEmpregador.idePeriodo.iniValid", "ontem"), TARVO_USO_ERRADO, "ontem");
    tarvo_evento_liberar(evento);

    evento = criar(conexao, "S-1035", "AIDCargosDescr", "8");
    CONFERIR(tarvo_evento_carregar(evento, NULL) == TARVO_FEITO);
    RECUSADO(tarvo_evento_reverter(evento, &comandos), TARVO_USO_ERRADO, "S-1035");
    CONFERIR(comandos == NULL && json == NULL);
    tarvo_evento_liberar(evento);
}

static void so_o_pedido(tarvo_conexao *conexao)
{
    tarvo_evento *evento = empregador(conexao);
    CONFERIR(tarvo_evento_desligar_grupo(evento, "InfoEmpregador.infoCadastro.Contato") == TARVO_FEITO);
    CONFERIR(tarvo_evento_carregar(evento, NULL) == TARVO_FEITO);
    CONFERIR(contem(evento, "Ipê") && !contem(evento, "Lúcia"));
    tarvo_evento_liberar(evento);
    evento = empregador(conexao);
    CONFERIR(tarvo_evento_desligar_grupo(evento, "InfoEmpregador.infoCadastro") == TARVO_FEITO);
    CONFERIR(tarvo_evento_carregar(evento, NULL) == TARVO_FEITO);
    CONFERIR(!contem(evento, "Ipê") && contem(evento, "Lúcia"));
    tarvo_evento_liberar(evento);
    evento = empregador(conexao);
    CONFERIR(tarvo_evento_carregar(evento, "{00000000-0000-0000-0000-000000000000}") == TARVO_FEITO);
    CONFERIR(!contem(evento, "Ipê"));
    CONFERIR(tarvo_evento_carregar(evento, NULL) == TARVO_FEITO);
    CONFERIR(contem(evento, "Ipê") && contem(evento, "Lúcia"));
    tarvo_evento_liberar(evento);
}

/* A corrected position is written to its own database and no other, and what a moment shows doesn't change. */
static void correcao(tarvo_conexao *conexao, tarvo_conexao *outra)
{
    tarvo_evento *evento = cargo(conexao);
    tarvo_evento *da_outra = cargo(outra);
    tarvo_textos *comandos = NULL;
    tarvo_textos *comandos_da_outra = NULL;
    CONFERIR(tarvo_evento_definir(evento, NM_CARGO, "Mestre d’água") == TARVO_FEITO);
    CONFERIR(tarvo_evento_definir(da_outra, NM_CARGO, "Mestre pleno") == TARVO_FEITO);
    CONFERIR(tarvo_evento_reverter(evento, &comandos) == TARVO_FEITO);
    CONFERIR(tarvo_evento_reverter(da_outra, &comandos_da_outra) == TARVO_FEITO);
    CONFERIR(tarvo_textos_quantidade(comandos) == tarvo_textos_quantidade(comandos_da_outra));
    CONFERIR(strncmp(tarvo_textos_item(comandos, 0), "UPDATE ", 7) == 0);
    CONFERIR(!cargo_contem(conexao, "Mestre"));

    CONFERIR(tarvo_iniciar_instantaneo(outra) == TARVO_FEITO);
    CONFERIR(!cargo_contem(outra, "Mestre"));
    RECUSADO(tarvo_iniciar_instantaneo(outra), TARVO_USO_ERRADO, "instantâneo");
    CONFERIR(tarvo_executar(conexao, comandos) == TARVO_FEITO);
    CONFERIR(cargo_contem(conexao, "Mestre d’água") && !cargo_contem(outra, "Mestre"));
    CONFERIR(tarvo_executar(outra, comandos_da_outra) == TARVO_FEITO);
    CONFERIR(cargo_contem(outra, "Mestre pleno") && cargo_contem(conexao, "Mestre d’água"));
    CONFERIR(tarvo_encerrar_instantaneo(outra) == TARVO_FEITO);
    tarvo_liberar_textos(comandos);
    tarvo_liberar_textos(comandos_da_outra);
    tarvo_evento_liberar(evento);
    tarvo_evento_liberar(da_outra);
}

/* Two of the employer's statements are refused by every engine: nothing is written. */
static void tudo_ou_nada(tarvo_conexao *conexao)
{
    tarvo_evento *evento = empregador(conexao);
    tarvo_textos *comandos = NULL;
    CONFERIR(tarvo_evento_carregar(evento, NULL) == TARVO_FEITO);
    CONFERIR(tarvo_evento_definir(evento, "InfoEmpregador.infoCadastro.NmRazao", "Outra razão") == TARVO_FEITO);
    CONFERIR(tarvo_evento_reverter(evento, &comandos) == TARVO_FEITO);
    RECUSADO(tarvo_executar(conexao, comandos), TARVO_FALHA, "Nada foi gravado: 2 de 10");
    CONFERIR(strstr(tarvo_erro(), "Comando recusado: UPDATE ") != NULL);
    CONFERIR(tarvo_evento_carregar(evento, NULL) == TARVO_FEITO && !contem(evento, "Outra razão"));
    tarvo_liberar_textos(comandos);
    tarvo_evento_liberar(evento);
}

/* Another writer comes between the load and the write-back: the later one is refused. */
static void conflito(tarvo_conexao *conexao, tarvo_conexao *do_mesmo_banco)
{
    tarvo_evento *evento;
    tarvo_evento *do_outro = cargo(do_mesmo_banco);
    tarvo_textos *comandos = NULL;
    tarvo_textos *do_outro_comandos = NULL;
    CONFERIR(tarvo_iniciar_instantaneo(conexao) == TARVO_FEITO);
    evento = cargo(conexao);
    CONFERIR(tarvo_evento_definir(do_outro, NM_CARGO, "Primeiro") == TARVO_FEITO);
    CONFERIR(tarvo_evento_definir(evento, NM_CARGO, "Segundo") == TARVO_FEITO);
    CONFERIR(tarvo_evento_reverter(do_outro, &do_outro_comandos) == TARVO_FEITO);
    CONFERIR(tarvo_evento_reverter(evento, &comandos) == TARVO_FEITO);
    CONFERIR(tarvo_executar(do_mesmo_banco, do_outro_comandos) == TARVO_FEITO);
    RECUSADO(tarvo_executar(conexao, comandos), TARVO_FALHA, "update conflict");
    CONFERIR(cargo_contem(conexao, "Primeiro"));
    tarvo_liberar_textos(comandos);
    tarvo_liberar_textos(do_outro_comandos);
    tarvo_evento_liberar(evento);
    tarvo_evento_liberar(do_outro);
}

int main(int argc, char **argv)
{
    tarvo_conexao *conexao = NULL;
    tarvo_conexao *outra = NULL;
    tarvo_conexao *mesma = NULL;
    tarvo_evento *evento;
    if (argc != 3)
        return 2;
    referencia();
    CONFERIR(tarvo_conectar(argv[1], NULL, "", &conexao) == TARVO_FEITO);
    CONFERIR(tarvo_conectar(argv[2], "SYSDBA", NULL, &outra) == TARVO_FEITO);
    CONFERIR(tarvo_conectar(argv[1], NULL, NULL, &mesma) == TARVO_FEITO);
    uso_errado(conexao, argv[1]);
    so_o_pedido(conexao);
    correcao(conexao, outra);
    tudo_ou_nada(conexao);
    conflito(conexao, mesma);
    /* An event keeps its connection. */
    evento = cargo(conexao);
    tarvo_desconectar(conexao);
    tarvo_desconectar(outra);
    tarvo_desconectar(mesma);
    CONFERIR(tarvo_evento_carregar(evento, NULL) == TARVO_FEITO && contem(evento, "Primeiro"));
    tarvo_evento_liberar(evento);
    return 0;
}
