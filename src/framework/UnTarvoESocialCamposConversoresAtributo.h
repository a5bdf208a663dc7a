#pragma once

#include <map>
#include <memory>
#include <string>

namespace tarvo {

/// Turns the trimmed text of a column into the text that is assigned to the property.
class ITarvoESocialCamposConversoresBase {
public:
    virtual ~ITarvoESocialCamposConversoresBase() = default;
    virtual std::string BuscarValor(const std::string& AValor) = 0;
};

using TConversor = std::shared_ptr<ITarvoESocialCamposConversoresBase>;

/// Base of the converters. A concrete one names itself in NOME, which the error for an unregistered one shows, and
/// tells in REGRA, for a payroll person, what it makes of the column; empty for nothing.
class TTarvoESocialCamposConversorAbstrato : public ITarvoESocialCamposConversoresBase {
public:
    static constexpr const char* NOME = "TTarvoESocialCamposConversorAbstrato";
    static constexpr const char* REGRA = "";
    /// EAbstractError: only a subclass converts.
    std::string BuscarValor(const std::string& AValor) override;
};

/// Reference to the class of a converter: its name, its rule, and how one is made.
struct TInfoClasseConversor {
    const char* Nome;
    const char* Regra;
    TConversor (*Criar)();
};
using TClasseConversor = const TInfoClasseConversor*;

template <class T>
TConversor CriarConversor()
{
    return std::make_shared<T>();
}

template <class T>
inline constexpr TInfoClasseConversor INFO_CLASSE_CONVERSOR{T::NOME, T::REGRA, &CriarConversor<T>};

/// The reference to class T, one and the same for the whole process.
template <class T>
constexpr TClasseConversor ClasseConversor()
{
    return &INFO_CLASSE_CONVERSOR<T>;
}

/// The value unchanged.
class TTarvoESocialCamposConversorPadrao : public TTarvoESocialCamposConversorAbstrato {
public:
    static constexpr const char* NOME = "TTarvoESocialCamposConversorPadrao";
    std::string BuscarValor(const std::string& AValor) override;
};

/// The value without the characters that the layouts refuse.
class TTarvoESocialCamposConversorRemoveCaracteresEspeciais : public TTarvoESocialCamposConversorAbstrato {
public:
    static constexpr const char* NOME = "TTarvoESocialCamposConversorRemoveCaracteresEspeciais";
    static constexpr const char* REGRA = "só letras, dígitos e um espaço entre as palavras";
    std::string BuscarValor(const std::string& AValor) override;
};

/// Converters by their class.
class TDicionarioDeConversores {
public:
    /// EListError when the class is there already.
    void Add(TClasseConversor AClasse, TConversor AConversor);
    /// Null when the class isn't there.
    ITarvoESocialCamposConversoresBase* Buscar(TClasseConversor AClasse) const;

private:
    std::map<TClasseConversor, TConversor> FItens;
};

/// The two converters that every group knows; read-only.
const TDicionarioDeConversores& ConversoresGlobais();

} // namespace tarvo
