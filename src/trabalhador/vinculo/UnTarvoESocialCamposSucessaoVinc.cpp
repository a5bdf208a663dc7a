#include "trabalhador/vinculo/UnTarvoESocialCamposSucessaoVinc.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposSucessaoVinc::TTarvoESocialCamposSucessaoVinc(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{99EC257A-8F4D-405C-ACFA-3DEEC6A868A4}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposSucessaoVinc::Tabela()
{
    using Eu = TTarvoESocialCamposSucessaoVinc;
    static const TPropriedades tabela{
        {"CnpjEmpregadorAnterior", &Eu::CnpjEmpregadorAnterior, TFieldRelacionado("CNPJ")},
        {"MatriculaAnterior", &Eu::MatriculaAnterior, TFieldRelacionado("MATRICULA")},
        {"DataInicioVinculo", &Eu::DataInicioVinculo, TFieldRelacionado("DATAADMISSAO_ANT")},
        {"Observacao", &Eu::Observacao, TFieldRelacionado("OBSERVACAO")},
        {"DataAdmissaoEmpreg", &Eu::DataAdmissaoEmpreg, TFieldRelacionado("DATAADMISSAO_EMPREG")},
        {"TipoAdmissaoEmpreg", &Eu::TipoAdmissaoEmpreg, TFieldRelacionado("TIPOADMISSAO")},
        {"TpInscEmpregador", &Eu::TpInscEmpregador, TFieldRelacionado("TPINSC_EMPREGADOR")},
        {"IdEmpregado", &Eu::IdEmpregado},
    };
    return tabela;
}

std::string TTarvoESocialCamposSucessaoVinc::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(WITH SQL_EMPREGADOSDET AS (
  SELECT FIRST 1
    FP_EMPREGADOSDET.INFORMACAO1 AS CNPJ,
    FP_EMPREGADOSDET.INFORMACAO2 AS MATRICULA,
    FP_EMPREGADOSDET.INFORMACAO3 AS DATAADMISSAO_ANT,
    FP_EMPREGADOSDET.INFORMACAO4 AS TPINSC_EMPREGADOR,
    FP_EMPREGADOSDET.INFORMACAO10 AS OBSERVACAO
  FROM FP_EMPREGADOSDET
  WHERE FP_EMPREGADOSDET.IDEMPREGADO = %0:D
    AND FP_EMPREGADOSDET.ESPECIE = 1 AND FP_EMPREGADOSDET.TP = %1:D
  ORDER BY FP_EMPREGADOSDET.IDEMPREGADO, FP_EMPREGADOSDET.IDEMPREGADOSDET),
SQL_EMPREGADOS AS (
  SELECT
    EMPREGADOS.DATA_ADMISSAO AS DATAADMISSAO_EMPREG,
    EMPREGADOS.TIPOADMISSAO
  FROM EMPREGADOS
  WHERE EMPREGADOS.IDEMPREGADO = %0:D)
SELECT
  SQL_EMPREGADOSDET.CNPJ,
  SQL_EMPREGADOSDET.MATRICULA,
  SQL_EMPREGADOSDET.DATAADMISSAO_ANT,
  SQL_EMPREGADOSDET.TPINSC_EMPREGADOR,
  SQL_EMPREGADOSDET.OBSERVACAO,
  SQL_EMPREGADOS.DATAADMISSAO_EMPREG,
  SQL_EMPREGADOS.TIPOADMISSAO
FROM SQL_EMPREGADOS
LEFT JOIN SQL_EMPREGADOSDET ON (1=1))";
    return Format(SQL, FIDEmpregado, BuscarTpConformeTipoDeAdmissao());
}

} // namespace tarvo::trabalhador
