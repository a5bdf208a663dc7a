#include "remuneracao/periodo/UnTarvoESocialCamposItensRemunS1200.h"

#include "imports/UnOvraExcecoes.h"
#include "imports/consultas/UnTarvoConsultasEmpregado.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/consultas/UnTarvoConsultasVerbas.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "imports/valores/UnTarvoUtilsMatematica.h"
#include "regras/UnTarvoESocialCamposBuscaIncidVerbas.h"
#include "regras/UnTarvoESocialCamposCodRubr.h"
#include "regras/UnTarvoESocialCamposIncidIrrf.h"
#include "regras/UnTarvoESocialCamposSqlCalculo.h"
#include "regras/UnTarvoESocialCamposSqlTabelaDeRubricas.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposItensRemunS1200::TTarvoESocialCamposItensRemunS1200(const TTarvoESocialCamposS1200IOP& AInfoBind)
    : TTarvoESocialCamposGrupoBase("{362B865D-56C8-4806-B873-3C353B54AAAD}"), FInfoBind(AInfoBind)
{}

const TPropriedades& TTarvoESocialCamposItensRemunS1200::Tabela()
{
    using Eu = TTarvoESocialCamposItensRemunS1200;
    static const TPropriedades tabela{
        {"codRubr", &Eu::codRubr},       {"ideTabRubr", &Eu::ideTabRubr, TFieldRelacionado("IDETABRUBR")},
        {"qtdRubr", &Eu::qtdRubr},       {"fatorRubr", &Eu::fatorRubr},
        {"vrUnit", &Eu::vrUnit},         {"vrRubr", &Eu::vrRubr},
        {"IdVerba", &Eu::IdVerba},       {"IdFilial", &Eu::IdFilial},
        {"IdDepto", &Eu::IdDepto},       {"CodIncInss", &Eu::CodIncInss},
        {"CodIncIrrf", &Eu::CodIncIrrf}, {"CodIncFgts", &Eu::CodIncFgts},
        {"CodIncCs", &Eu::CodIncCs},
    };
    return tabela;
}

std::string TTarvoESocialCamposItensRemunS1200::BuscarSQLDados()
{
    return regras::SqlTabelaDeRubricas(FInfoBind.IdEmpresa(), FInfoBind.DataInicio());
}

void TTarvoESocialCamposItensRemunS1200::CarregarDados(const TListaCamposModificados* AListaCamposModificados,
                                                       const TDadosCalculo& ADadosCalculo)
{
    FItemCalculo = ADadosCalculo;
    CarregarDados(AListaCamposModificados);
}

void TTarvoESocialCamposItensRemunS1200::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);

    const auto LNatRubr = TTarvoConsultasVerbas::BuscarNatRubrVerba(FItemCalculo.IdVerba, FInfoBind.DataInicio());
    const auto& LFormula = FItemCalculo.Formula;
    if (FInfoBind.TipoEmpregado() == TTipoTrabalhador::Prestador) {
        codRubr = FItemCalculo.Cod_Rubr;
    } else {
        AlimentarCampoCodRubr();
        if (FItemCalculo.Horas == "Sim" || LFormula.starts_with("4T"))
            qtdRubr = TTarvoUtilsMatematica::ConverterHorasEmDecimais(FItemCalculo.Referencia);
        if (LFormula.starts_with("9"))
            fatorRubr = regras::SomarQuantias(fatorRubr, FItemCalculo.Referencia);
        if (LFormula.starts_with("1C") || LFormula == "1Z" || LFormula == "3G" || LFormula == "3C")
            fatorRubr = regras::SomarQuantias(fatorRubr, FItemCalculo.Vlr_Calc);
    }
    vrRubr = regras::SomarQuantias(vrRubr, TTarvoConsultasGeral::VerbaUsaBase(LNatRubr, LFormula) ? FItemCalculo.Base
                                                                                                  : FItemCalculo.Valor);
    IdVerba = FItemCalculo.IdVerba;
}

void TTarvoESocialCamposItensRemunS1200::AlimentarCampoCodRubr()
{
    codRubr = IntToStr(FItemCalculo.Cod_Verba);
    const auto LIncid = regras::TTarvoESocialCamposBuscaIncidVerbas::BuscarIncidencias(
        FItemCalculo.IdVerba, TTarvoConsultasVerbas::BuscarTiposDeTributosComProcessoParaVerbaNaEmpresa(
                                  FItemCalculo.IdVerba, FInfoBind.IdEmpresa(), FInfoBind.DataInicio()));
    if (LIncid.FCodVerba == 0) {
        codRubr.clear();
        return;
    }
    // A tribute without a code keeps what the row before left.
    const auto Atribuir = [](std::int64_t& ACodigo, const std::vector<std::int32_t>& ALista) {
        if (!ALista.empty())
            ACodigo = ALista.front();
        return static_cast<std::int32_t>(ACodigo);
    };
    codRubr = regras::ComporCodRubr(FItemCalculo.Cod_Verba, {.codIncCP = Atribuir(CodIncInss, LIncid.FListInss),
                                                             .codIncIRRF = Atribuir(CodIncIrrf, LIncid.FListIrrf),
                                                             .codIncFGTS = Atribuir(CodIncFgts, LIncid.FListFgts),
                                                             .codIncSIND = Atribuir(CodIncCs, LIncid.FListCs)});
}

namespace {

bool EhReportado(const TTarvoESocialCamposItensRemunS1200& AItem, bool ACategoriaSemVinculo)
{
    const auto LInss = AItem.CodIncInss;
    return !AItem.codRubr.empty() && AItem.vrRubr > 0 && !regras::EhRetencaoDeIrrf(AItem.CodIncIrrf) && LInss != 23 &&
           LInss != 24 && LInss != 61 && !(ACategoriaSemVinculo && (LInss == 25 || LInss == 26 || LInss == 51));
}

} // namespace

void GerarListaItensRemun(const TTarvoESocialCamposS1200IOP& AInfoBind, const std::vector<TDadosCalculo>& ADadosCalculo,
                          const TListaCamposModificados* AListaCamposModificados,
                          TListaDeGrupos<TTarvoESocialCamposItensRemunS1200>& AItensRemun)
{
    const bool LCategoriaSemVinculo =
        AInfoBind.TipoEmpregado() == TTipoTrabalhador::Empregado &&
        StrToInt64Def(TTarvoConsultasEmpregado::BuscarCodCategoriaEmpregado(AInfoBind.IdEmpregado()).substr(0, 3), 0) >
            700;

    std::int32_t LAnterior = 0;
    TTarvoESocialCamposItensRemunS1200* LAtual = nullptr;
    for (const auto& LDados : ADadosCalculo) {
        if (LDados.Cod_Verba == LAnterior) {
            Existente(LAtual, "itensRemun").CarregarDados(AListaCamposModificados, LDados);
            continue;
        }
        auto LNovo = std::make_unique<TTarvoESocialCamposItensRemunS1200>(AInfoBind);
        LNovo->CarregarDados(AListaCamposModificados, LDados);
        // Judged by its first row alone: what follows of the rubric goes along. After an item that is left out the
        // next row of the same rubric starts anew.
        if (EhReportado(*LNovo, LCategoriaSemVinculo)) {
            LAtual = LNovo.get();
            LAnterior = LDados.Cod_Verba;
            AItensRemun.push_back(std::move(LNovo));
        } else {
            LAtual = nullptr;
            LAnterior = 0;
        }
    }
}

} // namespace tarvo::remuneracao
