#include "catalogo/UnTarvoESocialCamposCatalogo.h"

#include <algorithm>
#include <limits>

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/UnOvraConversoes.h"
#include "rural/UnTarvoESocialCamposS1280.h"
#include "rural/UnTarvoESocialCamposS1295.h"
#include "rural/UnTarvoESocialCamposS1298.h"
#include "rural/UnTarvoESocialCamposS1299.h"
#include "sst/UnTarvoESocialCamposS2210.h"
#include "sst/UnTarvoESocialCamposS2220.h"
#include "sst/UnTarvoESocialCamposS2221.h"
#include "sst/UnTarvoESocialCamposS2240.h"
#include "sst/UnTarvoESocialCamposS2241.h"
#include "sst/UnTarvoESocialCamposS2245.h"
#include "tabelas/UnTarvoESocialCamposS1000.h"
#include "trabalhador/s2190/UnTarvoESocialCamposS2190.h"
#include "trabalhador/s2205/UnTarvoESocialCamposS2205.h"

namespace tarvo {

namespace {

using enum TTipoArgumento;

/// An event whose constructor takes everything and that needs no parameter object.
template <class T, class... A>
TEventoConstruido Evento(const A&... AArgumentos)
{
    return {nullptr, std::make_unique<T>(AArgumentos...)};
}

bool EhDigito(char AChar) { return AChar >= '0' && AChar <= '9'; }

/// AAAA-MM-DD; an unset date when the text is none.
TDateTime LerDataIso(std::string_view ATexto)
{
    if (ATexto.size() != 10 || ATexto[4] != '-' || ATexto[7] != '-')
        return {};
    const auto LParte = [&](std::size_t AInicio, std::size_t ATamanho) {
        const auto LTexto = ATexto.substr(AInicio, ATamanho);
        return std::all_of(LTexto.begin(), LTexto.end(), EhDigito) ? static_cast<int>(StrToInt64Def(LTexto, 0)) : 0;
    };
    const int LAno = LParte(0, 4);
    const int LMes = LParte(5, 2);
    const int LDia = LParte(8, 2);
    return DataValida(LAno, LMes, LDia) ? EncodeDate(LAno, LMes, LDia) : TDateTime();
}

} // namespace

// One entry an event, in layout order. The names of the arguments are the constructor's, or those of the parameter
// object's properties that the caller sets.
const std::vector<TEventoDoCatalogo>& CatalogoDeEventos()
{
    static const std::vector<TEventoDoCatalogo> LCatalogo{
        {"S-1000",
         "Informações do empregador",
         {{"AIDEmpresa", taId, "código interno da empresa"}, {"AData", taData, "data de referência"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<tabelas::TTarvoESocialCamposS1000>(A.Id("AIDEmpresa"), A.Data("AData"));
         }},
        {"S-1280",
         "Informações complementares aos eventos periódicos",
         {{"AIdEmpresa", taId, "código interno da empresa"}, {"ACompetencia", taData, "primeiro dia da competência"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<rural::TTarvoESocialCamposS1280>(A.Id("AIdEmpresa"), A.Data("ACompetencia"));
         }},
        {"S-1295",
         "Solicitação de totalização para pagamento em contingência",
         {},
         [](const TArgumentosDeEvento&) { return Evento<rural::TTarvoESocialCamposS1295>(); }},
        {"S-1298",
         "Reabertura dos eventos periódicos",
         {{"AIDEmpresa", taId, "código interno da empresa"}},
         [](const TArgumentosDeEvento& A) { return Evento<rural::TTarvoESocialCamposS1298>(A.Id("AIDEmpresa")); }},
        {"S-1299",
         "Fechamento dos eventos periódicos",
         {{"AIdEmpresa", taInteiro, "código interno da empresa"},
          {"ADataInicio", taData, "primeiro dia do período"},
          {"ADataFim", taData, "último dia do período"},
          {"AIndApur", taInteiro, "0 mensal, 1 décimo terceiro"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<rural::TTarvoESocialCamposS1299>(A.Inteiro("AIdEmpresa"), A.Data("ADataInicio"),
                                                            A.Data("ADataFim"),
                                                            static_cast<tpIndApuracao>(A.Inteiro("AIndApur")));
         }},
        {"S-2190",
         "Admissão de trabalhador, registro preliminar",
         {{"AIDEmpregado", taId, "código interno do empregado"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<trabalhador::TTarvoESocialCamposS2190>(A.Id("AIDEmpregado"));
         }},
        {"S-2205",
         "Alteração de dados cadastrais do trabalhador",
         {{"AIDEmpregado", taId, "código interno do empregado"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<trabalhador::TTarvoESocialCamposS2205>(A.Id("AIDEmpregado"));
         }},
        {"S-2210",
         "Comunicação de acidente de trabalho",
         {{"AIdTabCat", taId, "código interno da CAT"}},
         [](const TArgumentosDeEvento& A) { return Evento<sst::TTarvoESocialCamposS2210>(A.Id("AIdTabCat")); }},
        {"S-2220",
         "Monitoramento da saúde do trabalhador",
         {{"AIDEmpregado", taId, "código interno do empregado"}},
         [](const TArgumentosDeEvento& A) { return Evento<sst::TTarvoESocialCamposS2220>(A.Id("AIDEmpregado")); }},
        {"S-2221",
         "Exame toxicológico do motorista profissional",
         {{"AIdExameToxicologico", taId, "código interno do exame"}},
         [](const TArgumentosDeEvento& A) {
             return Evento<sst::TTarvoESocialCamposS2221>(A.Id("AIdExameToxicologico"));
         }},
        {"S-2240",
         "Condições ambientais do trabalho: fatores de risco",
         {{"AIdFatRisco", taId, "código interno do fator de risco"}},
         [](const TArgumentosDeEvento& A) { return Evento<sst::TTarvoESocialCamposS2240>(A.Id("AIdFatRisco")); }},
        {"S-2241",
         "Insalubridade, periculosidade e aposentadoria especial",
         {{"AIdInsalPeric", taId, "código interno da condição"}},
         [](const TArgumentosDeEvento& A) { return Evento<sst::TTarvoESocialCamposS2241>(A.Id("AIdInsalPeric")); }},
        {"S-2245",
         "Treinamentos e capacitações",
         {{"AIdCursoEmpregado", taId, "código interno do curso do empregado"}},
         [](const TArgumentosDeEvento& A) { return Evento<sst::TTarvoESocialCamposS2245>(A.Id("AIdCursoEmpregado")); }},
    };
    return LCatalogo;
}

const TEventoDoCatalogo& BuscarEventoDoCatalogo(std::string_view ACodigo)
{
    const auto& LCatalogo = CatalogoDeEventos();
    const auto LEvento = std::find_if(LCatalogo.begin(), LCatalogo.end(),
                                      [&](const auto& AEvento) { return MesmoTexto(AEvento.Codigo, ACodigo); });
    if (LEvento == LCatalogo.end())
        throw EArgumentoInvalido("Evento desconhecido: '" + std::string(ACodigo) + "'");
    return *LEvento;
}

TEventoConstruido ConstruirEvento(std::string_view ACodigo, const std::map<std::string, std::string>& AArgumentos)
{
    const auto& LEvento = BuscarEventoDoCatalogo(ACodigo);
    return LEvento.Construir(TArgumentosDeEvento(LEvento.Argumentos, AArgumentos));
}

TArgumentosDeEvento::TArgumentosDeEvento(const std::vector<TArgumentoDeEvento>& ADefinicoes,
                                         const std::map<std::string, std::string>& ATextos)
{
    for (const auto& [LNome, LTexto] : ATextos) {
        const auto LDefinicao = std::find_if(ADefinicoes.begin(), ADefinicoes.end(),
                                             [&](const auto& AItem) { return MesmoTexto(AItem.Nome, LNome); });
        if (LDefinicao == ADefinicoes.end())
            throw EArgumentoInvalido("Argumento desconhecido: --" + LNome);
        const auto Recusar = [&, &LNomeDoArgumento = LDefinicao->Nome, &LValor = LTexto](const char* AMotivo) -> void {
            throw EArgumentoInvalido(std::string("Argumento --") + LNomeDoArgumento + ": '" + LValor + "' " + AMotivo);
        };
        TValor LLido;
        LLido.Texto = LTexto;
        switch (LDefinicao->Tipo) {
        case taId:
        case taInteiro:
            try {
                LLido.Inteiro = StrToInt64(LTexto);
            } catch (const EConvertError&) {
                Recusar("não é um número inteiro");
            }
            if (LDefinicao->Tipo == taInteiro && (LLido.Inteiro < std::numeric_limits<std::int32_t>::min() ||
                                                  LLido.Inteiro > std::numeric_limits<std::int32_t>::max()))
                Recusar("está fora da faixa");
            break;
        case taData:
            LLido.Data = LerDataIso(LTexto);
            if (LLido.Data.Vazia())
                Recusar("não é uma data AAAA-MM-DD");
            break;
        case taCpf:
            if (LTexto.empty() || !std::all_of(LTexto.begin(), LTexto.end(), [](char AChar) {
                    return EhDigito(AChar) || AChar == '.' || AChar == '-';
                }))
                Recusar("não é um CPF");
            break;
        case taTexto:
            if (!Utf8Valido(LTexto))
                Recusar("não é um texto UTF-8");
            break;
        }
        if (!FValores.emplace(Minusculas(LDefinicao->Nome), std::move(LLido)).second)
            throw EArgumentoInvalido(std::string("Argumento repetido: --") + LDefinicao->Nome);
    }
    std::string LFaltam;
    for (const auto& LDefinicao : ADefinicoes)
        if (LDefinicao.Obrigatorio && !Informado(LDefinicao.Nome))
            LFaltam += std::string(LFaltam.empty() ? "--" : ", --") + LDefinicao.Nome;
    if (!LFaltam.empty())
        throw EArgumentoInvalido("Falta informar " + LFaltam);
}

bool TArgumentosDeEvento::Informado(std::string_view ANome) const { return FValores.contains(Minusculas(ANome)); }

const TArgumentosDeEvento::TValor& TArgumentosDeEvento::Buscar(std::string_view ANome) const
{
    static const TValor LVazio;
    const auto LItem = FValores.find(Minusculas(ANome));
    return LItem == FValores.end() ? LVazio : LItem->second;
}

std::int64_t TArgumentosDeEvento::Id(std::string_view ANome) const { return Buscar(ANome).Inteiro; }

std::int32_t TArgumentosDeEvento::Inteiro(std::string_view ANome) const
{
    return static_cast<std::int32_t>(Buscar(ANome).Inteiro);
}

TDateTime TArgumentosDeEvento::Data(std::string_view ANome) const { return Buscar(ANome).Data; }

std::string TArgumentosDeEvento::Texto(std::string_view ANome) const { return Buscar(ANome).Texto; }

} // namespace tarvo
