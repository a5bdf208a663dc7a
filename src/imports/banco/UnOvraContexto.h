#pragma once

#include <map>
#include <memory>
#include <typeindex>

#include "imports/UnOvraEsocialReinfControleAmbientes.h"
#include "imports/UnOvraUtilsDialogs.h"
#include "imports/banco/UnTarvoConexaoBrenco.h"

namespace tarvo {

class TOvraConnection;

/// What loads work in: all that the operations with a fixed name (OvraConnection, BuscarInstancia..., GOvraUtilsDialogs)
/// read and set. A context serves one thread at a time and must outlive its use there; it owns none of the connections.
class TOvraContexto {
public:
    TOvraContexto() = default;
    explicit TOvraContexto(TOvraConnection* AConexao) : Conexao(AConexao) {}
    TOvraContexto(const TOvraContexto&) = delete;
    TOvraContexto& operator=(const TOvraContexto&) = delete;

    /// The current connection, or null. One that is freed leaves the context that is the thread's at that moment.
    TOvraConnection* Conexao = nullptr;
    TOvraEsocialReinfControleAmbientes Ambientes;
    TTarvoConexaoBrenco Brenco;
    TTarvoConexaoBrencoUsuarioClasseBase UsuarioBrenco;
    TOvraUtilsDialogs::TReacao ReacaoAosAlertas;

    /// What a floor above keeps by context, one of each type: made when it is first asked for, freed with the context.
    template <class T>
    T& Parte()
    {
        auto& LParte = FPartes[typeid(T)];
        if (!LParte)
            LParte = std::make_shared<T>();
        return *static_cast<T*>(LParte.get());
    }

private:
    std::map<std::type_index, std::shared_ptr<void>> FPartes;
};

/// The context of this thread; that of the process on a thread that has set none.
TOvraContexto& ContextoCorrente();

/// Makes a context that of this thread and gives the former back at its end, on the way of an exception too. The thread
/// that made it ends it, the last one first.
class TUsoDoContexto {
public:
    explicit TUsoDoContexto(TOvraContexto& AContexto);
    TUsoDoContexto(const TUsoDoContexto&) = delete;
    TUsoDoContexto& operator=(const TUsoDoContexto&) = delete;
    ~TUsoDoContexto();

private:
    TOvraContexto* FAnterior;
};

} // namespace tarvo
