#include "trabalhador/vinculo/UnTarvoESocialCamposVinculo.h"

#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposSqlConfiguracao.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposVinculo::TTarvoESocialCamposVinculo(std::int64_t AIDEmpregado, TDate ADataGeracao)
    : TTarvoESocialCamposGrupoBase("{DA57053A-FF7D-43B7-88DA-7DB98E80155D}"),
      InfoRegimeTrab(AIDEmpregado, ADataGeracao), InfoContrato(AIDEmpregado, ADataGeracao), SucessaoVinc(AIDEmpregado),
      Afastamento(AIDEmpregado, ADataGeracao), Desligamento(AIDEmpregado), transfDom(AIDEmpregado),
      FIDEmpregado(AIDEmpregado), FDataGeracao(ADataGeracao)
{}

const TPropriedades& TTarvoESocialCamposVinculo::Tabela()
{
    using Eu = TTarvoESocialCamposVinculo;
    static const TPropriedades tabela{
        {"Matricula", &Eu::Matricula, TFieldRelacionado("CODIGO")},
        {"TipoRegTrabalhista", &Eu::TipoRegTrabalhista, TFieldRelacionado("TIPO_REG_TRAB")},
        {"TipoRegTrabCodigo", &Eu::TipoRegTrabCodigo, TFieldRelacionado("INFORMACAO2")},
        {"TipoRegPrevidenciario", &Eu::TipoRegPrevidenciario, TFieldRelacionado("TIPO_REG_PREV")},
        {"TipoRegPrevCodigo", &Eu::TipoRegPrevCodigo, TFieldRelacionado("INFORMACAO3")},
        {"DataDeAdmissao", &Eu::DataDeAdmissao, TFieldRelacionado("DATA_ADMISSAO")},
        {"InfoRegimeTrab", &Eu::InfoRegimeTrab},
        {"InfoContrato", &Eu::InfoContrato},
        {"SucessaoVinc", &Eu::SucessaoVinc},
        {"transfDom", &Eu::transfDom},
        {"Afastamento", &Eu::Afastamento},
        {"Desligamento", &Eu::Desligamento},
    };
    return tabela;
}

std::string TTarvoESocialCamposVinculo::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT FIRST 1
  EMPREGADOS.CODIGOESOCIAL AS CODIGO,
  EMPREGADOS.DATA_ADMISSAO,
  SC00_EMPREGADOCFG.INFORMACAO2,
  SC00_EMPREGADOCFG.INFORMACAO3,
  CASE SC00_EMPREGADOCFG.INFORMACAO2
    WHEN '1' THEN '1-CLT-Consolidação das Leis de Trabalho'
    WHEN '2' THEN '2-Estatutário'
  END AS TIPO_REG_TRAB,
  CASE SC00_EMPREGADOCFG.INFORMACAO3
    WHEN '1' THEN '1-Regime Geral da Previdência Social - RGPS'
    WHEN '2' THEN '2-Regime Próprio de Previdência Social - RPPS'
    WHEN '3' THEN '3-Regime de Previdência Social no Exterior'
  END AS TIPO_REG_PREV
FROM EMPREGADOS
LEFT JOIN SC00_EMPREGADOCFG ON (SC00_EMPREGADOCFG.COD_EMPRESA = EMPREGADOS.COD_EMPRESA
  AND SC00_EMPREGADOCFG.COD_EMPREGADO = EMPREGADOS.COD_EMPREGADO
  AND %1:s)
WHERE EMPREGADOS.IDEMPREGADO = %0:d
ORDER BY SC00_EMPREGADOCFG.DATAINICIO DESC, SC00_EMPREGADOCFG.IDEMPREGADOCFG)";
    return Format(SQL, FIDEmpregado, regras::CondicaoVigente(regras::SC00_EMPREGADOCFG, {90, 38, 7}, FDataGeracao));
}

void TTarvoESocialCamposVinculo::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    InfoRegimeTrab.CarregarDados(AListaCamposModificados);
    InfoContrato.CarregarDados(AListaCamposModificados);
    SucessaoVinc.CarregarDados(AListaCamposModificados);
    Afastamento.CarregarDados(AListaCamposModificados);
    Desligamento.CarregarDados(AListaCamposModificados);
    transfDom.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
