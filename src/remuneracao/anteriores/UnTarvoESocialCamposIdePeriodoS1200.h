#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/UnTarvoTypesCalculos.h"
#include "remuneracao/anteriores/UnTarvoESocialCamposIdeEstabLotS1200PerAnt.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200IOP.h"

namespace tarvo::remuneracao {

/// S-1200 idePeriodo: the earlier month of an agreement, by the establishments and departments of then. Source:
/// CALCULO and its split rows in the month of PerRef. The constructor reads how the employer splits its guides.
class TTarvoESocialCamposIdePeriodoS1200 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposIdePeriodoS1200(TTarvoESocialCamposS1200IOP& AinfoBind1200);

    /// PerRef; of a complementary dismissal the start of the normal dismissal's calculation, where there is one.
    TDate perRef;
    /// Those with workers, establishments first.
    TListaDeGrupos<TTarvoESocialCamposIdeEstabLotS1200PerAnt> ideEstabLot;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }

private:
    void CarregarDadosideEstabLot(const TListaCamposModificados* AListaCamposModificados);
    void CarregarIdeEstabLot(std::int64_t AIdFilial, std::int64_t AIdDepto,
                             const TListaCamposModificados* AListaCamposModificados);
    void CarregarLotacoesDoEmpregado();
    TDateTime BuscarDataRescisaoNormal() const;

    TTarvoESocialCamposS1200IOP& FInfoBind;
    TTipoQuebraGpsGfip FTipoQuebraEmpresa;
    std::vector<std::int64_t> FIdDeptosEstabLot;
    std::vector<std::int64_t> FIdEstabsEstabLot;
};

} // namespace tarvo::remuneracao
