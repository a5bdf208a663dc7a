#include "rural/s1250/UnTarvoESocialCamposS1250.h"

#include "imports/banco/UnOvraConnection.h"
#include "imports/banco/UnOvraUtilsDbFirebird.h"
#include "imports/banco/UnTarvoConexaoBrenco.h"
#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "rural/s1250/UnTarvoESocialCamposideEstabAdquir.h"
#include "rural/s1250/UnTarvoESocialCamposideEstabAdquirBrencoExterno.h"
#include "tabelas/estabelecimento/UnTarvoESocialCamposTipoInscricao1005.h"

namespace tarvo::rural {

namespace {

bool BrencoNoBancoDaFolha()
{
    const auto& LBrenco = BuscarInstanciaTarvoConexaoBrenco();
    return TTarvoESocialCamposS1250::VersaoLeTabelasDoBrenco(
               BuscarInstanciaOvraUtilsDbManager().GetInformacoesBancoDeDados().VersaoMaior) &&
           LBrenco.Conectado() &&
           LBrenco.OvraConnection().GetDataBaseLineFull() == OvraConnection().GetDataBaseLineFull();
}

/// The payroll's establishment at the sibling, by its inscription; null when it isn't there or can't be read.
std::unique_ptr<TTarvoESocialCamposideEstabAdquirBase> CriarIdeEstabAdquirExterno(std::int64_t AIDEstabelecimento,
                                                                                  TDateTime ADataInicio,
                                                                                  TDateTime ADataFim,
                                                                                  TTipoConexao ATipoConexao)
{
    // By + 0 the few rows are sorted; by the bare key the engine would walk the whole table.
    static constexpr std::string_view SQL = R"(SELECT SC00_FILIAL.IDFILIAL FROM SC00_FILIAL
%0:s
 AND (SC00_FILIAL.ENCERRAMENTOATIV > %1:s
 OR SC00_FILIAL.ENCERRAMENTOATIV IS NULL)
ORDER BY SC00_FILIAL.IDFILIAL + 0)";
    static constexpr std::string_view POR_CNPJ = " WHERE SC00_FILIAL.CNPJ = %0:s";
    static constexpr std::string_view POR_CAEPF = " WHERE SC00_FILIAL.MATRICULACAEPF = %0:s";
    const tabelas::TTarvoESocialCamposTipoInscricao1005 LInscricao(AIDEstabelecimento, 0);
    const auto LFilial = BuscarRegistrosBrenco(Format(
        SQL, Format(LInscricao.TipoInscricao == tpTpInsc::CNPJ ? POR_CNPJ : POR_CAEPF, QuotedStr(LInscricao.Inscricao)),
        FormatarDataDB(ADataInicio, true)));
    if (!LFilial || LFilial->IsEmpty())
        return nullptr;
    return std::make_unique<TTarvoESocialCamposideEstabAdquirBrencoExterno>(
        LFilial->FieldByName("IDFILIAL").AsLargeInt(), ADataInicio, ADataFim, ATipoConexao);
}

} // namespace

TTarvoESocialCamposS1250::TTarvoESocialCamposS1250(std::int64_t AIDEstabelecimento, TDateTime ADataInicio,
                                                   TDateTime ADataFim, TTipoConexao ATipoConexao)
    : TTarvoESocialCamposGrupoBase("{48D0EDD4-1551-4EA5-A50F-D70B25D437C0}")
{
    if (ATipoConexao == TTipoConexao::Folha || (ATipoConexao == TTipoConexao::Brenco && BrencoNoBancoDaFolha()))
        ideEstabAdquir = std::make_unique<TTarvoESocialCamposideEstabAdquir>(AIDEstabelecimento, ADataInicio, ADataFim,
                                                                             ATipoConexao);
    else
        ideEstabAdquir = CriarIdeEstabAdquirExterno(AIDEstabelecimento, ADataInicio, ADataFim, ATipoConexao);
}

bool TTarvoESocialCamposS1250::VersaoLeTabelasDoBrenco(std::string_view AVersaoMaior)
{
    return StrToInt64Def(AVersaoMaior, 0) >= 3;
}

const TPropriedades& TTarvoESocialCamposS1250::Tabela()
{
    static const TPropriedades tabela{{"ideEstabAdquir", &TTarvoESocialCamposS1250::ideEstabAdquir}};
    return tabela;
}

void TTarvoESocialCamposS1250::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    Existente(ideEstabAdquir.get(), "ideEstabAdquir").CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::rural
