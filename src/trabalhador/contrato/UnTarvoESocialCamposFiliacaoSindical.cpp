#include "trabalhador/contrato/UnTarvoESocialCamposFiliacaoSindical.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposFiliacaoSindical::TTarvoESocialCamposFiliacaoSindical(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{4DDC3581-F2A8-406D-9553-22511A5E7D86}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposFiliacaoSindical::Tabela()
{
    using Eu = TTarvoESocialCamposFiliacaoSindical;
    static const TPropriedades tabela{
        {"CnpjSindicato", &Eu::CnpjSindicato, TFieldRelacionado("CNPJ")},
        {"EmpregSindicalizado", &Eu::EmpregSindicalizado, TFieldRelacionado("SINDICALIZADO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposFiliacaoSindical::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT SINDICATOS.CNPJ, EMPREGADOS.SINDICALIZADO
FROM EMPREGADOS
LEFT JOIN SINDICATOS ON ( EMPREGADOS.COD_SINDI = SINDICATOS.COD_SINDI)
WHERE EMPREGADOS.IDEMPREGADO = %0:d)";
    return Format(SQL, FIDEmpregado);
}

} // namespace tarvo::trabalhador
