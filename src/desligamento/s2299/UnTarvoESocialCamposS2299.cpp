#include "desligamento/s2299/UnTarvoESocialCamposS2299.h"

namespace tarvo::desligamento {

TTarvoESocialCamposS2299::TTarvoESocialCamposS2299(std::int64_t AIdEmpregado, TDateTime ADataInicioEventosPeriodicos)
    : TTarvoESocialCamposGrupoBase("{5AC3814C-CE1C-42A5-A1AF-C9FE8C957189}"), ideVinculo(AIdEmpregado),
      infoDeslig(AIdEmpregado, ADataInicioEventosPeriodicos)
{}

const TPropriedades& TTarvoESocialCamposS2299::Tabela()
{
    using Eu = TTarvoESocialCamposS2299;
    static const TPropriedades tabela{{"ideVinculo", &Eu::ideVinculo}, {"infoDeslig", &Eu::infoDeslig}};
    return tabela;
}

void TTarvoESocialCamposS2299::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    ideVinculo.CarregarDados(AListaCamposModificados);
    infoDeslig.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::desligamento
