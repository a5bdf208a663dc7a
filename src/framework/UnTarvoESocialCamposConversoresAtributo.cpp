#include "framework/UnTarvoESocialCamposConversoresAtributo.h"

#include "imports/UnOvraExcecoes.h"
#include "imports/valores/UnOvraUtilsStrings.h"

namespace tarvo {

std::string TTarvoESocialCamposConversorAbstrato::BuscarValor(const std::string&)
{
    throw EAbstractError("Operação abstrata: BuscarValor do conversor");
}

std::string TTarvoESocialCamposConversorPadrao::BuscarValor(const std::string& AValor) { return AValor; }

std::string TTarvoESocialCamposConversorRemoveCaracteresEspeciais::BuscarValor(const std::string& AValor)
{
    return GOvraUtilsStrings.LimparTexto(AValor);
}

void TDicionarioDeConversores::Add(TClasseConversor AClasse, TConversor AConversor)
{
    if (!FItens.emplace(AClasse, std::move(AConversor)).second)
        throw EListError(std::string("Chave duplicada: conversor ") + AClasse->Nome);
}

ITarvoESocialCamposConversoresBase* TDicionarioDeConversores::Buscar(TClasseConversor AClasse) const
{
    const auto LItem = FItens.find(AClasse);
    return LItem == FItens.end() ? nullptr : LItem->second.get();
}

const TDicionarioDeConversores& ConversoresGlobais()
{
    static const TDicionarioDeConversores LGlobais = [] {
        TDicionarioDeConversores LItens;
        for (const auto LClasse : {ClasseConversor<TTarvoESocialCamposConversorPadrao>(),
                                   ClasseConversor<TTarvoESocialCamposConversorRemoveCaracteresEspeciais>()})
            LItens.Add(LClasse, LClasse->Criar());
        return LItens;
    }();
    return LGlobais;
}

} // namespace tarvo
