#include "trabalhador/documentos/UnTarvoESocialCamposCtps.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposCtps::TTarvoESocialCamposCtps(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{7E88AEB1-53C0-4F1D-92AB-8E61F9224039}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposCtps::Tabela()
{
    using Eu = TTarvoESocialCamposCtps;
    static const TPropriedades tabela{
        {"Numero", &Eu::Numero, TFieldRelacionado("CTPS_NUMERO")},
        {"Serie", &Eu::Serie, TFieldRelacionado("CTPS_SERIE")},
        {"Uf", &Eu::Uf, TFieldRelacionado("CTPS_UF")},
        {"CodCategoria", &Eu::CodCategoria, TFieldRelacionado("CODIGO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposCtps::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  EMPREGADOS.CTPS_NUMERO,
  EMPREGADOS.CTPS_SERIE,
  EMPREGADOS.CTPS_UF,
  FP_ESOCIALTABELA.CODIGO
FROM EMPREGADOS
JOIN FP_ESOCIALTABELA ON (EMPREGADOS.IDCATEGORIAESOCIAL = FP_ESOCIALTABELA.IDESOCIALTABELA AND FP_ESOCIALTABELA.TABELA = 1)
WHERE EMPREGADOS.IDEMPREGADO = %0:d)";
    return Format(SQL, FIDEmpregado);
}

} // namespace tarvo::trabalhador
