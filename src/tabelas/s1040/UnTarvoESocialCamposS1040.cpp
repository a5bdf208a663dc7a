#include "tabelas/s1040/UnTarvoESocialCamposS1040.h"

namespace tarvo::tabelas {

TTarvoESocialCamposS1040::TTarvoESocialCamposS1040(std::int64_t AIDCargosDescr)
    : TTarvoESocialCamposGrupoBase("{D4526C02-BF1E-4BD0-9171-FEC24EA75E4F}"), InfoFuncao(AIDCargosDescr)
{}

const TPropriedades& TTarvoESocialCamposS1040::Tabela()
{
    using Eu = TTarvoESocialCamposS1040;
    static const TPropriedades tabela{
        {"InfoFuncao", &Eu::InfoFuncao},
    };
    return tabela;
}

void TTarvoESocialCamposS1040::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    InfoFuncao.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::tabelas
