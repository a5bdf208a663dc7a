#include "regras/UnTarvoESocialCamposSqlConfiguracao.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::regras {

std::string CondicaoDaChave(TTabelaDeConfiguracao ATabela, TChaveDeConfiguracao AChave)
{
    return Format("%0:s.ORIGEM = %1:d AND %0:s.ESPECIE = %2:d AND %0:s.TP = %3:d", ATabela.Nome, AChave.Origem,
                  AChave.Especie, AChave.Tp);
}

std::string CondicaoDaChave(TTabelaDeConfiguracao ATabela, std::int64_t AIdDono, TChaveDeConfiguracao AChave)
{
    return Format("%0:s.%1:s = %2:d AND %3:s", ATabela.Nome, ATabela.ColunaDoDono, AIdDono,
                  CondicaoDaChave(ATabela, AChave));
}

std::string CondicaoDaValidade(TTabelaDeConfiguracao ATabela, TDateTime AData, TFimDaValidade AFim)
{
    return Format("%0:s.DATAINICIO <= %1:s AND (%0:s.DATAFIM %2:s %1:s OR %0:s.DATAFIM IS NULL)", ATabela.Nome,
                  FormatarDataDB(AData, true), AFim == TFimDaValidade::Inclusive ? ">=" : ">");
}

std::string CondicaoVigente(TTabelaDeConfiguracao ATabela, TChaveDeConfiguracao AChave, TDateTime AData,
                            TFimDaValidade AFim)
{
    return CondicaoDaChave(ATabela, AChave) + " AND " + CondicaoDaValidade(ATabela, AData, AFim);
}

std::string OrdemDaValidade(TTabelaDeConfiguracao ATabela, TDateTime AData)
{
    return Format("IIF(%0:s, 0, 1), %1:s.DATAINICIO DESC", CondicaoDaValidade(ATabela, AData), ATabela.Nome);
}

std::string SqlConfiguracaoVigente(std::string_view AColunas, TTabelaDeConfiguracao ATabela, std::int64_t AIdDono,
                                   TChaveDeConfiguracao AChave, TDateTime AData, TFimDaValidade AFim)
{
    static constexpr std::string_view SQL = R"(SELECT FIRST 1 %0:s
FROM %1:s
WHERE %2:s
  AND %3:s
ORDER BY %1:s.DATAINICIO DESC, %1:s.%4:s)";
    return Format(SQL, AColunas, ATabela.Nome, CondicaoDaChave(ATabela, AIdDono, AChave),
                  CondicaoDaValidade(ATabela, AData, AFim), ATabela.ColunaDaChave);
}

} // namespace tarvo::regras
