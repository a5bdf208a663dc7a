#include "imports/UnTarvoConexaoBrenco.h"

#include "imports/UnOvraExcecoes.h"

namespace tarvo {

TOvraConnection& TTarvoConexaoBrenco::OvraConnection() const
{
    if (FConexao == nullptr)
        throw Exception("Nenhuma conexão com o sistema Brenco foi definida");
    return *FConexao;
}

TTarvoConexaoBrenco& BuscarInstanciaTarvoConexaoBrenco()
{
    static TTarvoConexaoBrenco LInstancia;
    return LInstancia;
}

TTarvoConexaoBrencoUsuarioClasseBase& BuscarInstanciaTarvoConexaoBrencoUsuario()
{
    static TTarvoConexaoBrencoUsuarioClasseBase LInstancia;
    return LInstancia;
}

} // namespace tarvo
