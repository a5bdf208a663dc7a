#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "catalogo/UnTarvoESocialCamposCatalogo.h"
#include "imports/valores/UnOvraFormat.h"

// The keys of each event's batch: which statement lists them, and what the caller gives besides.

namespace tarvo::catalogo {

/// Everybody of a company by CPF: its employees, then the providers with a receipt of the company in the period who
/// aren't among them. A CPF is taken as it is stored, and compared by its digits. The contracts of an employee may
/// hold it in several forms: each is a key, for the event that finds the contracts of that very form.
std::string SqlDosCpfsGuardados(const TArgumentosDeEvento& AArgumentos);
/// The same with one key a person, for the event that finds everything by the digits.
std::string SqlDosCpfsPelosDigitos(const TArgumentosDeEvento& AArgumentos);

/// The workers of a company with a bond or without one, those without a category among the first. The categories from
/// 700 on that the payments don't know are without a bond too.
template <bool ASemVinculo>
std::string SqlDosTrabalhadores(const TArgumentosDeEvento& AArgumentos);
/// Those whose work ended in a period, by dismissal or by definitive transfer.
template <bool ASemVinculo>
std::string SqlDosDesligados(const TArgumentosDeEvento& AArgumentos);
/// The leaves of a company's workers: situations with a reason of the layout, for the end those that have one.
std::string SqlDosAfastamentos(const TArgumentosDeEvento& AArgumentos);
/// The events of a company that the government accepted, in the environment in use.
std::string SqlDosEventosAceitos(const TArgumentosDeEvento& AArgumentos);

inline constexpr char ID_EMPRESA[] = "IdEmpresa";
/// The company, where the event takes it itself.
inline constexpr char AID_EMPRESA[] = "AIDEmpresa";

/// The batch of an event whose keys are the rows of a company: Sql lists them, with the company as its argument.
/// Empresa names the company where the event itself takes it. AMais are the event's arguments that all keys share.
template <const std::string_view& Sql, const char* Empresa = ID_EMPRESA>
TLoteDoEvento LoteDaEmpresa(std::vector<TArgumentoDeEvento> AMais = {})
{
    AMais.insert(AMais.begin(), {Empresa, TTipoArgumento::taId, "código interno da empresa"});
    return {std::move(AMais), [](const TArgumentosDeEvento& A) { return Format(Sql, A.Id(Empresa)); }};
}

/// The same, with a statement that depends on more arguments than the company.
inline TLoteDoEvento LoteDaEmpresaPor(std::string (*ASql)(const TArgumentosDeEvento&),
                                      std::vector<TArgumentoDeEvento> AMais = {}, const char* AEmpresa = ID_EMPRESA)
{
    AMais.insert(AMais.begin(), {AEmpresa, TTipoArgumento::taId, "código interno da empresa"});
    return {std::move(AMais), ASql};
}

// Statements of keys. Rubrics, positions and schedules belong to the suite as a whole: every company has them all.

inline constexpr std::string_view LUGARES_DA_EMPRESA = R"(SELECT SC00_FILIAL.IDFILIAL AS AIDESTAB, 0 AS AIDDEPTO
FROM SC00_FILIAL
WHERE SC00_FILIAL.IDEMPRESA = %0:d
ORDER BY SC00_FILIAL.IDFILIAL)";
/// The establishments, and their departments with them.
inline constexpr std::string_view LOTACOES_DA_EMPRESA = R"(SELECT SC00_FILIAL.IDFILIAL AS AIDESTAB, 0 AS AIDDEPTO
FROM SC00_FILIAL
WHERE SC00_FILIAL.IDEMPRESA = %0:d
UNION ALL
SELECT SC00_FILIAL.IDFILIAL, SC00_DEPTO.IDDEPTO
FROM SC00_FILIAL
JOIN SC00_DEPTO ON (SC00_DEPTO.IDFILIAL = SC00_FILIAL.IDFILIAL)
WHERE SC00_FILIAL.IDEMPRESA = %0:d
ORDER BY 1, 2)";
/// The rubrics of the payroll, then those of the receipts.
inline constexpr std::string_view RUBRICAS_DA_EMPRESA = R"(SELECT TAB_VERBAS.IDVERBA AS AIDVERBA, 0 AS AIDRUBRICARPA
FROM TAB_VERBAS
JOIN SC00_EMPRESA ON (SC00_EMPRESA.IDEMPRESA = %0:d)
UNION ALL
SELECT 0, FP_RUBRICARELACRPA.IDRUBRICARELACRPA
FROM FP_RUBRICARELACRPA
JOIN SC00_EMPRESA ON (SC00_EMPRESA.IDEMPRESA = %0:d)
ORDER BY 2, 1)";
/// One table for positions, careers and functions.
inline constexpr std::string_view CARGOS_DA_EMPRESA = R"(SELECT FP_CARGOSDESCR.IDCARGOSDESCR AS AIDCARGOSDESCR
FROM FP_CARGOSDESCR
JOIN SC00_EMPRESA ON (SC00_EMPRESA.IDEMPRESA = %0:d)
ORDER BY FP_CARGOSDESCR.IDCARGOSDESCR)";
/// The weekdays on which a schedule has hours, then its details.
inline constexpr std::string_view HORARIOS_DA_EMPRESA =
    R"(SELECT TAB_HORARIOS.IDHORARIO AS AIDHORARIO, 0 AS AIDHORARIODET, DIAS.DIA AS ADIASEMANA
FROM TAB_HORARIOS
JOIN SC00_EMPRESA ON (SC00_EMPRESA.IDEMPRESA = %0:d)
JOIN (SELECT 0 AS DIA FROM RDB$DATABASE UNION ALL SELECT 1 FROM RDB$DATABASE UNION ALL SELECT 2 FROM RDB$DATABASE
      UNION ALL SELECT 3 FROM RDB$DATABASE UNION ALL SELECT 4 FROM RDB$DATABASE UNION ALL SELECT 5 FROM RDB$DATABASE
      UNION ALL SELECT 6 FROM RDB$DATABASE) AS DIAS
  ON (DECODE(DIAS.DIA, 0, DURJORNADADOM, 1, DURJORNADASEG, 2, DURJORNADATER, 3, DURJORNADAQUA, 4, DURJORNADAQUI,
             5, DURJORNADASEX, 6, DURJORNADASAB) <> 0)
UNION ALL
SELECT TAB_HORARIOSDET.IDHORARIO, TAB_HORARIOSDET.IDHORARIODET, 0
FROM TAB_HORARIOSDET
JOIN SC00_EMPRESA ON (SC00_EMPRESA.IDEMPRESA = %0:d)
ORDER BY 1, 2, 3)";
inline constexpr std::string_view AMBIENTES_DA_EMPRESA = R"(SELECT SST_AMBIENTES.IDAMBIENTE AS AIDAMBIENTE
FROM SST_AMBIENTES
WHERE SST_AMBIENTES.IDEMPRESA = %0:d
ORDER BY SST_AMBIENTES.IDAMBIENTE)";
/// The processes of its establishments and of its workers.
inline constexpr std::string_view PROCESSOS_DA_EMPRESA = R"(SELECT ES02_SPPROC.IDSPPROC AS AIDPROCESSO
FROM ES02_SPPROC
LEFT JOIN SC00_FILIAL ON (SC00_FILIAL.IDFILIAL = ES02_SPPROC.IDFILIAL)
LEFT JOIN EMPREGADOS ON (EMPREGADOS.IDEMPREGADO = ES02_SPPROC.IDEMPREGADO)
WHERE COALESCE(SC00_FILIAL.IDEMPRESA, EMPREGADOS.IDEMPRESA) = %0:d
ORDER BY ES02_SPPROC.IDSPPROC)";
inline constexpr std::string_view ESTABELECIMENTOS_DA_EMPRESA = R"(SELECT SC00_FILIAL.IDFILIAL AS AIDESTABELECIMENTO
FROM SC00_FILIAL
WHERE SC00_FILIAL.IDEMPRESA = %0:d
ORDER BY SC00_FILIAL.IDFILIAL)";
inline constexpr std::string_view FILIAIS_DA_EMPRESA = R"(SELECT SC00_FILIAL.IDFILIAL AS AIDFILIAL
FROM SC00_FILIAL
WHERE SC00_FILIAL.IDEMPRESA = %0:d
ORDER BY SC00_FILIAL.IDFILIAL)";
inline constexpr std::string_view AVISOS_DA_EMPRESA = R"(SELECT FP_AVISOPREVIO.IDAVISOPREVIO AS AIDAVISOPREVIO
FROM FP_AVISOPREVIO
JOIN EMPREGADOS ON (EMPREGADOS.IDEMPREGADO = FP_AVISOPREVIO.IDEMPREGADO)
WHERE EMPREGADOS.IDEMPRESA = %0:d
ORDER BY FP_AVISOPREVIO.IDAVISOPREVIO)";
inline constexpr std::string_view CONVOCACOES_DA_EMPRESA =
    R"(SELECT DISTINCT FP_CONTRAINTERM.IDEMPREGADO AS AIDEMPREGADO, FP_CONTRAINTERM.DATACONVOCACAO AS ADATAINICIO
FROM FP_CONTRAINTERM
JOIN EMPREGADOS ON (EMPREGADOS.IDEMPREGADO = FP_CONTRAINTERM.IDEMPREGADO)
WHERE EMPREGADOS.IDEMPRESA = %0:d
  AND FP_CONTRAINTERM.DATACONVOCACAO IS NOT NULL
ORDER BY 1, 2)";
inline constexpr std::string_view CATS_DA_EMPRESA = R"(SELECT TABCAT.IDTABCAT AS AIDTABCAT
FROM TABCAT
JOIN SC00_EMPRESA ON (SC00_EMPRESA.EMPRESA = TABCAT.COD_EMPRESA)
WHERE SC00_EMPRESA.IDEMPRESA = %0:d
ORDER BY TABCAT.IDTABCAT)";
inline constexpr std::string_view EMPREGADOS_DA_EMPRESA = R"(SELECT EMPREGADOS.IDEMPREGADO AS AIDEMPREGADO
FROM EMPREGADOS
WHERE EMPREGADOS.IDEMPRESA = %0:d
ORDER BY EMPREGADOS.IDEMPREGADO)";
inline constexpr std::string_view EXAMES_DA_EMPRESA =
    R"(SELECT FP_EXAMETOXICOLOGICO.IDEXAMETOXICOLOGICO AS AIDEXAMETOXICOLOGICO
FROM FP_EXAMETOXICOLOGICO
JOIN EMPREGADOS ON (EMPREGADOS.IDEMPREGADO = FP_EXAMETOXICOLOGICO.IDEMPREGADO)
WHERE EMPREGADOS.IDEMPRESA = %0:d
ORDER BY FP_EXAMETOXICOLOGICO.IDEXAMETOXICOLOGICO)";
inline constexpr std::string_view CURSOS_DA_EMPRESA = R"(SELECT FP_CURSOEMPREGADO.IDCURSOEMPREGADO AS AIDCURSOEMPREGADO
FROM FP_CURSOEMPREGADO
JOIN EMPREGADOS ON (EMPREGADOS.IDEMPREGADO = FP_CURSOEMPREGADO.IDEMPREGADO)
WHERE EMPREGADOS.IDEMPRESA = %0:d
ORDER BY FP_CURSOEMPREGADO.IDCURSOEMPREGADO)";

} // namespace tarvo::catalogo
