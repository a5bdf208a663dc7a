#include "trabalhador/s2230/UnTarvoESocialCamposinfoMandSind.h"

#include "trabalhador/s2230/UnTarvoESocialCamposSqlDetalheDaSituacao.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposinfoMandSind::TTarvoESocialCamposinfoMandSind(std::int64_t AIdSituacao)
    : TTarvoESocialCamposGrupoBase("{91696DCC-1C0E-444D-B423-41A37FDED03F}"), FIdSituacao(AIdSituacao)
{}

const TPropriedades& TTarvoESocialCamposinfoMandSind::Tabela()
{
    using Eu = TTarvoESocialCamposinfoMandSind;
    static const TPropriedades tabela{
        {"cnpjSind", &Eu::cnpjSind, TFieldRelacionado("CNPJ")},
        {"infOnusRemun", &Eu::infOnusRemun, TFieldRelacionado("INFOONUS")},
    };
    return tabela;
}

std::string TTarvoESocialCamposinfoMandSind::BuscarSQLDados() { return SqlDetalheDaSituacao(FIdSituacao, 2); }

} // namespace tarvo::trabalhador
