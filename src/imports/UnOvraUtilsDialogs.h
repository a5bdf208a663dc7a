#pragma once

#include <string>

namespace tarvo {

/// Messages to the user. The library is quiet by itself: without a reaction of the host an alert goes nowhere.
class TOvraUtilsDialogs {
public:
    using TReacao = void (*)(const std::string& AMensagem);

    /// Sets what an alert does; null for nothing.
    void DefinirReacao(TReacao AReacao) { FReacao = AReacao; }
    void Alerta(const std::string& AMensagem) const
    {
        if (FReacao != nullptr)
            FReacao(AMensagem);
    }

private:
    TReacao FReacao = nullptr;
};

inline TOvraUtilsDialogs GOvraUtilsDialogs;

} // namespace tarvo
