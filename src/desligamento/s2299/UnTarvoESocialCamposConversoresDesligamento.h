#pragma once

#include "framework/UnTarvoESocialCamposConversoresAtributo.h"

namespace tarvo::desligamento {

/// TIPO_RESCISAO to the layout's reason, by its leading digits; empty for a number that has none.
class TConversorMotivoDesligamento : public TTarvoESocialCamposConversorAbstrato {
public:
    static constexpr const char* NOME = "TConversorMotivoDesligamento";
    static constexpr const char* REGRA = "código do motivo do leiaute, pelos dígitos iniciais";
    std::string BuscarValor(const std::string& AValor) override;
};

/// The kind of alimony to the layout's indicator, by its leading digits; empty for a number that has none. No property
/// uses it.
class TConversorPensAlim : public TTarvoESocialCamposConversorAbstrato {
public:
    static constexpr const char* NOME = "TConversorPensAlim";
    static constexpr const char* REGRA = "indicador de pensão do leiaute, pelos dígitos iniciais";
    std::string BuscarValor(const std::string& AValor) override;
};

} // namespace tarvo::desligamento
