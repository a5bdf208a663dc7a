#include "sst/s2210/UnTarvoESocialCamposAtestado.h"

#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::sst {

TTarvoESocialCamposAtestado::TTarvoESocialCamposAtestado(std::int64_t AIdTabCat)
    : TTarvoESocialCamposGrupoBase("{7EBCC312-A6F0-4E10-8FA5-292517C65CCF}"), emitente(BuscarIdDoEmitente(AIdTabCat)),
      FIdTabCat(AIdTabCat)
{}

const TPropriedades& TTarvoESocialCamposAtestado::Tabela()
{
    using Eu = TTarvoESocialCamposAtestado;
    static const TPropriedades tabela{
        {"codCNES", &Eu::codCNES, TFieldRelacionado("CODCNES")},
        {"dtAtendimento", &Eu::dtAtendimento, TFieldRelacionado("DTATENDIMENTO")},
        {"hrAtendimento", &Eu::hrAtendimento, TFieldRelacionado("HRATENDIMENTO")},
        {"indInternacao", &Eu::indInternacao, TFieldRelacionado("INDINTERNACAO")},
        {"durTrat", &Eu::durTrat, TFieldRelacionado("DURTRATAMENTO")},
        {"indAfast", &Eu::indAfast, TFieldRelacionado("HOUVEAFASTAMENTO")},
        {"dscLesao", &Eu::dscLesao, TFieldRelacionado("NATLESAO")},
        {"dscCompLesao", &Eu::dscCompLesao, TFieldRelacionado("DESCLESAO")},
        {"diagProvavel", &Eu::diagProvavel, TFieldRelacionado("DIAGPROVAVEL")},
        {"codCID", &Eu::codCID, TFieldRelacionado("CODCID")},
        {"observacao", &Eu::observacao, TFieldRelacionado("OBSERVACAO")},
        {"emitente", &Eu::emitente},
    };
    return tabela;
}

std::string TTarvoESocialCamposAtestado::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  FP_CATATESTADO.CODCNES,
  FP_CATATESTADO.DTATENDIMENTO,
  FP_CATATESTADO.HRATENDIMENTO,
  FP_CATATESTADO.INDINTERNACAO,
  FP_CATATESTADO.DURTRATAMENTO,
  TABCAT.HOUVEAFASTAMENTO,
  FP_ESOCIALTABELA.CODIGO AS NATLESAO,
  FP_CATATESTADO.DESCLESAO,
  FP_CATATESTADO.DIAGPROVAVEL,
  FP_CID.CODIGO AS CODCID,
  FP_CATATESTADO.OBSERVACAO
FROM FP_CATATESTADO
JOIN TABCAT ON (TABCAT.IDTABCAT = FP_CATATESTADO.IDTABCAT)
LEFT JOIN FP_ESOCIALTABELA ON (FP_ESOCIALTABELA.IDESOCIALTABELA = FP_CATATESTADO.CODNATUREZALESAO)
LEFT JOIN FP_CID ON (FP_CID.IDCID = FP_CATATESTADO.IDCID)
WHERE FP_CATATESTADO.IDTABCAT = %0:d
ORDER BY FP_CATATESTADO.IDTABCAT, FP_CATATESTADO.IDCATATESTADO)";
    return Format(SQL, FIdTabCat);
}

void TTarvoESocialCamposAtestado::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    emitente.CarregarDados(AListaCamposModificados);
}

std::int32_t TTarvoESocialCamposAtestado::BuscarIdDoEmitente(std::int64_t AIdTabCat)
{
    static constexpr std::string_view SQL = R"(SELECT FP_CATATESTADO.IDPRESTSERVICO
FROM FP_CATATESTADO
WHERE FP_CATATESTADO.IDTABCAT = %0:d
ORDER BY FP_CATATESTADO.IDTABCAT, FP_CATATESTADO.IDCATATESTADO)";
    return TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(Format(SQL, AIdTabCat))
        ->FieldByName("IDPRESTSERVICO")
        .AsInteger();
}

} // namespace tarvo::sst
