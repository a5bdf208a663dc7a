#include "remuneracao/s1200/UnTarvoESocialCamposinfoComplCont.h"

#include <algorithm>
#include <array>

#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "imports/valores/UnTarvoUtilsStrings.h"
#include "regras/UnTarvoESocialCamposSqlConfiguracao.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposinfoComplCont::TTarvoESocialCamposinfoComplCont(const TTarvoESocialCamposS1200IOP& AinfoBind1200)
    : TTarvoESocialCamposGrupoBase("{5A20ED0A-EA2B-4496-B1F1-949A116BC9DF}"), FInfoBind(AinfoBind1200)
{}

const TPropriedades& TTarvoESocialCamposinfoComplCont::Tabela()
{
    using Eu = TTarvoESocialCamposinfoComplCont;
    static const TPropriedades tabela{
        {"codCBO", &Eu::codCBO, TFieldRelacionado("CBO")},
        {"natAtividade", &Eu::natAtividade, TFieldRelacionado("NATATIVIDADE")},
        {"qtdDiasTrab", &Eu::qtdDiasTrab},
    };
    return tabela;
}

std::string TTarvoESocialCamposinfoComplCont::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT PREST_SERVICO.CBO, PREST_SERVICO.NATATIVIDADE
FROM PREST_SERVICO
WHERE PREST_SERVICO.CPF = '%0:S'
ORDER BY PREST_SERVICO.IDPRESTSERVICO + 0)";
    return Format(SQL, TTarvoUtilsStrings::RemoverCaracteresEspeciais(FInfoBind.Cpf()));
}

void TTarvoESocialCamposinfoComplCont::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    if (!ValidouClassTrib())
        natAtividade.clear();
}

bool TTarvoESocialCamposinfoComplCont::ValidouClassTrib() const
{
    // The newest row wins, even one that starts after the month; that is meant.
    static constexpr std::string_view SQL = R"(SELECT FIRST 1 SC00_EMPRESACFG.INFORMACAO1
FROM SC00_EMPRESACFG
WHERE %0:s
ORDER BY SC00_EMPRESACFG.DATAINICIO DESC, SC00_EMPRESACFG.IDEMPRESACFG)";
    static constexpr std::array<std::int64_t, 5> CLASSIFICACOES{6, 7, 8, 21, 22};
    const auto LClassTrib =
        StrToInt64Def(TTarvoConsultasGeral::BuscarTexto(Format(
                          SQL, regras::CondicaoDaChave(regras::SC00_EMPRESACFG, FInfoBind.IdEmpresa(), {90, 38, 1}))),
                      0);
    return std::find(CLASSIFICACOES.begin(), CLASSIFICACOES.end(), LClassTrib) != CLASSIFICACOES.end();
}

} // namespace tarvo::remuneracao
