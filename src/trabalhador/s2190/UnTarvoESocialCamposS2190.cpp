#include "trabalhador/s2190/UnTarvoESocialCamposS2190.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposS2190::TTarvoESocialCamposS2190(std::int64_t AIdEmpregado)
    : TTarvoESocialCamposGrupoBase("{BE406613-A469-482C-BFB0-0E95FBE08B30}"), infoRegPrelim(AIdEmpregado)
{}

const TPropriedades& TTarvoESocialCamposS2190::Tabela()
{
    static const TPropriedades tabela{
        {"infoRegPrelim", &TTarvoESocialCamposS2190::infoRegPrelim},
    };
    return tabela;
}

void TTarvoESocialCamposS2190::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    infoRegPrelim.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
