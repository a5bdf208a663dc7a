#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "remuneracao/UnTarvoESocialCamposInfoAgNocivoS1200.h"
#include "remuneracao/UnTarvoESocialCamposInfoSaudeColetS1200.h"
#include "remuneracao/UnTarvoESocialCamposInfoTrabInterm.h"
#include "remuneracao/UnTarvoESocialCamposItensRemunS1200.h"
#include "remuneracao/UnTarvoESocialCamposS1200IOP.h"

namespace tarvo::remuneracao {

/// S-1200 remunPerApur: the remuneration of one contract, or of one provider, in one lotação of the current period.
/// Sources: EMPREGADOS for the registration, the calculated rows for the rest. The worker is that of the parameter
/// object.
class TTarvoESocialCamposRemunPerApurS1200 : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposRemunPerApurS1200(TTarvoESocialCamposS1200IOP& AinfoBind1200, std::int64_t AIdFilial,
                                         std::int64_t AIdDepto);

    std::int64_t IdFilial;
    std::int64_t IdDepto;
    std::int32_t indSimples = 0;
    /// "0" for a provider.
    std::string matricula;
    TListaDeGrupos<TTarvoESocialCamposItensRemunS1200> itensRemun;
    TTarvoESocialCamposInfoAgNocivoS1200 infoAgNocivo;
    /// At most one entry.
    TListaDeGrupos<TTarvoESocialCamposInfoTrabInterm> infoTrabInterm;
    TTarvoESocialCamposInfoSaudeColetS1200 InfoSaudeColet;
    /// Of an employee; 0 for a provider.
    std::int32_t codCateg = 0;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

protected:
    const TPropriedades& Propriedades() const override;
    std::string BuscarSQLDados() override;
    void AtribuirValoresManualmente() override;

private:
    void GerarListaItensRemunEmpregados(const TListaCamposModificados* AListaCamposModificados);
    void GerarListainfoSaudeColet(const TListaCamposModificados* AListaCamposModificados);
    void CarregarDadosinfoTrabInterm();

    TTarvoESocialCamposS1200IOP& FInfoBind;
    std::vector<TDadosCalculo> FListaIdCalculo;
};

} // namespace tarvo::remuneracao
