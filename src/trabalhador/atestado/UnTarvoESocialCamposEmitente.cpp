#include "trabalhador/atestado/UnTarvoESocialCamposEmitente.h"

#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposEmitente::TTarvoESocialCamposEmitente(std::int64_t AIdPrestServico)
    : TTarvoESocialCamposGrupoBase("{6DC67193-A7AE-4474-8739-17DB3513432A}"), FIdPrestServico(AIdPrestServico)
{}

const TPropriedades& TTarvoESocialCamposEmitente::Tabela()
{
    using Eu = TTarvoESocialCamposEmitente;
    static const TPropriedades tabela{
        {"nmEmit", &Eu::nmEmit, TFieldRelacionado("NOME")},
        {"ideOC", &Eu::ideOC},
        {"SiglaOC", &Eu::SiglaOC, TFieldRelacionado("SIGLACONSCLASSE")},
        {"nrOc", &Eu::nrOc, TFieldRelacionado("NUMREGPROFISS")},
        {"ufOC", &Eu::ufOC, TFieldRelacionado("UFCONSCLASSE")},
    };
    return tabela;
}

std::string TTarvoESocialCamposEmitente::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  PREST_SERVICO.NOME,
  PREST_SERVICO.NUMREGPROFISS,
  PREST_SERVICO.SIGLACONSCLASSE,
  PREST_SERVICO.UFCONSCLASSE
FROM PREST_SERVICO
WHERE PREST_SERVICO.IDPRESTSERVICO = %0:d)";
    return Format(SQL, FIdPrestServico);
}

void TTarvoESocialCamposEmitente::AtribuirValoresManualmente()
{
    TTarvoESocialCamposGrupoBase::AtribuirValoresManualmente();
    const auto LSigla = Maiusculas(SiglaOC);
    if (LSigla == "CRM")
        ideOC = tpIdeOC::CRM;
    else if (LSigla == "CRO")
        ideOC = tpIdeOC::CRO;
    else if (LSigla == "RMS")
        ideOC = tpIdeOC::RMS;
    else
        ideOC = tpIdeOC::Nenhum;
}

} // namespace tarvo::trabalhador
