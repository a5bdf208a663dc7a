#include "trabalhador/s2300/UnTarvoESocialCamposS2300.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposS2300::TTarvoESocialCamposS2300(std::int64_t AIdEmpregado, TDate ADataGeracao)
    : TTarvoESocialCamposGrupoBase("{FFB6D223-566D-4998-9BFF-F3FF7FCECA70}"), Trabalhador(AIdEmpregado),
      infoTSVInicio(AIdEmpregado, ADataGeracao)
{}

const TPropriedades& TTarvoESocialCamposS2300::Tabela()
{
    using Eu = TTarvoESocialCamposS2300;
    static const TPropriedades tabela{
        {"Trabalhador", &Eu::Trabalhador},
        {"infoTSVInicio", &Eu::infoTSVInicio},
    };
    return tabela;
}

void TTarvoESocialCamposS2300::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    // The retirement of a worker without a bond isn't reported.
    Trabalhador.Aposentadoria.SetCarregarDadosDoGrupo(false);
    Trabalhador.CarregarDados(AListaCamposModificados);
    infoTSVInicio.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
