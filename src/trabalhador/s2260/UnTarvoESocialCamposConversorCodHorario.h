#pragma once

#include "framework/UnTarvoESocialCamposConversoresAtributo.h"

namespace tarvo::trabalhador {

/// A schedule's code that is a whole number in seven digits; any other text unchanged.
class TTarvoESocialCamposConversorCodHorario : public TTarvoESocialCamposConversorAbstrato {
public:
    static constexpr const char* NOME = "TTarvoESocialCamposConversorCodHorario";
    static constexpr const char* REGRA = "um número inteiro sai com sete dígitos";
    std::string BuscarValor(const std::string& AValor) override;
};

} // namespace tarvo::trabalhador
