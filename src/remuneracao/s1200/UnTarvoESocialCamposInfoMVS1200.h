#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "remuneracao/s1200/UnTarvoESocialCamposRemunOutrEmprS1200.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200IOP.h"

namespace tarvo::remuneracao {

/// S-1200 infoMV: whether other employers withhold social security of the worker, and what they pay. Sources: the
/// contracts' INDICADORDESCINSS, else the receipts of the month; RENDIMENTOS and FP_RPAOUTROSREND for the incomes.
class TTarvoESocialCamposInfoMVS1200 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposInfoMVS1200(const TTarvoESocialCamposS1200IOP& AinfoBind1200);

    /// 1 this employer deducts from the whole, 2 from what is left, 3 others reached the limit. A worker of whom
    /// nothing is known reads 3; that is meant.
    std::int32_t indMV = 0;
    TListaDeGrupos<TTarvoESocialCamposRemunOutrEmprS1200> remunOutrEmpr;
    bool PossuiInformacao() const { return indMV > 0; }

    /// A further load adds to remunOutrEmpr.
    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    void CarregarDadosremunOutrEmpr();
    std::string SqlRemunOutrEmpr() const;

    const TTarvoESocialCamposS1200IOP& FInfoBind;
};

} // namespace tarvo::remuneracao
