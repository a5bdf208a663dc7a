#include "regras/UnTarvoESocialCamposSqlTabelaDeRubricas.h"

#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposSqlConfiguracao.h"

namespace tarvo::regras {

namespace {

constexpr TChaveDeConfiguracao TABELA_DE_RUBRICAS{90, 38, 13};

std::string SqlDaTabela(std::string_view AJuncao, std::string_view ACondicoes, TDateTime AData)
{
    static constexpr std::string_view SQL = R"(SELECT FIRST 1 SC00_EMPRESACFG.INFORMACAO1 IDETABRUBR
FROM SC00_EMPRESACFG%0:s
WHERE %1:s
ORDER BY %2:s, SC00_EMPRESACFG.IDEMPRESACFG)";
    return Format(SQL, AJuncao, ACondicoes, OrdemDaValidade(SC00_EMPRESACFG, AData));
}

} // namespace

std::string SqlTabelaDeRubricas(std::int64_t AIdEmpresa, TDateTime AData)
{
    return SqlDaTabela("", CondicaoDaChave(SC00_EMPRESACFG, AIdEmpresa, TABELA_DE_RUBRICAS), AData);
}

std::string SqlTabelaDeRubricasDoEmpregado(std::int64_t AIdEmpregado, TDateTime AData)
{
    return SqlDaTabela("\nJOIN EMPREGADOS ON (EMPREGADOS.IDEMPRESA = SC00_EMPRESACFG.IDEMPRESA)",
                       Format("%0:s\n  AND EMPREGADOS.IDEMPREGADO = %1:d",
                              CondicaoDaChave(SC00_EMPRESACFG, TABELA_DE_RUBRICAS), AIdEmpregado),
                       AData);
}

} // namespace tarvo::regras
