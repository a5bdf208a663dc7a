#include "trabalhador/s2230/UnTarvoESocialCamposinfoAfastamento.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposinfoAfastamento::TTarvoESocialCamposinfoAfastamento(std::int64_t AIdSituacao,
                                                                       TTipoEventoS2230 ATipoEvento)
    : TTarvoESocialCamposGrupoBase("{D1AF0E40-2F54-401B-8DD8-35201B0DCBCB}"), iniAfastamento(AIdSituacao),
      fimAfastamento(AIdSituacao), infoRetif(AIdSituacao), FTipoEvento(ATipoEvento)
{}

const TPropriedades& TTarvoESocialCamposinfoAfastamento::Tabela()
{
    using Eu = TTarvoESocialCamposinfoAfastamento;
    static const TPropriedades tabela{
        {"iniAfastamento", &Eu::iniAfastamento},
        {"infoRetif", &Eu::infoRetif},
        {"fimAfastamento", &Eu::fimAfastamento},
    };
    return tabela;
}

void TTarvoESocialCamposinfoAfastamento::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    if (FTipoEvento == TTipoEventoS2230::Inicio)
        iniAfastamento.CarregarDados(AListaCamposModificados);
    else
        fimAfastamento.CarregarDados(AListaCamposModificados);
    infoRetif.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
