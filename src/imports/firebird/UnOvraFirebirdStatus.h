#pragma once

#include <firebird/Interface.h>

#include <memory>

#include "imports/UnOvraExcecoes.h"

namespace tarvo::firebird {

struct TLiberador {
    void operator()(Firebird::IReferenceCounted* AInstancia) const { AInstancia->release(); }
};
struct TDescartador {
    void operator()(Firebird::IDisposable* AInstancia) const { AInstancia->dispose(); }
};
template <class T>
using TReferencia = std::unique_ptr<T, TLiberador>;

Firebird::IMaster* Mestre();

/// The status of one call. Verificar raises what the call reported.
class TStatus {
public:
    TStatus() : FInterno(Mestre()->getStatus()), FStatus(FInterno.get()) {}

    Firebird::CheckStatusWrapper* operator&() { return &FStatus; }

    bool Falhou() const { return (FStatus.getState() & Firebird::IStatus::STATE_ERRORS) != 0; }

    void Verificar();

private:
    std::unique_ptr<Firebird::IStatus, TDescartador> FInterno;
    Firebird::CheckStatusWrapper FStatus;
};

using TBlocoDeParametros = std::unique_ptr<Firebird::IXpbBuilder, TDescartador>;

TBlocoDeParametros CriarBloco(unsigned ATipo);

/// Whether the connection itself is gone, so that nothing is worth a second try.
bool EhPerdaDeConexao(const EDatabaseError& AErro);

} // namespace tarvo::firebird
