#pragma once

#include "imports/valores/UnTarvoUtilsGeral.h"

namespace tarvo {

class TOvraUtilsValidacoes {
public:
    template <class T>
    T Iif(bool ACondicao, T AVerdadeiro, T AFalso) const
    {
        return tarvo::Iif(ACondicao, AVerdadeiro, AFalso);
    }
};

inline constexpr TOvraUtilsValidacoes GOvraUtilsValidacoes{};

} // namespace tarvo
