#include "tabelas/s1000/UnTarvoESocialCamposContatoEmpresa.h"

namespace tarvo::tabelas {

TTarvoESocialCamposContatoEmpresa::TTarvoESocialCamposContatoEmpresa(std::int64_t)
    : TTarvoESocialCamposGrupoBase("{FE541E77-0C22-4795-B191-0546A9D21915}")
{}

const TPropriedades& TTarvoESocialCamposContatoEmpresa::Tabela()
{
    using Eu = TTarvoESocialCamposContatoEmpresa;
    static const TPropriedades tabela{
        {"NmCtt", &Eu::NmCtt, TFieldRelacionado("NOME_CONTATO")},
        {"CpfCtt", &Eu::CpfCtt, TFieldRelacionado("CPF_CONTATO")},
        {"FoneFixo", &Eu::FoneFixo, TFieldRelacionado("FONE_CONTATO")},
        {"FoneCel", &Eu::FoneCel, TFieldRelacionado("FONE_FIXO")},
        {"Email", &Eu::Email, TFieldRelacionado("EMAIL_CONTATO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposContatoEmpresa::BuscarSQLDados()
{
    return R"(SELECT
  CA06_CFG.INFORMACAO1 NOME_CONTATO,
  CA06_CFG.INFORMACAO2 CPF_CONTATO,
  CA06_CFG.INFORMACAO4 FONE_CONTATO,
  CA06_CFG.INFORMACAO4 FONE_FIXO,
  CA06_CFG.INFORMACAO5 EMAIL_CONTATO
FROM CA06_CFG
WHERE CA06_CFG.ORIGEM = 97
  AND CA06_CFG.TP = 2
ORDER BY CA06_CFG.IDCFG + 0)";
}

void TTarvoESocialCamposContatoEmpresa::ReverterDados() { TTarvoESocialCamposGrupoBase::ReverterDados(); }

} // namespace tarvo::tabelas
