#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "remuneracao/anteriores/UnTarvoESocialCamposRemunPerAnt.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200IOP.h"

namespace tarvo::remuneracao {

/// S-1200 ideEstabLot of an earlier period: an establishment or a department, and the workers of the category who were
/// calculated there in the month of PerRef. Sources: SC00_FILIAL, SC00_DEPTO. Bears the GUID of its twin of the
/// current period: a list of groups selects both.
class TTarvoESocialCamposIdeEstabLotS1200PerAnt : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposIdeEstabLotS1200PerAnt(TTarvoESocialCamposS1200IOP& AinfoBind1200);

    std::string tpInsc;
    std::string nrInsc;
    std::string codLotacao;
    /// 0 for a department's group.
    std::int64_t IdFilial = 0;
    /// 0 for an establishment's group.
    std::int64_t IdDepto = 0;
    TListaDeGrupos<TTarvoESocialCamposRemunPerAnt> remunPerAnt;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    void FiltrarTrabalhadoresPorLotacao();
    void CarregarDadosRemunPerAnt();

    TTarvoESocialCamposS1200IOP& FInfoBind;
    std::vector<std::int64_t> FListaIdsEmpregado;
};

} // namespace tarvo::remuneracao
