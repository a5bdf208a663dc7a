#include "trabalhador/vinculo/UnTarvoESocialCamposInfoCeletista.h"

#include <utility>

#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposSqlConfiguracao.h"

namespace tarvo::trabalhador {

namespace {

constexpr regras::TChaveDeConfiguracao REGIMES{90, 38, 7};

} // namespace

TTarvoESocialCamposInfoCeletista::TTarvoESocialCamposInfoCeletista(std::int64_t AIDEmpregado, TDate ADataGeracao)
    : TTarvoESocialCamposGrupoBase("{3A3B4EF2-9FC0-460C-915A-5718BCA1C902}"), Fgts(AIDEmpregado),
      TrabTemporario(AIDEmpregado, ADataGeracao), FIDEmpregado(AIDEmpregado), FDataGeracao(ADataGeracao)
{}

const TPropriedades& TTarvoESocialCamposInfoCeletista::Tabela()
{
    using Eu = TTarvoESocialCamposInfoCeletista;
    static const TPropriedades tabela{
        {"Fgts", &Eu::Fgts},
        {"TrabTemporario", &Eu::TrabTemporario},
        {"DataAdmissao", &Eu::DataAdmissao, TFieldRelacionado("DATA_ADMISSAO")},
        {"TipoAdmissao", &Eu::TipoAdmissao, TFieldRelacionado("TIPOADMISSAO")},
        {"TipoAdmissaoDesc", &Eu::TipoAdmissaoDesc, TFieldRelacionado("TIPO_ADMISSAO_DESC")},
        {"DataBaseCateg", &Eu::DataBaseCateg, TFieldRelacionado("MES_DATA_BASE")},
        {"CnpjSindicatoCategoria", &Eu::CnpjSindicatoCategoria, TFieldRelacionado("CNPJ_SINDICATO")},
        {"DescricaoSindicato", &Eu::DescricaoSindicato, TFieldRelacionado("DESC_SINDICATO")},
        {"NaturezaAtividade", &Eu::NaturezaAtividade, TFieldRelacionado("TIPOVINCULO")},
        {"TipoVinculoDesc", &Eu::TipoVinculoDesc, TFieldRelacionado("TIPO_VINCULO_DESC")},
        {"IndicativoAdmissao", &Eu::IndicativoAdmissao},
        {"TipoRegimeJornada", &Eu::TipoRegimeJornada},
        {"CodIndicativoAdmissao", &Eu::CodIndicativoAdmissao, TFieldRelacionado("INDADMISSAO")},
        {"CodTipoRegimeJornada", &Eu::CodTipoRegimeJornada, TFieldRelacionado("TPREGJORNADA")},
        {"CodigoCategoria", &Eu::CodigoCategoria, TFieldRelacionado("CODIGOESOCIAL")},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoCeletista::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  EMPREGADOS.DATA_ADMISSAO,
  EMPREGADOS.TIPOADMISSAO,
  CASE EMPREGADOS.TIPOADMISSAO
    WHEN 1 THEN '1-Admissão'
    WHEN 2 THEN '2-Transferência de empresa do mesmo grupo econômico'
    WHEN 3 THEN '3-Transferência de empresa consorciada ou de consórcio'
    WHEN 4 THEN '4-Transferência por motivo de sucessão, incorporação, cisão ou fusão'
    WHEN 5 THEN '5-Transferência do empregado doméstico para outro representante da mesma unidade familiar.'
    WHEN 6 THEN '6-Mudança de CPF.'
  END AS TIPO_ADMISSAO_DESC,
  EMPREGADOS.TIPOVINCULO,
  CASE EMPREGADOS.TIPOVINCULO
    WHEN 1 THEN '1-Trabalho urbano'
    WHEN 2 THEN '2-Trabalho rural'
  END AS TIPO_VINCULO_DESC,
  LPAD(SINDICATOS.COD_SINDI, 4, 0) || ' - ' || SINDICATOS.NOME AS DESC_SINDICATO,
  SINDICATOS.CNPJ AS CNPJ_SINDICATO,
  SINDICATOS.MES_DATA_BASE,
  (%1:s) AS INDADMISSAO,
  (%2:s) AS TPREGJORNADA,
  FP_ESOCIALTABELA.CODIGO AS CODIGOESOCIAL
FROM EMPREGADOS
LEFT JOIN SINDICATOS ON (EMPREGADOS.COD_SINDI = SINDICATOS.COD_SINDI)
LEFT JOIN FP_ESOCIALTABELA ON (EMPREGADOS.IDCATEGORIAESOCIAL=FP_ESOCIALTABELA.IDESOCIALTABELA)
WHERE EMPREGADOS.IDEMPREGADO = %0:d)";
    const auto Regime = [this](std::string_view AColuna) {
        return regras::SqlConfiguracaoVigente(AColuna, regras::SC00_EMPREGADOCFG, FIDEmpregado, REGIMES, FDataGeracao);
    };
    return Format(SQL, FIDEmpregado, Regime("SC00_EMPREGADOCFG.INFORMACAO1"), Regime("SC00_EMPREGADOCFG.INFORMACAO4"));
}

void TTarvoESocialCamposInfoCeletista::BuscarDadosCfgEmpregado()
{
    // By the codes of the worker, unlike the statement of the group, which goes by the id: with two rows in force the
    // codes set here may be those of the other row; meant.
    static constexpr std::string_view SQL = R"(SELECT
  SC00_EMPREGADOCFG.INFORMACAO1,
  SC00_EMPREGADOCFG.INFORMACAO2,
  SC00_EMPREGADOCFG.INFORMACAO4,
  CASE SC00_EMPREGADOCFG.INFORMACAO1
    WHEN '1' THEN 'Normal'
    WHEN '2' THEN 'Decorrente de ação fiscal'
    WHEN '3' THEN 'Decorrente de decisão judicial'
  END AS INDIC_ADMISSAO,
  CASE SC00_EMPREGADOCFG.INFORMACAO4
    WHEN '1' THEN '1-Submetidos a horário de trabalho (Cap. II da CLT)'
    WHEN '2' THEN '2-Atividade externa especif. no Inciso I do Art. 62 da CLT'
    WHEN '3' THEN '3-Funções especificadas no Inciso II do Art. 62 da CLT'
    WHEN '4' THEN '4-Teletrabalho, previsto no Inciso III do Art. 62 da CLT'
  END AS TIPO_REG_JORNADA
FROM SC00_EMPREGADOCFG
JOIN EMPREGADOS ON (EMPREGADOS.COD_EMPRESA = SC00_EMPREGADOCFG.COD_EMPRESA
  AND EMPREGADOS.COD_EMPREGADO = SC00_EMPREGADOCFG.COD_EMPREGADO)
WHERE EMPREGADOS.IDEMPREGADO = %0:d
  AND %1:s
ORDER BY SC00_EMPREGADOCFG.DATAINICIO DESC, SC00_EMPREGADOCFG.IDEMPREGADOCFG)";
    IndicativoAdmissao.clear();
    TipoRegimeJornada.clear();
    const auto LCds = TTarvoConsultasGeral::BuscarRegistros(
        Format(SQL, FIDEmpregado, regras::CondicaoVigente(regras::SC00_EMPREGADOCFG, REGIMES, FDataGeracao)));
    if (LCds->IsEmpty())
        return;
    const auto Codigo = [&LCds](std::string_view AColuna) {
        const auto LValor = StrToInt64Def(LCds->FieldByName(AColuna).AsString(), 0);
        return std::in_range<std::int32_t>(LValor) ? static_cast<std::int32_t>(LValor) : 0;
    };
    IndicativoAdmissao = LCds->FieldByName("INDIC_ADMISSAO").AsString();
    TipoRegimeJornada = LCds->FieldByName("TIPO_REG_JORNADA").AsString();
    CodIndicativoAdmissao = Codigo("INFORMACAO1");
    CodTipoRegimeJornada = Codigo("INFORMACAO4");
}

void TTarvoESocialCamposInfoCeletista::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    // Always, also for a group that the list leaves out.
    BuscarDadosCfgEmpregado();
    Fgts.CarregarDados(AListaCamposModificados);
    TrabTemporario.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
