#include "imports/banco/UnOvraContexto.h"

#include "imports/UnOvraExcecoes.h"
#include "imports/banco/UnOvraConnection.h"

namespace tarvo {

namespace {

/// Null for that of the process. Behind a function, so that nobody pays for a look whether it has been initialised.
constinit thread_local TOvraContexto* LContextoDaThread = nullptr;

TOvraContexto& ContextoDoProcesso()
{
    // Never freed: connections that a host frees at the very end of the process look into it.
    static auto* LContexto = new TOvraContexto;
    return *LContexto;
}

} // namespace

TOvraContexto& ContextoCorrente() { return LContextoDaThread != nullptr ? *LContextoDaThread : ContextoDoProcesso(); }

TUsoDoContexto::TUsoDoContexto(TOvraContexto& AContexto) : FAnterior(LContextoDaThread)
{
    LContextoDaThread = &AContexto;
}

TUsoDoContexto::~TUsoDoContexto() { LContextoDaThread = FAnterior; }

TOvraConnection& OvraConnection()
{
    auto* LConexao = ContextoCorrente().Conexao;
    if (LConexao == nullptr)
        throw Exception("Nenhuma conexão com o banco de dados foi definida");
    return *LConexao;
}

void DefinirOvraConnection(TOvraConnection* AConexao) { ContextoCorrente().Conexao = AConexao; }

TOvraConnection* OvraConnectionOuNulo() { return ContextoCorrente().Conexao; }

} // namespace tarvo
