#include "trabalhador/vinculo/UnTarvoESocialCamposTrabTemporario.h"

#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposSqlConfiguracao.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposTrabTemporario::TTarvoESocialCamposTrabTemporario(std::int64_t AIDEmpregado, TDate ADataGeracao)
    : TTarvoESocialCamposGrupoBase("{F2BC243A-88E6-414B-8EAA-A3583AAE569E}"),
      IdeTomadorServ(AIDEmpregado, ADataGeracao), IdeTrabSubstituido(AIDEmpregado, ADataGeracao),
      FIDEmpregado(AIDEmpregado), FDataGeracao(ADataGeracao)
{}

const TPropriedades& TTarvoESocialCamposTrabTemporario::Tabela()
{
    using Eu = TTarvoESocialCamposTrabTemporario;
    static const TPropriedades tabela{
        {"IdeTomadorServ", &Eu::IdeTomadorServ},
        {"IdeTrabSubstituido", &Eu::IdeTrabSubstituido},
        {"MotivoContratoCod", &Eu::MotivoContratoCod, TFieldRelacionado("MOTIVO_CONTRAT_COD")},
        {"MotivoContratoDesc", &Eu::MotivoContratoDesc, TFieldRelacionado("MOTIVO_CONTRAT_DESC")},
        {"justContr", &Eu::justContr, TFieldRelacionado("JUST_CONTRAT")},
        {"tpInclContr", &Eu::tpInclContr, TFieldRelacionado("INCL_CONTRAT")},
        {"PrazoFinalContrato", &Eu::PrazoFinalContrato, TFieldRelacionado("C_EXP_PRAZO_FIM")},
        {"justprorr", &Eu::justprorr, TFieldRelacionado("JUSTPRORR")},
        {"PossuiInformacao", &Eu::PossuiInformacao},
    };
    return tabela;
}

std::string TTarvoESocialCamposTrabTemporario::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT FIRST 1
  SC00_EMPREGADOCFG.INFORMACAO1 AS MOTIVO_CONTRAT_COD,
  SC00_EMPREGADOCFG.INFORMACAO10 AS JUST_CONTRAT,
  SC00_EMPREGADOCFG.INFORMACAO3 AS INCL_CONTRAT,
  EMPREGADOS.C_EXP_PRAZO_FIM,
  FP_EMPREGADOSDET.INFORMACAO10 AS JUSTPRORR,
  CASE SC00_EMPREGADOCFG.INFORMACAO1
    WHEN '1' THEN '1-Necessidade de substituição transitória de pessoal permanente'
    WHEN '2' THEN '2-Demanda complementar de serviços'
    ELSE ''
  END AS MOTIVO_CONTRAT_DESC
FROM EMPREGADOS
LEFT JOIN SC00_EMPREGADOCFG ON (SC00_EMPREGADOCFG.IDEMPREGADO = EMPREGADOS.IDEMPREGADO
  AND %1:s)
LEFT JOIN FP_EMPREGADOSDET ON (FP_EMPREGADOSDET.IDEMPREGADO = EMPREGADOS.IDEMPREGADO
  AND FP_EMPREGADOSDET.ESPECIE = 1 AND FP_EMPREGADOSDET.TP = 6)
WHERE EMPREGADOS.IDEMPREGADO = %0:d
ORDER BY SC00_EMPREGADOCFG.DATAINICIO DESC, SC00_EMPREGADOCFG.IDEMPREGADOCFG, FP_EMPREGADOSDET.IDEMPREGADOSDET)";
    return Format(SQL, FIDEmpregado, regras::CondicaoVigente(regras::SC00_EMPREGADOCFG, {90, 38, 9}, FDataGeracao));
}

bool TTarvoESocialCamposTrabTemporario::PossuiInformacao() const { return StrToInt64Def(MotivoContratoCod, 0) > 0; }

void TTarvoESocialCamposTrabTemporario::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    IdeTomadorServ.CarregarDados(AListaCamposModificados);
    IdeTrabSubstituido.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
