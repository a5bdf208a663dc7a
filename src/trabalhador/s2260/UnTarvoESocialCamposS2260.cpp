#include "trabalhador/s2260/UnTarvoESocialCamposS2260.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposS2260::TTarvoESocialCamposS2260(std::int64_t AIdEmpregado, TDateTime ADataInicio)
    : TTarvoESocialCamposGrupoBase("{03084A63-72EA-46AC-8F13-BC13E5364A26}"), ideVinculo(AIdEmpregado),
      InfoConvInterm(AIdEmpregado, ADataInicio)
{}

const TPropriedades& TTarvoESocialCamposS2260::Tabela()
{
    using Eu = TTarvoESocialCamposS2260;
    static const TPropriedades tabela{
        {"ideVinculo", &Eu::ideVinculo},
        {"InfoConvInterm", &Eu::InfoConvInterm},
    };
    return tabela;
}

void TTarvoESocialCamposS2260::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    ideVinculo.CarregarDados(AListaCamposModificados);
    InfoConvInterm.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
