#include "tabelas/s1040/UnTarvoESocialCamposInfoFuncao.h"

namespace tarvo::tabelas {

TTarvoESocialCamposInfoFuncao::TTarvoESocialCamposInfoFuncao(std::int64_t AIDCargosDescr)
    : TTarvoESocialCamposGrupoBase("{572DAC32-1545-4EF1-B444-758B28C54062}"), IdeFuncao(AIDCargosDescr),
      dadosFuncao(AIDCargosDescr)
{}

const TPropriedades& TTarvoESocialCamposInfoFuncao::Tabela()
{
    using Eu = TTarvoESocialCamposInfoFuncao;
    static const TPropriedades tabela{
        {"IdeFuncao", &Eu::IdeFuncao},
        {"dadosFuncao", &Eu::dadosFuncao},
    };
    return tabela;
}

void TTarvoESocialCamposInfoFuncao::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    IdeFuncao.CarregarDados(AListaCamposModificados);
    dadosFuncao.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::tabelas
