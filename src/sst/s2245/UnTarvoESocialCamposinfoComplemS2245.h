#pragma once

#include "sst/s2245/UnTarvoESocialCamposideProfResp.h"

namespace tarvo::sst {

/// S-2245 infoComplem: date, length and kind of the course where it is marked for the event, and its professionals
/// whether it is or not. Source: FP_CURSOEMPREGADO and FP_CURSOEMPREGADODET.
class TTarvoESocialCamposinfoComplemS2245 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposinfoComplemS2245(std::int64_t AIdCursoEmpregado);

    TDateTime dtTreiCap;
    std::string durTreiCap;
    std::string modTreiCap;
    std::string tpTreiCap;
    TListaDeGrupos<TTarvoESocialCamposideProfResp> ideProfResp;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    void CarregarProfissionais(const TListaCamposModificados* AListaCamposModificados);

    std::int64_t FIdCursoEmpregado;
};

} // namespace tarvo::sst
