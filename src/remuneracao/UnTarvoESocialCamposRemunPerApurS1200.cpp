#include "remuneracao/UnTarvoESocialCamposRemunPerApurS1200.h"

#include "imports/UnOvraConversoes.h"
#include "imports/UnOvraFormat.h"
#include "imports/UnTarvoConsultasESocial.h"
#include "remuneracao/UnTarvoESocialCamposS1200DadosCalculo.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposRemunPerApurS1200::TTarvoESocialCamposRemunPerApurS1200(TTarvoESocialCamposS1200IOP& AinfoBind1200,
                                                                           std::int64_t AIdFilial,
                                                                           std::int64_t AIdDepto)
    : TTarvoESocialCamposGrupoBase("{63D2CB1F-629B-4C36-8E0E-2755F61D9AA5}"), IdFilial(AIdFilial), IdDepto(AIdDepto),
      infoAgNocivo(AinfoBind1200), InfoSaudeColet(AinfoBind1200), FInfoBind(AinfoBind1200)
{}

const TPropriedades& TTarvoESocialCamposRemunPerApurS1200::Propriedades() const
{
    using Eu = TTarvoESocialCamposRemunPerApurS1200;
    static const TPropriedades tabela{
        {"IdFilial", &Eu::IdFilial},
        {"IdDepto", &Eu::IdDepto},
        {"indSimples", &Eu::indSimples},
        {"matricula", &Eu::matricula, TFieldRelacionado("MATRICULA")},
        {"itensRemun", &Eu::itensRemun},
        {"infoAgNocivo", &Eu::infoAgNocivo},
        {"infoTrabInterm", &Eu::infoTrabInterm},
        {"InfoSaudeColet", &Eu::InfoSaudeColet},
        {"codCateg", &Eu::codCateg},
    };
    return tabela;
}

std::string TTarvoESocialCamposRemunPerApurS1200::BuscarSQLDados()
{
    static constexpr std::string_view SQL_EMPREGADO = R"(SELECT EMPREGADOS.CODIGOESOCIAL AS MATRICULA
FROM EMPREGADOS
WHERE EMPREGADOS.IDEMPREGADO = %0:D)";
    static constexpr std::string_view SQL_PRESTADOR = R"(SELECT 0 AS MATRICULA
FROM PREST_SERVICO
WHERE PREST_SERVICO.IDPRESTSERVICO = %0:D)";
    return Format(FInfoBind.TipoEmpregado() == TTipoTrabalhador::Empregado ? SQL_EMPREGADO : SQL_PRESTADOR,
                  FInfoBind.IdEmpregado());
}

void TTarvoESocialCamposRemunPerApurS1200::AtribuirValoresManualmente()
{
    indSimples = TTarvoConsultasESocial::BuscarIndSimples(IdFilial, IdDepto, FInfoBind.DataFim());
}

void TTarvoESocialCamposRemunPerApurS1200::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    GerarListaItensRemunEmpregados(AListaCamposModificados);
    // A complementary run has no health plan.
    if (FInfoBind.SubTipoFolha() != 4)
        GerarListainfoSaudeColet(AListaCamposModificados);
    if (FInfoBind.TipoEmpregado() == TTipoTrabalhador::Empregado)
        infoAgNocivo.CarregarDados(AListaCamposModificados);
    CarregarDadosinfoTrabInterm();
}

void TTarvoESocialCamposRemunPerApurS1200::GerarListaItensRemunEmpregados(
    const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposS1200DadosCalculo LDadosCalculo(FInfoBind, IdFilial, IdDepto, TTagOrigem::toRemunPerApur);
    LDadosCalculo.CarregarListaDadosCalculo();
    FListaIdCalculo = std::move(LDadosCalculo.ListaDadosCalculo);
    GerarListaItensRemun(FInfoBind, FListaIdCalculo, AListaCamposModificados, itensRemun);
}

void TTarvoESocialCamposRemunPerApurS1200::GerarListainfoSaudeColet(
    const TListaCamposModificados* AListaCamposModificados)
{
    InfoSaudeColet.ListaDadosCalculo = &FListaIdCalculo;
    InfoSaudeColet.IdDepto = IdDepto;
    InfoSaudeColet.IdFilial = IdFilial;
    InfoSaudeColet.CarregarDados(AListaCamposModificados);
}

void TTarvoESocialCamposRemunPerApurS1200::CarregarDadosinfoTrabInterm()
{
    auto LConvocacao = std::make_unique<TTarvoESocialCamposInfoTrabInterm>(FInfoBind.IdDetConvocacao);
    LConvocacao->codCateg = codCateg;
    LConvocacao->CarregarDados();
    if (!Trim(LConvocacao->codConv).empty())
        infoTrabInterm.push_back(std::move(LConvocacao));
}

} // namespace tarvo::remuneracao
