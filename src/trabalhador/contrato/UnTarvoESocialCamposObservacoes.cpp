#include "trabalhador/contrato/UnTarvoESocialCamposObservacoes.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposObservacoes::TTarvoESocialCamposObservacoes(std::int64_t AIdEmpregadoObs, std::string AObs)
    : TTarvoESocialCamposGrupoBase(TSemConstrucaoDaBase{}), Observacao(std::move(AObs)),
      FIdEmpregadoObs(AIdEmpregadoObs)
{}

const TPropriedades& TTarvoESocialCamposObservacoes::Tabela()
{
    static const TPropriedades tabela{
        {"Observacao", &TTarvoESocialCamposObservacoes::Observacao},
    };
    return tabela;
}

std::string TTarvoESocialCamposObservacoes::BuscarSQLDados()
{
    if (FIdEmpregadoObs == 0)
        return {};
    static constexpr std::string_view SQL = R"(SELECT FP_EMPREGADOOBS.OBSERVACAO
FROM FP_EMPREGADOOBS
WHERE FP_EMPREGADOOBS.IDEMPREGADOOBS = %0:D)";
    return Format(SQL, FIdEmpregadoObs);
}

} // namespace tarvo::trabalhador
