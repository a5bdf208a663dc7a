#include "trabalhador/vinculo/UnTarvoESocialCamposDesligamento.h"

#include "trabalhador/vinculo/UnTarvoESocialCamposSqlDesligamento.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposDesligamento::TTarvoESocialCamposDesligamento(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{F2AD8527-5E0E-4402-9267-4F081978DAE6}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposDesligamento::Tabela()
{
    using Eu = TTarvoESocialCamposDesligamento;
    static const TPropriedades tabela{
        {"DataDesligamento", &Eu::DataDesligamento, TFieldRelacionado("DATA_DEMISSAO")},
        {"PossuiInformacao", &Eu::PossuiInformacao},
    };
    return tabela;
}

std::string TTarvoESocialCamposDesligamento::BuscarSQLDados() { return SqlDataDoDesligamento(FIDEmpregado); }

} // namespace tarvo::trabalhador
