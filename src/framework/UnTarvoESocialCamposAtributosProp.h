#pragma once

#include <array>
#include <concepts>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <typeinfo>
#include <variant>
#include <vector>

#include "framework/UnTarvoESocialCamposConversoresAtributo.h"
#include "imports/valores/UnOvraCurrency.h"
#include "imports/valores/UnOvraDataHora.h"

namespace tarvo {

class TTarvoESocialCamposGrupoBase;
class TPropriedades;

/// A list of child groups that owns them.
template <class T>
using TListaDeGrupos = std::vector<std::unique_ptr<T>>;

/// Binding of one property to one column of the group's statement. The default is assigned as a text when the column
/// is absent or null, and therefore works on a string property only; that is meant.
class TFieldRelacionado {
public:
    explicit TFieldRelacionado(std::string ACampo, std::string AValorDefault = "")
        : TFieldRelacionado(std::move(ACampo), std::move(AValorDefault),
                            tarvo::ClasseConversor<TTarvoESocialCamposConversorPadrao>())
    {}
    TFieldRelacionado(std::string ACampo, std::string AValorDefault, TClasseConversor AConversor)
        : FCampo(std::move(ACampo)), FValorDefault(std::move(AValorDefault)), FClasseConversor(AConversor)
    {}

    const std::string& Campo() const { return FCampo; }
    const std::string& ValorDefault() const { return FValorDefault; }
    TClasseConversor ClasseConversor() const { return FClasseConversor; }

private:
    std::string FCampo;
    std::string FValorDefault;
    TClasseConversor FClasseConversor;
};

enum class TTipoPropriedade : std::uint8_t {
    Texto,
    Int32,
    Int64,
    ShortInt,
    Double,
    Extended,
    Currency,
    Booleano,
    Enumeracao,
    Data,
    Grupo,
    ListaDeGrupos,
    ListaDeTextos,
    ListaDeInteiros,
};

/// A simple value on its way into or out of a property: integers and enumerations, floating numbers, money, flags,
/// dates and texts. An absent value (a null child) is monostate.
using TValorPropriedade =
    std::variant<std::monostate, std::int64_t, long double, Currency, bool, TDateTime, std::string>;

/// One property of a group: its name, its kind, its binding if it has one, and the way to reach it. The table of a
/// class is built once; the binding of a row and the JSON both walk it.
class TPropriedade {
public:
    /// A data member: a value, a child by value, a child that may be null, or a list.
    template <class C, class T>
    requires(!std::is_function_v<T>) TPropriedade(const char* ANome, T C::*AMembro)
        : TPropriedade(ANome, TTipo<T>(), AMembro, typeid(typename TDeclarado<T>::type))
    {
        AlcancarMembro<C, T>();
    }
    template <class C, class T>
    requires(!std::is_function_v<T>) TPropriedade(const char* ANome, T C::*AMembro, TFieldRelacionado AField)
        : TPropriedade(ANome, AMembro)
    {
        FField = std::make_shared<const TFieldRelacionado>(std::move(AField));
    }
    /// A computed, read-only property.
    template <class C, class R>
    TPropriedade(const char* ANome, R (C::*AGetter)() const)
        : TPropriedade(ANome, TTipo<std::remove_cvref_t<R>>(), AGetter, typeid(std::remove_cvref_t<R>))
    {
        FLer = &LerFuncao<C, R>;
    }
    /// A property with a rule behind it.
    template <class C, class R, class A>
    TPropriedade(const char* ANome, R (C::*AGetter)() const, void (C::*ASetter)(A)) : TPropriedade(ANome, AGetter)
    {
        static_assert(std::is_same_v<std::remove_cvref_t<R>, std::remove_cvref_t<A>>);
        std::memcpy(FEscrita.data(), &ASetter, sizeof(ASetter));
        FEscrever = &EscreverFuncao<C, A>;
    }
    template <class C, class R, class A>
    TPropriedade(const char* ANome, R (C::*AGetter)() const, void (C::*ASetter)(A), TFieldRelacionado AField)
        : TPropriedade(ANome, AGetter, ASetter)
    {
        FField = std::make_shared<const TFieldRelacionado>(std::move(AField));
    }

    const char* Nome() const { return FNome; }
    TTipoPropriedade Tipo() const { return FTipo; }
    /// The binding; null for a property that only code sets.
    const TFieldRelacionado* Field() const { return FField.get(); }
    bool SomenteLeitura() const { return FEscrever == nullptr; }
    /// The type as declared: of an enumeration, of a child, of the items of a list; else of the value.
    const std::type_info& TipoDeclarado() const { return *FTipoDeclarado; }
    /// The properties of a child, or of the items of a list of groups, known without an instance. Only of these kinds.
    const TPropriedades& TabelaDoTipo() const { return FTabelaDoTipo(); }
    /// A child that may be missing.
    bool PodeSerNulo() const { return FPodeSerNulo; }

    /// Value of a simple property.
    TValorPropriedade Ler(const TTarvoESocialCamposGrupoBase& AGrupo) const { return FLer(FLeitura, AGrupo); }
    /// Sets a simple property; the variant holds the kind that Ler gives. Only where SomenteLeitura is false.
    void Escrever(TTarvoESocialCamposGrupoBase& AGrupo, const TValorPropriedade& AValor) const
    {
        FEscrever(FEscrita, AGrupo, AValor);
    }
    /// The child of a Grupo property; null where it is null.
    const TTarvoESocialCamposGrupoBase* Filho(const TTarvoESocialCamposGrupoBase& AGrupo) const
    {
        return FItem(FLeitura, AGrupo, 0);
    }
    /// Number of items of a list property.
    std::size_t Quantidade(const TTarvoESocialCamposGrupoBase& AGrupo) const { return FQuantidade(FLeitura, AGrupo); }
    /// Item of a ListaDeGrupos property.
    const TTarvoESocialCamposGrupoBase* Item(const TTarvoESocialCamposGrupoBase& AGrupo, std::size_t AIndice) const
    {
        return FItem(FLeitura, AGrupo, AIndice);
    }
    /// Item of a list of simple values.
    TValorPropriedade Valor(const TTarvoESocialCamposGrupoBase& AGrupo, std::size_t AIndice) const
    {
        return FValor(FLeitura, AGrupo, AIndice);
    }

private:
    /// A pointer to a member of any class, data or function.
    using TMembro = std::array<std::uintptr_t, 2>;

    template <class>
    struct TPonteiroParaGrupo : std::false_type {};
    template <class T>
    struct TPonteiroParaGrupo<std::unique_ptr<T>> : std::true_type {};
    template <class T>
    struct TPonteiroParaGrupo<T*> : std::true_type {};
    /// What a pointer points to, and what a list lists; the type itself else.
    template <class T>
    struct TDeclarado : std::type_identity<T> {};
    template <class T>
    struct TDeclarado<std::unique_ptr<T>> : std::type_identity<T> {};
    template <class T>
    struct TDeclarado<T*> : std::type_identity<T> {};
    template <class T>
    struct TDeclarado<std::vector<T>> : TDeclarado<T> {};
    template <class>
    struct TLista : std::false_type {};
    template <class T>
    struct TLista<std::vector<T>> : std::true_type {};

    template <class T>
    static constexpr TTipoPropriedade TTipo()
    {
        if constexpr (std::is_same_v<T, std::string>)
            return TTipoPropriedade::Texto;
        else if constexpr (std::is_same_v<T, bool>)
            return TTipoPropriedade::Booleano;
        else if constexpr (std::is_same_v<T, std::int32_t>)
            return TTipoPropriedade::Int32;
        else if constexpr (std::is_same_v<T, std::int64_t>)
            return TTipoPropriedade::Int64;
        else if constexpr (std::is_same_v<T, std::int8_t>)
            return TTipoPropriedade::ShortInt;
        else if constexpr (std::is_same_v<T, double>)
            return TTipoPropriedade::Double;
        else if constexpr (std::is_same_v<T, long double>)
            return TTipoPropriedade::Extended;
        else if constexpr (std::is_same_v<T, Currency>)
            return TTipoPropriedade::Currency;
        else if constexpr (std::is_same_v<T, TDateTime>)
            return TTipoPropriedade::Data;
        else if constexpr (std::is_enum_v<T>)
            return TTipoPropriedade::Enumeracao;
        else if constexpr (std::is_same_v<T, std::vector<std::string>>)
            return TTipoPropriedade::ListaDeTextos;
        else if constexpr (std::is_same_v<T, std::vector<std::int64_t>>)
            return TTipoPropriedade::ListaDeInteiros;
        else if constexpr (TLista<T>::value)
            return TTipoPropriedade::ListaDeGrupos;
        else
            return TTipoPropriedade::Grupo;
    }

    template <class TPonteiro>
    TPropriedade(const char* ANome, TTipoPropriedade ATipo, TPonteiro AMembro, const std::type_info& ATipoDeclarado)
        : FNome(ANome), FTipo(ATipo), FTipoDeclarado(&ATipoDeclarado)
    {
        static_assert(sizeof(AMembro) <= sizeof(TMembro));
        std::memcpy(FLeitura.data(), &AMembro, sizeof(AMembro));
        std::memcpy(FEscrita.data(), &AMembro, sizeof(AMembro));
    }

    template <class C, class T>
    void AlcancarMembro()
    {
        constexpr auto LTipo = TTipo<T>();
        if constexpr (LTipo == TTipoPropriedade::Grupo) {
            FItem = &FilhoDoMembro<C, T>;
            FTabelaDoTipo = &TDeclarado<T>::type::Tabela;
            FPodeSerNulo = TPonteiroParaGrupo<T>::value;
        } else if constexpr (LTipo == TTipoPropriedade::ListaDeGrupos) {
            FQuantidade = &QuantidadeDoMembro<C, T>;
            FItem = &ItemDoMembro<C, T>;
            FTabelaDoTipo = &TDeclarado<T>::type::Tabela;
        } else if constexpr (TLista<T>::value) {
            FQuantidade = &QuantidadeDoMembro<C, T>;
            FValor = &ValorDoMembro<C, T>;
        } else {
            FLer = &LerMembro<C, T>;
            FEscrever = &EscreverMembro<C, T>;
        }
    }

    template <class TPonteiro>
    static TPonteiro Ponteiro(const TMembro& AMembro)
    {
        TPonteiro LPonteiro;
        std::memcpy(&LPonteiro, AMembro.data(), sizeof(LPonteiro));
        return LPonteiro;
    }

    template <class T>
    static TValorPropriedade ParaValor(const T& AValor)
    {
        if constexpr (std::is_same_v<T, bool> || std::is_same_v<T, Currency> || std::is_same_v<T, TDateTime> ||
                      std::is_same_v<T, std::string>)
            return AValor;
        else if constexpr (std::is_floating_point_v<T>)
            return static_cast<long double>(AValor);
        else
            return static_cast<std::int64_t>(AValor);
    }
    template <class T>
    static T DeValor(const TValorPropriedade& AValor)
    {
        if constexpr (std::is_same_v<T, bool> || std::is_same_v<T, Currency> || std::is_same_v<T, TDateTime> ||
                      std::is_same_v<T, std::string>)
            return std::get<T>(AValor);
        else if constexpr (std::is_floating_point_v<T>)
            return static_cast<T>(std::get<long double>(AValor));
        else
            return static_cast<T>(std::get<std::int64_t>(AValor));
    }

    template <class C, class T>
    static const T& Membro(const TMembro& AMembro, const TTarvoESocialCamposGrupoBase& AGrupo)
    {
        return static_cast<const C&>(AGrupo).*Ponteiro<T C::*>(AMembro);
    }
    template <class C, class T>
    static TValorPropriedade LerMembro(const TMembro& AMembro, const TTarvoESocialCamposGrupoBase& AGrupo)
    {
        return ParaValor<T>(Membro<C, T>(AMembro, AGrupo));
    }
    template <class C, class T>
    static void EscreverMembro(const TMembro& AMembro, TTarvoESocialCamposGrupoBase& AGrupo,
                               const TValorPropriedade& AValor)
    {
        static_cast<C&>(AGrupo).*Ponteiro<T C::*>(AMembro) = DeValor<T>(AValor);
    }
    template <class C, class R>
    static TValorPropriedade LerFuncao(const TMembro& AMembro, const TTarvoESocialCamposGrupoBase& AGrupo)
    {
        return ParaValor<std::remove_cvref_t<R>>(
            (static_cast<const C&>(AGrupo).*Ponteiro<R (C::*)() const>(AMembro))());
    }
    template <class C, class A>
    static void EscreverFuncao(const TMembro& AMembro, TTarvoESocialCamposGrupoBase& AGrupo,
                               const TValorPropriedade& AValor)
    {
        (static_cast<C&>(AGrupo).*Ponteiro<void (C::*)(A)>(AMembro))(DeValor<std::remove_cvref_t<A>>(AValor));
    }
    template <class C, class T>
    static const TTarvoESocialCamposGrupoBase* FilhoDoMembro(const TMembro& AMembro,
                                                             const TTarvoESocialCamposGrupoBase& AGrupo, std::size_t)
    {
        if constexpr (TPonteiroParaGrupo<T>::value)
            return std::to_address(Membro<C, T>(AMembro, AGrupo));
        else
            return &Membro<C, T>(AMembro, AGrupo);
    }
    template <class C, class T>
    static std::size_t QuantidadeDoMembro(const TMembro& AMembro, const TTarvoESocialCamposGrupoBase& AGrupo)
    {
        return Membro<C, T>(AMembro, AGrupo).size();
    }
    template <class C, class T>
    static const TTarvoESocialCamposGrupoBase* ItemDoMembro(const TMembro& AMembro,
                                                            const TTarvoESocialCamposGrupoBase& AGrupo,
                                                            std::size_t AIndice)
    {
        return std::to_address(Membro<C, T>(AMembro, AGrupo)[AIndice]);
    }
    template <class C, class T>
    static TValorPropriedade ValorDoMembro(const TMembro& AMembro, const TTarvoESocialCamposGrupoBase& AGrupo,
                                           std::size_t AIndice)
    {
        return ParaValor<typename T::value_type>(Membro<C, T>(AMembro, AGrupo)[AIndice]);
    }

    const char* FNome;
    TTipoPropriedade FTipo;
    const std::type_info* FTipoDeclarado;
    const TPropriedades& (*FTabelaDoTipo)() = nullptr;
    bool FPodeSerNulo = false;
    std::shared_ptr<const TFieldRelacionado> FField;
    TMembro FLeitura{};
    TMembro FEscrita{};
    TValorPropriedade (*FLer)(const TMembro&, const TTarvoESocialCamposGrupoBase&) = nullptr;
    void (*FEscrever)(const TMembro&, TTarvoESocialCamposGrupoBase&, const TValorPropriedade&) = nullptr;
    std::size_t (*FQuantidade)(const TMembro&, const TTarvoESocialCamposGrupoBase&) = nullptr;
    const TTarvoESocialCamposGrupoBase* (*FItem)(const TMembro&, const TTarvoESocialCamposGrupoBase&,
                                                 std::size_t) = nullptr;
    TValorPropriedade (*FValor)(const TMembro&, const TTarvoESocialCamposGrupoBase&, std::size_t) = nullptr;
};

/// The properties of a class in the order in which they are declared, inherited ones first.
class TPropriedades {
public:
    TPropriedades(std::initializer_list<TPropriedade> AItens) : FItens(AItens) {}
    TPropriedades(const TPropriedades& AHerdadas, std::initializer_list<TPropriedade> AItens) : FItens(AHerdadas.FItens)
    {
        FItens.insert(FItens.end(), AItens);
    }

    auto begin() const { return FItens.begin(); }
    auto end() const { return FItens.end(); }
    std::size_t size() const { return FItens.size(); }
    /// By name, exact before without regard to case: two tags of a group may differ by case alone (ServPubl, servPubl).
    const TPropriedade* Buscar(std::string_view ANome) const;

    /// The same table, of a class that only declares: its values come from the group above or from the caller.
    TPropriedades ApenasDeclaradas() &&
    {
        FSoDeclara = true;
        return std::move(*this);
    }
    bool SoDeclara() const { return FSoDeclara; }

private:
    std::vector<TPropriedade> FItens;
    bool FSoDeclara = false;
};

} // namespace tarvo
