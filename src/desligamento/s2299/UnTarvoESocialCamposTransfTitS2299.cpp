#include "desligamento/s2299/UnTarvoESocialCamposTransfTitS2299.h"

#include "desligamento/s2299/UnTarvoESocialCamposSqlTransferencia.h"

namespace tarvo::desligamento {

TTarvoESocialCamposTransfTitS2299::TTarvoESocialCamposTransfTitS2299(std::int64_t AIdEmpregado)
    : TTarvoESocialCamposGrupoBase("{5E3B89CA-73D3-4CC6-B038-50DA16498533}"), FIdEmpregado(AIdEmpregado)
{}

const TPropriedades& TTarvoESocialCamposTransfTitS2299::Tabela()
{
    using Eu = TTarvoESocialCamposTransfTitS2299;
    static const TPropriedades tabela{
        {"dtNascto", &Eu::dtNascto},
        {"cpfSubstituto", &Eu::cpfSubstituto, TFieldRelacionado("INSCRICAO")},
        {"motivoAfast", &Eu::motivoAfast, TFieldRelacionado("MOTIVOESOCIAL")},
    };
    return tabela;
}

std::string TTarvoESocialCamposTransfTitS2299::BuscarSQLDados()
{
    return SqlTransferencia(FIdEmpregado, false, "TRANSF_EMPREG.MOTIVOESOCIAL = 34");
}

} // namespace tarvo::desligamento
