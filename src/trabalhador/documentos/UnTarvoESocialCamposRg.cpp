#include "trabalhador/documentos/UnTarvoESocialCamposRg.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposRg::TTarvoESocialCamposRg(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{FDE3FB61-4CB1-4E03-A5BB-F594BD868CC4}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposRg::Tabela()
{
    using Eu = TTarvoESocialCamposRg;
    static const TPropriedades tabela{
        {"Numero", &Eu::Numero, TFieldRelacionado("NUMERO_RG")},
        {"OrgaoEmissor", &Eu::OrgaoEmissor, TFieldRelacionado("ORGAOEMISSOR")},
        {"DataExpedicao", &Eu::DataExpedicao, TFieldRelacionado("DATAEMISSAORG")},
        {"UFEmissao", &Eu::UFEmissao, TFieldRelacionado("UF_RG")},
        {"PaisNascimento", &Eu::PaisNascimento, TFieldRelacionado("PAISNASCIMENTO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposRg::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  EMPREGADOS.NUMERO_RG,
  EMPREGADOS.DATAEMISSAORG,
  EMPREGADOS.UF_RG,
  EMPREGADOS.ORGEXPRG || EMPREGADOS.UF_RG AS ORGAOEMISSOR,
  CA06_PAIS.PAIS AS PAISNASCIMENTO
FROM EMPREGADOS
LEFT JOIN CA06_PAIS ON (CA06_PAIS.IDPAIS = EMPREGADOS.PAISNASCIMENTO)
WHERE EMPREGADOS.IDEMPREGADO = %0:d)";
    return Format(SQL, FIDEmpregado);
}

} // namespace tarvo::trabalhador
