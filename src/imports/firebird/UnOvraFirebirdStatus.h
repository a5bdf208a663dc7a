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

/// The status that every call is given: what the call reports is raised right after it as an EDatabaseError with the
/// engine's text, code and SQLSTATE. One status serves any number of calls, one after the other.
class TStatus : public Firebird::BaseStatusWrapper<TStatus> {
public:
    TStatus() : BaseStatusWrapper(Mestre()->getStatus()) {}
    TStatus(const TStatus&) = delete;
    TStatus& operator=(const TStatus&) = delete;
    ~TStatus() override { status->dispose(); }

    /// Called by the client's interface after each call.
    static void checkException(TStatus* AStatus)
    {
        if (AStatus->dirty && AStatus->hasData())
            AStatus->Lancar();
    }

private:
    [[noreturn]] void Lancar();
};

using TBlocoDeParametros = std::unique_ptr<Firebird::IXpbBuilder, TDescartador>;

TBlocoDeParametros CriarBloco(unsigned ATipo);

/// Whether the connection itself is gone, so that nothing is worth a second try.
bool EhPerdaDeConexao(const EDatabaseError& AErro);

} // namespace tarvo::firebird
