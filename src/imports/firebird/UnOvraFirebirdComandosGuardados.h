#pragma once

#include <list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "imports/banco/UnOvraFormaSql.h"
#include "imports/firebird/UnOvraFirebirdComando.h"

namespace tarvo::firebird {

/// Prepared statements that a connection keeps; the least used gives way.
constexpr std::size_t MAXIMO_DE_COMANDOS = 256;

/// Prepared statements by their number, the least recently used first to go.
class TComandosGuardados {
public:
    /// The statement, taken out while it runs, so that a second use of the same shape prepares its own.
    std::unique_ptr<TComando> Retirar(std::size_t ANumero)
    {
        const auto LItem = FPorNumero.find(ANumero);
        if (LItem == FPorNumero.end())
            return nullptr;
        auto LComando = std::move(LItem->second->second);
        FOrdem.erase(LItem->second);
        FPorNumero.erase(LItem);
        return LComando;
    }
    void Guardar(std::size_t ANumero, std::unique_ptr<TComando> AComando)
    {
        if (FPorNumero.contains(ANumero))
            return;
        FOrdem.emplace_back(ANumero, std::move(AComando));
        FPorNumero.emplace(ANumero, std::prev(FOrdem.end()));
        if (FOrdem.size() > MAXIMO_DE_COMANDOS) {
            FPorNumero.erase(FOrdem.front().first);
            FOrdem.pop_front();
        }
    }
    void Limpar()
    {
        FPorNumero.clear();
        FOrdem.clear();
    }
    std::size_t Quantidade() const { return FOrdem.size(); }

private:
    using TOrdem = std::list<std::pair<std::size_t, std::unique_ptr<TComando>>>;
    TOrdem FOrdem;
    std::unordered_map<std::size_t, TOrdem::iterator> FPorNumero;
};

/// What is known of a shape.
struct TFormaConhecida {
    /// The literals that travel as parameters. One that the engine takes as another type in any variant is no longer
    /// among them.
    std::vector<bool> Levantar;
    /// The number of the prepared statement by the texts of the literals that stay.
    std::unordered_map<std::string, std::size_t> Variantes;
};

/// Statements that are told apart by their shape: prepared once, their literals sent as parameters wherever the
/// engine's own description of the parameter says that the meaning can't change.
class TComandosPelaForma {
public:
    explicit TComandosPelaForma(TSessao& ASessao) : FSessao(ASessao) {}

    TConjuntoDeLinhas Consultar(std::string_view ASql);
    void Esquecer();
    std::size_t Quantidade() const { return FGuardados.Quantidade(); }

private:
    std::size_t BuscarVariante(std::string_view ASql, const TFormaSql& AForma, TFormaConhecida& AConhecida);
    std::vector<bool> JulgarForma(std::string_view ASql, const TFormaSql& AForma, const std::vector<bool>& ALevantar,
                                  std::unique_ptr<TComando>& AComando);
    std::optional<std::vector<bool>> CombinarTipos(std::string_view ASql, const TFormaSql& AForma,
                                                   const std::vector<bool>& ALevantar,
                                                   std::unique_ptr<TComando>& AComando);

    TSessao& FSessao;
    TComandosGuardados FGuardados;
    std::unordered_map<std::string, TFormaConhecida> FFormas;
    /// Variants of all shapes, which are numbered for good.
    std::size_t FVariantes = 0;
    std::size_t FUltimaVariante = 0;
};

} // namespace tarvo::firebird
