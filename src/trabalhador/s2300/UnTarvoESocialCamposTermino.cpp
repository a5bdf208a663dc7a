#include "trabalhador/s2300/UnTarvoESocialCamposTermino.h"

#include "trabalhador/vinculo/UnTarvoESocialCamposSqlDesligamento.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposTermino::TTarvoESocialCamposTermino(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{9373C2B3-BBF9-4D74-8DFD-ABEC95E0590A}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposTermino::Tabela()
{
    using Eu = TTarvoESocialCamposTermino;
    static const TPropriedades tabela{
        {"dtTerm", &Eu::dtTerm, TFieldRelacionado("DATA_DEMISSAO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposTermino::BuscarSQLDados() { return SqlDataDoDesligamento(FIDEmpregado); }

} // namespace tarvo::trabalhador
