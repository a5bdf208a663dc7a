#include "framework/UnTarvoESocialCamposListaSqlReversao.h"

namespace tarvo {

TListaSql& TListaSql::BuscarSingleton()
{
    static TListaSql LListaSql;
    return LListaSql;
}

} // namespace tarvo
