#include "trabalhador/contrato/UnTarvoESocialCamposLocalTrabalho.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposLocalTrabalho::TTarvoESocialCamposLocalTrabalho(std::int64_t AIDEmpregado, TDate ADataGeracao)
    : TTarvoESocialCamposGrupoBase("{9E341A22-1476-4CEB-BB2C-5622E8B7675B}"),
      LocalTrabGeral(AIDEmpregado, ADataGeracao), LocalTrabDom(AIDEmpregado, ADataGeracao)
{}

const TPropriedades& TTarvoESocialCamposLocalTrabalho::Tabela()
{
    using Eu = TTarvoESocialCamposLocalTrabalho;
    static const TPropriedades tabela{
        {"LocalTrabGeral", &Eu::LocalTrabGeral},
        {"LocalTrabDom", &Eu::LocalTrabDom},
    };
    return tabela;
}

void TTarvoESocialCamposLocalTrabalho::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    LocalTrabGeral.CarregarDados(AListaCamposModificados);
    LocalTrabDom.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
