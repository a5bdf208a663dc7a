#include "imports/firebird/UnOvraFirebirdComandosGuardados.h"

#include <algorithm>

#include "imports/firebird/UnOvraFirebirdLiteral.h"

namespace tarvo::firebird {

namespace {

/// Variants of shapes whose literals have been judged.
constexpr std::size_t MAXIMO_DE_FORMAS = 8192;

/// The literals that stay, one after the other.
std::string LiteraisFixos(std::string_view ASql, const TFormaSql& AForma, const std::vector<bool>& ALevantar)
{
    std::string LFixos;
    for (std::size_t i = 0; i < ALevantar.size(); ++i)
        if (!ALevantar[i])
            LFixos.append(ASql, AForma.Literais[i].Posicao, AForma.Literais[i].Tamanho).append(1, ',');
    return LFixos;
}

/// The statement with the chosen literals as its parameters, and no other.
std::unique_ptr<TComando> PrepararComForma(TSessao& ASessao, std::string_view ASql, const TFormaSql& AForma,
                                           const std::vector<bool>& ALevantar)
{
    return PrepararComando(ASessao, MontarSqlComParametros(ASql, AForma, ALevantar),
                           static_cast<std::size_t>(std::count(ALevantar.begin(), ALevantar.end(), true)));
}

} // namespace

TConjuntoDeLinhas TComandosPelaForma::Consultar(std::string_view ASql)
{
    if (FVariantes >= MAXIMO_DE_FORMAS)
        Esquecer();
    const auto LForma = LerFormaSql(ASql);
    auto& LConhecida = FFormas[LForma.Chave];
    const auto LVariante = BuscarVariante(ASql, LForma, LConhecida);
    auto LComando = FGuardados.Retirar(LVariante);
    if (!LComando)
        LComando = PrepararComForma(FSessao, ASql, LForma, LConhecida.Levantar);
    std::size_t LParametro = 0;
    for (std::size_t i = 0; i < LForma.Literais.size(); ++i) {
        if (!LConhecida.Levantar[i])
            continue;
        if (!EscreverParametro(LerLiteralSql(ASql, LForma.Literais[i]), LComando->Parametros[LParametro++],
                               LComando->MensagemDeEntrada)) {
            FGuardados.Guardar(LVariante, std::move(LComando));
            return Ler(FSessao, *PrepararComando(FSessao, ASql));
        }
    }
    // A statement that fails is not kept.
    auto LLinhas = Ler(FSessao, *LComando);
    FGuardados.Guardar(LVariante, std::move(LComando));
    return LLinhas;
}

/// The number of the statement that serves this text. A variant that is met for the first time is judged.
std::size_t TComandosPelaForma::BuscarVariante(std::string_view ASql, const TFormaSql& AForma,
                                               TFormaConhecida& AConhecida)
{
    if (AConhecida.Variantes.empty() && AConhecida.Levantar.empty())
        AConhecida.Levantar = LiteraisLevantaveis(ASql, AForma);
    if (const auto LVariante = AConhecida.Variantes.find(LiteraisFixos(ASql, AForma, AConhecida.Levantar));
        LVariante != AConhecida.Variantes.end())
        return LVariante->second;
    std::unique_ptr<TComando> LComando;
    auto LLevantar = JulgarForma(ASql, AForma, AConhecida.Levantar, LComando);
    if (LLevantar != AConhecida.Levantar) {
        FVariantes -= AConhecida.Variantes.size();
        AConhecida.Variantes.clear();
        AConhecida.Levantar = std::move(LLevantar);
    }
    ++FVariantes;
    AConhecida.Variantes.emplace(LiteraisFixos(ASql, AForma, AConhecida.Levantar), ++FUltimaVariante);
    if (LComando)
        FGuardados.Guardar(FUltimaVariante, std::move(LComando));
    return FUltimaVariante;
}

/// Those of the chosen literals whose parameter, as the engine describes it, has the literal's own type; nothing
/// when the engine doesn't prepare the statement so. The statement is handed out when all have.
std::optional<std::vector<bool>> TComandosPelaForma::CombinarTipos(std::string_view ASql, const TFormaSql& AForma,
                                                                   const std::vector<bool>& ALevantar,
                                                                   std::unique_ptr<TComando>& AComando)
{
    try {
        auto LComando = PrepararComForma(FSessao, ASql, AForma, ALevantar);
        auto LCombinam = ALevantar;
        std::size_t LParametro = 0;
        for (std::size_t i = 0; i < ALevantar.size(); ++i) {
            if (!ALevantar[i])
                continue;
            LCombinam[i] = TipoCombina(LerLiteralSql(ASql, AForma.Literais[i]), LComando->Parametros[LParametro++]);
        }
        if (LCombinam == ALevantar)
            AComando = std::move(LComando);
        return LCombinam;
    } catch (const EDatabaseError& LErro) {
        if (EhPerdaDeConexao(LErro))
            throw;
        return std::nullopt;
    }
}

/// Which of the literals travel as parameters, and the statement that takes them so, where one was prepared.
std::vector<bool> TComandosPelaForma::JulgarForma(std::string_view ASql, const TFormaSql& AForma,
                                                  const std::vector<bool>& ALevantar,
                                                  std::unique_ptr<TComando>& AComando)
{
    const std::vector<bool> LNenhum(ALevantar.size(), false);
    if (ALevantar == LNenhum)
        return LNenhum;
    auto LEscolhidos = ALevantar;
    auto LCombinam = CombinarTipos(ASql, AForma, LEscolhidos, AComando);
    if (!LCombinam) {
        // One of them has no type as a parameter: find those that have, one after the other.
        LCombinam = LNenhum;
        for (std::size_t i = 0; i < ALevantar.size(); ++i) {
            if (!ALevantar[i])
                continue;
            auto LTentativa = *LCombinam;
            LTentativa[i] = true;
            if (const auto LResultado = CombinarTipos(ASql, AForma, LTentativa, AComando);
                LResultado && *LResultado == LTentativa)
                LCombinam = LTentativa;
        }
        AComando.reset(); // of the last that passed, which need not be all of them
        return *LCombinam;
    }
    // With fewer parameters the engine may describe the others anew.
    while (*LCombinam != LEscolhidos) {
        LEscolhidos = *LCombinam;
        LCombinam = CombinarTipos(ASql, AForma, LEscolhidos, AComando);
        if (!LCombinam)
            return LNenhum;
    }
    return *LCombinam;
}

void TComandosPelaForma::Esquecer()
{
    FGuardados.Limpar();
    FFormas.clear();
    FVariantes = 0;
}

} // namespace tarvo::firebird
