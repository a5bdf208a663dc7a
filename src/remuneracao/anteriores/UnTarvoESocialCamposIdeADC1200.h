#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "remuneracao/anteriores/UnTarvoESocialCamposIdePeriodoS1200.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200IOP.h"

namespace tarvo::remuneracao {

/// S-1200 ideADC: the agreement, convention or collective award behind the differences. Source: FP_INFOGFIP650660.
class TTarvoESocialCamposIdeADC1200 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposIdeADC1200(TTarvoESocialCamposS1200IOP& AinfoBind1200);

    TDate dtAcConv;
    /// 6 for a complementary dismissal, whatever the agreement's kind.
    std::int32_t tpAcConv = 0;
    /// The run's day of payment.
    TDate compAcConv;
    TDate dtEfAcConv;
    std::string dsc;
    /// Nothing sets it.
    std::string remunSuc;
    /// None or one entry.
    TListaDeGrupos<TTarvoESocialCamposIdePeriodoS1200> idePeriodo;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;
    void AtribuirValoresManualmente() override;

private:
    void CarregarDadosIdePeriodo(const TListaCamposModificados* AListaCamposModificados);

    TTarvoESocialCamposS1200IOP& FInfoBind;
};

} // namespace tarvo::remuneracao
