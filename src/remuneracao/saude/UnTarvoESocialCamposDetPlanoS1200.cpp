#include "remuneracao/saude/UnTarvoESocialCamposDetPlanoS1200.h"

#include "imports/valores/UnOvraFormat.h"
#include "tabelas/saude/UnTarvoESocialCamposDetOperPlanoSaude.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposDetPlanoS1200::TTarvoESocialCamposDetPlanoS1200(std::int64_t AIdPSaudeVlrMesDep,
                                                                   TDateTime ADataInicioCalculo,
                                                                   TDateTime ADataFimCalculo,
                                                                   std::int32_t ADiasTrabalhadosNaLotacao)
    : TTarvoESocialCamposGrupoBase("{0547E201-0F5D-4C6D-A3B8-CD972BF8200A}"), FIdPSaudeVlrMesDep(AIdPSaudeVlrMesDep),
      FDataInicioCalculo(ADataInicioCalculo), FDataFimCalculo(ADataFimCalculo),
      FDiasTrabalhadosNaLotacao(ADiasTrabalhadosNaLotacao)
{}

const TPropriedades& TTarvoESocialCamposDetPlanoS1200::Tabela()
{
    using Eu = TTarvoESocialCamposDetPlanoS1200;
    static const TPropriedades tabela{
        {"tpDep", &Eu::tpDep, TFieldRelacionado("TIPO")},
        {"cpfDep", &Eu::cpfDep, TFieldRelacionado("CPF")},
        {"dtNascto", &Eu::dtNascto, TFieldRelacionado("DATA_NASCIMENTO")},
        {"nmDep", &Eu::nmDep, TFieldRelacionado("NOME")},
        {"vlrPgDep", &Eu::vlrPgDep, TFieldRelacionado("VALOR")},
    };
    return tabela;
}

std::string TTarvoESocialCamposDetPlanoS1200::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  DEPENDENTES.NOME,
  DEPENDENTES.DATA_NASCIMENTO,
  DEPENDENTES.CPF,
  FP_ESOCIALTABELA.CODIGO TIPO,
  FP_PSAUDEVLRMESDEP.VALOR
FROM DEPENDENTES
JOIN FP_PSAUDEVLRMESDEP ON ( FP_PSAUDEVLRMESDEP.IDDEPENDENTE=DEPENDENTES.IDDEPENDENTE)
JOIN FP_ESOCIALTABELA ON ( DEPENDENTES.IDESOCIALTABELA=FP_ESOCIALTABELA.IDESOCIALTABELA
                      AND FP_ESOCIALTABELA.TABELA = 7)
WHERE FP_PSAUDEVLRMESDEP.IDPSAUDEVLRMESDEP = %0:D)";
    return Format(SQL, FIdPSaudeVlrMesDep);
}

void TTarvoESocialCamposDetPlanoS1200::AtribuirValoresManualmente()
{
    vlrPgDep = static_cast<double>(
        tabelas::ProporcionalizarPelosDias(vlrPgDep, FDataInicioCalculo, FDataFimCalculo, FDiasTrabalhadosNaLotacao));
}

} // namespace tarvo::remuneracao
