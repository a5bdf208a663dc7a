#include "trabalhador/semvinculo/UnTarvoESocialCamposInfoEstagiario.h"

#include "imports/valores/UnOvraFormat.h"
#include "trabalhador/contrato/UnTarvoESocialCamposSqlSalarios.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposInfoEstagiario::TTarvoESocialCamposInfoEstagiario(std::int64_t AIDEmpregado, TDateTime ADataGeracao)
    : TTarvoESocialCamposGrupoBase("{4CBD557D-5BD2-4EA6-A651-7C8ADE031C12}"), instEnsino(AIDEmpregado),
      ageIntegracao(AIDEmpregado), supervisorEstagio(AIDEmpregado), FIDEmpregado(AIDEmpregado),
      FDataGeracao(ADataGeracao)
{}

const TPropriedades& TTarvoESocialCamposInfoEstagiario::Tabela()
{
    using Eu = TTarvoESocialCamposInfoEstagiario;
    static const TPropriedades tabela{
        {"natEstagio", &Eu::natEstagio, TFieldRelacionado("NATESTAGIO")},
        {"nivEstagio", &Eu::nivEstagio, TFieldRelacionado("NIVESTAGIO")},
        {"areaAtuacao", &Eu::areaAtuacao, TFieldRelacionado("AREAATUACAO")},
        {"nrApol", &Eu::nrApol, TFieldRelacionado("NRAPOL")},
        {"vlrBolsa", &Eu::vlrBolsa, TFieldRelacionado("SALARIOMENSAL")},
        {"DataInicoContrato", &Eu::DataInicoContrato, TFieldRelacionado("DATA_ADMISSAO")},
        {"NumDiasContrato", &Eu::NumDiasContrato, TFieldRelacionado("DIAS")},
        {"UnidadeMedidaContrato", &Eu::UnidadeMedidaContrato, TFieldRelacionado("UNIDADETEMPOCONTRATO")},
        {"DescricaoNatEstagio", &Eu::DescricaoNatEstagio, TFieldRelacionado("DESCNATESTAGIO")},
        {"DescricaoNivEstagio", &Eu::DescricaoNivEstagio, TFieldRelacionado("DESCNIVESTAGIO")},
        {"instEnsino", &Eu::instEnsino},
        {"ageIntegracao", &Eu::ageIntegracao},
        {"supervisorEstagio", &Eu::supervisorEstagio},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoEstagiario::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  FP_EMPREGADOSDET.INFORMACAO1 AS NATESTAGIO,
  FP_EMPREGADOSDET.INFORMACAO2 AS NIVESTAGIO,
  FP_EMPREGADOSDET.INFORMACAO3 AS AREAATUACAO,
  FP_EMPREGADOSDET.INFORMACAO4 AS NRAPOL,
  SALARIO.SALARIOMENSAL,
  EMPREGADOS.DATA_ADMISSAO,
  COALESCE(EMPREGADOS.C_EXP_PRAZO_INICIO, 0) + COALESCE(EMPREGADOS.C_EXP_PRAZO_FIM, 0) AS DIAS,
  EMPREGADOS.UNIDADETEMPOCONTRATO,
  CASE FP_EMPREGADOSDET.INFORMACAO1
    WHEN '1' THEN '1-Obrigatório'
    WHEN '2' THEN '2-Não obrigatório'
  END AS DESCNATESTAGIO,
  CASE FP_EMPREGADOSDET.INFORMACAO2
    WHEN '1' THEN '1-Fundamental'
    WHEN '2' THEN '2-Médio'
    WHEN '3' THEN '3-Formação profissional'
    WHEN '4' THEN '4-Superior'
    WHEN '8' THEN '8-Especial'
    WHEN '9' THEN '9-Mãe social (Lei 7.644/87)'
  END AS DESCNIVESTAGIO
FROM %1:s SALARIO
JOIN EMPREGADOS ON (SALARIO.IDEMPREGADO = EMPREGADOS.IDEMPREGADO)
LEFT JOIN FP_EMPREGADOSDET ON (FP_EMPREGADOSDET.IDEMPREGADO = EMPREGADOS.IDEMPREGADO
  AND FP_EMPREGADOSDET.ESPECIE = 1 AND FP_EMPREGADOSDET.TP = 4)
WHERE EMPREGADOS.IDEMPREGADO = %0:d
ORDER BY SALARIO.ORDEM, FP_EMPREGADOSDET.IDEMPREGADOSDET)";
    return Format(SQL, FIDEmpregado, SqlSalarios(FIDEmpregado, FDataGeracao));
}

void TTarvoESocialCamposInfoEstagiario::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    instEnsino.CarregarDados(AListaCamposModificados);
    ageIntegracao.CarregarDados(AListaCamposModificados);
    supervisorEstagio.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
