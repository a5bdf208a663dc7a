#include "framework/UnTarvoESocialCamposVersao.h"

namespace tarvo {

const char* VersaoDaBiblioteca() { return TARVO_VERSAO; }

} // namespace tarvo
