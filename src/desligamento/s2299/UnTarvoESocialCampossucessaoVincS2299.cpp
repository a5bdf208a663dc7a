#include "desligamento/s2299/UnTarvoESocialCampossucessaoVincS2299.h"

#include "desligamento/s2299/UnTarvoESocialCamposSqlTransferencia.h"

namespace tarvo::desligamento {

TTarvoESocialCampossucessaoVincS2299::TTarvoESocialCampossucessaoVincS2299(std::int64_t AIdEmpregado)
    : TTarvoESocialCamposGrupoBase("{A529D7FD-008C-41B8-8EB6-CCBEDA386D3E}"), FIdEmpregado(AIdEmpregado)
{}

const TPropriedades& TTarvoESocialCampossucessaoVincS2299::Tabela()
{
    using Eu = TTarvoESocialCampossucessaoVincS2299;
    static const TPropriedades tabela{
        {"TpInscSuc", &Eu::TpInscSuc, TFieldRelacionado("TPINSCRICAO")},
        {"cnpjSucessora", &Eu::cnpjSucessora, TFieldRelacionado("INSCRICAO")},
        {"motivoAfast", &Eu::motivoAfast, TFieldRelacionado("MOTIVOESOCIAL")},
    };
    return tabela;
}

std::string TTarvoESocialCampossucessaoVincS2299::BuscarSQLDados()
{
    return SqlTransferencia(FIdEmpregado, true, "TRANSF_EMPREG.MOTIVOESOCIAL <> 34");
}

} // namespace tarvo::desligamento
