#include "trabalhador/semvinculo/UnTarvoESocialCamposinstEnsino.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposinstEnsino::TTarvoESocialCamposinstEnsino(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposEntidadeEstagio("{80BA0B7E-BFFF-49C1-88F0-6202E2F522A7}", AIDEmpregado, "INFORMACAO5")
{}

const TPropriedades& TTarvoESocialCamposinstEnsino::Tabela()
{
    static const TPropriedades tabela = TabelaComCnpj(
        {"cnpjInstEnsino", &TTarvoESocialCamposinstEnsino::cnpjInstEnsino, TFieldRelacionado("INSCRICAO")});
    return tabela;
}

} // namespace tarvo::trabalhador
