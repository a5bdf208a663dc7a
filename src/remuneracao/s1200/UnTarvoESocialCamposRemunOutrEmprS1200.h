#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::remuneracao {

/// S-1200 remunOutrEmpr: what the worker earns at another employer. A holder: the parent sets it.
class TTarvoESocialCamposRemunOutrEmprS1200 : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposRemunOutrEmprS1200();

    std::string tpInsc;
    std::string nrInsc;
    /// -2 when the source has none.
    std::int32_t codCateg = 0;
    double vlrRemunOE = 0;

    /// The spelling is the property's.
    bool PossuiInfomacao() const;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::remuneracao
