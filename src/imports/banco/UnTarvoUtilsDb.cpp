#include "imports/banco/UnTarvoUtilsDb.h"

#include "imports/banco/UnOvraConnection.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "imports/valores/UnTarvoUtilsStrings.h"

namespace tarvo {

namespace {

/// The engine takes no more than 1,500 values in one IN; the suite stays well below.
constexpr std::size_t MAXIMO_POR_CLAUSULA_IN = 1000;

} // namespace

std::unique_ptr<TOvraClientDataSetWithConnection> CriarOvraClientDataset()
{
    return std::make_unique<TOvraClientDataSetWithConnection>();
}

std::unique_ptr<TOvraClientDataSetWithConnection> CriarOvraClientDataset(TOvraConnection& AConexao)
{
    return std::make_unique<TOvraClientDataSetWithConnection>(&AConexao);
}

std::string FormatarDataDB(TDateTime AData, bool AComAspas)
{
    const auto LTexto = FormatDateTime(TemHora(AData) ? "dd.mm.yyyy hh:nn:ss" : "dd.mm.yyyy", AData);
    return AComAspas ? "'" + LTexto + "'" : LTexto;
}

std::string FormatarListaParaClausulaIN(std::string_view ATabela, std::string_view ACampo, std::string_view ALista,
                                        std::string_view AOperador, bool ANegar)
{
    const auto LItens = TTarvoUtilsStrings::TransfereStringParaLista(ALista);
    if (LItens.empty())
        return {};
    std::string LCondicao;
    for (std::size_t i = 0; i < LItens.size(); ++i) {
        if (i % MAXIMO_POR_CLAUSULA_IN != 0) {
            LCondicao += ',';
        } else {
            if (i != 0)
                LCondicao += ANegar ? ") AND " : ") OR ";
            LCondicao += Format(ANegar ? "%0:s.%1:s NOT IN (" : "%0:s.%1:s IN (", ATabela, ACampo);
        }
        LCondicao += LItens[i];
    }
    LCondicao += ')';
    if (LItens.size() > MAXIMO_POR_CLAUSULA_IN)
        LCondicao = "(" + LCondicao + ")";
    return Format(" %0:s %1:s", Trim(AOperador), LCondicao);
}

std::string CriarListaDoClientDataset(TOvraClientDataSet& ACds, std::string_view ACampo)
{
    std::string LLista;
    for (ACds.First(); !ACds.Eof(); ACds.Next())
        if (const auto LValor = ACds.FieldByName(ACampo).AsString(); !LValor.empty())
            TTarvoUtilsStrings::AdicionarItemNaLista(LLista, LValor);
    ACds.First();
    return LLista;
}

} // namespace tarvo
