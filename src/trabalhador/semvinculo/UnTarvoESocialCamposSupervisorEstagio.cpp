#include "trabalhador/semvinculo/UnTarvoESocialCamposSupervisorEstagio.h"

#include "imports/valores/UnOvraFormat.h"
#include "trabalhador/semvinculo/UnTarvoESocialCamposSqlEstagio.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposSupervisorEstagio::TTarvoESocialCamposSupervisorEstagio(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{C50D08D9-50EB-41D1-8905-C064E23BFEFF}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposSupervisorEstagio::Tabela()
{
    using Eu = TTarvoESocialCamposSupervisorEstagio;
    static const TPropriedades tabela{
        {"cpfSupervisor", &Eu::cpfSupervisor, TFieldRelacionado("CPF")},
        {"nmSuperv", &Eu::nmSuperv, TFieldRelacionado("NOME")},
    };
    return tabela;
}

std::string TTarvoESocialCamposSupervisorEstagio::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  EMPREGADOS.CPF,
  EMPREGADOS.NOME
FROM EMPREGADOS
WHERE EMPREGADOS.IDEMPREGADO = %0:s)";
    return Format(SQL, SqlIdDoEstagio("INFORMACAO7", FIDEmpregado));
}

} // namespace tarvo::trabalhador
