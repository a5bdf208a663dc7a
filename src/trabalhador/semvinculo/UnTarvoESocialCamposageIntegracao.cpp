#include "trabalhador/semvinculo/UnTarvoESocialCamposageIntegracao.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposageIntegracao::TTarvoESocialCamposageIntegracao(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposEntidadeEstagio("{D88D561A-6AD8-4D40-9F78-235EE488850E}", AIDEmpregado, "INFORMACAO6")
{}

const TPropriedades& TTarvoESocialCamposageIntegracao::Tabela()
{
    static const TPropriedades tabela = TabelaComCnpj(
        {"cnpjAgntInteg", &TTarvoESocialCamposageIntegracao::cnpjAgntInteg, TFieldRelacionado("INSCRICAO")});
    return tabela;
}

} // namespace tarvo::trabalhador
