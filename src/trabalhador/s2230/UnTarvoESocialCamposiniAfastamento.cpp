#include "trabalhador/s2230/UnTarvoESocialCamposiniAfastamento.h"

#include "framework/UnTarvoESocialCamposListaDeGrupos.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

namespace {

constexpr std::string_view ACIDENTE_DE_TRABALHO = "01";
constexpr std::string_view DOENCA_NAO_RELACIONADA = "03";

} // namespace

TTarvoESocialCamposiniAfastamento::TTarvoESocialCamposiniAfastamento(std::int64_t AIdSituacao)
    : TTarvoESocialCamposGrupoBase("{40117AC6-8136-4703-B615-911C7B442DCB}"), infoCessao(AIdSituacao),
      infoMandSind(AIdSituacao), FIdSituacao(AIdSituacao)
{}

const TPropriedades& TTarvoESocialCamposiniAfastamento::Tabela()
{
    using Eu = TTarvoESocialCamposiniAfastamento;
    static const TPropriedades tabela{
        {"DtIniAfast", &Eu::DtIniAfast, TFieldRelacionado("DATA")},
        {"codMotAfast", &Eu::codMotAfast, TFieldRelacionado("COD_MOT_AFAST")},
        {"infoMesmoMtv", &Eu::infoMesmoMtv},
        {"tpAcidTransito", &Eu::tpAcidTransito, TFieldRelacionado("TIPOACIDENTE")},
        {"Observacao", &Eu::Observacao, TFieldRelacionado("OBSERVACAOESOCIAL")},
        {"infoAtestado", &Eu::infoAtestado},
        {"infoCessao", &Eu::infoCessao},
        {"infoMandSind", &Eu::infoMandSind},
    };
    return tabela;
}

std::string TTarvoESocialCamposiniAfastamento::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  FP_ESOCIALTABELA.CODIGO AS COD_MOT_AFAST,
  SITUACOES.DATA,
  SITUACOES.COD_REC_FGTS,
  SITUACOES.TIPOACIDENTE,
  SITUACOES.OBSERVACAOESOCIAL
FROM SITUACOES
LEFT JOIN FP_ESOCIALTABELA ON ( SITUACOES.IDESOCIALTABELA18 = FP_ESOCIALTABELA.IDESOCIALTABELA)
WHERE SITUACOES.IDSITUACAO = %0:d)";
    return Format(SQL, FIdSituacao);
}

void TTarvoESocialCamposiniAfastamento::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    CarregarDadosInfoAtestado();
    infoCessao.CarregarDados(AListaCamposModificados);
    infoMandSind.CarregarDados(AListaCamposModificados);
}

void TTarvoESocialCamposiniAfastamento::AtribuirValoresManualmente()
{
    TTarvoESocialCamposGrupoBase::AtribuirValoresManualmente();
    infoMesmoMtv = BuscarInfoMesmoMtv();
}

std::string TTarvoESocialCamposiniAfastamento::BuscarInfoMesmoMtv()
{
    if (codMotAfast != ACIDENTE_DE_TRABALHO && codMotAfast != DOENCA_NAO_RELACIONADA)
        return {};
    const auto LCodRecFgts = CdsDados().FieldByName("COD_REC_FGTS").AsString();
    return LCodRecFgts == "09" || LCodRecFgts == "11" ? "SIM" : "NAO";
}

void TTarvoESocialCamposiniAfastamento::CarregarDadosInfoAtestado()
{
    static constexpr std::string_view SQL = R"(SELECT FP_SITUACAOATESTADO.IDSITUACAOATESTADO
FROM FP_SITUACAOATESTADO
WHERE FP_SITUACAOATESTADO.IDSITUACAO = %0:d
ORDER BY FP_SITUACAOATESTADO.IDSITUACAO, FP_SITUACAOATESTADO.IDSITUACAOATESTADO)";
    infoAtestado.clear();
    AcrescentarUmPorLinha(infoAtestado, TTarvoConsultasGeral::BuscarRegistros(Format(SQL, FIdSituacao)),
                          "IDSITUACAOATESTADO");
    if (codMotAfast == DOENCA_NAO_RELACIONADA && infoAtestado.empty()) {
        // An illness always shows its days, with no certificate those of the leave.
        auto LAtestado = std::make_unique<TTarvoESocialCamposinfoAtestado>(0);
        LAtestado->qtDiasAfast = BuscarDiasAfastamentoDaSituacao();
        infoAtestado.push_back(std::move(LAtestado));
    }
}

std::int32_t TTarvoESocialCamposiniAfastamento::BuscarDiasAfastamentoDaSituacao() const
{
    static constexpr std::string_view SQL = R"(SELECT COALESCE((DATA_FIM - DATA) + 1, 0) AS DIAS_SITUACAO
FROM SITUACOES
WHERE SITUACOES.IDSITUACAO = %0:d)";
    return TTarvoConsultasGeral::BuscarRegistros(Format(SQL, FIdSituacao))->FieldByName("DIAS_SITUACAO").AsInteger();
}

} // namespace tarvo::trabalhador
