#include "framework/UnTarvoESocialCamposGrupoBase.h"

#include <algorithm>
#include <limits>

#include "imports/UnOvraExcecoes.h"
#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraConversoes.h"

namespace tarvo {

namespace {

/// The integer kinds: a text that is no number gives 0; a number that the property can't hold is an error, since
/// cutting it would report another one.
template <class T>
std::int64_t NaFaixa(const TPropriedade& APropriedade, const std::string& ATexto)
{
    const auto LValor = StrToInt64Def(ATexto, 0);
    if (LValor < std::numeric_limits<T>::min() || LValor > std::numeric_limits<T>::max())
        throw EConvertError("'" + ATexto + "' está fora da faixa da propriedade " + APropriedade.Nome());
    return LValor;
}

TValorPropriedade ConverterTexto(const TPropriedade& APropriedade, std::string ATexto)
{
    switch (APropriedade.Tipo()) {
    case TTipoPropriedade::Texto:
        return ATexto;
    case TTipoPropriedade::Int32:
        return NaFaixa<std::int32_t>(APropriedade, ATexto);
    case TTipoPropriedade::Int64:
        return StrToInt64Def(ATexto, 0);
    case TTipoPropriedade::ShortInt:
        return NaFaixa<std::int8_t>(APropriedade, ATexto);
    case TTipoPropriedade::Double:
        return static_cast<long double>(StrToDoubleDef(ATexto, 0.0));
    case TTipoPropriedade::Extended:
        return StrToFloatDef(ATexto, 0.0L);
    case TTipoPropriedade::Currency:
        return Currency(StrToFloatDef(ATexto, 0.0L));
    case TTipoPropriedade::Data:
        return StrToDateTime(ATexto);
    default:
        throw Exception(std::string("Propriedade sem conversão de texto: ") + APropriedade.Nome());
    }
}

} // namespace

TTarvoESocialCamposGrupoBase::TTarvoESocialCamposGrupoBase(std::string_view AGuid)
    : DataGeracao(Now()), FCarregarDadosDoGrupo(true), FCdsDados(CriarOvraClientDataset()), FGuidClasse(AGuid)
{}

TTarvoESocialCamposGrupoBase::TTarvoESocialCamposGrupoBase(TSemConstrucaoDaBase) {}

TTarvoESocialCamposGrupoBase::~TTarvoESocialCamposGrupoBase() = default;

const TPropriedades& TTarvoESocialCamposGrupoBase::Tabela()
{
    static const TPropriedades tabela{};
    return tabela;
}

std::string TTarvoESocialCamposGrupoBase::BuscarSQLDados() { return {}; }

void TTarvoESocialCamposGrupoBase::AtribuirValoresManualmente() {}

void TTarvoESocialCamposGrupoBase::ReverterDados() {}

void TTarvoESocialCamposGrupoBase::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    if (!FCarregarDadosDoGrupo)
        return;
    if (AListaCamposModificados != nullptr && !AListaCamposModificados->empty() &&
        std::find(AListaCamposModificados->begin(), AListaCamposModificados->end(), FGuidClasse) ==
            AListaCamposModificados->end())
        return;
    AtualizarCdsDados(BuscarSQLDados());
    SetarValoresDoCdsNasProperties(CdsDados());
    AtribuirValoresManualmente();
}

TOvraClientDataSetWithConnection& TTarvoESocialCamposGrupoBase::CdsDados()
{
    return Existente(FCdsDados.get(), "FCdsDados");
}

void TTarvoESocialCamposGrupoBase::AtualizarCdsDados(const std::string& ASql)
{
    auto& LCdsDados = CdsDados();
    LCdsDados.Close();
    if (ASql.empty())
        return;
    LCdsDados.SetCommandText(ASql);
    LCdsDados.Open();
}

void TTarvoESocialCamposGrupoBase::SetarValoresDoCdsNasProperties(const TOvraClientDataSet& ACdsDados)
{
    for (const auto& LPropriedade : Propriedades())
        if (const auto* LField = LPropriedade.Field())
            AtribuirValorAPropriedade(LPropriedade, *LField, ACdsDados);
}

void TTarvoESocialCamposGrupoBase::AtribuirValorAPropriedade(const TPropriedade& APropriedade,
                                                             const TFieldRelacionado& AField,
                                                             const TOvraClientDataSet& ACdsDados)
{
    const auto LCampo = ACdsDados.IsEmpty() ? std::nullopt : ACdsDados.FindField(AField.Campo());
    if (LCampo && !LCampo->IsNull()) {
        auto& LConversor = BuscarConversor(AField.ClasseConversor());
        auto LTexto = LConversor.BuscarValor(std::string(Trim(LCampo->AsString())));
        APropriedade.Escrever(*this, ConverterTexto(APropriedade, std::move(LTexto)));
        return;
    }
    // A default is a text for a string property; on any other kind it fails in silence, and that is meant.
    if (!AField.ValorDefault().empty() && APropriedade.Tipo() == TTipoPropriedade::Texto)
        APropriedade.Escrever(*this, AField.ValorDefault());
}

ITarvoESocialCamposConversoresBase& TTarvoESocialCamposGrupoBase::BuscarConversor(TClasseConversor AClasse) const
{
    auto* LConversor = ConversoresGlobais().Buscar(AClasse);
    if (LConversor == nullptr)
        LConversor = FConversoresProprios.Buscar(AClasse);
    if (LConversor == nullptr)
        throw Exception(std::string("Conversor não registrado: ") + AClasse->Nome);
    return *LConversor;
}

void TTarvoESocialCamposGrupoBase::RegistrarConversor(TClasseConversor AClasse, TConversor AConversor)
{
    FConversoresProprios.Add(AClasse, std::move(AConversor));
}

void TTarvoESocialCamposGrupoBase::RegistrarConversor(TClasseConversor AClasse)
{
    RegistrarConversor(AClasse, AClasse->Criar());
}

ISuperObject TTarvoESocialCamposGrupoBase::ToJson(TSuperRttiContext* ctx) const
{
    return TSuperObjectHelper::ToJson(*this, ctx);
}

} // namespace tarvo
