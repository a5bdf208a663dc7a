#include "tabelas/s1000/UnTarvoESocialCamposInfoComplementares.h"

namespace tarvo::tabelas {

TTarvoESocialCamposInfoComplementares::TTarvoESocialCamposInfoComplementares(std::int64_t AIDEmpresa, TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{89E662D7-F446-488C-B787-B13329EDAB59}"), situacaoPJ(AIDEmpresa, AData),
      situacaoPF(AIDEmpresa, AData)
{}

const TPropriedades& TTarvoESocialCamposInfoComplementares::Tabela()
{
    using Eu = TTarvoESocialCamposInfoComplementares;
    static const TPropriedades tabela{
        {"situacaoPJ", &Eu::situacaoPJ},
        {"situacaoPF", &Eu::situacaoPF},
    };
    return tabela;
}

void TTarvoESocialCamposInfoComplementares::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    situacaoPJ.CarregarDados(AListaCamposModificados);
    situacaoPF.CarregarDados(AListaCamposModificados);
}

void TTarvoESocialCamposInfoComplementares::ReverterDados()
{
    TTarvoESocialCamposGrupoBase::ReverterDados();
    situacaoPJ.ReverterDados();
    situacaoPF.ReverterDados();
}

} // namespace tarvo::tabelas
