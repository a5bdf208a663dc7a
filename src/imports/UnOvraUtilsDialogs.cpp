#include "imports/UnOvraUtilsDialogs.h"

#include <utility>

#include "imports/banco/UnOvraContexto.h"

namespace tarvo {

void TOvraUtilsDialogs::DefinirReacao(TReacao AReacao) const
{
    ContextoCorrente().ReacaoAosAlertas = std::move(AReacao);
}

void TOvraUtilsDialogs::Alerta(const std::string& AMensagem) const
{
    if (const auto& LReacao = ContextoCorrente().ReacaoAosAlertas)
        LReacao(AMensagem);
}

} // namespace tarvo
