#pragma once

#include "trabalhador/s2260/UnTarvoESocialCamposJornada.h"
#include "trabalhador/s2260/UnTarvoESocialCamposLocalTrab.h"

namespace tarvo::trabalhador {

/// S-2260 infoConvInterm: the call. Source: FP_CONTRAINTERM. Of the worker's id it keeps the low 32 bits, for its
/// children too; meant.
class TTarvoESocialCamposInfoConvInterm : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposInfoConvInterm(std::int64_t AIdEmpregado, TDateTime ADataInicio);

    std::string codConv;
    TDateTime dtInicio;
    TDateTime dtFim;
    TDateTime dtPrevPgto;
    TTarvoESocialCamposJornada Jornada;
    TTarvoESocialCamposLocalTrab LocalTrab;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int32_t FIdEmpregado;
    TDateTime FDataInicio;
};

} // namespace tarvo::trabalhador
