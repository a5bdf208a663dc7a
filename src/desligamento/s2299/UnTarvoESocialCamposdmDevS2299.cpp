#include "desligamento/s2299/UnTarvoESocialCamposdmDevS2299.h"

#include "desligamento/verbas/UnTarvoESocialCamposDemonstrativosDesligamento.h"
#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposSqlRemuneracao.h"

namespace tarvo::desligamento {

TTarvoESocialCamposinfoPerApurS2299::TTarvoESocialCamposinfoPerApurS2299()
    : TTarvoESocialCamposGrupoBase("{7E2B1D36-4299-4FD7-B96A-FE94C6CFB9F2}")
{}

const TPropriedades& TTarvoESocialCamposinfoPerApurS2299::Tabela()
{
    static const TPropriedades tabela{{"ideEstabLot", &TTarvoESocialCamposinfoPerApurS2299::ideEstabLot}};
    return tabela;
}

void TTarvoESocialCamposinfoPerApurS2299::CarregarDados(const TS2299DadosCalculos& ADadosCalculos)
{
    TTarvoESocialCamposGrupoBase::CarregarDados();
    CarregarIdeEstabLot(ideEstabLot, ADadosCalculos);
}

TTarvoESocialCamposidePeriodoS2299::TTarvoESocialCamposidePeriodoS2299(const TS2299DadosCalculos& ADadosCalculos)
    : TTarvoESocialCamposGrupoBase("{F1D04CC4-6715-4019-A6CF-1ABCD5AE68BA}"), FDadosCalculos(ADadosCalculos)
{}

const TPropriedades& TTarvoESocialCamposidePeriodoS2299::Tabela()
{
    using Eu = TTarvoESocialCamposidePeriodoS2299;
    static const TPropriedades tabela{{"perRef", &Eu::perRef}, {"ideEstabLot", &Eu::ideEstabLot}};
    return tabela;
}

void TTarvoESocialCamposidePeriodoS2299::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    CarregarIdeEstabLot(ideEstabLot, FDadosCalculos);
}

void TTarvoESocialCamposidePeriodoS2299::AtribuirValoresManualmente()
{
    TTarvoESocialCamposGrupoBase::AtribuirValoresManualmente();
    perRef = FDadosCalculos.DadosDmDev().DataInicio;
}

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
    return tabelas::SqlAcordo(FDadosCalculos.DadosS2299().IdAcordoConvencaoDissidio);
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

TTarvoESocialCamposinfoPerAntS2299::TTarvoESocialCamposinfoPerAntS2299()
    : TTarvoESocialCamposGrupoBase("{901C29CD-0C6F-4CE5-BED4-4B5A4BF4E584}")
{}

const TPropriedades& TTarvoESocialCamposinfoPerAntS2299::Tabela()
{
    static const TPropriedades tabela{{"ideADC", &TTarvoESocialCamposinfoPerAntS2299::ideADC}};
    return tabela;
}

void TTarvoESocialCamposinfoPerAntS2299::CarregarDados(const TS2299DadosCalculos& ADadosCalculos)
{
    TTarvoESocialCamposGrupoBase::CarregarDados();
    auto LAcordo = std::make_unique<TTarvoESocialCamposideADCS2299>(ADadosCalculos);
    LAcordo->CarregarDados();
    ideADC.push_back(std::move(LAcordo));
}

TTarvoESocialCamposInfoTrabIntermS2299::TTarvoESocialCamposInfoTrabIntermS2299(std::int64_t AIDDetConvocacaoTrabInterm)
    : TTarvoESocialCamposGrupoBase("{29B5A61A-58B2-484E-B586-EADB728C4E5D}"),
      FIDDetConvocacaoTrabInterm(AIDDetConvocacaoTrabInterm)
{}

const TPropriedades& TTarvoESocialCamposInfoTrabIntermS2299::Tabela()
{
    static const TPropriedades tabela{
        {"codConv", &TTarvoESocialCamposInfoTrabIntermS2299::codConv, TFieldRelacionado("CODIGOESOCIAL")}};
    return tabela;
}

std::string TTarvoESocialCamposInfoTrabIntermS2299::BuscarSQLDados()
{
    return tabelas::SqlConvocacao(FIDDetConvocacaoTrabInterm);
}

TTarvoESocialCamposdmDevS2299::TTarvoESocialCamposdmDevS2299(const TdmDevS2299IOP& ADadosDmDev)
    : TTarvoESocialCamposGrupoBase("{44E40CBB-230A-4D41-AA79-90C24D690A73}"), FDadosDmDev(ADadosDmDev),
      FDadosCalculos(FDadosDmDev)
{}

const TPropriedades& TTarvoESocialCamposdmDevS2299::Tabela()
{
    using Eu = TTarvoESocialCamposdmDevS2299;
    static const TPropriedades tabela{
        {"ideDmDev", &Eu::ideDmDev},
        {"infoPerApur", &Eu::infoPerApur},
        {"infoPerAnt", &Eu::infoPerAnt},
        {"infoTrabInterm", &Eu::infoTrabInterm},
    };
    return tabela;
}

bool TTarvoESocialCamposdmDevS2299::Vazio() const
{
    return infoPerApur.ideEstabLot.empty() && infoPerAnt.ideADC.empty() && infoTrabInterm.empty();
}

void TTarvoESocialCamposdmDevS2299::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    FDadosCalculos.CarregarRegistrosCalculo();
    if (FDadosDmDev.TipoCalculo == TTipoCalculoDesligamento::ComplementarPagoNaCompet)
        infoPerAnt.CarregarDados(FDadosCalculos);
    else
        infoPerApur.CarregarDados(FDadosCalculos);
    CarregarDadosInfoTrabInterm();
}

void TTarvoESocialCamposdmDevS2299::AtribuirValoresManualmente()
{
    TTarvoESocialCamposGrupoBase::AtribuirValoresManualmente();
    ideDmDev =
        FormarIdeDmDevDesligamento(FDadosDmDev, FDadosDmDev.TipoCalcComplem, FDadosDmDev.IdDetConvocacaoTrabInterm);
}

void TTarvoESocialCamposdmDevS2299::CarregarDadosInfoTrabInterm()
{
    if (FDadosDmDev.IdDetConvocacaoTrabInterm == 0)
        return;
    auto LConvocacao = std::make_unique<TTarvoESocialCamposInfoTrabIntermS2299>(FDadosDmDev.IdDetConvocacaoTrabInterm);
    LConvocacao->CarregarDados();
    infoTrabInterm.push_back(std::move(LConvocacao));
}

} // namespace tarvo::desligamento
