#pragma once

#include <fstream>
#include <memory>
#include <string>

#include "imports/banco/UnOvraConnection.h"

namespace tarvo::ferramenta {

struct TComando;

/// The options that every command with a database has.
struct TOpcoesDoContexto {
    std::string Banco;
    std::string Usuario;
    std::string Senha;
    std::string Rastrear;
    std::string Ambiente = "1";
    std::string Brenco;
};

/// Adds `--banco`, `--usuario` and `--senha`.
void AdicionarOpcoesDeLigacao(TComando& AComando, TOpcoesDoContexto& AOpcoes);
/// Adds those, and `--rastrear`, `--ambiente`, `--brenco`.
void AdicionarOpcoesDoContexto(TComando& AComando, TOpcoesDoContexto& AOpcoes);
/// The connection that the options name; EUsoErrado without `--banco`. User and password fall back on ISC_USER and
/// ISC_PASSWORD.
TParametrosConexao ParametrosDaLigacao(const TOpcoesDoContexto& AOpcoes);

/// What a command works in: the suite's connection, the environment, the sibling system's connection and the trace.
/// The first wrong option is an EUsoErrado, before any connection is opened and any file is written.
class TContexto {
public:
    explicit TContexto(const TOpcoesDoContexto& AOpcoes);
    ~TContexto();
    TContexto(const TContexto&) = delete;
    TContexto& operator=(const TContexto&) = delete;

    TOvraConnection& Conexao() { return *FConexao; }
    /// Starts a snapshot on every connection, after ending the one before: what is read from now on is of one moment.
    void IniciarInstantaneo();
    /// Exception when a line of the trace could not be written.
    void ConferirRastro();

private:
    void Rastrear(const TExecucaoSql& AExecucao);

    std::ofstream FArquivoDoRastro;
    std::ostream* FRastro = nullptr;
    std::unique_ptr<TOvraConnection> FConexao;
    std::unique_ptr<TOvraConnection> FBrenco;
};

} // namespace tarvo::ferramenta
