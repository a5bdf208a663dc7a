#include "trabalhador/s2205/UnTarvoESocialCamposalteracao.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposalteracao::TTarvoESocialCamposalteracao(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{27178BC7-9F62-454F-B7C3-0BA31E16C244}"), dadosTrabalhador(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposalteracao::Tabela()
{
    using Eu = TTarvoESocialCamposalteracao;
    static const TPropriedades tabela{
        {"dtAlteracao", &Eu::dtAlteracao},
        {"dadosTrabalhador", &Eu::dadosTrabalhador},
    };
    return tabela;
}

void TTarvoESocialCamposalteracao::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    dadosTrabalhador.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
