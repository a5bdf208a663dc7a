#include "trabalhador/s2260/UnTarvoESocialCamposConversorCodHorario.h"

#include "imports/UnOvraConversoes.h"
#include "imports/UnOvraFormat.h"

namespace tarvo::trabalhador {

std::string TTarvoESocialCamposConversorCodHorario::BuscarValor(const std::string& AValor)
{
    const auto LCodigo = TryStrToInt64(AValor);
    return LCodigo ? FormatFloat("0000000", *LCodigo) : AValor;
}

} // namespace tarvo::trabalhador
