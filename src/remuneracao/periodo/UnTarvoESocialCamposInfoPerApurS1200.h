#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/UnTarvoTypesCalculos.h"
#include "remuneracao/periodo/UnTarvoESocialCamposIdeEstabLotS1200.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200IOP.h"

namespace tarvo::remuneracao {

/// S-1200 infoPerApur: the current period of a run, by establishment and, where the employer splits its guides by
/// department, by department. Below it everything loads, whatever the list given to the event.
class TTarvoESocialCamposInfoPerApurS1200 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposInfoPerApurS1200(TTarvoESocialCamposS1200IOP& AinfoBind1200);

    /// Those with items, establishments first.
    TListaDeGrupos<TTarvoESocialCamposIdeEstabLotS1200> ideEstabLot;
    std::int32_t codCateg = 0;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }

private:
    void CarregarDadosideEstabLot();
    void CarregarIdeEstabLot(std::int64_t AIdFilial, std::int64_t AIdDepto);
    void CarregarLotacoesDoEmpregado();
    void CarregarLotacoesDoPrestServ();
    void CarregarLotacoes(const std::string& ASql);

    TTarvoESocialCamposS1200IOP& FInfoBind;
    TTipoQuebraGpsGfip FTipoQuebraEmpresa = TTipoQuebraGpsGfip::Nenhuma;
    std::vector<std::int64_t> FIdDeptosEstabLot;
    std::vector<std::int64_t> FIdEstabsEstabLot;
};

} // namespace tarvo::remuneracao
