#include "trabalhador/s2300/UnTarvoESocialCamposInfoTSVInicio.h"

#include "imports/consultas/UnTarvoConsultasEmpregado.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposInfoTSVInicio::TTarvoESocialCamposInfoTSVInicio(std::int64_t AIDEmpregado, TDate ADataGeracao)
    : TTarvoESocialCamposGrupoBase("{1C108A43-6A89-4A59-AED9-33A8BE1BCEA5}"),
      InfoComplementares(AIDEmpregado, ADataGeracao), Afastamento(AIDEmpregado, ADataGeracao), Termino(AIDEmpregado),
      FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposInfoTSVInicio::Tabela()
{
    using Eu = TTarvoESocialCamposInfoTSVInicio;
    static const TPropriedades tabela{
        {"codCateg", &Eu::codCateg, TFieldRelacionado("CODCATEG")},
        {"dtInicio", &Eu::dtInicio},
        {"natAtividade", &Eu::natAtividade, TFieldRelacionado("TIPOVINCULO")},
        {"InfoComplementares", &Eu::InfoComplementares},
        {"Afastamento", &Eu::Afastamento},
        {"Termino", &Eu::Termino},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoTSVInicio::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  EMPREGADOS.TIPOVINCULO,
  EMPREGADOS.DATA_ADMISSAO,
  TRUNC(FP_ESOCIALTABELA.CODIGO) AS CODCATEG
FROM EMPREGADOS
LEFT JOIN FP_ESOCIALTABELA ON (EMPREGADOS.IDCATEGORIAESOCIAL = FP_ESOCIALTABELA.IDESOCIALTABELA)
WHERE EMPREGADOS.IDEMPREGADO = %0:d;)";
    return Format(SQL, FIDEmpregado);
}

void TTarvoESocialCamposInfoTSVInicio::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    InfoComplementares.CarregarDados(AListaCamposModificados);
    Afastamento.CarregarDados(AListaCamposModificados);
    Termino.CarregarDados(AListaCamposModificados);
}

void TTarvoESocialCamposInfoTSVInicio::AtribuirValoresManualmente()
{
    TTarvoESocialCamposGrupoBase::AtribuirValoresManualmente();
    dtInicio = TTarvoConsultasEmpregado::BuscarAdmissaoOuTransfDefinitivaInicial(FIDEmpregado);
}

} // namespace tarvo::trabalhador
