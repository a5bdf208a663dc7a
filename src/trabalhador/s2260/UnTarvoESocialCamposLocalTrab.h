#pragma once

#include "trabalhador/s2260/UnTarvoESocialCamposLocalTrabInterm.h"

namespace tarvo::trabalhador {

/// S-2260 localTrab: where the work is done. Source: FP_CONTRAINTERM.
class TTarvoESocialCamposLocalTrab : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposLocalTrab(std::int64_t AIdEmpregado, TDateTime ADataInicio);

    std::string indLocal;
    TTarvoESocialCamposLocalTrabInterm LocalTrabInterm;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdEmpregado;
    TDateTime FDataInicio;
};

} // namespace tarvo::trabalhador
