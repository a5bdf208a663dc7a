#include "remuneracao/s1200/UnTarvoESocialCamposS1200IOP.h"

#include "imports/UnOvraExcecoes.h"

namespace tarvo::remuneracao {

void TTarvoESocialCamposS1200IOP::DeuPau(const char* ANome)
{
    throw Exception(std::string("Parâmetro da classe IOP ") + ANome + " Não informado na classes eSocialCampos");
}

} // namespace tarvo::remuneracao
