#include "imports/consultas/UnTarvoConsultasEmpregado.h"

#include <array>

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasCAT.h"
#include "imports/consultas/UnTarvoConsultasCursosTreinamentos.h"
#include "imports/consultas/UnTarvoConsultasEmpregadoSituacoes.h"
#include "imports/consultas/UnTarvoConsultasExamesToxicologicos.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/consultas/UnTarvoConsultasRescisao.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "imports/valores/UnOvraUtilsStrings.h"

namespace tarvo {

std::string SqlDigitosDoCpf(std::string_view AColuna)
{
    return Format("REPLACE(REPLACE(REPLACE(REPLACE(%0:s, '.', ''), '-', ''), '/', ''), ' ', '')", AColuna);
}

namespace {

std::string DiaDB(TDateTime AData) { return FormatarDataDB(DateOf(AData), true); }

/// Contracts of a CPF at a company.
std::string CondicaoDoCpf(std::int64_t AIDEmpresa, std::string_view ACpf)
{
    const auto LNumeros = GOvraUtilsStrings.SomenteNumeros(ACpf);
    if (LNumeros.empty())
        return "1 = 0"; // a worker without a CPF must not stand for every such worker
    return Format(R"(EMPREGADOS.IDEMPRESA = %0:d
  AND %2:s = '%1:s')",
                  AIDEmpresa, LNumeros, SqlDigitosDoCpf("EMPREGADOS.CPF"));
}

} // namespace

static constexpr std::string_view SQL_EMPRESA_DO_EMPREGADO = R"(SELECT EMPREGADOS.IDEMPRESA
FROM EMPREGADOS
WHERE EMPREGADOS.IDEMPREGADO = %0:d)";

std::int64_t TTarvoConsultasEmpregado::BuscarIDEmpresaDoEmpregado(std::int64_t AIDEmpregado)
{
    return TTarvoConsultasGeral::BuscarInteiro(Format(SQL_EMPRESA_DO_EMPREGADO, AIDEmpregado));
}

static constexpr std::string_view SQL_CATEGORIA = R"(SELECT FP_ESOCIALTABELA.CODIGO
FROM EMPREGADOS
JOIN FP_ESOCIALTABELA ON (FP_ESOCIALTABELA.IDESOCIALTABELA = EMPREGADOS.IDCATEGORIAESOCIAL)
WHERE EMPREGADOS.IDEMPREGADO = %0:d)";

std::string TTarvoConsultasEmpregado::BuscarCodCategoriaEmpregado(std::int64_t AIDEmpregado)
{
    return TTarvoConsultasGeral::BuscarTexto(Format(SQL_CATEGORIA, AIDEmpregado));
}

static constexpr std::string_view SQL_CPF = R"(SELECT %0:s.CPF
FROM %0:s
WHERE %0:s.%1:s = %2:d)";

std::string TTarvoConsultasEmpregado::BuscarCpfTrabalhador(std::int64_t AIDTrabalhador, TTipoTrabalhador ATipo)
{
    const bool LEmpregado = ATipo == TTipoTrabalhador::Empregado;
    return TTarvoConsultasGeral::BuscarTexto(Format(SQL_CPF, LEmpregado ? "EMPREGADOS" : "PREST_SERVICO",
                                                    LEmpregado ? "IDEMPREGADO" : "IDPRESTSERVICO", AIDTrabalhador));
}

// By name: a host's table has more columns, pictures and arrays among them.
static constexpr std::string_view SQL_DADOS_EMPREGADO = R"(SELECT
  EMPREGADOS.DATA_ADMISSAO,
  EMPREGADOS.IDEMPRESA
FROM EMPREGADOS
WHERE EMPREGADOS.IDEMPREGADO = %0:d)";

TDataset TTarvoConsultasEmpregado::BuscarDadosEmpregado(std::int64_t AIDEmpregado)
{
    return TTarvoConsultasGeral::BuscarRegistros(Format(SQL_DADOS_EMPREGADO, AIDEmpregado));
}

static constexpr std::string_view SQL_EVENTO =
    R"(SELECT SC00_ESOCIALREINFXML.TPEVENTO, SC00_ESOCIALREINFXML.IDTABELAEVENTO
FROM SC00_ESOCIALREINFXML
WHERE SC00_ESOCIALREINFXML.IDESOCIALREINFXML = %0:d)";

std::int64_t TTarvoConsultasEmpregado::BuscarIdTrabalhadorPeloIdEvento(std::int64_t AIdEvento)
{
    // The kinds whose id is that of a row which belongs to a worker; in the others it is the worker's own.
    struct TOrigem {
        std::string_view TpEvento;
        std::int64_t (*BuscarTrabalhador)(std::int64_t AId);
    };
    static constexpr std::array<TOrigem, 5> ORIGENS{{
        {"S-2210", &TTarvoConsultasCAT::BuscarIdEmpregadoPeloIdTabCat},
        {"S-2221", &TTarvoConsultasExamesToxicologicos::BuscarIdEmpregadoPeloIdExameToxic},
        {"S-2230", &TTarvoConsultasEmpregadoSituacoes::BuscarIdEmpregadoPeloIDSituacao},
        {"S-2245",
         [](std::int64_t AId) {
             return TTarvoConsultasCursosTreinamentos::BuscarDadosEmpregadoPeloIdCurso(AId).IDEmpregado;
         }},
        {"S-2250", &TTarvoConsultasRescisao::BuscarIDEmpregadoPeloIDAvisoPrevio},
    }};
    const auto LCds = TTarvoConsultasGeral::BuscarRegistros(Format(SQL_EVENTO, AIdEvento));
    const auto LTpEvento = LCds->FieldByName("TPEVENTO").AsString();
    const auto LId = LCds->FieldByName("IDTABELAEVENTO").AsLargeInt();
    for (const auto& LOrigem : ORIGENS)
        if (Trim(LTpEvento) == LOrigem.TpEvento)
            return LOrigem.BuscarTrabalhador(LId);
    return LId;
}

static constexpr std::string_view SQL_INICIO_DO_CONTRATO = R"(SELECT COALESCE(
    (SELECT CAST(MIN(MOV_TRANSF.DATAINICIOMOV) AS DATE)
     FROM MOV_TRANSF
     WHERE MOV_TRANSF.IDEMPREGADO = EMPREGADOS.IDEMPREGADO
       AND MOV_TRANSF.MOTIVOINICIAL = 'TRANSFERENCIA DEFINITIVA'
       AND MOV_TRANSF.COD_EMPRESA = EMPREGADOS.COD_EMPRESA),
    CAST(EMPREGADOS.DATA_ADMISSAO AS DATE))
FROM EMPREGADOS
WHERE EMPREGADOS.IDEMPREGADO = %0:d)";

TDateTime TTarvoConsultasEmpregado::BuscarAdmissaoOuTransfDefinitivaInicial(std::int64_t AIDEmpregado)
{
    return TTarvoConsultasGeral::BuscarData(Format(SQL_INICIO_DO_CONTRATO, AIDEmpregado));
}

static constexpr std::string_view SQL_DEMISSAO = R"(SELECT CAST(EMPREGADOS.DATA_DEMISSAO AS DATE)
FROM EMPREGADOS
WHERE EMPREGADOS.IDEMPREGADO = %0:d)";

TDateTime TTarvoConsultasEmpregado::BuscarDataDemissao(std::int64_t AIDEmpregado)
{
    return TTarvoConsultasGeral::BuscarData(Format(SQL_DEMISSAO, AIDEmpregado));
}

static constexpr std::string_view TRANSFERENCIA_PARA_OUTRA = R"(MOV_TRANSF.MOTIVOINICIAL = 'TRANSFERENCIA DEFINITIVA'
    AND MOV_TRANSF.COD_EMPRESA <> EMPREGADOS.COD_EMPRESA)";

std::string TTarvoConsultasEmpregado::ExpressaoDemissaoOuTransfDefinitiva(bool ASomenteTransf)
{
    static constexpr std::string_view SQL = R"((SELECT CAST(MAX(MOV_TRANSF.DATAINICIOMOV) AS DATE)
  FROM MOV_TRANSF
  WHERE MOV_TRANSF.IDEMPREGADO = EMPREGADOS.IDEMPREGADO
    AND %0:s))";
    const auto LTransferencia = Format(SQL, TRANSFERENCIA_PARA_OUTRA);
    return ASomenteTransf ? LTransferencia
                          : Format("COALESCE(CAST(EMPREGADOS.DATA_DEMISSAO AS DATE), %0:s)", LTransferencia);
}

static constexpr std::string_view SQL_FIM_DO_CONTRATO = R"(SELECT %0:s
FROM EMPREGADOS
WHERE EMPREGADOS.IDEMPREGADO = %1:d)";

TDateTime TTarvoConsultasEmpregado::BuscarDataDemissaoOuTransfDefinitiva(std::int64_t AIDEmpregado, bool ASomenteTransf)
{
    return TTarvoConsultasGeral::BuscarData(
        Format(SQL_FIM_DO_CONTRATO, ExpressaoDemissaoOuTransfDefinitiva(ASomenteTransf), AIDEmpregado));
}

bool TTarvoConsultasEmpregado::EncontrouMovimPorTransfDefinitivaParaOhEmpregado(std::string_view AIds,
                                                                                TDateTime ADataInicio,
                                                                                TDateTime ADataFim)
{
    static constexpr std::string_view SQL = R"(SELECT FIRST 1 MOV_TRANSF.IDEMPREGADO
FROM MOV_TRANSF
JOIN EMPREGADOS ON (EMPREGADOS.IDEMPREGADO = MOV_TRANSF.IDEMPREGADO)
WHERE %0:s
  %1:s
  AND CAST(MOV_TRANSF.DATAINICIOMOV AS DATE) BETWEEN %2:s AND %3:s)";
    const auto LIds = FormatarListaParaClausulaIN("MOV_TRANSF", "IDEMPREGADO", AIds, "AND");
    return !LIds.empty() && TTarvoConsultasGeral::EncontrouRegistros(
                                Format(SQL, TRANSFERENCIA_PARA_OUTRA, LIds, DiaDB(ADataInicio), DiaDB(ADataFim)));
}

static constexpr std::string_view SQL_CATEGORIAS_ATIVAS = R"(SELECT COUNT(DISTINCT FP_ESOCIALTABELA.CODIGO)
FROM EMPREGADOS
JOIN FP_ESOCIALTABELA ON (FP_ESOCIALTABELA.IDESOCIALTABELA = EMPREGADOS.IDCATEGORIAESOCIAL)
WHERE %0:s
  AND CAST(EMPREGADOS.DATA_ADMISSAO AS DATE) <= %1:s
  AND (CAST(EMPREGADOS.DATA_DEMISSAO AS DATE) >= %1:s OR EMPREGADOS.DATA_DEMISSAO IS NULL))";

bool TTarvoConsultasEmpregado::ExistemVariosVinculosAtivosComCategDiferentes(std::int64_t AIDEmpresa,
                                                                             std::string_view ACpf, TDateTime AData)
{
    return TTarvoConsultasGeral::BuscarInteiro(
               Format(SQL_CATEGORIAS_ATIVAS, CondicaoDoCpf(AIDEmpresa, ACpf), DiaDB(AData))) > 1;
}

bool TTarvoConsultasEmpregado::ExistemVariosVinculosAtivosComCategDiferentes(std::int64_t AIDEmpregado, TDateTime AData)
{
    return ExistemVariosVinculosAtivosComCategDiferentes(BuscarIDEmpresaDoEmpregado(AIDEmpregado),
                                                         BuscarCpfTrabalhador(AIDEmpregado), AData);
}

static constexpr std::string_view SQL_INDICADOR_INSS = R"(SELECT MAX(EMPREGADOS.INDICADORDESCINSS)
FROM EMPREGADOS
WHERE %0:s)";

std::int32_t TTarvoConsultasEmpregado::BuscarIndicadorDescontoINSS(std::int64_t AIDEmpresa, std::string_view ACpf)
{
    return static_cast<std::int32_t>(StrToInt64Def(
        TTarvoConsultasGeral::BuscarTexto(Format(SQL_INDICADOR_INSS, CondicaoDoCpf(AIDEmpresa, ACpf))), 0));
}

static constexpr std::string_view SQL_PROCESSOS = R"(SELECT ES02_SPPROC.*
FROM ES02_SPPROC
WHERE %0:s
  AND CAST(ES02_SPPROC.DATAABERTURA AS DATE) <= %1:s
ORDER BY ES02_SPPROC.IDSPPROC + 0)";
static constexpr std::string_view CONDICAO_CONTRATOS = R"(ES02_SPPROC.IDEMPREGADO IN (
    SELECT EMPREGADOS.IDEMPREGADO
    FROM EMPREGADOS
    WHERE %0:s))";

TDataset TTarvoConsultasEmpregado::BuscarDadosProcessosDoEmpregado(std::int64_t AIDEmpresa, std::int64_t AIDEmpregado,
                                                                   std::string_view ACpf, TDateTime AData)
{
    const auto LDono = AIDEmpregado != 0 ? Format("ES02_SPPROC.IDEMPREGADO = %0:d", AIDEmpregado)
                                         : Format(CONDICAO_CONTRATOS, CondicaoDoCpf(AIDEmpresa, ACpf));
    return TTarvoConsultasGeral::BuscarRegistros(Format(SQL_PROCESSOS, LDono, DiaDB(AData)));
}

std::vector<std::string> TTarvoConsultasEmpregado::BuscarProcessosDoEmpregado(std::int64_t AIDEmpresa,
                                                                              std::int64_t AIDEmpregado,
                                                                              std::string_view ACpf, TDateTime AData)
{
    std::vector<std::string> LIds;
    const auto LCds = BuscarDadosProcessosDoEmpregado(AIDEmpresa, AIDEmpregado, ACpf, AData);
    for (; !LCds->Eof(); LCds->Next())
        LIds.push_back(LCds->FieldByName("IDSPPROC").AsString());
    return LIds;
}

} // namespace tarvo
