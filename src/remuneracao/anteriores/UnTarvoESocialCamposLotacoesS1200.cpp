#include "remuneracao/anteriores/UnTarvoESocialCamposLotacoesS1200.h"

#include <algorithm>

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"
#include "imports/valores/UnTarvoUtilsGeral.h"

namespace tarvo::remuneracao {

std::string SqlCalculosPorLotacao(std::string_view AColunas, const std::vector<std::int64_t>& AIdsEmpregado,
                                  TDateTime ADataInicio, TDateTime ADataFim, bool AComDepto, std::string_view ACondicao,
                                  std::string_view AOrdem)
{
    static constexpr std::string_view RAMO = R"(SELECT DISTINCT %3:s
FROM %4:s
JOIN SC00_EMPRESA ON (CALCULO.COD_EMPRESA = SC00_EMPRESA.EMPRESA)
JOIN SC00_FILIAL ON (SC00_EMPRESA.IDEMPRESA = SC00_FILIAL.IDEMPRESA
                 AND %5:s.COD_FILIAL = SC00_FILIAL.FILIAL)
%6:sJOIN EMPREGADOS ON (CALCULO.IDEMPREGADO = EMPREGADOS.IDEMPREGADO)
WHERE (CALCULO.DATA_INICIO BETWEEN %1:S AND %2:S OR CALCULO.DATA_FIM BETWEEN %1:S AND %2:S)
  AND EMPREGADOS.IDEMPREGADO IN (%0:S)
  AND %7:s)";
    static constexpr std::string_view JUNCAO_DO_DEPTO =
        "LEFT JOIN SC00_DEPTO ON (SC00_FILIAL.IDFILIAL = SC00_DEPTO.IDFILIAL AND %0:s.COD_DEPTO = SC00_DEPTO.DEPTO)\n";
    const auto LIds = TTarvoUtilsGeral::ConverterTListParaMultisselecao(AIdsEmpregado);
    const auto Ramo = [&](std::string_view AOrigem, std::string_view ATabela) {
        return Format(RAMO, LIds, FormatarDataDB(ADataInicio, true), FormatarDataDB(ADataFim, true), AColunas, AOrigem,
                      ATabela, AComDepto ? Format(JUNCAO_DO_DEPTO, ATabela) : std::string(), ACondicao);
    };
    return Ramo("CALCULO", "CALCULO") + "\nUNION\n" +
           Ramo("CALCULO\nJOIN CALC_QUEBRA ON (CALCULO.IDCALCULO = CALC_QUEBRA.IDCALCULO)", "CALC_QUEBRA") +
           Format("\nORDER BY %0:s", AOrdem);
}

std::vector<std::int64_t> BuscarEmpregadosDaLotacao(const std::vector<std::int64_t>& AIdsEmpregado,
                                                    TDateTime ADataInicio, TDateTime ADataFim, std::int64_t AIdFilial,
                                                    std::int64_t AIdDepto)
{
    const auto LCondicao = AIdDepto == 0 ? Format("SC00_FILIAL.IDFILIAL = %0:D", AIdFilial)
                                         : Format("SC00_DEPTO.IDDEPTO = %0:D", AIdDepto);
    return TTarvoConsultasGeral::BuscarListaDeIds(SqlCalculosPorLotacao(
        "EMPREGADOS.IDEMPREGADO", AIdsEmpregado, ADataInicio, ADataFim, AIdDepto != 0, LCondicao, "1"));
}

void AdicionarSemRepetir(std::vector<std::int64_t>& ALista, std::int64_t AId)
{
    if (std::find(ALista.begin(), ALista.end(), AId) == ALista.end())
        ALista.push_back(AId);
}

} // namespace tarvo::remuneracao
