#include "trabalhador/documentos/UnTarvoESocialCamposRne.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposRne::TTarvoESocialCamposRne(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{BDD143FE-F78F-47B9-BCA0-D32040746607}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposRne::Tabela()
{
    using Eu = TTarvoESocialCamposRne;
    static const TPropriedades tabela{
        {"Numero", &Eu::Numero, TFieldRelacionado("INSCRNE")},
        {"OrgaoEmissor", &Eu::OrgaoEmissor, TFieldRelacionado("ORGAOEMISSORRNE")},
        {"DataExpedicao", &Eu::DataExpedicao, TFieldRelacionado("DATAEXPEDICAORNE")},
        {"PaisNascimento", &Eu::PaisNascimento, TFieldRelacionado("NOME_PAIS")},
        {"PossuiInformacao", &Eu::PossuiInformacao},
    };
    return tabela;
}

std::string TTarvoESocialCamposRne::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  EMPREGADOS.INSCRNE,
  EMPREGADOS.DATAEXPEDICAORNE,
  EMPREGADOS.ORGAOEMISSORRNE,
  UPPER(CA06_PAIS.NOME) AS NOME_PAIS
FROM EMPREGADOS
LEFT JOIN CA06_PAIS ON (CA06_PAIS.IDPAIS = EMPREGADOS.PAISNASCIMENTO)
WHERE EMPREGADOS.IDEMPREGADO = %0:d)";
    return Format(SQL, FIDEmpregado);
}

bool TTarvoESocialCamposRne::PossuiInformacao() const
{
    return !Numero.empty() || !OrgaoEmissor.empty() || DataExpedicao > TDate();
}

} // namespace tarvo::trabalhador
