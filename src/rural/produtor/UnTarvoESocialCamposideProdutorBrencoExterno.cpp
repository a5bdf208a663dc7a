#include "rural/produtor/UnTarvoESocialCamposideProdutorBrencoExterno.h"

#include "imports/banco/UnTarvoConexaoBrenco.h"
#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::rural {

TTarvoESocialCamposideProdutorBrencoExterno::TTarvoESocialCamposideProdutorBrencoExterno(
    std::int64_t AIdFilial, std::string ACNPJ, TDateTime ADataInicio, TDateTime ADataFim,
    bool AExisteProcessoAdquirente, std::int32_t AProducaoIsenta)
    : TTarvoESocialCamposideProdutorBrencoBase(AIdFilial, std::move(ACNPJ), ADataInicio, ADataFim,
                                               AExisteProcessoAdquirente, AProducaoIsenta)
{}

void TTarvoESocialCamposideProdutorBrencoExterno::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposideProdutorBrencoBase::CarregarDados(AListaCamposModificados);
    CarregarProdutor();
    CarregarValoresRetencao();
    nfs.CarregarDados(AListaCamposModificados);
    if (!ExisteProcessoAdquirente())
        CarregarInfoProcJud();
}

void TTarvoESocialCamposideProdutorBrencoExterno::CarregarProdutor()
{
    nrInscProd.clear();
    vlrBruto = 0;
    ZerarRetencao();
    const auto LProdutor = BuscarRegistrosBrenco(SqlProdutorBrenco(Compras(), ProducaoIsenta(), Cpf()));
    if (!LProdutor || LProdutor->IsEmpty())
        return;
    nrInscProd = LProdutor->FieldByName("CNPJ").AsString();
    vlrBruto = LProdutor->FieldByName("VLRBRUTO").AsFloat();
    IndOpcCp = LProdutor->FieldByName("INDOPCCP").AsInteger();
}

void TTarvoESocialCamposideProdutorBrencoExterno::CarregarValoresRetencao()
{
    // Here the model is compared with the list of the CFOPs, so that none is left out; meant.
    const auto LRetencao =
        BuscarRegistrosBrenco(SqlRetencaoBrenco(Compras(), ProducaoIsenta(), Cpf(), TFiltroDoModelo::Cfops));
    if (LRetencao && !LRetencao->IsEmpty())
        RatearRetencao(*LRetencao);
}

void TTarvoESocialCamposideProdutorBrencoExterno::CarregarInfoProcJud()
{
    // By + 0 the few rows are sorted; by the bare key the engine would walk the whole table.
    static constexpr std::string_view SQL = R"(SELECT ES02_SPPROC.IDSPPROC
FROM ES02_SPPROC
WHERE ES02_SPPROC.IDPLANO = %0:d
  AND ES02_SPPROC.DATAABERTURA <= %1:s
ORDER BY ES02_SPPROC.IDSPPROC + 0)";
    LevarRetencaoAosProcessos(
        *TTarvoConsultasGeral::BuscarRegistros(Format(SQL, BuscarIDPlano(), FormatarDataDB(Compras().DataFim, true))));
}

std::int64_t TTarvoESocialCamposideProdutorBrencoExterno::BuscarIDPlano() const
{
    static constexpr std::string_view SQL = R"(SELECT CO01_PLANO.IDPLANO
FROM CO01_PLANO
JOIN ES02_CLIFOR ON (ES02_CLIFOR.IDCLIFOR = CO01_PLANO.IDCLIFOR)
JOIN ES02_ENTRADA ON (CO01_PLANO.IDPLANO = ES02_ENTRADA.IDPLANO)
WHERE ES02_CLIFOR.PRODUTOR = 1
  AND ES02_CLIFOR.TPINSCRICAO = 2
  AND ES02_CLIFOR.CNPJ = %0:s
  AND ES02_ENTRADA.IDFILIAL = %1:d
  AND ES02_ENTRADA.DATAENTRADA BETWEEN %2:s AND %3:s
ORDER BY CO01_PLANO.IDPLANO + 0)";
    const auto LPlano = BuscarRegistrosBrenco(Format(SQL, QuotedStr(Cpf()), Compras().IdFilial,
                                                     FormatarDataDB(Compras().DataInicio, true),
                                                     FormatarDataDB(Compras().DataFim, true)));
    return LPlano ? LPlano->FieldByName("IDPLANO").AsLargeInt() : 0;
}

} // namespace tarvo::rural
