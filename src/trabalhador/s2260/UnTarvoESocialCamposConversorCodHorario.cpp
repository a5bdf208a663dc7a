#include "trabalhador/s2260/UnTarvoESocialCamposConversorCodHorario.h"

#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

std::string TTarvoESocialCamposConversorCodHorario::BuscarValor(const std::string& AValor)
{
    const auto LCodigo = TryStrToInt64(AValor);
    return LCodigo ? FormatFloat("0000000", *LCodigo) : AValor;
}

} // namespace tarvo::trabalhador
