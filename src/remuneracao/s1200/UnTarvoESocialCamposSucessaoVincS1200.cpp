#include "remuneracao/s1200/UnTarvoESocialCamposSucessaoVincS1200.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposSucessaoVincS1200::TTarvoESocialCamposSucessaoVincS1200()
    : TTarvoESocialCamposGrupoBase("{F8C6879B-D118-4056-9325-1124B2524EB8}")
{}

const TPropriedades& TTarvoESocialCamposSucessaoVincS1200::Tabela()
{
    using Eu = TTarvoESocialCamposSucessaoVincS1200;
    static const TPropriedades tabela{
        {"cnpjEmpregAnt", &Eu::cnpjEmpregAnt},
        {"matricAnt", &Eu::matricAnt},
        {"dtAdm", &Eu::dtAdm},
        {"observacao", &Eu::observacao},
        {"PossuiInformcao", &Eu::PossuiInformcao},
    };
    return tabela;
}

bool TTarvoESocialCamposSucessaoVincS1200::PossuiInformcao() const
{
    return !dtAdm.Vazia() || !observacao.empty() || !cnpjEmpregAnt.empty() || !matricAnt.empty();
}

void TTarvoESocialCamposSucessaoVincS1200::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    dtAdm = {};
    observacao.clear();
    cnpjEmpregAnt.clear();
    matricAnt.clear();
}

} // namespace tarvo::remuneracao
