#include "pagamento/s1210/UnTarvoESocialCampospenAlim.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::pagamento {

TTarvoESocialCampospenAlim::TTarvoESocialCampospenAlim(const TTarvoESocialCamposS1210IOP&)
    : TTarvoESocialCamposGrupoBase("{283EC95E-857A-4697-8C8C-3DFF59E9A4BC}")
{}

const TPropriedades& TTarvoESocialCampospenAlim::Tabela()
{
    using Eu = TTarvoESocialCampospenAlim;
    static const TPropriedades tabela{
        {"cpfBenef", &Eu::cpfBenef, TFieldRelacionado("CPF")},
        {"dtNasctoBenef", &Eu::dtNasctoBenef, TFieldRelacionado("DATA_NASCIMENTO")},
        {"nmBenefic", &Eu::nmBenefic, TFieldRelacionado("NOME")},
        {"IdDependente", &Eu::IdDependente},
        {"vlrPensao", &Eu::vlrPensao},
    };
    return tabela;
}

std::string TTarvoESocialCampospenAlim::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT DEPENDENTES.CPF, DEPENDENTES.DATA_NASCIMENTO, DEPENDENTES.NOME
FROM DEPENDENTES
WHERE DEPENDENTES.IDDEPENDENTE = %0:D)";
    return Format(SQL, IdDependente);
}

} // namespace tarvo::pagamento
