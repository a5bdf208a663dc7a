#include "trabalhador/s2306/UnTarvoESocialCamposS2306.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposS2306::TTarvoESocialCamposS2306(std::int64_t AIdEmpregado, TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{FC22AC59-6DA9-4079-B16C-B0273FA2D8E5}"), ideTrabSemVinculo(AIdEmpregado),
      infoTSVAlteracao(AIdEmpregado, AData)
{}

const TPropriedades& TTarvoESocialCamposS2306::Tabela()
{
    using Eu = TTarvoESocialCamposS2306;
    static const TPropriedades tabela{
        {"ideTrabSemVinculo", &Eu::ideTrabSemVinculo},
        {"infoTSVAlteracao", &Eu::infoTSVAlteracao},
    };
    return tabela;
}

void TTarvoESocialCamposS2306::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    ideTrabSemVinculo.CarregarDados(AListaCamposModificados);
    infoTSVAlteracao.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
