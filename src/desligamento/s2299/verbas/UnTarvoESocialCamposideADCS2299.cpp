#include "desligamento/s2299/verbas/UnTarvoESocialCamposideADCS2299.h"

#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposSqlRemuneracao.h"

namespace tarvo::desligamento {

TTarvoESocialCamposideADCS2299::TTarvoESocialCamposideADCS2299(const TS2299DadosCalculos& ADadosCalculos)
    : TTarvoESocialCamposGrupoBase("{20D79C08-97AA-4D08-B11E-16215298B5A9}"), idePeriodoS2299(ADadosCalculos),
      FDadosCalculos(ADadosCalculos)
{}

const TPropriedades& TTarvoESocialCamposideADCS2299::Tabela()
{
    using Eu = TTarvoESocialCamposideADCS2299;
    static const TPropriedades tabela{
        {"dtAcConv", &Eu::dtAcConv, TFieldRelacionado("DATAOCORRENCIA")},
        {"tpAcConv", &Eu::tpAcConv, TFieldRelacionado("CARACTERISTICA")},
        {"compAcConv", &Eu::compAcConv},
        {"dtEfAcConv", &Eu::dtEfAcConv, TFieldRelacionado("DTEFACCONV")},
        {"dsc", &Eu::dsc, TFieldRelacionado("DESCRICAO")},
        {"idePeriodoS2299", &Eu::idePeriodoS2299},
    };
    return tabela;
}

std::string TTarvoESocialCamposideADCS2299::BuscarSQLDados()
{
    return regras::SqlAcordo(FDadosCalculos.DadosS2299().IdAcordoConvencaoDissidio);
}

void TTarvoESocialCamposideADCS2299::AtribuirValoresManualmente()
{
    TTarvoESocialCamposGrupoBase::AtribuirValoresManualmente();
    compAcConv = FormatDateTime("YYYY-MM", FDadosCalculos.DadosDmDev().DataPagamento);
}

void TTarvoESocialCamposideADCS2299::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    idePeriodoS2299.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::desligamento
