#include "framework/UnTarvoESocialCamposListaSqlReversao.h"

#include "imports/UnOvraExcecoes.h"
#include "imports/banco/UnOvraConnection.h"
#include "imports/banco/UnOvraContexto.h"

namespace tarvo {

TListaSql& TListaSql::BuscarSingleton() { return ContextoCorrente().Parte<TListaSql>(); }

std::vector<TComandoRecusado> ExecutarReversao(TOvraConnection& AConexao, const std::vector<std::string>& AComandos)
{
    std::vector<TComandoRecusado> LRecusados;
    for (const auto& LSql : AComandos) {
        try {
            AConexao.Executar(LSql);
        } catch (const EDatabaseError& LErro) {
            LRecusados.push_back({LSql, LErro.what()});
        }
    }
    if (LRecusados.empty())
        AConexao.Confirmar();
    else
        AConexao.Desfazer();
    return LRecusados;
}

} // namespace tarvo
