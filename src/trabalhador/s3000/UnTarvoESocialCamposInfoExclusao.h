#pragma once

#include "trabalhador/s3000/UnTarvoESocialCamposIdeFolhaPagtoS3000.h"
#include "trabalhador/s3000/UnTarvoESocialCamposIdeTrabalhadorS3000.h"

namespace tarvo::trabalhador {

/// S-3000 infoExclusao: kind and receipt of the excluded event. Source: SC00_ESOCIALREINFXML with its accepted row
/// (status 201 or 202) of SC00_ESOCIALREINFDET. Its GUID is also that of the notice of S-2250.
class TTarvoESocialCamposInfoExclusao : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposInfoExclusao(std::int64_t AIdEvento);

    std::string tpEvento;
    std::string nrRecEvt;
    TTarvoESocialCamposIdeTrabalhadorS3000 ideTrabalhador;
    TTarvoESocialCamposIdeFolhaPagtoS3000 ideFolhaPagto;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdEvento;
};

} // namespace tarvo::trabalhador
