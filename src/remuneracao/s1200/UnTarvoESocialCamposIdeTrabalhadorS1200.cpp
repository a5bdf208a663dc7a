#include "remuneracao/s1200/UnTarvoESocialCamposIdeTrabalhadorS1200.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasEmpregado.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposIdeTrabalhadorS1200::TTarvoESocialCamposIdeTrabalhadorS1200(
    const TTarvoESocialCamposS1200IOP& AinfoBind1200)
    : TTarvoESocialCamposGrupoBase("{98592C13-490B-4E74-89F6-4095C9465F12}"), cpfTrab(AinfoBind1200.Cpf()),
      InfoMV(AinfoBind1200), infoComplem(AinfoBind1200), infoInterm(AinfoBind1200), FInfoBind(AinfoBind1200)
{}

const TPropriedades& TTarvoESocialCamposIdeTrabalhadorS1200::Tabela()
{
    using Eu = TTarvoESocialCamposIdeTrabalhadorS1200;
    static const TPropriedades tabela{
        {"cpfTrab", &Eu::cpfTrab},         {"nisTrab", &Eu::nisTrab, TFieldRelacionado("NIS")},
        {"InfoMV", &Eu::InfoMV},           {"infoComplem", &Eu::infoComplem},
        {"procJudTrab", &Eu::procJudTrab}, {"infoInterm", &Eu::infoInterm},
    };
    return tabela;
}

std::string TTarvoESocialCamposIdeTrabalhadorS1200::BuscarSQLDados()
{
    // The third branch serves an event that is generated after the dismissal. Each NIS is there once a branch, as by
    // DISTINCT, with the first contract or provider that has it; one that is empty comes after all the others.
    static constexpr std::string_view SQL = R"(SELECT ORDEM, NIS FROM (
SELECT 1 AS ORDEM, EMPREGADOS.PIS AS NIS, MIN(EMPREGADOS.IDEMPREGADO) AS ID
FROM EMPREGADOS
WHERE EMPREGADOS.CPF = '%0:S'
  AND EMPREGADOS.IDEMPRESA = %1:D
  AND (EMPREGADOS.DATA_DEMISSAO > %2:S OR EMPREGADOS.DATA_DEMISSAO IS NULL)
GROUP BY EMPREGADOS.PIS
UNION
SELECT 2 AS ORDEM, PREST_SERVICO.INSCRICAO AS NIS, MIN(PREST_SERVICO.IDPRESTSERVICO) AS ID
FROM PREST_SERVICO
WHERE PREST_SERVICO.CPF = TRIM(REPLACE(REPLACE('%0:S','-',''),'.',''))
GROUP BY PREST_SERVICO.INSCRICAO
UNION
SELECT 3 AS ORDEM, EMPREGADOS.PIS AS NIS, MIN(EMPREGADOS.IDEMPREGADO) AS ID
FROM EMPREGADOS
WHERE EMPREGADOS.CPF = '%0:S'
  AND EMPREGADOS.IDEMPRESA = %1:D
GROUP BY EMPREGADOS.PIS
)
ORDER BY IIF(NIS <> '', 0, 1), ORDEM, ID)";
    return Format(SQL, FInfoBind.Cpf(), FInfoBind.IdEmpresa(), FormatarDataDB(FInfoBind.DataInicio(), true));
}

void TTarvoESocialCamposIdeTrabalhadorS1200::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    InfoMV.CarregarDados(AListaCamposModificados);
    infoComplem.CarregarDados(AListaCamposModificados);
    infoInterm.CarregarDados(AListaCamposModificados);
    CarregarDadosprocJudTrab();
}

void TTarvoESocialCamposIdeTrabalhadorS1200::CarregarDadosprocJudTrab()
{
    for (const auto& LId : TTarvoConsultasEmpregado::BuscarProcessosDoEmpregado(
             FInfoBind.IdEmpresa(), 0, FInfoBind.Cpf(), FInfoBind.DataInicio())) {
        auto LProcesso = std::make_unique<TTarvoESocialCamposProcJudTrabS1200>(StrToInt64Def(LId, 0));
        LProcesso->CarregarDados();
        procJudTrab.push_back(std::move(LProcesso));
    }
}

} // namespace tarvo::remuneracao
