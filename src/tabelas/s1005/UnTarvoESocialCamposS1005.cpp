#include "tabelas/s1005/UnTarvoESocialCamposS1005.h"

namespace tarvo::tabelas {

TTarvoESocialCamposS1005::TTarvoESocialCamposS1005(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{D80AD426-C0B7-4BCC-A993-0A5110D0F3C2}"), InfoEstab(AIDEstab, AIDDepto, AData)
{}

const TPropriedades& TTarvoESocialCamposS1005::Tabela()
{
    using Eu = TTarvoESocialCamposS1005;
    static const TPropriedades tabela{
        {"InfoEstab", &Eu::InfoEstab},
    };
    return tabela;
}

void TTarvoESocialCamposS1005::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    InfoEstab.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::tabelas
