#include "tabelas/s1010/UnTarvoESocialCamposIdeProcessoVerba.h"

namespace tarvo::tabelas {

void TTarvoESocialCamposIdeProcessoVerba::CarregarDados(const TListaCamposModificados* AListaCamposModificados,
                                                        std::int64_t AIdProcesso)
{
    FIdProcesso = AIdProcesso;
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::tabelas
