#include "rural/s1250/UnTarvoESocialCampostpAquisBrencoExterno.h"

#include "imports/banco/UnTarvoConexaoBrenco.h"
#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "rural/produtor/UnTarvoESocialCamposideProdutorBrencoExterno.h"

namespace tarvo::rural {

TTarvoESocialCampostpAquisBrencoExterno::TTarvoESocialCampostpAquisBrencoExterno(std::int64_t AIDEstabelecimento,
                                                                                 TDateTime ADataInicio,
                                                                                 TDateTime ADataFim,
                                                                                 std::int32_t AProducaoIsenta)
    : TTarvoESocialCampostpAquisBase(AIDEstabelecimento, ADataInicio, ADataFim, AProducaoIsenta)
{}

void TTarvoESocialCampostpAquisBrencoExterno::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCampostpAquisBase::CarregarDados(AListaCamposModificados);
    vlrTotAquis = "0";
    const auto LTotal = BuscarRegistrosBrenco(SqlTotalBrenco(Compras(), ProducaoIsenta()));
    if (!LTotal || LTotal->IsEmpty())
        return;
    vlrTotAquis = LTotal->FieldByName("VALOR").AsString();
    CarregarProdutor(AListaCamposModificados);
}

void TTarvoESocialCampostpAquisBrencoExterno::CarreagarProcessosAdquirente()
{
    static constexpr std::string_view SQL_FILIAL = R"( SELECT SC00_FILIAL.CNPJ
FROM SC00_FILIAL
WHERE SC00_FILIAL.IDFILIAL = %0:d)";
    static constexpr std::string_view SQL = R"(SELECT ES02_SPPROC.IDSPPROC
FROM ES02_SPPROC
JOIN SC00_FILIAL ON (SC00_FILIAL.IDFILIAL = ES02_SPPROC.IDFILIAL)
WHERE SC00_FILIAL.CNPJ = %0:s
  AND ES02_SPPROC.TPIMPETRANTE = 5
  AND ES02_SPPROC.DATAABERTURA <= %1:s
ORDER BY ES02_SPPROC.IDSPPROC + 0)";
    if (const auto LFilial = BuscarRegistrosBrenco(Format(SQL_FILIAL, Compras().IdFilial)))
        AbrirProcessosAdquirente(
            Format(SQL, QuotedStr(LFilial->FieldByName("CNPJ").AsString()), FormatarDataDB(Compras().DataFim, true)));
}

void TTarvoESocialCampostpAquisBrencoExterno::CarregarProdutor(const TListaCamposModificados* AListaCamposModificados)
{
    const auto LProdutores = BuscarRegistrosBrenco(SqlProdutoresBrenco(Compras(), ProducaoIsenta()));
    if (!LProdutores || LProdutores->IsEmpty())
        return;
    const auto LSomas =
        AcrescentarProdutores<TTarvoESocialCamposideProdutorBrencoExterno>(*LProdutores, "CNPJ", nullptr);
    AcrescentarInfoProcJ(LSomas, AListaCamposModificados);
}

} // namespace tarvo::rural
