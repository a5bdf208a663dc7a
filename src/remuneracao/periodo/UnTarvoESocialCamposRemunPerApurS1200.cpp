#include "remuneracao/periodo/UnTarvoESocialCamposRemunPerApurS1200.h"

#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposRemunPerApurS1200::TTarvoESocialCamposRemunPerApurS1200(TTarvoESocialCamposS1200IOP& AinfoBind1200,
                                                                           std::int64_t AIdFilial,
                                                                           std::int64_t AIdDepto)
    : TTarvoESocialCamposRemunS1200(AinfoBind1200, AIdFilial, AIdDepto), InfoSaudeColet(AinfoBind1200)
{}

const TPropriedades& TTarvoESocialCamposRemunPerApurS1200::Tabela()
{
    using Eu = TTarvoESocialCamposRemunPerApurS1200;
    static const TPropriedades tabela(TTarvoESocialCamposRemunS1200::Tabela(),
                                      {
                                          {"InfoSaudeColet", &Eu::InfoSaudeColet},
                                          {"codCateg", &Eu::codCateg},
                                      });
    return tabela;
}

std::string TTarvoESocialCamposRemunPerApurS1200::BuscarSQLDados()
{
    static constexpr std::string_view SQL_PRESTADOR = R"(SELECT 0 AS MATRICULA
FROM PREST_SERVICO
WHERE PREST_SERVICO.IDPRESTSERVICO = %0:D)";
    if (FInfoBind.TipoEmpregado() == TTipoTrabalhador::Empregado)
        return TTarvoESocialCamposRemunS1200::BuscarSQLDados();
    return Format(SQL_PRESTADOR, FInfoBind.IdEmpregado());
}

void TTarvoESocialCamposRemunPerApurS1200::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposRemunS1200::CarregarDados(AListaCamposModificados);
    FListaIdCalculo = GerarListaItensRemunEmpregados(TTagOrigem::toRemunPerApur, AListaCamposModificados);
    // A complementary run has no health plan.
    if (FInfoBind.SubTipoFolha() != 4)
        GerarListainfoSaudeColet(AListaCamposModificados);
    if (FInfoBind.TipoEmpregado() == TTipoTrabalhador::Empregado)
        infoAgNocivo.CarregarDados(AListaCamposModificados);
    CarregarDadosinfoTrabInterm();
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
