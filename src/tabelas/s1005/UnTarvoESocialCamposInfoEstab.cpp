#include "tabelas/s1005/UnTarvoESocialCamposInfoEstab.h"

namespace tarvo::tabelas {

TTarvoESocialCamposInfoEstab::TTarvoESocialCamposInfoEstab(std::int64_t AIDEstab, std::int64_t AIDDepto,
                                                           TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{75A9F629-9F5E-4516-9D3E-60AFB7BFAD8E}"), IdeEstab(AIDEstab, AIDDepto),
      DadosEstab(AIDEstab, AIDDepto, AData)
{}

const TPropriedades& TTarvoESocialCamposInfoEstab::Tabela()
{
    using Eu = TTarvoESocialCamposInfoEstab;
    static const TPropriedades tabela{
        {"IdeEstab", &Eu::IdeEstab},
        {"DadosEstab", &Eu::DadosEstab},
    };
    return tabela;
}

void TTarvoESocialCamposInfoEstab::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    IdeEstab.CarregarDados(AListaCamposModificados);
    DadosEstab.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::tabelas
