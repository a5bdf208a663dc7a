#include "rural/fechamento/UnTarvoESocialCamposS1299.h"

namespace tarvo::rural {

TTarvoESocialCamposS1299::TTarvoESocialCamposS1299(std::int32_t AIdEmpresa, TDateTime ADataInicio, TDateTime ADataFim,
                                                   tpIndApuracao AIndApur)
    : TTarvoESocialCamposGrupoBase("{403A51F0-F59D-4697-B79C-E96AC847F695}"),
      infoFech(AIdEmpresa, ADataInicio, ADataFim, AIndApur)
{}

const TPropriedades& TTarvoESocialCamposS1299::Tabela()
{
    using Eu = TTarvoESocialCamposS1299;
    static const TPropriedades tabela{
        {"ideRespInf", &Eu::ideRespInf},
        {"infoFech", &Eu::infoFech},
    };
    return tabela;
}

void TTarvoESocialCamposS1299::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    ideRespInf.CarregarDados(AListaCamposModificados);
    infoFech.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::rural
