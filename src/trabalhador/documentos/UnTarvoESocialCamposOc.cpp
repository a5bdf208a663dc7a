#include "trabalhador/documentos/UnTarvoESocialCamposOc.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposOc::TTarvoESocialCamposOc(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{371466C0-437D-413E-8466-AFE570E6D0C1}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposOc::Tabela()
{
    using Eu = TTarvoESocialCamposOc;
    static const TPropriedades tabela{
        {"Numero", &Eu::Numero, TFieldRelacionado("INSCOC")},
        {"OrgaoEmissor", &Eu::OrgaoEmissor, TFieldRelacionado("ORGAOEMISSOROC")},
        {"DataExpedicao", &Eu::DataExpedicao, TFieldRelacionado("DATAEXPEDICAOOC")},
        {"DataValidade", &Eu::DataValidade, TFieldRelacionado("DATAVALIDADEOC")},
    };
    return tabela;
}

std::string TTarvoESocialCamposOc::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  EMPREGADOS.INSCOC,
  EMPREGADOS.ORGAOEMISSOROC,
  EMPREGADOS.DATAEXPEDICAOOC,
  EMPREGADOS.DATAVALIDADEOC
FROM EMPREGADOS
WHERE EMPREGADOS.IDEMPREGADO = %0:d)";
    return Format(SQL, FIDEmpregado);
}

} // namespace tarvo::trabalhador
