#include "trabalhador/s2230/UnTarvoESocialCamposfimAfastamento.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposfimAfastamento::TTarvoESocialCamposfimAfastamento(std::int64_t AIdSituacao)
    : TTarvoESocialCamposGrupoBase("{1FEEC1EB-572C-43D1-801D-F45F1969E20C}"), FIdSituacao(AIdSituacao)
{}

const TPropriedades& TTarvoESocialCamposfimAfastamento::Tabela()
{
    using Eu = TTarvoESocialCamposfimAfastamento;
    static const TPropriedades tabela{
        {"dtTermAfast", &Eu::dtTermAfast, TFieldRelacionado("DATA_FIM")},
    };
    return tabela;
}

std::string TTarvoESocialCamposfimAfastamento::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT SITUACOES.DATA_FIM
FROM SITUACOES
WHERE SITUACOES.IDSITUACAO = %0:d)";
    return Format(SQL, FIdSituacao);
}

} // namespace tarvo::trabalhador
