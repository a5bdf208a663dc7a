#include "trabalhador/s2205/UnTarvoESocialCamposIdeTrabalhadorS2205.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposIdeTrabalhadorS2205::TTarvoESocialCamposIdeTrabalhadorS2205(std::int64_t AIdEmpregado)
    : TTarvoESocialCamposGrupoBase(TSemConstrucaoDaBase{}), FIdEmpregado(AIdEmpregado)
{}

const TPropriedades& TTarvoESocialCamposIdeTrabalhadorS2205::Tabela()
{
    static const TPropriedades tabela{
        {"cpfTrab", &TTarvoESocialCamposIdeTrabalhadorS2205::cpfTrab, TFieldRelacionado("CPF")},
    };
    return tabela;
}

std::string TTarvoESocialCamposIdeTrabalhadorS2205::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  EMPREGADOS.CPF,
  EMPREGADOS.PIS AS NIS
FROM EMPREGADOS
WHERE EMPREGADOS.IDEMPREGADO = %D)";
    return Format(SQL, FIdEmpregado);
}

} // namespace tarvo::trabalhador
