#include "remuneracao/periodo/UnTarvoESocialCamposInfoAgNocivoS1200.h"

#include "regras/UnTarvoESocialCamposSqlRemuneracao.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposInfoAgNocivoS1200::TTarvoESocialCamposInfoAgNocivoS1200(
    const TTarvoESocialCamposS1200IOP& AinfoBind1200)
    : TTarvoESocialCamposGrupoBase("{5E979268-0B6F-4693-80C5-AEE3070B61AE}"), FInfoBind(AinfoBind1200)
{}

const TPropriedades& TTarvoESocialCamposInfoAgNocivoS1200::Tabela()
{
    using Eu = TTarvoESocialCamposInfoAgNocivoS1200;
    static const TPropriedades tabela{
        {"grauExp", &Eu::grauExp, TFieldRelacionado("OCORRENCIA")},
        {"codCateg", &Eu::codCateg, TFieldRelacionado("CODCATEG")},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoAgNocivoS1200::BuscarSQLDados()
{
    return regras::SqlExposicao("SUBSTRING(CARGOS.OCORRENCIA FROM 1 FOR 1) OCORRENCIA", FInfoBind.IdEmpregado(),
                                FInfoBind.DataFim());
}

} // namespace tarvo::remuneracao
