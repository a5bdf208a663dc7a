#include "sst/UnTarvoESocialCamposideProfResp.h"

#include "imports/UnOvraFormat.h"

namespace tarvo::sst {

TTarvoESocialCamposideProfResp::TTarvoESocialCamposideProfResp(std::int64_t AIdeProfResp)
    : TTarvoESocialCamposGrupoBase("{3C788571-88C7-4C7A-9536-B226058BEDAA}"), FIdeProfResp(AIdeProfResp)
{}

const TPropriedades& TTarvoESocialCamposideProfResp::Tabela()
{
    using Eu = TTarvoESocialCamposideProfResp;
    static const TPropriedades tabela{
        {"cpfProf", &Eu::cpfProf,
         TFieldRelacionado("CPFPROF", "", ClasseConversor<TTarvoESocialCamposConversorRemoveCaracteresEspeciais>())},
        {"nmProf", &Eu::nmProf, TFieldRelacionado("NMPROF")},
        {"tpProf", &Eu::tpProf, TFieldRelacionado("TPPROF")},
        {"formProf", &Eu::formProf, TFieldRelacionado("FORMPROF")},
        {"codCBO", &Eu::codCBO,
         TFieldRelacionado("CODCBO", "", ClasseConversor<TTarvoESocialCamposConversorRemoveCaracteresEspeciais>())},
        {"nacProf", &Eu::nacProf, TFieldRelacionado("NACPROF")},
    };
    return tabela;
}

std::string TTarvoESocialCamposideProfResp::BuscarSQLDados()
{
    // Brazilian is the country's internal id 1 for a worker and code 105 of table 6 for a provider; meant.
    static constexpr std::string_view SQL = R"(SELECT
  IIF(DADOS_CURSO.CPF_EMPREGADO IS NULL, DADOS_CURSO.CPF_PRESTSERVICO, DADOS_CURSO.CPF_EMPREGADO) AS CPFPROF,
  IIF(DADOS_CURSO.NOME_EMPREGADO IS NULL, DADOS_CURSO.NOME_PRESTSERVICO, DADOS_CURSO.NOME_EMPREGADO) AS NMPROF,
  DADOS_CURSO.TPPROF,
  DADOS_CURSO.FORMPROF,
  IIF(DADOS_CURSO.CBO_EMPREGADO IS NULL, DADOS_CURSO.CBO_PRESTSERVICO, DADOS_CURSO.CBO_EMPREGADO) AS CODCBO,
  CASE DADOS_CURSO.TPPROF
    WHEN 1 THEN DADOS_CURSO.NAC_EMPREGADO
    WHEN 2 THEN DADOS_CURSO.NAC_PRESTSERVICO
  END AS NACPROF
FROM (
  SELECT
    EMPREGADOS.CPF AS CPF_EMPREGADO,
    PREST_SERVICO.CPF AS CPF_PRESTSERVICO,
    EMPREGADOS.NOME AS NOME_EMPREGADO,
    PREST_SERVICO.NOME AS NOME_PRESTSERVICO,
    FP_CURSOEMPREGADODET.TIPOPROFISSIONAL AS TPPROF,
    FP_CURSOEMPREGADODET.FORMACAOPROFISRESP AS FORMPROF,
    CARGOS.CBO2002 AS CBO_EMPREGADO,
    PREST_SERVICO.CBO AS CBO_PRESTSERVICO,
    IIF(EMPREGADOS.PAISNACIONALIDADE <> 1, 2, EMPREGADOS.PAISNACIONALIDADE) AS NAC_EMPREGADO,
    IIF(PAISES.CODIGO = '105', 1, 2) AS NAC_PRESTSERVICO
  FROM FP_CURSOEMPREGADODET
  LEFT JOIN EMPREGADOS ON (EMPREGADOS.IDEMPREGADO = FP_CURSOEMPREGADODET.IDEMPREGADO)
  LEFT JOIN PREST_SERVICO ON (PREST_SERVICO.IDPRESTSERVICO = FP_CURSOEMPREGADODET.IDPRESTSERVICO)
  LEFT JOIN FP_ESOCIALTABELA PAISES ON (PAISES.IDESOCIALTABELA = PREST_SERVICO.IDTAB6CODPAIS)
  LEFT JOIN CARGOS ON (CARGOS.IDEMPREGADO = FP_CURSOEMPREGADODET.IDEMPREGADO)
  WHERE FP_CURSOEMPREGADODET.IDCURSOEMPREGADODET = %0:d
) DADOS_CURSO)";
    return Format(SQL, FIdeProfResp);
}

} // namespace tarvo::sst
