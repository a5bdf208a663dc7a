#include "trabalhador/vinculo/UnTarvoESocialCamposInfoRegimeTrab.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposInfoRegimeTrab::TTarvoESocialCamposInfoRegimeTrab(std::int64_t AIDEmpregado, TDate ADataGeracao)
    : TTarvoESocialCamposGrupoBase("{C6A84C6A-E72C-4230-B976-39FC5CE5827D}"), InfoCeletista(AIDEmpregado, ADataGeracao),
      InfoEstatutario(AIDEmpregado, ADataGeracao)
{}

const TPropriedades& TTarvoESocialCamposInfoRegimeTrab::Tabela()
{
    using Eu = TTarvoESocialCamposInfoRegimeTrab;
    static const TPropriedades tabela{
        {"InfoCeletista", &Eu::InfoCeletista},
        {"InfoEstatutario", &Eu::InfoEstatutario},
    };
    return tabela;
}

void TTarvoESocialCamposInfoRegimeTrab::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    InfoCeletista.CarregarDados(AListaCamposModificados);
    InfoEstatutario.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
