#include "imports/UnOvraUtilsDbFirebird.h"

#include "imports/UnOvraConnection.h"
#include "imports/UnOvraConversoes.h"
#include "imports/UnTarvoUtilsDb.h"

namespace tarvo {

std::unique_ptr<TOvraClientDataSetWithConnection> TOvraUtilsDb::CreateClientDataSetWithConnection() const
{
    return CriarOvraClientDataset();
}

TInformacoesBancoFirebird TOvraUtilsDbFirebird::GetInformacoesBancoDeDados() const
{
    return {IntToStr(OvraConnection().VersaoMaiorDoServidor())};
}

const TOvraUtilsDbFirebird& BuscarInstanciaOvraUtilsDbManager()
{
    static const TOvraUtilsDbFirebird LInstancia;
    return LInstancia;
}

} // namespace tarvo
