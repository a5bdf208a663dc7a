#pragma once

#include <cstdint>
#include <string>

#include "imports/pcesConversaoeSocial.h"

namespace tarvo::tabelas {

/// Kind and number of inscription of a place of work, read at construction: of the department where there is one,
/// else of the establishment (its CAEPF, else its CEI, else its CNPJ). Source: SC00_FILIAL or SC00_DEPTO,
/// SC00_EMPRESA; without a row CNPJ and an empty number. Raises EDatabaseError.
class TTarvoESocialCamposTipoInscricao1005 {
public:
    TTarvoESocialCamposTipoInscricao1005(std::int64_t AIdEstab, std::int64_t AIdDepto);

    tpTpInsc TipoInscricao = tpTpInsc::CNPJ;
    std::string Inscricao;
};

} // namespace tarvo::tabelas
