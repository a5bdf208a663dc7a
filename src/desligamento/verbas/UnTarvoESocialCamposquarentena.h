#pragma once

#include "framework/UnTarvoESocialCamposQuadro.h"

namespace tarvo::desligamento {

/// S-2299 and S-2399 quarentena: the paid quarantine after the end. The caller fills it.
class TTarvoESocialCamposquarentena : public TTarvoESocialCamposQuadro<TTarvoESocialCamposquarentena> {
public:
    explicit TTarvoESocialCamposquarentena(std::int64_t AIdEmpregado)
        : TTarvoESocialCamposQuadro("{24EC589F-125B-4056-B8B1-B8B9FB43BE86}", AIdEmpregado)
    {}

    std::string dtFimQuar;

    static TPropriedades Tags() { return {{"dtFimQuar", &Eu::dtFimQuar}}; }
};

} // namespace tarvo::desligamento
