#include "trabalhador/s2190/UnTarvoESocialCamposinfoRegPrelim.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposinfoRegPrelim::TTarvoESocialCamposinfoRegPrelim(std::int64_t AIdEmpregado)
    : TTarvoESocialCamposGrupoBase("{196F86B6-9476-4522-BB0A-E8721488E5E6}"), FIDEmpregado(AIdEmpregado)
{}

const TPropriedades& TTarvoESocialCamposinfoRegPrelim::Tabela()
{
    using Eu = TTarvoESocialCamposinfoRegPrelim;
    static const TPropriedades tabela{
        {"cpfTrab", &Eu::cpfTrab, TFieldRelacionado("CPF")},
        {"dtNascto", &Eu::dtNascto, TFieldRelacionado("DATA_NASCIMENTO")},
        {"dtAdm", &Eu::dtAdm, TFieldRelacionado("DATA_ADMISSAO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposinfoRegPrelim::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  EMPREGADOS.CPF,
  EMPREGADOS.DATA_NASCIMENTO,
  EMPREGADOS.DATA_ADMISSAO
FROM EMPREGADOS
WHERE EMPREGADOS.IDEMPREGADO = %d)";
    return Format(SQL, FIDEmpregado);
}

} // namespace tarvo::trabalhador
