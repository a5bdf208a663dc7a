#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200IOP.h"
#include "remuneracao/s1200/UnTarvoESocialCamposSucessaoVincS1200.h"

namespace tarvo::remuneracao {

/// S-1200 infoComplem: who a worker without a registration is. Source: PREST_SERVICO by the digits of the CPF; empty
/// for a plain employee.
class TTarvoESocialCamposInfoComplemS1200 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposInfoComplemS1200(const TTarvoESocialCamposS1200IOP& AinfoBind1200);

    bool PossuiInformacao() const;
    std::string nmTrab;
    TDate dtNascto;
    /// Nothing sets it.
    std::int32_t qtdDiasTrab = 0;
    TTarvoESocialCamposSucessaoVincS1200 sucessaoVinc;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    const TTarvoESocialCamposS1200IOP& FInfoBind;
};

} // namespace tarvo::remuneracao
