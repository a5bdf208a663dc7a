#include "desligamento/verbas/UnTarvoESocialCamposdetPlanoDesligamento.h"

#include "imports/valores/UnOvraFormat.h"
#include "tabelas/saude/UnTarvoESocialCamposDetOperPlanoSaude.h"

namespace tarvo::desligamento {

TTarvoESocialCamposdetPlanoDesligamento::TTarvoESocialCamposdetPlanoDesligamento(std::string_view AGuid,
                                                                                 std::int64_t AIdPSaudeVlrMesDep,
                                                                                 TDateTime ADataInicioCalculo,
                                                                                 TDateTime ADataFimCalculo,
                                                                                 std::int32_t ADiasTrabalhadosNaLotacao)
    : TTarvoESocialCamposGrupoBase(AGuid), FIdPSaudeVlrMesDep(AIdPSaudeVlrMesDep),
      FDataInicioCalculo(ADataInicioCalculo), FDataFimCalculo(ADataFimCalculo),
      FDiasTrabalhadosNaLotacao(ADiasTrabalhadosNaLotacao)
{}

const TPropriedades& TTarvoESocialCamposdetPlanoDesligamento::Tabela()
{
    using Eu = TTarvoESocialCamposdetPlanoDesligamento;
    static const TPropriedades tabela{
        {"tpDep", &Eu::tpDep, TFieldRelacionado("CODIGO")},
        {"cpfDep", &Eu::cpfDep, TFieldRelacionado("CPF")},
        {"nmDep", &Eu::nmDep, TFieldRelacionado("NOME")},
        {"dtNascto", &Eu::dtNascto, TFieldRelacionado("DATA_NASCIMENTO")},
        {"vlrPgDep", &Eu::vlrPgDep, TFieldRelacionado("VALOR")},
    };
    return tabela;
}

// A dependant of no kind counts here, unlike in the remuneration.
std::string TTarvoESocialCamposdetPlanoDesligamento::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  DEPENDENTES.NOME,
  DEPENDENTES.CPF,
  DEPENDENTES.DATA_NASCIMENTO,
  FP_ESOCIALTABELA.CODIGO,
  FP_PSAUDEVLRMESDEP.VALOR
FROM FP_PSAUDEVLRMESDEP
INNER JOIN DEPENDENTES ON (FP_PSAUDEVLRMESDEP.IDDEPENDENTE = DEPENDENTES.IDDEPENDENTE)
LEFT JOIN FP_ESOCIALTABELA ON (FP_ESOCIALTABELA.IDESOCIALTABELA = DEPENDENTES.IDESOCIALTABELA)
WHERE FP_PSAUDEVLRMESDEP.IDPSAUDEVLRMESDEP = %0:d)";
    return Format(SQL, FIdPSaudeVlrMesDep);
}

void TTarvoESocialCamposdetPlanoDesligamento::AtribuirValoresManualmente()
{
    TTarvoESocialCamposGrupoBase::AtribuirValoresManualmente();
    ProporcionalizarValorPelosDiasTrabalhados();
}

void TTarvoESocialCamposdetPlanoDesligamento::ProporcionalizarValorPelosDiasTrabalhados()
{
    vlrPgDep = Currency(tabelas::ProporcionalizarPelosDias(vlrPgDep.ParaExtended(), FDataInicioCalculo, FDataFimCalculo,
                                                           FDiasTrabalhadosNaLotacao));
}

} // namespace tarvo::desligamento
