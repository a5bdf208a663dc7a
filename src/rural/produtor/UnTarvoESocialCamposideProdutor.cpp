#include "rural/produtor/UnTarvoESocialCamposideProdutor.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "rural/s1250/UnTarvoESocialCamposAliquotasS1250.h"

namespace tarvo::rural {

TTarvoESocialCamposideProdutor::TTarvoESocialCamposideProdutor(std::int64_t AIdFilial, std::string ACNPJ,
                                                               TDateTime ADataInicio, TDateTime ADataFim,
                                                               bool AExisteProcessoAdquirente,
                                                               std::int32_t AProducaoIsenta)
    : TTarvoESocialCamposideProdutorBase(AIdFilial, std::move(ACNPJ), ADataInicio, ADataFim, AExisteProcessoAdquirente,
                                         AProducaoIsenta)
{}

std::string TTarvoESocialCamposideProdutor::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  PREST_SERVICO.CPF as CNPJ,
  PREST_SERVICO.INDOPCCP,
  SUM (COALESCE(MOV_PRESTSERV.VALOR, 0)) AS VLRBRUTO
%0:s
  AND PREST_SERVICO.CPF = %1:s
GROUP BY PREST_SERVICO.CPF, PREST_SERVICO.INDOPCCP
ORDER BY MIN(PREST_SERVICO.IDPRESTSERVICO))";
    return Format(SQL, ComprasDaFolha(Compras(), ProducaoIsenta()), QuotedStr(Cpf()));
}

void TTarvoESocialCamposideProdutor::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposideProdutorBase::CarregarDados(AListaCamposModificados);
    nfs.CarregarDados(AListaCamposModificados);
    ZerarRetencao();
    // With a process of the acquirer nothing is retained from the producer.
    if (ExisteProcessoAdquirente())
        return;
    if (const auto LProcessos = BuscarProcessos(); LProcessos->IsEmpty())
        CalcularRetencao();
    else
        AcrescentarInfoProcJud(*LProcessos, EhIsenta(), AListaCamposModificados);
}

TDataset TTarvoESocialCamposideProdutor::BuscarProcessos() const
{
    // The CPF stands bare, and the engine compares numbers; meant.
    static constexpr std::string_view SQL = R"(SELECT ES02_SPPROC.IDSPPROC
FROM ES02_SPPROC
JOIN PREST_SERVICO ON (PREST_SERVICO.IDPRESTSERVICO = ES02_SPPROC.IDPRESTSERVICO)
WHERE PREST_SERVICO.CPF = %0:s
  AND ES02_SPPROC.DATAABERTURA <= %1:s
ORDER BY ES02_SPPROC.IDSPPROC + 0)";
    return TTarvoConsultasGeral::BuscarRegistros(Format(SQL, Cpf(), FormatarDataDB(Compras().DataFim, true)));
}

void TTarvoESocialCamposideProdutor::CalcularRetencao()
{
    vrSenarDesc = ContribuicaoDevida(ALIQUOTA_SENAR, vlrBruto);
    if (SoRetemSenar())
        return;
    vrCPDescPR = ContribuicaoDevida(ALIQUOTA_CP, vlrBruto);
    vrRatDescPR = ContribuicaoDevida(ALIQUOTA_RAT, vlrBruto);
}

} // namespace tarvo::rural
