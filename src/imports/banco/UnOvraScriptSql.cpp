#include "imports/banco/UnOvraScriptSql.h"

#include "imports/UnOvraExcecoes.h"
#include "imports/banco/UnOvraConnection.h"
#include "imports/valores/UnOvraConversoes.h"

namespace tarvo {

namespace {

/// Position after the text, name or comment that starts at APosicao, or APosicao itself when none does.
std::size_t Pular(std::string_view AScript, std::size_t APosicao)
{
    const auto LResto = AScript.substr(APosicao);
    std::string_view LFim;
    std::size_t LInicio = 1;
    if (LResto.starts_with("--")) {
        const auto LLinha = LResto.find('\n');
        return LLinha == std::string_view::npos ? AScript.size() : APosicao + LLinha + 1;
    }
    if (LResto.starts_with("/*")) {
        LFim = "*/";
        LInicio = 2;
    } else if (LResto.starts_with("'")) {
        LFim = "'";
    } else if (LResto.starts_with("\"")) {
        LFim = "\"";
    } else {
        return APosicao;
    }
    const auto LOnde = LResto.find(LFim, LInicio);
    if (LOnde == std::string_view::npos)
        throw EConvertError("Script SQL com texto ou comentário sem fim: " + std::string(LResto.substr(0, 40)));
    return APosicao + LOnde + LFim.size();
}

bool EhComentario(std::string_view AScript, std::size_t APosicao)
{
    return AScript.substr(APosicao).starts_with("--") || AScript.substr(APosicao).starts_with("/*");
}

} // namespace

std::vector<std::string> SepararScriptSql(std::string_view AScript)
{
    std::vector<std::string> LComandos;
    std::string LTerminador = ";";
    std::string LComando;
    std::size_t i = 0;
    const auto Encerrar = [&] {
        const auto LTexto = Trim(LComando);
        if (MesmoTexto(LTexto.substr(0, 9), "SET TERM "))
            LTerminador = Trim(LTexto.substr(9));
        else if (!LTexto.empty())
            LComandos.emplace_back(LTexto);
        LComando.clear();
    };
    while (i < AScript.size()) {
        const auto LDepois = Pular(AScript, i);
        if (LDepois != i) {
            if (!EhComentario(AScript, i) || !Trim(LComando).empty())
                LComando.append(AScript.substr(i, LDepois - i));
            i = LDepois;
        } else if (AScript.substr(i).starts_with(LTerminador)) {
            i += LTerminador.size();
            Encerrar();
        } else {
            LComando += AScript[i++];
        }
    }
    Encerrar();
    return LComandos;
}

void ExecutarScriptSql(TOvraConnection& AConexao, std::string_view AScript)
{
    for (const auto& LComando : SepararScriptSql(AScript)) {
        try {
            AConexao.Executar(LComando);
        } catch (const EDatabaseError& LErro) {
            throw EDatabaseError(std::string(LErro.what()) + "\n" + LComando.substr(0, LComando.find('\n')),
                                 LErro.Codigo(), LErro.SqlState());
        }
    }
    AConexao.Confirmar();
}

} // namespace tarvo
