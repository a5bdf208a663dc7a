#include "rural/s1250/UnTarvoESocialCamposideEstabAdquirBrencoExterno.h"

#include "imports/banco/UnTarvoConexaoBrenco.h"
#include "rural/s1250/UnTarvoESocialCampostpAquisBrencoExterno.h"

namespace tarvo::rural {

TTarvoESocialCamposideEstabAdquirBrencoExterno::TTarvoESocialCamposideEstabAdquirBrencoExterno(
    std::int64_t AIDEstabelecimento, TDateTime ADataInicio, TDateTime ADataFim, TTipoConexao ATipoConexao)
    : TTarvoESocialCamposideEstabAdquirBase(AIDEstabelecimento, ADataInicio, ADataFim, ATipoConexao)
{}

std::string TTarvoESocialCamposideEstabAdquirBrencoExterno::BuscarSqlTpAquis() { return SqlTpAquisBrenco(Compras()); }

void TTarvoESocialCamposideEstabAdquirBrencoExterno::CarregarDados(
    const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposideEstabAdquirBase::CarregarDados(AListaCamposModificados);
    CarregarEstabelecimento();
    CarregarTpAquis(AListaCamposModificados);
}

void TTarvoESocialCamposideEstabAdquirBrencoExterno::CarregarEstabelecimento()
{
    const auto LFilial = BuscarRegistrosBrenco(SqlEstabelecimentoAdquirente(Compras().IdFilial));
    if (!LFilial)
        return;
    tpInscAdq = LFilial->FieldByName("TPINSCRICAO").AsString();
    nrInscAdq = LFilial->FieldByName("CNPJ").AsString();
}

void TTarvoESocialCamposideEstabAdquirBrencoExterno::CarregarTpAquis(
    const TListaCamposModificados* AListaCamposModificados)
{
    if (const auto LCds = BuscarRegistrosBrenco(BuscarSqlTpAquis()))
        AcrescentarTpAquis<TTarvoESocialCampostpAquisBrencoExterno>(*LCds, AListaCamposModificados);
}

} // namespace tarvo::rural
