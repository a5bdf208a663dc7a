#include "trabalhador/s2230/UnTarvoESocialCamposinfoCessao.h"

#include "trabalhador/s2230/UnTarvoESocialCamposSqlDetalheDaSituacao.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposinfoCessao::TTarvoESocialCamposinfoCessao(std::int64_t AIdSituacao)
    : TTarvoESocialCamposGrupoBase("{3E71567F-5B97-4D64-ACF5-3939831EFAE1}"), FIdSituacao(AIdSituacao)
{}

const TPropriedades& TTarvoESocialCamposinfoCessao::Tabela()
{
    using Eu = TTarvoESocialCamposinfoCessao;
    static const TPropriedades tabela{
        {"cnpjCess", &Eu::cnpjCess, TFieldRelacionado("CNPJ")},
        {"infOnus", &Eu::infOnus, TFieldRelacionado("INFOONUS")},
    };
    return tabela;
}

std::string TTarvoESocialCamposinfoCessao::BuscarSQLDados() { return SqlDetalheDaSituacao(FIdSituacao, 1); }

} // namespace tarvo::trabalhador
