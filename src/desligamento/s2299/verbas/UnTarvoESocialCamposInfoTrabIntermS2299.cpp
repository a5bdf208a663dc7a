#include "desligamento/s2299/verbas/UnTarvoESocialCamposInfoTrabIntermS2299.h"

#include "regras/UnTarvoESocialCamposSqlRemuneracao.h"

namespace tarvo::desligamento {

TTarvoESocialCamposInfoTrabIntermS2299::TTarvoESocialCamposInfoTrabIntermS2299(std::int64_t AIDDetConvocacaoTrabInterm)
    : TTarvoESocialCamposGrupoBase("{29B5A61A-58B2-484E-B586-EADB728C4E5D}"),
      FIDDetConvocacaoTrabInterm(AIDDetConvocacaoTrabInterm)
{}

const TPropriedades& TTarvoESocialCamposInfoTrabIntermS2299::Tabela()
{
    static const TPropriedades tabela{
        {"codConv", &TTarvoESocialCamposInfoTrabIntermS2299::codConv, TFieldRelacionado("CODIGOESOCIAL")}};
    return tabela;
}

std::string TTarvoESocialCamposInfoTrabIntermS2299::BuscarSQLDados()
{
    return regras::SqlConvocacao(FIDDetConvocacaoTrabInterm);
}

} // namespace tarvo::desligamento
