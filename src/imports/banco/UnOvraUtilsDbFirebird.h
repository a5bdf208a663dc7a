#pragma once

#include <memory>
#include <string>

#include "imports/banco/UnOvraClientDataSet.h"

namespace tarvo {

/// What the server tells of itself, as texts.
struct TInformacoesBancoFirebird {
    /// "3" for Firebird 3.0.
    std::string VersaoMaior;
};

class TOvraUtilsDb {
public:
    /// An unopened dataset on the suite's connection.
    std::unique_ptr<TOvraClientDataSetWithConnection> CreateClientDataSetWithConnection() const;
};

class TOvraUtilsDbFirebird : public TOvraUtilsDb {
public:
    /// Of the server of the suite's connection; EDatabaseError when it can't be asked.
    TInformacoesBancoFirebird GetInformacoesBancoDeDados() const;
};

/// The database manager of the process.
const TOvraUtilsDbFirebird& BuscarInstanciaOvraUtilsDbManager();

/// Where the engine keeps the embedded databases' lock files unless FIREBIRD_LOCK says otherwise.
inline constexpr const char* PASTA_DE_TRAVAS = "/tmp/firebird";

/// For the start of a program, before its first connection and its first thread. The folder of the lock files belongs
/// to whoever used the engine first on the machine; a user who may not write there gets a folder of their own beside
/// it, through FIREBIRD_LOCK. Where that fails nothing is set, and the engine's own error tells so.
void PrepararPastaDeTravas(const std::string& APasta = PASTA_DE_TRAVAS);

} // namespace tarvo
