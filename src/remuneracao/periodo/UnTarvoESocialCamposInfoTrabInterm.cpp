#include "remuneracao/periodo/UnTarvoESocialCamposInfoTrabInterm.h"

#include "regras/UnTarvoESocialCamposSqlRemuneracao.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposInfoTrabInterm::TTarvoESocialCamposInfoTrabInterm(std::int64_t AIdDetConvocacao)
    : TTarvoESocialCamposGrupoBase("{EE60A85A-275B-4DFD-A4DA-B0706045527E}"), FIdDetConvocacao(AIdDetConvocacao)
{}

const TPropriedades& TTarvoESocialCamposInfoTrabInterm::Tabela()
{
    using Eu = TTarvoESocialCamposInfoTrabInterm;
    static const TPropriedades tabela{
        {"codConv", &Eu::codConv, TFieldRelacionado("CODIGOESOCIAL")},
        {"codCateg", &Eu::codCateg},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoTrabInterm::BuscarSQLDados() { return regras::SqlConvocacao(FIdDetConvocacao); }

} // namespace tarvo::remuneracao
