#pragma once

#include "sst/s2210/UnTarvoESocialCamposideLocalAcid.h"

namespace tarvo::sst {

/// S-2210 localAcidente: where it happened. Source: TABCAT with SST_AMBIENTES and code tables 20 and 6.
class TTarvoESocialCamposlocalAcidente : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposlocalAcidente(std::int64_t AIdTabCat);

    std::int32_t tpLocal = 0;
    std::string dscLocal;
    std::string codAmb;
    std::string tpLograd;
    std::string dscLograd;
    std::string nrLograd;
    std::string complemento;
    std::string bairro;
    std::string cep;
    std::string codMunic;
    std::string uf;
    std::string pais;
    /// The complement once more: the foreign postal code is read from no column; meant.
    std::string codPostal;
    TTarvoESocialCamposideLocalAcid ideLocalAcid;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdTabCat;
};

} // namespace tarvo::sst
