#pragma once

#include <memory>
#include <string>

#include "imports/UnOvraClientDataSet.h"

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

} // namespace tarvo
