#include "trabalhador/s2206/UnTarvoESocialCamposInfoContratoS2206.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposInfoContratoS2206::TTarvoESocialCamposInfoContratoS2206(std::int64_t AIDEmpregado,
                                                                           TDate ADataGeracao)
    : TTarvoESocialCamposInfoContrato("{2C934625-AC03-442E-984F-1A8CC288EDD3}", AIDEmpregado, ADataGeracao),
      servPubl(AIDEmpregado, ADataGeracao)
{}

const TPropriedades& TTarvoESocialCamposInfoContratoS2206::Tabela()
{
    static const TPropriedades tabela{
        TTarvoESocialCamposInfoContrato::Tabela(),
        {{"servPubl", &TTarvoESocialCamposInfoContratoS2206::servPubl}},
    };
    return tabela;
}

void TTarvoESocialCamposInfoContratoS2206::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposInfoContrato::CarregarDados(AListaCamposModificados);
    servPubl.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
