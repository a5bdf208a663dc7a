#pragma once

#include "imports/UnOvraExcecoes.h"

namespace tarvo::ferramenta {

/// The program was called wrongly: exit 2, with the usage line.
class EUsoErrado : public Exception {
public:
    using Exception::Exception;
};

constexpr int SAIDA_FEITO = 0;
constexpr int SAIDA_FALHA = 1;
constexpr int SAIDA_USO_ERRADO = 2;

} // namespace tarvo::ferramenta
