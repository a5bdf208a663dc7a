#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tarvo {

class TTarvoUtilsGeral {
public:
    /// The ids joined by commas; "0" for an empty list, so that `IN (...)` stays valid.
    static std::string ConverterTListParaMultisselecao(const std::vector<std::int64_t>& ALista);
};

/// One of two values. Both are computed, whatever the condition.
template <class T>
T Iif(bool ACondicao, T AVerdadeiro, T AFalso)
{
    return ACondicao ? AVerdadeiro : AFalso;
}

} // namespace tarvo
