#include "imports/UnOvraEsocialReinfControleAmbientes.h"

#include "imports/UnOvraExcecoes.h"
#include "imports/banco/UnOvraContexto.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo {

std::string TOvraEsocialReinfControleAmbientes::RetornarSqlControleAmbiente(std::string_view AOperador) const
{
    return Format(" %0:s SC00_ESOCIALREINFXML.TPAMB = %1:d ", Trim(AOperador), FTpAmb);
}

void TOvraEsocialReinfControleAmbientes::DefinirTpAmb(std::int32_t ATpAmb)
{
    if (ATpAmb != PRODUCAO && ATpAmb != PRODUCAO_RESTRITA)
        throw Exception("Ambiente inválido: " + IntToStr(ATpAmb) + " (1 produção, 2 produção restrita)");
    FTpAmb = ATpAmb;
}

TOvraEsocialReinfControleAmbientes& BuscarInstanciaOvraEsocialReinfControleAmbientes()
{
    return ContextoCorrente().Ambientes;
}

} // namespace tarvo
