#pragma once

#include <memory>

#include "desligamento/verbas/UnTarvoESocialCamposDemonstrativosDesligamento.h"
#include "imports/consultas/UnTarvoConsultasEmpresa.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"

namespace tarvo::desligamento {

/// verbasResc: what a termination paid, one demonstrative a calculation. The constructor reads the company and the day
/// of the dismissal. Each event says which calculations it lists and what a row of the list tells.
template <class TDadosDmDev, class TDmDev, class TProcJudTrab, class TInfoMV>
class TTarvoESocialCamposverbasRescDesligamento : public TTarvoESocialCamposGrupoBase {
public:
    TListaDeGrupos<TDmDev> dmDev;
    TListaDeGrupos<TProcJudTrab> procJudTrab;
    TInfoMV infoMV;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override
    {
        TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
        CarregarDadosDmDev();
        CarregarDadosProcJudTrab();
        infoMV.CarregarDados(AListaCamposModificados);
    }

    static const TPropriedades& Tabela()
    {
        using Eu = TTarvoESocialCamposverbasRescDesligamento;
        static const TPropriedades tabela{
            {"dmDev", &Eu::dmDev},
            {"procJudTrab", &Eu::procJudTrab},
            {"infoMV", &Eu::infoMV},
        };
        return tabela;
    }

protected:
    TTarvoESocialCamposverbasRescDesligamento(std::string_view AGuid, std::int64_t AIdEmpregado)
        : TTarvoESocialCamposGrupoBase(AGuid), infoMV(AIdEmpregado), FIdEmpregado(AIdEmpregado),
          FIDEmpresa(TTarvoConsultasEmpregado::BuscarIDEmpresaDoEmpregado(AIdEmpregado)),
          FDataDemissao(TTarvoConsultasEmpregado::BuscarDataDemissao(AIdEmpregado))
    {}

    virtual std::string SqlDosDemonstrativos(const TDadosDmDev& ADmDev) const = 0;
    virtual void AlimentarDemonstrativo(TDadosDmDev& ADmDev, const TOvraClientDataSet& ACds) const = 0;

    const TPropriedades& Propriedades() const override { return Tabela(); }

private:
    void CarregarDadosDmDev()
    {
        TDadosDmDev LDmDev;
        LDmDev.IDEmpregado = FIdEmpregado;
        LDmDev.TipoQuebraEmpresa = TTarvoConsultasEmpresa::BuscarTipoQuebraGpsGfipEmpresa(FIDEmpresa);
        LDmDev.DataDemissao = FDataDemissao;

        const auto LCds = TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(SqlDosDemonstrativos(LDmDev));
        for (; !LCds->Eof(); LCds->Next()) {
            AlimentarDemonstrativo(LDmDev, *LCds);
            auto LDemonstrativo = std::make_unique<TDmDev>(LDmDev);
            LDemonstrativo->CarregarDados();
            if (!LDemonstrativo->Vazio())
                dmDev.push_back(std::move(LDemonstrativo));
        }
    }

    /// The judicial processes of the worker that were opened by the day of the dismissal.
    void CarregarDadosProcJudTrab()
    {
        for (const auto& LId :
             TTarvoConsultasEmpregado::BuscarProcessosDoEmpregado(FIDEmpresa, FIdEmpregado, "", FDataDemissao)) {
            auto LProcesso = std::make_unique<TProcJudTrab>(StrToInt64Def(LId, 0));
            LProcesso->CarregarDados();
            procJudTrab.push_back(std::move(LProcesso));
        }
    }

    std::int64_t FIdEmpregado;
    std::int64_t FIDEmpresa;
    TDateTime FDataDemissao;
};

} // namespace tarvo::desligamento
