#pragma once

#include "imports/pcesConversaoeSocial.h"
#include "pagamento/s1210/UnTarvoESocialCamposDetPgtoBenPr.h"
#include "pagamento/s1210/UnTarvoESocialCamposdetPgtoAnt.h"
#include "pagamento/s1210/UnTarvoESocialCamposdetPgtoFer.h"
#include "pagamento/s1210/UnTarvoESocialCamposdetPgtoFl.h"

namespace tarvo::pagamento {

/// S-1210 infoPgto: the payments of one date and kind. 1 is remuneration of a month or a receipt, 2 a payment in the
/// month of a dismissal, 3 in that of the termination of a worker without a bond, 7 a vacation, 9 what was calculated
/// before the date of change of layout. Sources: CALCULO, CALCCOMPL, RESC_COMPL, RPA, FERIAS_QUITACAO.
class TTarvoESocialCamposinfoPgto : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposinfoPgto(const TTarvoESocialCamposS1210IOP& AInfoBind);

    TDateTime dtPgto;
    /// Set by whoever creates the group, before the load.
    std::int32_t tpPgto = 0;
    /// Resident in Brazil: yes, for every beneficiary.
    tpSimNao indResBr = tpSimNao::Sim;
    TListaDeGrupos<TTarvoESocialCamposdetPgtoFl> detPgtoFl;
    /// Never loaded here.
    TTarvoESocialCamposDetPgtoBenPr detPgtoBenPr;
    TListaDeGrupos<TTarvoESocialCamposdetPgtoFer> detPgtoFer;
    TListaDeGrupos<TTarvoESocialCamposdetPgtoAnt> detPgtoAnt;
    /// Spelt like this in the JSON. Never loaded here.
    TTarvoESocialCamposIdePgtoExt IdePgtoExe;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }

private:
    void AlimentarPropriedadeDaTag();
    void CarregarListadetPgtoFl();
    void CarregarListadetPgtoFlEmpregados();
    void CarregarListadetPgtoFlPrestServicos();
    void CarregarListadetPgtoFer();
    void CarregarListadetPgtoAnt();
    void InicializarInfoBindAux();

    const TTarvoESocialCamposS1210IOP& FInfoBind;
    /// Of the detail groups, rewritten before each of them loads.
    TTarvoESocialCamposS1210IOP FInfoBindAux;
    const TListaCamposModificados* FListaCamposModificados = nullptr;
};

} // namespace tarvo::pagamento
