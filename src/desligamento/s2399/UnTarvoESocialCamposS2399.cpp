#include "desligamento/s2399/UnTarvoESocialCamposS2399.h"

namespace tarvo::desligamento {

TTarvoESocialCamposS2399::TTarvoESocialCamposS2399(std::int64_t AIdEmpregado, TDate ADataInicioEventosPeriodicos)
    : TTarvoESocialCamposGrupoBase("{845D1739-4E13-4F80-8121-69E928A38DCC}"), ideTrabSemVinculo(AIdEmpregado),
      infoTSVTermino(AIdEmpregado, ADataInicioEventosPeriodicos)
{}

const TPropriedades& TTarvoESocialCamposS2399::Tabela()
{
    using Eu = TTarvoESocialCamposS2399;
    static const TPropriedades tabela{{"ideTrabSemVinculo", &Eu::ideTrabSemVinculo},
                                      {"infoTSVTermino", &Eu::infoTSVTermino}};
    return tabela;
}

void TTarvoESocialCamposS2399::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    ideTrabSemVinculo.CarregarDados(AListaCamposModificados);
    infoTSVTermino.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::desligamento
