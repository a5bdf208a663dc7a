#include "regras/UnTarvoESocialCamposSqlLugar.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::regras {

std::string SqlCfgDoDono(std::string_view AColunas, TTabelaDeConfiguracao ATabela, std::int64_t AIdDono,
                         TChaveDeConfiguracao AChave, TDateTime AData)
{
    static constexpr std::string_view SQL = R"(SELECT %0:s
FROM %1:s
WHERE %2:s
  AND %3:s
ORDER BY %1:s.DATAINICIO DESC, %1:s.%4:s)";
    return Format(SQL, AColunas, ATabela.Nome, CondicaoDaChave(ATabela, AIdDono, AChave),
                  CondicaoDaValidade(ATabela, AData, TFimDaValidade::Exclusive), ATabela.ColunaDaChave);
}

std::string SqlCfgDoEstab(std::string_view AColunas, TLugar ALugar, TChaveDeConfiguracao AChave, TDateTime AData)
{
    static constexpr std::string_view SQL_DEPTO = R"(SELECT %1:s
FROM SC00_FILIALCFG
JOIN SC00_DEPTO ON (SC00_DEPTO.IDFILIAL = SC00_FILIALCFG.IDFILIAL)
WHERE SC00_DEPTO.IDDEPTO = %0:d
  AND %2:s
ORDER BY SC00_FILIALCFG.DATAINICIO DESC, SC00_FILIALCFG.IDFILIALCFG)";
    return ALugar.EhDepto ? Format(SQL_DEPTO, ALugar.Id, AColunas,
                                   CondicaoVigente(SC00_FILIALCFG, AChave, AData, TFimDaValidade::Exclusive))
                          : SqlCfgDoDono(AColunas, SC00_FILIALCFG, ALugar.Id, AChave, AData);
}

std::string SqlCfgDaEmpresa(std::string_view AColunas, TLugar ALugar, TChaveDeConfiguracao AChave, TDateTime AData)
{
    static constexpr std::string_view SQL_ESTAB = R"(SELECT %1:s
FROM SC00_EMPRESACFG
JOIN SC00_FILIAL ON (SC00_FILIAL.IDEMPRESA = SC00_EMPRESACFG.IDEMPRESA)
WHERE SC00_FILIAL.IDFILIAL = %0:d
  AND %2:s
ORDER BY SC00_EMPRESACFG.DATAINICIO DESC, SC00_EMPRESACFG.IDEMPRESACFG)";
    static constexpr std::string_view SQL_DEPTO = R"(SELECT %1:s
FROM SC00_EMPRESACFG
JOIN SC00_FILIAL ON (SC00_FILIAL.IDEMPRESA = SC00_EMPRESACFG.IDEMPRESA)
JOIN SC00_DEPTO ON (SC00_DEPTO.IDFILIAL = SC00_FILIAL.IDFILIAL)
WHERE SC00_DEPTO.IDDEPTO = %0:d
  AND %2:s
ORDER BY SC00_EMPRESACFG.DATAINICIO DESC, SC00_EMPRESACFG.IDEMPRESACFG)";
    return Format(ALugar.EhDepto ? SQL_DEPTO : SQL_ESTAB, ALugar.Id, AColunas,
                  CondicaoVigente(SC00_EMPRESACFG, AChave, AData, TFimDaValidade::Exclusive));
}

} // namespace tarvo::regras
