#pragma once

#include "pagamento/s1210/UnTarvoESocialCamposQuadrosS1210.h"
#include "pagamento/s1210/UnTarvoESocialCamposS1210IOP.h"

namespace tarvo::pagamento {

/// S-1210 detPgtoAnt: what was paid to the workers of a category for periods before the date of change of layout, by
/// incidence of income tax, in reais. Sources: CALCULO, CALCCOMPL, FP_ESOCIALINCIDIRRF.
class TTarvoESocialCamposdetPgtoAnt : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposdetPgtoAnt(const TTarvoESocialCamposS1210IOP& AInfoBind);

    /// Set by whoever creates the group, before the load.
    std::int32_t codCateg = 0;
    TListaDeGrupos<TTarvoESocialCamposInfoPgtoAnt> InfoPgtoAnt;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }

private:
    void CarregarListaInfoPagtoAnt(const TListaCamposModificados* AListaCamposModificados);
    std::string BuscarListaIdEmpregadosPorCategoria() const;

    const TTarvoESocialCamposS1210IOP& FInfoBind;
};

} // namespace tarvo::pagamento
