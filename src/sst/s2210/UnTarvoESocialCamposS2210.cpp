#include "sst/s2210/UnTarvoESocialCamposS2210.h"

#include "imports/consultas/UnTarvoConsultasCAT.h"

namespace tarvo::sst {

TTarvoESocialCamposS2210::TTarvoESocialCamposS2210(std::int64_t AIdTabCat)
    : TTarvoESocialCamposGrupoBase("{E5E399E2-CB02-4CE7-8EB3-AFBF2A733C3A}"),
      ideVinculo(TTarvoConsultasCAT::BuscarIdEmpregadoPeloIdTabCat(AIdTabCat)), cat(AIdTabCat)
{}

const TPropriedades& TTarvoESocialCamposS2210::Tabela()
{
    using Eu = TTarvoESocialCamposS2210;
    static const TPropriedades tabela{
        {"ideVinculo", &Eu::ideVinculo},
        {"cat", &Eu::cat},
    };
    return tabela;
}

void TTarvoESocialCamposS2210::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    ideVinculo.CarregarDados(AListaCamposModificados);
    cat.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::sst
