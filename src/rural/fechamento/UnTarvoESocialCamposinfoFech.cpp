#include "rural/fechamento/UnTarvoESocialCamposinfoFech.h"

#include "imports/UnOvraEsocialReinfControleAmbientes.h"
#include "imports/UnOvraSerializacaoXmlReader.h"
#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::rural {

TTarvoESocialCamposinfoFech::TTarvoESocialCamposinfoFech(std::int32_t AIdEmpresa, TDateTime ADataInicio,
                                                         TDateTime ADataFim, tpIndApuracao AIndApur)
    : TTarvoESocialCamposGrupoBase("{5ACC8B9D-19A1-4B74-99C2-E9BE1FB8414E}"), IdEmpresa(AIdEmpresa),
      DataInicio(ADataInicio), DataFim(ADataFim), FIndApur(AIndApur), FCdsPesquisaEventoS1299(CriarOvraClientDataset())
{}

const TPropriedades& TTarvoESocialCamposinfoFech::Tabela()
{
    using Eu = TTarvoESocialCamposinfoFech;
    static const TPropriedades tabela{
        {"evtRemun", &Eu::evtRemun, TFieldRelacionado("evtRemun")},
        {"evtPgtos", &Eu::evtPgtos, TFieldRelacionado("evtPgtos")},
        {"evtAqProd", &Eu::evtAqProd, TFieldRelacionado("evtAqProd")},
        {"evtInfoComplPer", &Eu::evtInfoComplPer, TFieldRelacionado("evtInfoComplPer")},
        {"evtComProd", &Eu::evtComProd},
        {"evtContratAvNP", &Eu::evtContratAvNP},
        {"compSemMovto", &Eu::compSemMovto},
        {"IdEmpresa", &Eu::IdEmpresa},
        {"DataInicio", &Eu::DataInicio},
        {"DataFim", &Eu::DataFim},
    };
    return tabela;
}

std::string TTarvoESocialCamposinfoFech::BuscarSQLDados()
{
    // The accepted events of the period that meet a condition.
    static constexpr std::string_view CONTAGEM = R"(SELECT FIRST 1 count(SC00_ESOCIALREINFXML.IDESOCIALREINFXML) AS %5:s
  FROM SC00_ESOCIALREINFXML
  WHERE SC00_ESOCIALREINFXML.IDEMPRESA = %0:d
    AND %6:s
    AND SC00_ESOCIALREINFXML.STATUS IN (201,202)
    AND SC00_ESOCIALREINFXML.TPAMB = %1:d
    %4:s
    AND SC00_ESOCIALREINFXML.INIVALID BETWEEN %2:s AND %3:s)";
    // The plain UNION drops a duplicate: one S-1250 and the configuration row make 1, not 2; meant.
    static constexpr std::string_view AQUISICAO = R"(SELECT SUM(AQUISICOES.evtAqProd) AS evtAqProd
  FROM (
    %0:s
    UNION
    SELECT 1 AS evtAqProd
    FROM SC00_EMPRESACFG
    WHERE SC00_EMPRESACFG.IDEMPRESA = %1:d
      AND SC00_EMPRESACFG.ORIGEM = 90
      AND SC00_EMPRESACFG.ESPECIE = 38
      AND SC00_EMPRESACFG.TP = 15
      AND SC00_EMPRESACFG.INFORMACAO2 = '2'
      AND SC00_EMPRESACFG.DATAINICIO <= %3:S
      AND (SC00_EMPRESACFG.DATAFIM >= %2:S OR SC00_EMPRESACFG.DATAFIM IS NULL)
  ) AQUISICOES)";
    static constexpr std::string_view SQL = R"(WITH
SQL_REMUNERACAOTRABALHADOR AS (%0:s),
SQL_PAGAMENTOSRENDIMENTOS AS (%1:s),
SQL_AQUISPRODRURAL AS (%2:s),
SQL_DESONERACAOFOLHA AS (%3:s)
SELECT
  SQL_REMUNERACAOTRABALHADOR.evtRemun,
  SQL_PAGAMENTOSRENDIMENTOS.evtPgtos,
  SQL_AQUISPRODRURAL.evtAqProd,
  SQL_DESONERACAOFOLHA.evtInfoComplPer
FROM SQL_REMUNERACAOTRABALHADOR
FULL JOIN SQL_PAGAMENTOSRENDIMENTOS ON (1=1)
FULL JOIN SQL_AQUISPRODRURAL ON (1=1)
FULL JOIN SQL_DESONERACAOFOLHA ON (1=1))";
    constexpr std::int32_t SETE_BITS = 0x7F;
    const auto LInicio = FormatarDataDB(DataInicio, true);
    const auto LFim = FormatarDataDB(DataFim, true);
    const auto Contar = [&](std::string_view AApelido, std::string_view ACondicao) {
        return Format(CONTAGEM, IdEmpresa,
                      BuscarInstanciaOvraEsocialReinfControleAmbientes().BuscarTpAmbParaXML() & SETE_BITS, LInicio,
                      LFim,
                      // The thirteenth salary is closed apart from the months.
                      FIndApur == static_cast<tpIndApuracao>(1) ? "AND SC00_ESOCIALREINFXML.TPIDTABELAEVENTO = 13"
                                                                : "AND SC00_ESOCIALREINFXML.TPIDTABELAEVENTO <> 13",
                      AApelido, ACondicao);
    };
    return Format(
        SQL,
        Contar("evtRemun", "((SC00_ESOCIALREINFXML.TPEVENTO = 'S-1200') OR(SC00_ESOCIALREINFXML.TPEVENTO IN ('S-2299', "
                           "'S-2399') AND SC00_ESOCIALREINFXML.XML CONTAINING '<verbasResc>'))"),
        Contar("evtPgtos", "SC00_ESOCIALREINFXML.TPEVENTO = 'S-1210'"),
        Format(AQUISICAO, Contar("evtAqProd", "SC00_ESOCIALREINFXML.TPEVENTO = 'S-1250'"), IdEmpresa, LInicio, LFim),
        Contar("evtInfoComplPer", "SC00_ESOCIALREINFXML.TPEVENTO = 'S-1280'"));
}

void TTarvoESocialCamposinfoFech::AtribuirValoresManualmente()
{
    evtComProd = 0;
    evtContratAvNP = 0;
    PreencherTagcompSemMovto();
}

void TTarvoESocialCamposinfoFech::PreencherTagcompSemMovto()
{
    // Also what a load before the first of them was accepted had put there.
    compSemMovto.clear();
    for (const auto LContagem : {evtRemun, evtPgtos, evtAqProd, evtComProd, evtContratAvNP, evtInfoComplPer})
        if (LContagem != 0)
            return;
    if (ExisteS1299Anterior())
        compSemMovto = TOvraSerializacaoXmlReader(FCdsPesquisaEventoS1299->FieldByName("XML").AsString())
                           .BuscarValorTag("evtFechaEvPer.infoFech.compSemMovto");
    if (compSemMovto.empty())
        compSemMovto = "0";
}

bool TTarvoESocialCamposinfoFech::ExisteS1299Anterior()
{
    // Before the moment at which the group was built, not before the period; and accepted with 201 only, although the
    // counts take 202 too; both meant. The moment has a time of day, which a DATE column refuses in a bare literal.
    static constexpr std::string_view SQL = R"(SELECT FIRST 1 SC00_ESOCIALREINFXML.XML
FROM SC00_ESOCIALREINFXML
WHERE SC00_ESOCIALREINFXML.IDEMPRESA = %0:d
  AND SC00_ESOCIALREINFXML.TPEVENTO = 'S-1299'
  AND SC00_ESOCIALREINFXML.INIVALID < CAST(%1:s AS TIMESTAMP)
  AND SC00_ESOCIALREINFXML.STATUS = 201
  %2:s
ORDER BY SC00_ESOCIALREINFXML.DATA DESC, SC00_ESOCIALREINFXML.IDESOCIALREINFXML)";
    FCdsPesquisaEventoS1299->Close();
    FCdsPesquisaEventoS1299->SetCommandText(
        Format(SQL, IdEmpresa, FormatarDataDB(DataGeracao, true),
               BuscarInstanciaOvraEsocialReinfControleAmbientes().RetornarSqlControleAmbiente("AND")));
    FCdsPesquisaEventoS1299->Open();
    return !FCdsPesquisaEventoS1299->IsEmpty();
}

} // namespace tarvo::rural
