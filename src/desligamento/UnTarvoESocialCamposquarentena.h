#pragma once

#include "framework/UnTarvoESocialCamposQuadro.h"

namespace tarvo::desligamento {

/// S-2299 and S-2399 quarentena: the paid quarantine after the end. The caller fills it.
class TTarvoESocialCamposquarentena : public TTarvoESocialCamposQuadro {
public:
    explicit TTarvoESocialCamposquarentena(std::int64_t AIdEmpregado)
        : TTarvoESocialCamposQuadro("{24EC589F-125B-4056-B8B1-B8B9FB43BE86}", AIdEmpregado)
    {}

    std::string dtFimQuar;

protected:
    const TPropriedades& Propriedades() const override
    {
        static const TPropriedades tabela{{"dtFimQuar", &TTarvoESocialCamposquarentena::dtFimQuar}};
        return tabela;
    }
};

} // namespace tarvo::desligamento
