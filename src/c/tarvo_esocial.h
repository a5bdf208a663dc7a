/* The events of eSocial for hosts that aren't C++: C99, opaque handles, no exception across this border.
 *
 * Texts. Every text, in and out, is UTF-8 and ends in a zero. A text or a list that a function gives belongs to the
 * caller, who frees it with tarvo_liberar_texto or tarvo_liberar_textos; what a `const char *` result points to stays
 * the library's.
 *
 * Errors. A function that can fail returns a tarvo_situacao; anything but TARVO_FEITO leaves its results null and its
 * reason, in Portuguese, in tarvo_erro(). A null handle or a null text where one is needed is TARVO_USO_ERRADO. The
 * functions that free take null and do nothing. A handle that was freed must not be used again.
 *
 * Threads. Any thread may call. Calls on different connections run side by side; calls on one connection and on its
 * events wait for each other, so a handle may be used by any thread, but freed by one alone, when no other uses it any
 * more. To load in parallel, open a connection for each thread. A call leaves the thread's context, if the host is a
 * C++ one with a context of its own, as it found it.
 *
 * Moments. Each call that reads the database sees one moment of it. Between tarvo_iniciar_instantaneo and
 * tarvo_encerrar_instantaneo all calls of a connection see the same one; a write-back within is refused where somebody
 * else has changed the row since.
 */
#ifndef TARVO_ESOCIAL_H
#define TARVO_ESOCIAL_H

#include <stddef.h>

#if defined(__GNUC__)
#define TARVO_API __attribute__((visibility("default")))
#else
#define TARVO_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* As the exit codes of the program. */
typedef enum tarvo_situacao {
    TARVO_FEITO = 0,
    /* The database or the load failed. */
    TARVO_FALHA = 1,
    /* The caller gave what can't be: an unknown event, a text that is no date, a path that the tree doesn't have. */
    TARVO_USO_ERRADO = 2
} tarvo_situacao;

/* A connection to a payroll database, and the environment that its events are loaded in. */
typedef struct tarvo_conexao tarvo_conexao;
/* An event of one employer, worker, rubric or month. */
typedef struct tarvo_evento tarvo_evento;
/* A list of texts. */
typedef struct tarvo_textos tarvo_textos;

/* The version of the library, "1.0.0". */
TARVO_API const char* tarvo_versao(void);
/* Why the last call of this thread failed; empty when it didn't. Holds until the thread's next call. Never null. */
TARVO_API const char* tarvo_erro(void);

/* Frees a text that a function gave. */
TARVO_API void tarvo_liberar_texto(char* texto);
/* How many texts a list has; 0 for null. */
TARVO_API size_t tarvo_textos_quantidade(const tarvo_textos* textos);
/* The text at a position from 0, which lives as long as the list; null beyond the end and for a null list. */
TARVO_API const char* tarvo_textos_item(const tarvo_textos* textos, size_t posicao);
TARVO_API void tarvo_liberar_textos(tarvo_textos* textos);

/* The codes of all events in layout order: "S-1000", ... */
TARVO_API tarvo_situacao tarvo_eventos(tarvo_textos** codigos);
/* The names of an event's arguments in their order: all of them, or only those that must be given. */
TARVO_API tarvo_situacao tarvo_argumentos(const char* codigo, int so_obrigatorios, tarvo_textos** nomes);
/* The page of an event, in Markdown: its arguments and its groups with tag, type, source and rule of each value. */
TARVO_API tarvo_situacao tarvo_referencia(const char* codigo, char** texto);
/* JSON Schema (draft 4) of the event's JSON. */
TARVO_API tarvo_situacao tarvo_esquema(const char* codigo, char** texto);

/* Opens a database: a file path (embedded engine), host[/port]:path or inet://... (server). A null or empty user or
 * password is that of ISC_USER or ISC_PASSWORD; without either it is SYSDBA with no password. The first call sets
 * FIREBIRD_LOCK where this user can't write the engine's own folder of locks: make it before the process has threads
 * that read the environment. */
TARVO_API tarvo_situacao tarvo_conectar(const char* banco, const char* usuario, const char* senha,
                                        tarvo_conexao** conexao);
/* Gives the connection back. Events that are still held keep it open, and go on working, until the last is freed. */
TARVO_API void tarvo_desconectar(tarvo_conexao* conexao);
/* The environment of eSocial whose stored events count: 1 production (at first), 2 restricted production. */
TARVO_API tarvo_situacao tarvo_definir_ambiente(tarvo_conexao* conexao, int ambiente);
/* Opens the sibling system's database, which S-1250 reads; the user and password as in tarvo_conectar. */
TARVO_API tarvo_situacao tarvo_conectar_brenco(tarvo_conexao* conexao, const char* banco, const char* usuario,
                                               const char* senha);
/* All further calls see the database as it is now. TARVO_USO_ERRADO when the moment is held already. A moment held for
 * long keeps the server from cleaning up: end it. */
TARVO_API tarvo_situacao tarvo_iniciar_instantaneo(tarvo_conexao* conexao);
/* Every further call sees its own moment again; does nothing when none is held. */
TARVO_API tarvo_situacao tarvo_encerrar_instantaneo(tarvo_conexao* conexao);

/* Creates an event from its code ("S-1000", in any case) and `quantos` named arguments, as the texts that the program
 * takes: keys and ordinals as whole numbers, dates as AAAA-MM-DD. Nothing is loaded yet. */
TARVO_API tarvo_situacao tarvo_evento_criar(tarvo_conexao* conexao, const char* codigo, const char* const* nomes,
                                            const char* const* valores, size_t quantos, tarvo_evento** evento);
/* The event's loads leave out the group at this path ("InfoEmpregador.infoCadastro") from now on; the groups below it
 * are loaded all the same. */
TARVO_API tarvo_situacao tarvo_evento_desligar_grupo(tarvo_evento* evento, const char* caminho);
/* Loads the event: everything, or only the groups with the GUIDs of a comma list (null or empty: everything). After a
 * failure the event counts as not loaded; it may be loaded again. */
TARVO_API tarvo_situacao tarvo_evento_carregar(tarvo_evento* evento, const char* grupos);
/* The loaded event as JSON, on one line or indented. */
TARVO_API tarvo_situacao tarvo_evento_json(tarvo_evento* evento, int identado, char** json);
/* Sets a property of the loaded event ("InfoCargo.DadosCargo.nmCargo", an item of a list as "dmDev[0]") from a text:
 * numbers with a decimal comma, dates as dd/mm/aaaa or aaaa-mm-dd (empty unsets), flags as true or false. */
TARVO_API tarvo_situacao tarvo_evento_definir(tarvo_evento* evento, const char* caminho, const char* valor);
/* The statements that write the values of the loaded event back, in order; none is run. TARVO_USO_ERRADO for an event
 * whose values don't turn back (all but S-1000 and S-1030). */
TARVO_API tarvo_situacao tarvo_evento_reverter(tarvo_evento* evento, tarvo_textos** comandos);
TARVO_API void tarvo_evento_liberar(tarvo_evento* evento);

/* Runs the statements of tarvo_evento_reverter, all or none, and ends the moment that tarvo_iniciar_instantaneo held.
 * TARVO_FALHA leaves the database as it was; the error names each statement that was refused. */
TARVO_API tarvo_situacao tarvo_executar(tarvo_conexao* conexao, const tarvo_textos* comandos);

#ifdef __cplusplus
}
#endif

#endif
