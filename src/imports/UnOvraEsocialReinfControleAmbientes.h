#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarvo {

/// The environment of the government's service whose stored events count.
class TOvraEsocialReinfControleAmbientes {
public:
    static constexpr std::int32_t PRODUCAO = 1;
    static constexpr std::int32_t PRODUCAO_RESTRITA = 2;

    /// Condition on SC00_ESOCIALREINFXML, opened by the connective with one blank on each side of it.
    std::string RetornarSqlControleAmbiente(std::string_view AOperador) const;
    /// Code of the environment in use.
    std::int32_t BuscarTpAmbParaXML() const { return FTpAmb; }
    /// Sets the environment; Exception for a code other than the two.
    void DefinirTpAmb(std::int32_t ATpAmb);

private:
    std::int32_t FTpAmb = PRODUCAO;
};

/// That of the current context; production until the host sets another.
TOvraEsocialReinfControleAmbientes& BuscarInstanciaOvraEsocialReinfControleAmbientes();

} // namespace tarvo
