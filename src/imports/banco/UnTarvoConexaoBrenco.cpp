#include "imports/banco/UnTarvoConexaoBrenco.h"

#include "imports/UnOvraExcecoes.h"
#include "imports/banco/UnOvraConnection.h"
#include "imports/banco/UnOvraContexto.h"
#include "imports/banco/UnTarvoUtilsDb.h"

namespace tarvo {

TOvraConnection& TTarvoConexaoBrenco::OvraConnection() const
{
    if (FConexao == nullptr)
        throw Exception("Nenhuma conexão com o sistema Brenco foi definida");
    return *FConexao;
}

TTarvoConexaoBrenco& BuscarInstanciaTarvoConexaoBrenco() { return ContextoCorrente().Brenco; }

TTarvoConexaoBrencoUsuarioClasseBase& BuscarInstanciaTarvoConexaoBrencoUsuario()
{
    return ContextoCorrente().UsuarioBrenco;
}

TDataset BuscarRegistrosBrenco(std::string_view ASql)
{
    const auto& LBrenco = BuscarInstanciaTarvoConexaoBrenco();
    if (!LBrenco.Conectado() || !BuscarInstanciaTarvoConexaoBrencoUsuario().GetUsuarioTemPermissao())
        return nullptr;
    auto LCds = CriarOvraClientDataset(LBrenco.OvraConnection().GetSQLConnection());
    LCds->SetCommandText(std::string(ASql));
    LCds->Open();
    return LCds;
}

} // namespace tarvo
