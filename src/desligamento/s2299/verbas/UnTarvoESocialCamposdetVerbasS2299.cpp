#include "desligamento/s2299/verbas/UnTarvoESocialCamposdetVerbasS2299.h"

namespace tarvo::desligamento {

void TTarvoESocialCamposdetVerbasS2299::AtribuirValoresManualmente()
{
    TTarvoESocialCamposdetVerbasDesligamento::AtribuirValoresManualmente();
    vrUnit.clear();
}

} // namespace tarvo::desligamento
