#include "remuneracao/s1200/UnTarvoESocialCamposinfoInterm.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposinfoInterm::TTarvoESocialCamposinfoInterm(const TTarvoESocialCamposS1200IOP& AinfoBind1200)
    : TTarvoESocialCamposGrupoBase("{FD37107D-863A-4021-84DF-ABED870A4096}"), FInfoBind(AinfoBind1200)
{}

const TPropriedades& TTarvoESocialCamposinfoInterm::Tabela()
{
    using Eu = TTarvoESocialCamposinfoInterm;
    static const TPropriedades tabela{{"qtdDiasInterm", &Eu::qtdDiasInterm, TFieldRelacionado("DIAS")}};
    return tabela;
}

std::string TTarvoESocialCamposinfoInterm::BuscarSQLDados()
{
    static constexpr std::string_view SQL =
        R"(SELECT SUM(FP_DETCONVOCACAO.DATAFIM + 1 - FP_DETCONVOCACAO.DATAINICIO) DIAS
FROM FP_DETCONVOCACAO
JOIN FP_CONTRAINTERM ON (FP_DETCONVOCACAO.IDCONTRAINTERM = FP_CONTRAINTERM.IDCONTRAINTERM)
JOIN EMPREGADOS ON (FP_CONTRAINTERM.IDEMPREGADO = EMPREGADOS.IDEMPREGADO)
WHERE EMPREGADOS.CPF = '%0:S'
  AND FP_DETCONVOCACAO.DATAINICIO BETWEEN %1:S AND %2:S
  AND FP_DETCONVOCACAO.DATAFIM BETWEEN %1:S AND %2:S
  AND EMPREGADOS.IDEMPRESA = %3:D)";
    return Format(SQL, FInfoBind.Cpf(), FormatarDataDB(FInfoBind.DataInicio(), true),
                  FormatarDataDB(FInfoBind.DataFim(), true), FInfoBind.IdEmpresa());
}

} // namespace tarvo::remuneracao
