#pragma once

#include <string_view>

#include "imports/banco/UnOvraClientDataSet.h"

namespace tarvo {

class TOvraConnection;

/// Holder of the connection to the sibling system, which the host opens, owns and sets.
class TTarvoConexaoBrenco {
public:
    /// Sets the connection; null disconnects. It must outlive its use here.
    void DefinirConexao(TOvraConnection* AConexao) { FConexao = AConexao; }
    bool Conectado() const { return FConexao != nullptr; }
    /// Exception when there is none.
    TOvraConnection& OvraConnection() const;

private:
    TOvraConnection* FConexao = nullptr;
};

/// What the logged-in user may do with the sibling system.
class TTarvoConexaoBrencoUsuarioClasseBase {
public:
    void DefinirUsuarioTemPermissao(bool AValor) { FUsuarioTemPermissao = AValor; }
    /// Whether the user may read it; not before the host says so.
    bool GetUsuarioTemPermissao() const { return FUsuarioTemPermissao; }

private:
    bool FUsuarioTemPermissao = false;
};

/// Those of the current context.
TTarvoConexaoBrenco& BuscarInstanciaTarvoConexaoBrenco();
TTarvoConexaoBrencoUsuarioClasseBase& BuscarInstanciaTarvoConexaoBrencoUsuario();

/// Runs a SELECT on the sibling system's connection; null, and nothing is run, when there is no connection or the user
/// may not read it. EDatabaseError with the engine's text.
TDataset BuscarRegistrosBrenco(std::string_view ASql);

} // namespace tarvo
