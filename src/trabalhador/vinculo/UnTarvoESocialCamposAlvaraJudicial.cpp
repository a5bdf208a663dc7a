#include "trabalhador/vinculo/UnTarvoESocialCamposAlvaraJudicial.h"

#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposAlvaraJudicial::TTarvoESocialCamposAlvaraJudicial(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{3F9784CE-E7E6-424F-BEDB-231BD7B7586C}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposAlvaraJudicial::Tabela()
{
    using Eu = TTarvoESocialCamposAlvaraJudicial;
    static const TPropriedades tabela{
        {"NumeroProcessoJuridico", &Eu::NumeroProcessoJuridico, TFieldRelacionado("NUMERO")},
        {"AlvaraJudicial", &Eu::AlvaraJudicial, TFieldRelacionado("ALVARAJUDICIAL")},
        {"PossuiInformacao", &Eu::PossuiInformacao},
        {"IdProcesso", &Eu::IdProcesso, TFieldRelacionado("IDSPPROC")},
    };
    return tabela;
}

std::string TTarvoESocialCamposAlvaraJudicial::BuscarSQLDados()
{
    static constexpr std::string_view SQL =
        R"(SELECT ES02_SPPROC.NUMERO, EMPREGADOS.ALVARAJUDICIAL, ES02_SPPROC.IDSPPROC
FROM ES02_SPPROC
RIGHT JOIN EMPREGADOS ON (ES02_SPPROC.IDSPPROC = EMPREGADOS.IDPROCJUDALVARA)
WHERE EMPREGADOS.IDEMPREGADO = %0:D)";
    return Format(SQL, FIDEmpregado);
}

bool TTarvoESocialCamposAlvaraJudicial::PossuiInformacao() const { return !Trim(NumeroProcessoJuridico).empty(); }

} // namespace tarvo::trabalhador
