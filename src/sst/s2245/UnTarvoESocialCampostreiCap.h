#pragma once

#include "sst/s2245/UnTarvoESocialCamposinfoComplemS2245.h"

namespace tarvo::sst {

/// S-2245 treiCap: the course, where it is marked for the event. Source: FP_CURSOEMPREGADO.
class TTarvoeSocialCampostreiCap : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoeSocialCampostreiCap(std::int64_t AIdCursoEmpregado);

    std::string codTreiCap;
    std::string obsTreiCap;
    TTarvoESocialCamposinfoComplemS2245 infoComplem;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdCursoEmpregado;
};

} // namespace tarvo::sst
