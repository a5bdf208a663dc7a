#include "desligamento/UnTarvoESocialCamposverbasRescS2399.h"

#include "desligamento/UnTarvoESocialCamposDemonstrativosDesligamento.h"
#include "imports/UnOvraFormat.h"
#include "imports/UnTarvoConsultasGeral.h"

namespace tarvo::desligamento {

namespace {

constexpr std::string_view TIPO_CALC = "TIPO_CALC_S2399";

std::string SqlDosDemonstrativos(const TdmDevS2399IOP& ADmDev)
{
    // Informative rubrics always have a value: they alone are no calculation.
    static constexpr std::string_view SEM_INFORMATIVAS = "\n  AND TAB_VERBAS.TIPO <> '5'";
    const TRamoDeDemonstrativo LRescisao{TTipoCalculoDesligamento::Rescisao, "0 AS SUBTIPO", JUNCAO_VERBAS,
                                         "CALCULO.TIPO = '05'\n  AND CALCULO.SUBTIPO = 0" +
                                             std::string(SEM_INFORMATIVAS)};
    // Nor is the net of the termination.
    auto LComplementar = RamoRescisaoComplementar(ADmDev, "CALCULO.SUBTIPO AS SUBTIPO");
    LComplementar.Condicoes += std::string(SEM_INFORMATIVAS) + "\n  AND TAB_VERBAS.FORMULA <> '8J'";
    const auto LOutros = RamoOutrosTiposNaCompetencia(ADmDev, "0 AS SUBTIPO");

    const auto Ramo = [&](const TRamoDeDemonstrativo& ARamo) {
        return SqlDoRamo(ARamo, TIPO_CALC, ADmDev.IDEmpregado);
    };
    static constexpr std::string_view SQL = R"(SELECT * FROM (
%0:s
UNION
%1:s
UNION
%2:s
)
ORDER BY TIPO_CALC_S2399, DATA_INICIO, TIPO, SUBTIPO)";
    return Format(SQL, Ramo(LRescisao), Ramo(LComplementar), Ramo(LOutros));
}

} // namespace

TTarvoESocialCamposdmDev2399::TTarvoESocialCamposdmDev2399(const TdmDevS2399IOP& ADadosDmDev)
    : TTarvoESocialCamposGrupoBase("{8758E81C-0BC8-4329-B6BB-71F747D6FE59}"), FDadosDmDev(ADadosDmDev),
      FDadosCalculos(FDadosDmDev)
{}

const TPropriedades& TTarvoESocialCamposdmDev2399::Propriedades() const
{
    using Eu = TTarvoESocialCamposdmDev2399;
    static const TPropriedades tabela{{"ideEstabLot", &Eu::ideEstabLot}, {"ideDmDev", &Eu::ideDmDev}};
    return tabela;
}

void TTarvoESocialCamposdmDev2399::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    FDadosCalculos.CarregarRegistrosCalculo();
    CarregarIdeEstabLot(ideEstabLot, FDadosCalculos);
}

void TTarvoESocialCamposdmDev2399::AtribuirValoresManualmente()
{
    TTarvoESocialCamposGrupoBase::AtribuirValoresManualmente();
    ideDmDev = FormarIdeDmDevDesligamento(FDadosDmDev, 0, 0);
}

TTarvoESocialCamposverbasRescS2399::TTarvoESocialCamposverbasRescS2399(std::int64_t AIdEmpregado)
    : TTarvoESocialCamposGrupoBase("{0775E6B5-8D5B-4886-B19C-1E05F1255952}"), infoMV(AIdEmpregado),
      FIdEmpregado(AIdEmpregado), FIDEmpresa(TTarvoConsultasEmpregado::BuscarIDEmpresaDoEmpregado(AIdEmpregado)),
      FDataDemissao(TTarvoConsultasEmpregado::BuscarDataDemissao(AIdEmpregado))
{}

const TPropriedades& TTarvoESocialCamposverbasRescS2399::Propriedades() const
{
    using Eu = TTarvoESocialCamposverbasRescS2399;
    static const TPropriedades tabela{
        {"dmDev", &Eu::dmDev},
        {"procJudTrab", &Eu::procJudTrab},
        {"infoMV", &Eu::infoMV},
    };
    return tabela;
}

void TTarvoESocialCamposverbasRescS2399::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    CarregarDadosDmDev();
    CarregarDadosProcJudTrab();
    infoMV.CarregarDados(AListaCamposModificados);
}

void TTarvoESocialCamposverbasRescS2399::CarregarDadosDmDev()
{
    TdmDevS2399IOP LDmDev;
    LDmDev.IDEmpregado = FIdEmpregado;
    LDmDev.TipoQuebraEmpresa = TTarvoConsultasEmpresa::BuscarTipoQuebraGpsGfipEmpresa(FIDEmpresa);
    LDmDev.DataDemissao = FDataDemissao;

    const auto LCds = TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(SqlDosDemonstrativos(LDmDev));
    for (; !LCds->Eof(); LCds->Next()) {
        AlimentarDmDev(LDmDev, *LCds, TIPO_CALC);
        auto LDemonstrativo = std::make_unique<TTarvoESocialCamposdmDev2399>(LDmDev);
        LDemonstrativo->CarregarDados();
        if (!LDemonstrativo->ideEstabLot.empty())
            dmDev.push_back(std::move(LDemonstrativo));
    }
}

void TTarvoESocialCamposverbasRescS2399::CarregarDadosProcJudTrab()
{
    CarregarProcJudTrab(procJudTrab, FIDEmpresa, FIdEmpregado, FDataDemissao);
}

} // namespace tarvo::desligamento
