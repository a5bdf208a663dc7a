#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "remuneracao/UnTarvoESocialCamposInfoAgNocivoS1200.h"
#include "remuneracao/UnTarvoESocialCamposInfoTrabInterm.h"
#include "remuneracao/UnTarvoESocialCamposItensRemunS1200.h"
#include "remuneracao/UnTarvoESocialCamposS1200IOP.h"

namespace tarvo::remuneracao {

/// S-1200 remunPerAnt: the differences of one contract in one lotação of an earlier period. Sources: EMPREGADOS, the
/// complementary calculations. A provider has none. Bears the GUID of its twin of the current period: a list of groups
/// selects both.
class TTarvoESocialCamposRemunPerAnt : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposRemunPerAnt(TTarvoESocialCamposS1200IOP& AinfoBind1200);

    /// Set by the parent.
    std::int64_t IdFilial = 0;
    std::int64_t IdDepto = 0;
    /// In force at the end of the event's month.
    std::int32_t indSimples = 0;
    std::string matricula;
    TListaDeGrupos<TTarvoESocialCamposItensRemunS1200> itensRemun;
    TTarvoESocialCamposInfoAgNocivoS1200 infoAgNocivo;
    /// Stays empty.
    TListaDeGrupos<TTarvoESocialCamposInfoTrabInterm> infoTrabInterm;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

protected:
    const TPropriedades& Propriedades() const override;
    std::string BuscarSQLDados() override;
    void AtribuirValoresManualmente() override;

private:
    void GerarListaItensRemunEmpregados(const TListaCamposModificados* AListaCamposModificados);
    void CarregarDadosinfoTrabInterm() const;

    TTarvoESocialCamposS1200IOP& FInfoBind;
};

} // namespace tarvo::remuneracao
