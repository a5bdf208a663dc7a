#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <typeinfo>
#include <vector>

#include "imports/UnOvraExcecoes.h"
#include "imports/valores/UnOvraDataHora.h"

namespace tarvo {

class TTarvoESocialCamposGrupoBase;
class TPropriedades;

/// An event or an argument that doesn't exist, is missing, or holds a text that is no value of it.
class EArgumentoInvalido : public Exception {
public:
    using Exception::Exception;
};

enum class TTipoArgumento {
    /// A key, int64.
    taId,
    /// A whole number or the ordinal of an enumeration, int32.
    taInteiro,
    /// AAAA-MM-DD.
    taData,
    /// Digits, points and a hyphen.
    taCpf,
    taTexto,
};

struct TArgumentoDeEvento {
    const char* Nome;
    TTipoArgumento Tipo;
    /// What it is, for a payroll person.
    const char* Descricao;
    bool Obrigatorio = true;
    /// Of a taInteiro that is an enumeration, its last ordinal.
    std::int32_t UltimoOrdinal = -1;
    /// Another name that is taken too, where the events of a family spell one argument differently.
    const char* OutroNome = nullptr;
    /// Of an enumeration, its first ordinal.
    std::int32_t PrimeiroOrdinal = 0;
};

/// The values of an event's arguments, checked against their kinds. An optional argument that was not given reads
/// as 0, unset or empty.
class TArgumentosDeEvento {
public:
    /// EArgumentoInvalido for an unknown or missing name, or a text that is no value of its kind. Names match without
    /// regard to case.
    TArgumentosDeEvento(const std::vector<TArgumentoDeEvento>& ADefinicoes,
                        const std::map<std::string, std::string>& ATextos);

    bool Informado(std::string_view ANome) const;
    std::int64_t Id(std::string_view ANome) const;
    std::int32_t Inteiro(std::string_view ANome) const;
    TDateTime Data(std::string_view ANome) const;
    /// A text or a CPF, as it was given.
    std::string Texto(std::string_view ANome) const;

private:
    struct TValor {
        std::int64_t Inteiro = 0;
        TDateTime Data;
        std::string Texto;
    };
    const TValor& Buscar(std::string_view ANome) const;
    std::map<std::string, TValor, std::less<>> FValores;
};

/// An event ready to load, and the parameter object that it reads, where it has one.
struct TEventoConstruido {
    std::shared_ptr<void> Parametros;
    std::unique_ptr<TTarvoESocialCamposGrupoBase> Evento;
};

/// The same, with the class of the event.
template <class T>
struct TEventoConstruidoDe : TEventoConstruido {
    using TEvento = T;

    TEventoConstruidoDe(std::shared_ptr<void> AParametros, std::unique_ptr<T> AEvento)
        : TEventoConstruido{std::move(AParametros), std::move(AEvento)}
    {}
};

/// How an event is constructed: a function that gives a TEventoConstruidoDe, from which the class of the event and its
/// properties are known without constructing one.
class TConstrutorDeEvento {
public:
    template <class F, class T = typename std::invoke_result_t<F, const TArgumentosDeEvento&>::TEvento>
    TConstrutorDeEvento(F AConstruir)
        : FConstruir(AConstruir), FTipo(&typeid(T)), FTabela(&T::Tabela),
          FTemReversao(!std::is_same_v<decltype(&T::ReverterDados), void (TTarvoESocialCamposGrupoBase::*)()>)
    {}

    TEventoConstruido operator()(const TArgumentosDeEvento& AArgumentos) const;
    const std::type_info& Tipo() const { return *FTipo; }
    const TPropriedades& Tabela() const { return FTabela(); }
    /// Whether corrected values of the event turn back into statements.
    bool TemReversao() const { return FTemReversao; }

private:
    std::function<TEventoConstruido(const TArgumentosDeEvento&)> FConstruir;
    const std::type_info* FTipo;
    const TPropriedades& (*FTabela)();
    bool FTemReversao;
};

/// How an event is loaded for everybody of a company.
struct TLoteDoEvento {
    /// What the caller gives: the company, and the arguments of the event that aren't part of a key.
    std::vector<TArgumentoDeEvento> Argumentos;
    /// Statement of the keys, in the order of the load. Each column is the argument of the event of that name.
    std::string (*SqlDasChaves)(const TArgumentosDeEvento& AArgumentos);
};

/// One load of a batch.
struct TChaveDoLote {
    /// Every argument of the event, as ConstruirEvento takes them.
    std::map<std::string, std::string> Argumentos;
    /// The key as JSON: its value, or an object where it has several parts.
    std::string Json;
};

struct TEventoDoCatalogo {
    /// "S-1000".
    const char* Codigo;
    /// What the event reports, for a payroll person.
    const char* Titulo;
    std::vector<TArgumentoDeEvento> Argumentos;
    TConstrutorDeEvento Construir;
    /// Nothing for an event that isn't loaded in a batch.
    std::optional<TLoteDoEvento> Lote = std::nullopt;
};

/// The example of an argument's value: "ID", "AAAA-MM-DD".
const char* ExemploDoTipo(TTipoArgumento ATipo);

/// Every event in layout order.
const std::vector<TEventoDoCatalogo>& CatalogoDeEventos();
/// By code, without regard to case; EArgumentoInvalido when there is none.
const TEventoDoCatalogo& BuscarEventoDoCatalogo(std::string_view ACodigo);
/// Constructs an event from the texts of its arguments. Some constructors read the database already.
TEventoConstruido ConstruirEvento(std::string_view ACodigo, const std::map<std::string, std::string>& AArgumentos);
/// The keys of an event's batch, read from the database. EArgumentoInvalido for an event that has none, and for the
/// arguments of the batch as ConstruirEvento for the event's.
std::vector<TChaveDoLote> BuscarChavesDoLote(std::string_view ACodigo,
                                             const std::map<std::string, std::string>& AArgumentos);

} // namespace tarvo
