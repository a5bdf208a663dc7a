#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1000 idePeriodo: start of the employer in the eSocial. Source: SC00_EMPRESACFG 90/38/10, whatever the date; of
/// several rows iniValid takes the newest, DataIniCfg the one in force.
class TTarvoESocialCamposIdePeriodo : public TTarvoESocialCamposGrupoBase {
public:
    /// AData is the event's; without it the newest row stands before the others.
    explicit TTarvoESocialCamposIdePeriodo(std::int64_t AIDEmpresa, TDateTime AData = {});

    /// The first of the company's two dates of start.
    TDate iniValid;
    /// Never set: the employer's validity has no end.
    TDate fimValid;
    TDate DataIniCfg;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;
    void AtribuirValoresManualmente() override;

private:
    std::int64_t FIDEmpresa;
    TDateTime FData;
};

} // namespace tarvo::tabelas
