#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "imports/banco/UnOvraConjuntoDeLinhas.h"

namespace tarvo {

struct TParametrosConexao {
    /// A plain file path opens the embedded engine; `host[/port]:path` or `inet://...` a server.
    std::string BancoDeDados;
    std::string Usuario = "SYSDBA";
    std::string Senha;

    /// True when the location names a server.
    bool EhServidor() const;
};

/// What opens a location. An empty user or password is that of ISC_USER or ISC_PASSWORD; without either the user is
/// SYSDBA, with an empty password.
TParametrosConexao ParametrosDaConexao(std::string ABancoDeDados, const std::string& AUsuario = {},
                                       const std::string& ASenha = {});

/// What the observer of a connection is told of each statement that ran to its end.
struct TExecucaoSql {
    /// The text as the caller gave it.
    std::string_view Sql;
    /// Rows read, or rows affected.
    std::int64_t Linhas = 0;
    std::int64_t Microssegundos = 0;
};

using TObservadorSql = std::function<void(const TExecucaoSql&)>;

/// What a connection asks of the engine for one statement.
enum class TPassoSql { Preparar, Executar, LerLinha };

/// Asked before each step; what it raises comes in the place of the engine's answer.
using TVigiaSql = std::function<void(TPassoSql)>;

/// Result of ExecutouSQL.
struct [[nodiscard]] TResultStatus {
    bool Sucesso = false;
    /// The engine's text of the failure; empty on success.
    std::string Mensagem;
};

/// A connection to a Firebird database, character set UTF-8. Statements run in its one transaction, which starts
/// with the first of them (read committed, waiting for no lock) or with IniciarTransacao; COMMIT, ROLLBACK and SET
/// TRANSACTION are refused as statements (EDatabaseError), savepoints are not. So is a text with a parameter (`?`),
/// for there is nothing to give it a value. It belongs to one thread.
/// Every failure of the engine is an EDatabaseError with its text and code; a lost connection is one too, and the
/// object stays safe to use and to free.
class TOvraConnection {
public:
    enum class TIsolamento { LeituraConfirmada, Instantaneo };

    explicit TOvraConnection(const TParametrosConexao& AParametros);
    TOvraConnection(const TOvraConnection&) = delete;
    TOvraConnection& operator=(const TOvraConnection&) = delete;
    /// Undoes an open transaction.
    ~TOvraConnection();

    /// Creates an empty database (UTF8, dialect 3); EDatabaseError when the file exists.
    static void CriarBanco(const TParametrosConexao& AParametros);
    /// Deletes a database, with all its data; EDatabaseError when it can't be opened or somebody else uses it.
    static void ApagarBanco(const TParametrosConexao& AParametros);

    /// Runs a statement that returns rows and reads them all.
    TConjuntoDeLinhas Consultar(std::string_view ASql);
    /// Runs any statement and tells how many rows it changed.
    std::int64_t Executar(std::string_view ASql);
    /// Runs the statements in order, all or nothing, and confirms the transaction when asked. Never raises for the
    /// engine: the first failure is told in the result, and the caller's earlier work stays. Should the undoing fail
    /// too, the result tells of it after the first reason. Any other exception goes on to the caller, after the undoing.
    TResultStatus ExecutouSQL(const std::vector<std::string>& ASql, bool ACommit);

    /// Starts a transaction; does nothing inside one. A snapshot shows every statement the same moment.
    void IniciarTransacao(TIsolamento AIsolamento = TIsolamento::LeituraConfirmada);
    void Confirmar();
    void Desfazer();
    bool EmTransacao() const;

    /// The location as it was given.
    std::string GetDataBaseLineFull() const;
    TOvraConnection& GetSQLConnection() { return *this; }
    /// Major version of the engine, 3 for Firebird 3.0.
    int VersaoMaiorDoServidor();

    /// Whether prepared statements are kept by their shape and run again with their literals as parameters (the
    /// default). It changes the time of a load and nothing else.
    void DefinirReaproveitamento(bool ALigado);
    /// Prepared statements that are being kept.
    std::size_t ComandosGuardados() const;

    /// One observer, called after each statement; an empty function removes it.
    void DefinirObservador(TObservadorSql AObservador);
    /// One guard, asked before each step of each statement, so that any of them can be made to fail; an empty function
    /// removes it. The library never sets one.
    void DefinirVigia(TVigiaSql AVigia);

private:
    struct TImplementacao;
    std::unique_ptr<TImplementacao> FImplementacao;
};

/// The current connection of the thread's context (UnOvraContexto); Exception when the host has set none.
TOvraConnection& OvraConnection();
/// Sets the current connection, which the host owns; null for none.
void DefinirOvraConnection(TOvraConnection* AConexao);
/// The current connection, or null.
TOvraConnection* OvraConnectionOuNulo();

} // namespace tarvo
