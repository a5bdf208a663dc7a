#include "trabalhador/vinculo/UnTarvoESocialCamposFgts.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposFgts::TTarvoESocialCamposFgts(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{51040834-763A-497C-93C6-3F48F092FDBA}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposFgts::Tabela()
{
    using Eu = TTarvoESocialCamposFgts;
    static const TPropriedades tabela{
        {"Categoria", &Eu::Categoria, TFieldRelacionado("CONTRATO")},
        {"CategoriaDesc", &Eu::CategoriaDesc, TFieldRelacionado("CONTRATO_DESC")},
        {"DataOpcaoFgts", &Eu::DataOpcaoFgts, TFieldRelacionado("OPCAO_FGTS")},
    };
    return tabela;
}

std::string TTarvoESocialCamposFgts::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  EMPREGADOS.CONTRATO,
  EMPREGADOS.OPCAO_FGTS,
  SUBSTRING (EMPREGADOS.CONTRATO FROM 4 FOR CHAR_LENGTH(EMPREGADOS.CONTRATO)) AS CONTRATO_DESC
FROM EMPREGADOS
WHERE EMPREGADOS.IDEMPREGADO = %0:d)";
    return Format(SQL, FIDEmpregado);
}

} // namespace tarvo::trabalhador
