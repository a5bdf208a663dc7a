#include "trabalhador/s2306/UnTarvoESocialCamposinfoComplementares2306.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposinfoComplementares2306::TTarvoESocialCamposinfoComplementares2306(std::int64_t AIdEmpregado,
                                                                                     TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{0FF77353-AC73-411B-BCBB-B99C864B74CE}"), cargoFuncao(AIdEmpregado, AData),
      remuneracao(AIdEmpregado, AData), infoEstagiario(AIdEmpregado, AData)
{}

const TPropriedades& TTarvoESocialCamposinfoComplementares2306::Tabela()
{
    using Eu = TTarvoESocialCamposinfoComplementares2306;
    static const TPropriedades tabela{
        {"cargoFuncao", &Eu::cargoFuncao},
        {"remuneracao", &Eu::remuneracao},
        {"infoEstagiario", &Eu::infoEstagiario},
    };
    return tabela;
}

void TTarvoESocialCamposinfoComplementares2306::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    cargoFuncao.CarregarDados(AListaCamposModificados);
    remuneracao.CarregarDados(AListaCamposModificados);
    infoEstagiario.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
