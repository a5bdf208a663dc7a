#include "trabalhador/vinculo/UnTarvoESocialCamposIdeTrabSubstituido.h"

#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposSqlConfiguracao.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposIdeTrabSubstituido::TTarvoESocialCamposIdeTrabSubstituido(std::int64_t AIDEmpregado,
                                                                             TDate ADataGeracao)
    : TTarvoESocialCamposGrupoBase("{42A4F114-CF56-4798-ABA7-924DCE29F3EE}"), FIDEmpregado(AIDEmpregado),
      FDataGeracao(ADataGeracao)
{}

const TPropriedades& TTarvoESocialCamposIdeTrabSubstituido::Tabela()
{
    using Eu = TTarvoESocialCamposIdeTrabSubstituido;
    static const TPropriedades tabela{
        {"Cpf", &Eu::Cpf, TFieldRelacionado("CPF")},
    };
    return tabela;
}

std::string TTarvoESocialCamposIdeTrabSubstituido::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT SC00_EMPREGADOCFG.INFORMACAO2 AS CPF
FROM SC00_EMPREGADOCFG
WHERE %0:s
  AND %1:s
ORDER BY SC00_EMPREGADOCFG.DATAINICIO DESC, SC00_EMPREGADOCFG.IDEMPREGADOCFG)";
    return Format(SQL, regras::CondicaoDaChave(regras::SC00_EMPREGADOCFG, FIDEmpregado, {90, 38, 9}),
                  regras::CondicaoDaValidade(regras::SC00_EMPREGADOCFG, FDataGeracao));
}

} // namespace tarvo::trabalhador
