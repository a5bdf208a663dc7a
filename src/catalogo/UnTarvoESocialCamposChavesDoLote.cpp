#include "catalogo/UnTarvoESocialCamposChavesDoLote.h"

#include "imports/UnOvraEsocialReinfControleAmbientes.h"
#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasEmpregado.h"
#include "imports/pcesConversaoeSocial.h"
#include "regras/UnTarvoESocialCamposSqlCategoria.h"

namespace tarvo::catalogo {

namespace {

/// AMaisOrdem orders those of the same digits that come from one table: the first of them stays, or all without it.
std::string SqlDosCpfsCom(const TArgumentosDeEvento& AArgumentos, std::string_view AMaisOrdem)
{
    static constexpr std::string_view SQL = R"(SELECT CHAVES.CPF
FROM (
  SELECT PESSOAS.ORDEM, PESSOAS.CPF, RANK() OVER (PARTITION BY PESSOAS.DIGITOS ORDER BY PESSOAS.ORDEM%3:s) AS LUGAR
  FROM (
    SELECT 1 AS ORDEM, TRIM(EMPREGADOS.CPF) AS CPF,
           %4:s AS DIGITOS
    FROM EMPREGADOS
    WHERE EMPREGADOS.IDEMPRESA = %0:d
    UNION
    SELECT 2 AS ORDEM, MIN(TRIM(PREST_SERVICO.CPF)) AS CPF,
           %5:s AS DIGITOS
    FROM RPA
    JOIN PREST_SERVICO ON (PREST_SERVICO.IDPRESTSERVICO = RPA.IDPRESTSERVICO)
    JOIN SC00_FILIAL ON (SC00_FILIAL.IDFILIAL = RPA.IDFILIAL)
    WHERE SC00_FILIAL.IDEMPRESA = %0:d
      AND RPA.DATAPAGTO BETWEEN %1:s AND %2:s
    GROUP BY 3
  ) AS PESSOAS
  WHERE PESSOAS.DIGITOS <> ''
) AS CHAVES
WHERE CHAVES.LUGAR = 1
ORDER BY CHAVES.ORDEM, CHAVES.CPF)";
    return Format(SQL, AArgumentos.Id("IdEmpresa"), FormatarDataDB(AArgumentos.Data("DataInicio"), true),
                  FormatarDataDB(AArgumentos.Data("DataFim"), true), AMaisOrdem, SqlDigitosDoCpf("EMPREGADOS.CPF"),
                  SqlDigitosDoCpf("PREST_SERVICO.CPF"));
}

/// The company, as the events that take it themselves name it, or as the batch does.
std::int64_t IdEmpresa(const TArgumentosDeEvento& AArgumentos)
{
    return AArgumentos.Id(AArgumentos.Informado(ID_EMPRESA) ? ID_EMPRESA : AID_EMPRESA);
}

std::string SqlDosTrabalhadoresCom(const TArgumentosDeEvento& AArgumentos, bool ASemVinculo, std::string_view AMais)
{
    static constexpr std::string_view SQL = R"(SELECT EMPREGADOS.IDEMPREGADO AS AIDEMPREGADO
FROM EMPREGADOS
LEFT JOIN FP_ESOCIALTABELA ON (FP_ESOCIALTABELA.IDESOCIALTABELA = EMPREGADOS.IDCATEGORIAESOCIAL)
WHERE EMPREGADOS.IDEMPRESA = %0:d
  AND IIF(FP_ESOCIALTABELA.CODIGO IN (%1:s) OR FP_ESOCIALTABELA.CODIGO >= '700', 1, 0) = %2:d
  %3:s
ORDER BY EMPREGADOS.IDEMPREGADO)";
    return Format(SQL, IdEmpresa(AArgumentos), regras::CATEGORIAS_SEM_VINCULO, ASemVinculo ? 1 : 0, AMais);
}

} // namespace

std::string SqlDosCpfsGuardados(const TArgumentosDeEvento& AArgumentos) { return SqlDosCpfsCom(AArgumentos, ""); }

std::string SqlDosCpfsPelosDigitos(const TArgumentosDeEvento& AArgumentos)
{
    return SqlDosCpfsCom(AArgumentos, ", PESSOAS.CPF");
}

template <bool ASemVinculo>
std::string SqlDosTrabalhadores(const TArgumentosDeEvento& AArgumentos)
{
    return SqlDosTrabalhadoresCom(AArgumentos, ASemVinculo, "");
}

template <bool ASemVinculo>
std::string SqlDosDesligados(const TArgumentosDeEvento& AArgumentos)
{
    return SqlDosTrabalhadoresCom(AArgumentos, ASemVinculo,
                                  Format("AND %0:s BETWEEN %1:s AND %2:s",
                                         TTarvoConsultasEmpregado::ExpressaoDemissaoOuTransfDefinitiva(),
                                         FormatarDataDB(AArgumentos.Data("DataInicio"), true),
                                         FormatarDataDB(AArgumentos.Data("DataFim"), true)));
}

template std::string SqlDosTrabalhadores<true>(const TArgumentosDeEvento&);
template std::string SqlDosTrabalhadores<false>(const TArgumentosDeEvento&);
template std::string SqlDosDesligados<true>(const TArgumentosDeEvento&);
template std::string SqlDosDesligados<false>(const TArgumentosDeEvento&);

std::string SqlDosAfastamentos(const TArgumentosDeEvento& AArgumentos)
{
    static constexpr std::string_view SQL = R"(SELECT SITUACOES.IDSITUACAO AS AIDSITUACAO
FROM SITUACOES
JOIN EMPREGADOS ON (EMPREGADOS.IDEMPREGADO = SITUACOES.IDEMPREGADO)
WHERE EMPREGADOS.IDEMPRESA = %0:d
  AND SITUACOES.IDESOCIALTABELA18 IS NOT NULL
  AND SITUACOES.%1:s IS NOT NULL
ORDER BY SITUACOES.IDSITUACAO)";
    const bool LInicio = static_cast<TTipoEventoS2230>(AArgumentos.Inteiro("ATipoEvento")) == TTipoEventoS2230::Inicio;
    return Format(SQL, AArgumentos.Id(ID_EMPRESA), LInicio ? "DATA" : "DATA_FIM");
}

std::string SqlDosEventosAceitos(const TArgumentosDeEvento& AArgumentos)
{
    static constexpr std::string_view SQL = R"(SELECT SC00_ESOCIALREINFXML.IDESOCIALREINFXML AS AIDEVENTO
FROM SC00_ESOCIALREINFXML
WHERE SC00_ESOCIALREINFXML.IDEMPRESA = %0:d%1:s
  AND EXISTS (SELECT 1
    FROM SC00_ESOCIALREINFDET
    WHERE SC00_ESOCIALREINFDET.IDEVENTO = SC00_ESOCIALREINFXML.IDESOCIALREINFXML
      AND SC00_ESOCIALREINFDET.STATUS IN (201, 202))
ORDER BY SC00_ESOCIALREINFXML.IDESOCIALREINFXML)";
    return Format(SQL, AArgumentos.Id(ID_EMPRESA),
                  BuscarInstanciaOvraEsocialReinfControleAmbientes().RetornarSqlControleAmbiente("AND"));
}

} // namespace tarvo::catalogo
