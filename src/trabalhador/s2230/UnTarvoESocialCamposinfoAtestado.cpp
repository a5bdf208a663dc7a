#include "trabalhador/s2230/UnTarvoESocialCamposinfoAtestado.h"

#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposinfoAtestado::TTarvoESocialCamposinfoAtestado(std::int64_t AIdSituacaoAtestado)
    : TTarvoESocialCamposGrupoBase("{0DCB340A-B560-4368-A476-7599150979AD}"),
      Emitente(TTarvoConsultasGeral::BuscarIdPrestadorPeloIDSituacaoAtestado(AIdSituacaoAtestado)),
      FIdSituacaoAtestado(AIdSituacaoAtestado)
{}

const TPropriedades& TTarvoESocialCamposinfoAtestado::Tabela()
{
    using Eu = TTarvoESocialCamposinfoAtestado;
    static const TPropriedades tabela{
        {"codCID", &Eu::codCID, TFieldRelacionado("COD_CID")},
        {"qtDiasAfast", &Eu::qtDiasAfast, TFieldRelacionado("QTDDIASAFAST")},
        {"Emitente", &Eu::Emitente},
    };
    return tabela;
}

std::string TTarvoESocialCamposinfoAtestado::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  FP_SITUACAOATESTADO.QTDDIASAFAST,
  FP_CID.CODIGO AS COD_CID
FROM FP_SITUACAOATESTADO
LEFT JOIN FP_CID ON (FP_CID.IDCID = FP_SITUACAOATESTADO.IDCID)
WHERE FP_SITUACAOATESTADO.IDSITUACAOATESTADO = %0:d)";
    return Format(SQL, FIdSituacaoAtestado);
}

void TTarvoESocialCamposinfoAtestado::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    Emitente.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
