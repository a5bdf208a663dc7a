#pragma once

#include <cstdint>
#include <string>

#include "imports/pcesConversaoeSocial.h"

namespace tarvo::tabelas {

/// Kind and number of inscription of a place, for the groups that name an establishment. Worked out at construction
/// from SC00_DEPTO, or from SC00_FILIAL when AIdDepto is 0; a place that doesn't exist leaves CNPJ and no number.
/// Raises EDatabaseError with the engine's text.
class TTarvoESocialCamposTipoInscricao1005 {
public:
    /// The groups of S-1005 test the establishment's id first. Here the department wins when both are given; meant.
    TTarvoESocialCamposTipoInscricao1005(std::int64_t AIdEstab, std::int64_t AIdDepto);

    tpTpInsc TipoInscricao = tpTpInsc::CNPJ;
    /// CAEPF, else CEI, else CNPJ of an establishment; the own inscription of a department.
    std::string Inscricao;
};

} // namespace tarvo::tabelas
