#include "framework/UnTarvoESocialCamposCaminhos.h"

#include <limits>

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/valores/UnOvraConversoes.h"

namespace tarvo {

namespace {

const TPropriedade& BuscarPropriedade(const TTarvoESocialCamposGrupoBase& AGrupo, std::string_view ANome,
                                      std::string_view ACaminho)
{
    if (const auto* LPropriedade = AGrupo.PropriedadesDaClasse().Buscar(ANome))
        return *LPropriedade;
    throw ECaminhoInvalido("Caminho desconhecido: '" + std::string(ACaminho) + "' (não existe '" + std::string(ANome) +
                           "')");
}

const TTarvoESocialCamposGrupoBase& BuscarFilho(const TTarvoESocialCamposGrupoBase& AGrupo, std::string_view APasso,
                                                std::string_view ACaminho)
{
    const auto LColchete = APasso.find('[');
    const auto& LPropriedade = BuscarPropriedade(AGrupo, APasso.substr(0, LColchete), ACaminho);
    const TTarvoESocialCamposGrupoBase* LFilho = nullptr;
    if (LColchete == std::string_view::npos) {
        if (LPropriedade.Tipo() != TTipoPropriedade::Grupo)
            throw ECaminhoInvalido("'" + std::string(APasso) + "' não é um grupo em '" + std::string(ACaminho) + "'");
        LFilho = LPropriedade.Filho(AGrupo);
    } else {
        const auto LIndice =
            APasso.ends_with(']') ? StrToInt64Def(APasso.substr(LColchete + 1, APasso.size() - LColchete - 2), -1) : -1;
        if (LPropriedade.Tipo() != TTipoPropriedade::ListaDeGrupos || LIndice < 0)
            throw ECaminhoInvalido("'" + std::string(APasso) + "' não é item de lista em '" + std::string(ACaminho) +
                                   "'");
        if (static_cast<std::size_t>(LIndice) < LPropriedade.Quantidade(AGrupo))
            LFilho = LPropriedade.Item(AGrupo, static_cast<std::size_t>(LIndice));
    }
    if (LFilho == nullptr)
        throw ECaminhoVazio("'" + std::string(APasso) + "' está vazio em '" + std::string(ACaminho) + "'");
    return *LFilho;
}

std::int64_t Inteiro(const std::string& ATexto, std::int64_t AMinimo, std::int64_t AMaximo)
{
    const auto LValor = StrToInt64(ATexto);
    if (LValor < AMinimo || LValor > AMaximo)
        throw EConvertError("'" + ATexto + "' está fora da faixa da propriedade");
    return LValor;
}

TDateTime Data(const std::string& ATexto)
{
    const auto LTexto = Trim(ATexto);
    if (LTexto.empty())
        return {};
    if (const auto LIso = LerDataIso(LTexto))
        return *LIso;
    return StrToDateTime(LTexto);
}

TValorPropriedade ParaValor(TTipoPropriedade ATipo, const std::string& ATexto)
{
    switch (ATipo) {
    case TTipoPropriedade::Texto:
        return ATexto;
    case TTipoPropriedade::Int32:
        return Inteiro(ATexto, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max());
    case TTipoPropriedade::Enumeracao:
        // The layouts' enumerations are a byte: a greater ordinal would be cut to another one.
        return Inteiro(ATexto, 0, std::numeric_limits<std::uint8_t>::max());
    case TTipoPropriedade::Int64:
        return StrToInt64(ATexto);
    case TTipoPropriedade::ShortInt:
        return Inteiro(ATexto, -128, 127);
    case TTipoPropriedade::Double:
        return static_cast<long double>(StrToDouble(ATexto));
    case TTipoPropriedade::Extended:
        return StrToFloat(ATexto);
    case TTipoPropriedade::Currency:
        return Currency(StrToFloat(ATexto));
    case TTipoPropriedade::Booleano:
        if (MesmoTexto(ATexto, "true"))
            return true;
        if (MesmoTexto(ATexto, "false"))
            return false;
        throw EConvertError("'" + ATexto + "' não é true nem false");
    case TTipoPropriedade::Data:
        return Data(ATexto);
    default:
        throw ECaminhoInvalido("A propriedade não recebe um texto");
    }
}

} // namespace

TTarvoESocialCamposGrupoBase& BuscarGrupoPeloCaminho(TTarvoESocialCamposGrupoBase& ARaiz, std::string_view ACaminho)
{
    const TTarvoESocialCamposGrupoBase* LGrupo = &ARaiz;
    std::string_view LResto = ACaminho;
    if (LResto.ends_with('.'))
        throw ECaminhoInvalido("Caminho desconhecido: '" + std::string(ACaminho) + "'");
    while (!LResto.empty()) {
        const auto LPonto = LResto.find('.');
        LGrupo = &BuscarFilho(*LGrupo, LResto.substr(0, LPonto), ACaminho);
        LResto = LPonto == std::string_view::npos ? std::string_view() : LResto.substr(LPonto + 1);
    }
    // The tables give children read-only; the root that was handed in is writable, and so is all that it owns.
    return const_cast<TTarvoESocialCamposGrupoBase&>(*LGrupo);
}

void DefinirPropriedadePeloCaminho(TTarvoESocialCamposGrupoBase& ARaiz, std::string_view ACaminho,
                                   const std::string& ATexto)
{
    const auto LPonto = ACaminho.rfind('.');
    auto& LGrupo = BuscarGrupoPeloCaminho(ARaiz, LPonto == std::string_view::npos ? "" : ACaminho.substr(0, LPonto));
    const auto LNome = LPonto == std::string_view::npos ? ACaminho : ACaminho.substr(LPonto + 1);
    const auto& LPropriedade = BuscarPropriedade(LGrupo, LNome, ACaminho);
    const bool LSimples = LPropriedade.Tipo() < TTipoPropriedade::Grupo;
    if (!LSimples || LPropriedade.SomenteLeitura())
        throw ECaminhoInvalido("A propriedade '" + std::string(ACaminho) + "' não pode ser alterada");
    if (!Utf8Valido(ATexto))
        throw EConvertError("O texto da propriedade '" + std::string(ACaminho) + "' não é UTF-8");
    LPropriedade.Escrever(LGrupo, ParaValor(LPropriedade.Tipo(), ATexto));
}

} // namespace tarvo
