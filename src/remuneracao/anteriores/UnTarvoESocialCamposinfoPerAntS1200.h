#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "remuneracao/anteriores/UnTarvoESocialCamposIdeADC1200.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200IOP.h"

namespace tarvo::remuneracao {

/// S-1200 infoPerAnt: differences of a collective agreement for a month long past. The parameter object stands on the
/// month of the event, its PerRef on the earlier one.
class TTarvoESocialCamposinfoPerAntS1200 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposinfoPerAntS1200(TTarvoESocialCamposS1200IOP& AinfoBind1200);

    /// One entry after a load, also when it holds no earlier month.
    TListaDeGrupos<TTarvoESocialCamposIdeADC1200> ideAdc;
    /// The entry holds an earlier month; by this the event keeps or drops the demonstrative.
    bool possuiInformacao = false;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }

private:
    void CarregarDadosIdeAdc(const TListaCamposModificados* AListaCamposModificados);

    TTarvoESocialCamposS1200IOP& FInfoBind;
};

} // namespace tarvo::remuneracao
