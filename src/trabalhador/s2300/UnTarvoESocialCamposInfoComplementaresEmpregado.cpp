#include "trabalhador/s2300/UnTarvoESocialCamposInfoComplementaresEmpregado.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposInfoComplementaresEmpregado::TTarvoESocialCamposInfoComplementaresEmpregado(
    std::int64_t AIDEmpregado, TDate ADataGeracao)
    : TTarvoESocialCamposGrupoBase("{186A4AEC-53F8-410C-AB2C-0C8978525C15}"), CargoFuncao(AIDEmpregado, ADataGeracao),
      Remuneracao(AIDEmpregado, ADataGeracao), FGTS(AIDEmpregado), InfoDirSind(AIDEmpregado),
      InfoTrabCedido(AIDEmpregado, ADataGeracao), InfoEstagiario(AIDEmpregado, ADataGeracao)
{}

const TPropriedades& TTarvoESocialCamposInfoComplementaresEmpregado::Tabela()
{
    using Eu = TTarvoESocialCamposInfoComplementaresEmpregado;
    static const TPropriedades tabela{
        {"CargoFuncao", &Eu::CargoFuncao},
        {"Remuneracao", &Eu::Remuneracao},
        {"FGTS", &Eu::FGTS},
        {"InfoDirSind", &Eu::InfoDirSind},
        {"InfoTrabCedido", &Eu::InfoTrabCedido},
        {"InfoEstagiario", &Eu::InfoEstagiario},
    };
    return tabela;
}

void TTarvoESocialCamposInfoComplementaresEmpregado::CarregarDados(
    const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    CargoFuncao.CarregarDados(AListaCamposModificados);
    Remuneracao.CarregarDados(AListaCamposModificados);
    FGTS.CarregarDados(AListaCamposModificados);
    InfoDirSind.CarregarDados(AListaCamposModificados);
    InfoTrabCedido.CarregarDados(AListaCamposModificados);
    InfoEstagiario.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
