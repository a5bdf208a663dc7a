#include "sst/s2210/UnTarvoESocialCamposCat.h"

#include "framework/UnTarvoESocialCamposListaDeGrupos.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::sst {

TTarvoESocialCamposCat::TTarvoESocialCamposCat(std::int64_t AIdTabCat)
    : TTarvoESocialCamposGrupoBase("{E4A82AF7-1C03-4ADE-9A91-BE876A4CC1A7}"), localAcidente(AIdTabCat),
      Atestado(AIdTabCat), catOrigem(AIdTabCat), FIdTabCat(AIdTabCat)
{}

const TPropriedades& TTarvoESocialCamposCat::Tabela()
{
    using Eu = TTarvoESocialCamposCat;
    static const TPropriedades tabela{
        {"dtAcid", &Eu::dtAcid, TFieldRelacionado("DATAACIDENTE")},
        {"TpAcid", &Eu::TpAcid, TFieldRelacionado("TPACID")},
        {"hrAcid", &Eu::hrAcid, TFieldRelacionado("HORAACIDENTE")},
        {"hrsTrabAntesAcid", &Eu::hrsTrabAntesAcid, TFieldRelacionado("APOSQTASHORAS")},
        {"tpCat", &Eu::tpCat, TFieldRelacionado("TIPOCAT")},
        {"indCatObito", &Eu::indCatObito, TFieldRelacionado("HOUVEMORTE")},
        {"dtOBito", &Eu::dtOBito, TFieldRelacionado("OBITOEM")},
        {"indComunPolicia", &Eu::indComunPolicia, TFieldRelacionado("REGISTROPOLICIAL")},
        {"codSitGeradora", &Eu::codSitGeradora, TFieldRelacionado("SITGERADORA")},
        {"iniciatCAT", &Eu::iniciatCAT, TFieldRelacionado("TIPOEMISSAO")},
        {"observacao", &Eu::observacao, TFieldRelacionado("OBSERVACAO")},
        {"localAcidente", &Eu::localAcidente},
        {"parteAtingida", &Eu::parteAtingida},
        {"agenteCausador", &Eu::agenteCausador},
        {"Atestado", &Eu::Atestado},
        {"catOrigem", &Eu::catOrigem},
    };
    return tabela;
}

std::string TTarvoESocialCamposCat::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  TABCAT.DATAACIDENTE,
  TPACID.CODIGO AS TPACID,
  TABCAT.HORAACIDENTE,
  TABCAT.APOSQTASHORAS,
  TABCAT.TIPOCAT,
  TABCAT.HOUVEMORTE,
  TABCAT.OBITOEM,
  TABCAT.REGISTROPOLICIAL,
  SITGERADORA.CODIGO AS SITGERADORA,
  TABCAT.TIPOEMISSAO,
  TABCAT.OBSERVACAO
FROM TABCAT
JOIN SC00_EMPRESA ON (SC00_EMPRESA.EMPRESA = TABCAT.COD_EMPRESA)
JOIN EMPREGADOS ON (EMPREGADOS.COD_EMPRESA = TABCAT.COD_EMPRESA AND EMPREGADOS.COD_EMPREGADO = TABCAT.COD_EMPREGADO)
LEFT JOIN FP_ESOCIALTABELA TPACID ON (TPACID.IDESOCIALTABELA = TABCAT.IDTAB24CODACIDTRAB AND TPACID.TABELA = 24)
LEFT JOIN FP_ESOCIALTABELA SITGERADORA ON (SITGERADORA.IDESOCIALTABELA = TABCAT.CODSITUACAOGERADORA AND SITGERADORA.TABELA IN (15,16))
WHERE TABCAT.IDTABCAT = %0:d
  AND TABCAT.TIPOREGISTRADOR = 1)";
    return Format(SQL, FIdTabCat);
}

void TTarvoESocialCamposCat::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    localAcidente.CarregarDados(AListaCamposModificados);
    Atestado.CarregarDados(AListaCamposModificados);
    catOrigem.CarregarDados(AListaCamposModificados);
    CarregarDadosParteAtingida();
    CarregarAgenteCausador();
}

void TTarvoESocialCamposCat::CarregarDadosParteAtingida()
{
    static constexpr std::string_view SQL = R"(SELECT FP_CATPARTEATINGIDA.IDCATPARTEATINGIDA
FROM FP_CATPARTEATINGIDA
WHERE FP_CATPARTEATINGIDA.IDTABCAT = %0:d
ORDER BY FP_CATPARTEATINGIDA.IDTABCAT, FP_CATPARTEATINGIDA.IDCATPARTEATINGIDA)";
    parteAtingida.clear();
    AcrescentarUmPorLinha<&TField::AsInteger>(
        parteAtingida, TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(Format(SQL, FIdTabCat)),
        "IDCATPARTEATINGIDA");
}

void TTarvoESocialCamposCat::CarregarAgenteCausador()
{
    static constexpr std::string_view SQL = R"(SELECT FP_ESOCIALTABELA.CODIGO
FROM FP_CATAGENTECAUSADOR
JOIN FP_ESOCIALTABELA ON (FP_ESOCIALTABELA.IDESOCIALTABELA = FP_CATAGENTECAUSADOR.IDAGENTECAUSADOR AND FP_ESOCIALTABELA.TABELA IN (14,15))
WHERE FP_CATAGENTECAUSADOR.IDTABCAT = %0:d
ORDER BY FP_CATAGENTECAUSADOR.IDTABCAT, FP_CATAGENTECAUSADOR.IDCATAGENTECAUSADOR)";
    // Not emptied first, unlike the parts of the body: a second load doubles it; meant.
    const auto LCds = TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(Format(SQL, FIdTabCat));
    for (; !LCds->Eof(); LCds->Next()) {
        auto LAgente = std::make_unique<TTarvoESocialCamposAgenteCausador>();
        LAgente->codAgntCausador = LCds->FieldByName("CODIGO").AsInteger();
        agenteCausador.push_back(std::move(LAgente));
    }
}

} // namespace tarvo::sst
