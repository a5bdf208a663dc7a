#pragma once

#include <string_view>
#include <vector>

namespace tarvo {

/// A script of banco/, as it stood when the program was built.
struct TScriptDoBanco {
    std::string_view Nome;
    std::string_view Texto;
};

/// Tables, keys, generators and procedures, in the order in which they run.
const std::vector<TScriptDoBanco>& ScriptsDoEsquema();
/// The sample company, in the order in which it is inserted.
const std::vector<TScriptDoBanco>& ScriptsDoExemplo();

} // namespace tarvo
