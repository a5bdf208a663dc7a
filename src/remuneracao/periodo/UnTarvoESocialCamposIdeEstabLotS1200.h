#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "remuneracao/periodo/UnTarvoESocialCamposRemunPerApurS1200.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200IOP.h"

namespace tarvo::remuneracao {

/// S-1200 ideEstabLot: an establishment or a department, and the workers of the category who have calculation there.
/// Sources: SC00_FILIAL, SC00_DEPTO.
class TTarvoESocialCamposIdeEstabLotS1200 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposIdeEstabLotS1200(TTarvoESocialCamposS1200IOP& AinfoBind1200);

    std::string tpInsc;
    std::string nrInsc;
    /// No statement returns its column: always 0.
    std::int32_t qtdDiasAv = 0;
    std::string codLotacao;
    /// 0 for a department's group.
    std::int64_t IdFilial = 0;
    /// 0 for an establishment's group.
    std::int64_t IdDepto = 0;
    TListaDeGrupos<TTarvoESocialCamposRemunPerApurS1200> remunPerApur;
    std::int32_t codCateg = 0;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    void FiltrarTrabalhadoresPorLotacao();
    void CarregarDadosRemunPerApur();
    void CarregarRemunPerApur(TTipoTrabalhador ATipo, std::int64_t AIdTrabalhador);

    TTarvoESocialCamposS1200IOP& FInfoBind;
    const TListaCamposModificados* FListaCamposModificados = nullptr;
    std::vector<std::int64_t> FListaIdsEmpregado;
    std::vector<std::int64_t> FListaIdsPrestServico;
};

} // namespace tarvo::remuneracao
