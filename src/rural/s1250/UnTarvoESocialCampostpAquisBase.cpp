#include "rural/s1250/UnTarvoESocialCampostpAquisBase.h"

#include "imports/UnOvraExcecoes.h"
#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::rural {

namespace {

constexpr std::string_view IND_AQUIS_ISENTA = "4";

} // namespace

TTarvoESocialCampostpAquisBase::TTarvoESocialCampostpAquisBase(std::int64_t AIDEstabelecimento, TDateTime ADataInicio,
                                                               TDateTime ADataFim, std::int32_t AProducaoIsenta)
    : TTarvoESocialCamposGrupoBase("{9E2E5F67-01F5-4CA3-82D2-8963AAD7A9D3}"), FCompras{AIDEstabelecimento, ADataInicio,
                                                                                       ADataFim},
      FProducaoIsenta(AProducaoIsenta), FDadosProcessosAdquirente(CriarOvraClientDataset())
{}

const TPropriedades& TTarvoESocialCampostpAquisBase::Tabela()
{
    using Eu = TTarvoESocialCampostpAquisBase;
    static const TPropriedades tabela{
        {"indAquis", &Eu::indAquis},
        {"ProducaoIsenta", &Eu::ProducaoIsenta},
        {"vlrTotAquis", &Eu::vlrTotAquis, TFieldRelacionado("VALOR")},
        {"ideProdutor", &Eu::ideProdutor},
        {"infoProcJ", &Eu::infoProcJ},
    };
    return tabela;
}

std::string TTarvoESocialCampostpAquisBase::indAquis() const
{
    return FProducaoIsenta == 1 ? std::string(IND_AQUIS_ISENTA) : "1";
}

void TTarvoESocialCampostpAquisBase::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    CarreagarProcessosAdquirente();
}

void TTarvoESocialCampostpAquisBase::CarreagarProcessosAdquirente()
{
    // By + 0 the few rows are sorted; by the bare key the engine would walk the whole table.
    static constexpr std::string_view SQL = R"( SELECT ES02_SPPROC.IDSPPROC
FROM ES02_SPPROC
WHERE ES02_SPPROC.IDFILIAL = %0:d
  AND ES02_SPPROC.TPIMPETRANTE = 5
  AND ES02_SPPROC.DATAABERTURA <= %1:s
ORDER BY ES02_SPPROC.IDSPPROC + 0)";
    AbrirProcessosAdquirente(Format(SQL, FCompras.IdFilial, FormatarDataDB(FCompras.DataFim, true)));
}

void TTarvoESocialCampostpAquisBase::AbrirProcessosAdquirente(std::string ASql)
{
    FDadosProcessosAdquirente->Close();
    FDadosProcessosAdquirente->SetCommandText(std::move(ASql));
    FDadosProcessosAdquirente->Open();
}

bool TTarvoESocialCampostpAquisBase::EncontrouProcessoAdquirente() const
{
    if (!FDadosProcessosAdquirente->Active())
        throw Exception("Método \"CarreagarProcessosAdquirente\" não implementado");
    return !FDadosProcessosAdquirente->IsEmpty();
}

void TTarvoESocialCampostpAquisBase::AcrescentarInfoProcJ(const TTarvoESocialCamposinfoProcJudIOP& ASomas,
                                                          const TListaCamposModificados* AListaCamposModificados)
{
    if (EncontrouProcessoAdquirente() && Trim(indAquis()) != IND_AQUIS_ISENTA)
        AcrescentarProcessos(infoProcJ, *FDadosProcessosAdquirente, ASomas, AListaCamposModificados);
}

void TTarvoESocialCampostpAquisBase::TSomas::Somar(const TTarvoESocialCamposideProdutorBase& AProdutor)
{
    vlrBruto += AProdutor.vlrBruto;
    vrCPDescPR += AProdutor.vrCPDescPR;
    vrRatDescPR += AProdutor.vrRatDescPR;
    vrSenarDesc += AProdutor.vrSenarDesc;
}

TTarvoESocialCamposinfoProcJudIOP TTarvoESocialCampostpAquisBase::TSomas::Dados() const
{
    TTarvoESocialCamposinfoProcJudIOP LDados;
    LDados.vlrBruto = static_cast<double>(vlrBruto);
    LDados.vrCPDescPR = static_cast<double>(vrCPDescPR);
    LDados.vrRatDescPR = static_cast<double>(vrRatDescPR);
    LDados.vrSenarDesc = static_cast<double>(vrSenarDesc);
    return LDados;
}

} // namespace tarvo::rural
