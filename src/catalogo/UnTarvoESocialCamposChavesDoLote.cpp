#include "catalogo/UnTarvoESocialCamposChavesDoLote.h"

#include "imports/UnTarvoUtilsDb.h"

namespace tarvo::catalogo {

std::string SqlDosCpfs(const TArgumentosDeEvento& AArgumentos)
{
    static constexpr std::string_view SQL = R"(SELECT CHAVES.CPF
FROM (
  SELECT PESSOAS.ORDEM, PESSOAS.CPF, MIN(PESSOAS.ORDEM) OVER (PARTITION BY PESSOAS.DIGITOS) AS PRIMEIRA
  FROM (
    SELECT 1 AS ORDEM, TRIM(EMPREGADOS.CPF) AS CPF,
           REPLACE(REPLACE(REPLACE(EMPREGADOS.CPF,'.',''),'-',''),' ','') AS DIGITOS
    FROM EMPREGADOS
    WHERE EMPREGADOS.IDEMPRESA = %0:d
    UNION
    SELECT 2 AS ORDEM, MIN(TRIM(PREST_SERVICO.CPF)) AS CPF,
           REPLACE(REPLACE(REPLACE(PREST_SERVICO.CPF,'.',''),'-',''),' ','') AS DIGITOS
    FROM RPA
    JOIN PREST_SERVICO ON (PREST_SERVICO.IDPRESTSERVICO = RPA.IDPRESTSERVICO)
    JOIN SC00_FILIAL ON (SC00_FILIAL.IDFILIAL = RPA.IDFILIAL)
    WHERE SC00_FILIAL.IDEMPRESA = %0:d
      AND RPA.DATAPAGTO BETWEEN %1:s AND %2:s
    GROUP BY 3
  ) AS PESSOAS
  WHERE PESSOAS.DIGITOS <> ''
) AS CHAVES
WHERE CHAVES.ORDEM = CHAVES.PRIMEIRA
ORDER BY CHAVES.ORDEM, CHAVES.CPF)";
    return Format(SQL, AArgumentos.Id("IdEmpresa"), FormatarDataDB(AArgumentos.Data("DataInicio"), true),
                  FormatarDataDB(AArgumentos.Data("DataFim"), true));
}

template <bool ASemVinculo>
std::string SqlDosDesligados(const TArgumentosDeEvento& AArgumentos)
{
    static constexpr std::string_view SQL = R"(SELECT EMPREGADOS.IDEMPREGADO AS "AIdEmpregado"
FROM EMPREGADOS
LEFT JOIN FP_ESOCIALTABELA ON (FP_ESOCIALTABELA.IDESOCIALTABELA = EMPREGADOS.IDCATEGORIAESOCIAL)
WHERE EMPREGADOS.IDEMPRESA = %0:d
  AND EMPREGADOS.DATA_DEMISSAO BETWEEN %1:s AND %2:s
  AND COALESCE(FP_ESOCIALTABELA.CODIGO, '') %3:s '700'
ORDER BY EMPREGADOS.IDEMPREGADO)";
    return Format(SQL, AArgumentos.Id("IdEmpresa"), FormatarDataDB(AArgumentos.Data("DataInicio"), true),
                  FormatarDataDB(AArgumentos.Data("DataFim"), true), ASemVinculo ? ">=" : "<");
}

template std::string SqlDosDesligados<true>(const TArgumentosDeEvento&);
template std::string SqlDosDesligados<false>(const TArgumentosDeEvento&);

} // namespace tarvo::catalogo
