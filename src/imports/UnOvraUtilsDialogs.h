#pragma once

#include <functional>
#include <string>

namespace tarvo {

/// Messages to the user. The library is quiet by itself: without a reaction of the host an alert goes nowhere.
class TOvraUtilsDialogs {
public:
    using TReacao = std::function<void(const std::string& AMensagem)>;

    /// Sets what an alert does in the current context; null for nothing.
    void DefinirReacao(TReacao AReacao) const;
    void Alerta(const std::string& AMensagem) const;
};

inline constexpr TOvraUtilsDialogs GOvraUtilsDialogs{};

} // namespace tarvo
