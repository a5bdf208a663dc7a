#include "catalogo/UnTarvoESocialCamposReferencia.h"

#include <cxxabi.h>
#include <rapidjson/prettywriter.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>
#include <memory>
#include <set>
#include <string_view>
#include <typeindex>
#include <vector>

#include "catalogo/UnTarvoESocialCamposCatalogo.h"
#include "framework/UnTarvoESocialCamposAtributosProp.h"
#include "imports/valores/UnOvraConversoes.h"

namespace tarvo {

namespace {

using TEscritor = rapidjson::PrettyWriter<rapidjson::StringBuffer>;

/// A class as it is written in the code, without the library's own namespace: "tabelas::TTarvoESocialCamposS1000".
std::string NomeDaClasse(const std::type_info& ATipo)
{
    int LSituacao = 0;
    const std::unique_ptr<char, decltype(&std::free)> LLegivel(
        abi::__cxa_demangle(ATipo.name(), nullptr, nullptr, &LSituacao), &std::free);
    std::string LNome = LSituacao == 0 ? LLegivel.get() : ATipo.name();
    static constexpr std::string_view PREFIXO = "tarvo::";
    for (auto LInicio = LNome.find(PREFIXO); LInicio != std::string::npos; LInicio = LNome.find(PREFIXO))
        LNome.erase(LInicio, PREFIXO.size());
    return LNome;
}

std::string SemNamespace(const std::string& ANome)
{
    const auto LFim = ANome.find('<');
    const auto LSeparador = ANome.rfind("::", LFim);
    return LSeparador == std::string::npos ? ANome : ANome.substr(LSeparador + 2);
}

bool EhGrupo(TTipoPropriedade ATipo)
{
    return ATipo == TTipoPropriedade::Grupo || ATipo == TTipoPropriedade::ListaDeGrupos;
}

std::string NomeDoTipo(const TPropriedade& APropriedade)
{
    switch (APropriedade.Tipo()) {
    case TTipoPropriedade::Texto:
        return "texto";
    case TTipoPropriedade::Int32:
        return "inteiro de 32 bits";
    case TTipoPropriedade::Int64:
        return "inteiro de 64 bits";
    case TTipoPropriedade::ShortInt:
        return "inteiro de 8 bits";
    case TTipoPropriedade::Double:
    case TTipoPropriedade::Extended:
        return "número";
    case TTipoPropriedade::Currency:
        return "moeda";
    case TTipoPropriedade::Booleano:
        return "lógico";
    case TTipoPropriedade::Enumeracao:
        return "ordinal de " + SemNamespace(NomeDaClasse(APropriedade.TipoDeclarado()));
    case TTipoPropriedade::Data:
        return "data";
    case TTipoPropriedade::Grupo:
        return "grupo";
    case TTipoPropriedade::ListaDeGrupos:
        return "lista de grupos";
    case TTipoPropriedade::ListaDeTextos:
        return "lista de textos";
    case TTipoPropriedade::ListaDeInteiros:
        return "lista de inteiros";
    }
    return {};
}

void Juntar(std::string& ATexto, const std::string& AParte)
{
    if (!AParte.empty())
        ATexto += (ATexto.empty() ? "" : "; ") + AParte;
}

std::string Coluna(const TPropriedade& APropriedade)
{
    return APropriedade.Field() == nullptr ? std::string() : APropriedade.Field()->Campo();
}

/// How a simple property comes by its value, beyond its column.
std::string Regra(const TPropriedade& APropriedade, const TPropriedades& ATabela)
{
    std::string LRegra;
    if (const auto* LField = APropriedade.Field()) {
        const bool LTexto = APropriedade.Tipo() == TTipoPropriedade::Texto;
        if (!LField->ValorDefault().empty())
            Juntar(LRegra, "padrão \"" + LField->ValorDefault() + "\"" + (LTexto ? "" : ", sem efeito neste tipo"));
        Juntar(LRegra, LField->ClasseConversor()->Regra);
        return LRegra;
    }
    const bool LLista = APropriedade.Tipo() > TTipoPropriedade::Grupo;
    if (APropriedade.SomenteLeitura() && !LLista)
        return "por código, só leitura";
    return ATabela.SoDeclara() ? "do grupo acima ou de quem chama" : "por código";
}

/// What is to be known of a group as a whole.
std::string Observacao(const TPropriedades& ATabela)
{
    const auto EhSimples = [](const auto& AItem) { return !EhGrupo(AItem.Tipo()); };
    if (ATabela.size() == 0)
        return "sem campos";
    if (ATabela.SoDeclara())
        return "só declara campos, não lê o banco";
    if (std::any_of(ATabela.begin(), ATabela.end(), [](const auto& AItem) { return AItem.Field() != nullptr; }))
        return {};
    if (std::any_of(ATabela.begin(), ATabela.end(), EhSimples))
        return "preenchido todo por código, sem coluna";
    return "só reúne outros grupos";
}

/// A group of the tree, as it is met from the root.
struct TGrupoDaArvore {
    /// Property names joined by points, a list with [] behind its name; empty for the event.
    std::string Caminho;
    const std::type_info* Tipo;
    const TPropriedades* Tabela;
    /// Null for the event.
    const TPropriedade* Propriedade;
    /// The groups that this one stands in, and itself; a class that comes again among them is not opened twice.
    std::vector<std::type_index> Classes;

    std::size_t Nivel() const { return Classes.size() - 1; }
    bool Repetido() const { return std::count(Classes.begin(), Classes.end(), std::type_index(*Tipo)) > 1; }
};

TGrupoDaArvore Raiz(const TEventoDoCatalogo& AEvento)
{
    const auto& LTipo = AEvento.Construir.Tipo();
    return {{}, &LTipo, &AEvento.Construir.Tabela(), nullptr, {LTipo}};
}

TGrupoDaArvore Filho(const TGrupoDaArvore& AGrupo, const TPropriedade& APropriedade)
{
    TGrupoDaArvore LFilho{AGrupo.Caminho, &APropriedade.TipoDeclarado(), &APropriedade.TabelaDoTipo(), &APropriedade,
                          AGrupo.Classes};
    if (!LFilho.Caminho.empty())
        LFilho.Caminho += '.';
    LFilho.Caminho += APropriedade.Nome();
    if (APropriedade.Tipo() == TTipoPropriedade::ListaDeGrupos)
        LFilho.Caminho += "[]";
    LFilho.Classes.emplace_back(*LFilho.Tipo);
    return LFilho;
}

std::string Descricao(const TGrupoDaArvore& AGrupo)
{
    std::string LTexto;
    if (AGrupo.Propriedade != nullptr && AGrupo.Propriedade->PodeSerNulo())
        Juntar(LTexto, "pode ser nulo");
    if (AGrupo.Repetido())
        Juntar(LTexto, "o mesmo que o grupo acima desta classe");
    else
        Juntar(LTexto, Observacao(*AGrupo.Tabela));
    return LTexto;
}

// ---------------------------------------------------------------------------------------------------- terminal

/// Name, type, column, rule.
using TLinha = std::array<std::string, 4>;

void AcrescentarLinhas(std::vector<TLinha>& ALinhas, const TGrupoDaArvore& AGrupo)
{
    const std::string LRecuo(2 * AGrupo.Nivel(), ' ');
    for (const auto& LPropriedade : *AGrupo.Tabela) {
        if (!EhGrupo(LPropriedade.Tipo())) {
            ALinhas.push_back({LRecuo + LPropriedade.Nome(), NomeDoTipo(LPropriedade), Coluna(LPropriedade),
                               Regra(LPropriedade, *AGrupo.Tabela)});
            continue;
        }
        const auto LFilho = Filho(AGrupo, LPropriedade);
        ALinhas.push_back({LRecuo + LPropriedade.Nome(), NomeDoTipo(LPropriedade), "", Descricao(LFilho)});
        if (!LFilho.Repetido())
            AcrescentarLinhas(ALinhas, LFilho);
    }
}

// ---------------------------------------------------------------------------------------------------- Markdown

/// A text in a cell of a table.
std::string Celula(std::string ATexto)
{
    for (auto LBarra = ATexto.find('|'); LBarra != std::string::npos; LBarra = ATexto.find('|', LBarra + 2))
        ATexto.insert(LBarra, "\\");
    return ATexto;
}

std::string Codigo(const std::string& ATexto) { return ATexto.empty() ? ATexto : "`" + ATexto + "`"; }

std::string LinhaDaTabela(std::initializer_list<std::string> ACelulas)
{
    std::string LLinha = "|";
    for (const auto& LCelula : ACelulas)
        LLinha += LCelula.empty() ? " |" : " " + Celula(LCelula) + " |";
    return LLinha + "\n";
}

void AcrescentarSecoes(std::string& ATexto, const TGrupoDaArvore& AGrupo)
{
    ATexto += "\n## " + (AGrupo.Caminho.empty() ? "O evento" : Codigo(AGrupo.Caminho)) + "\n\n";
    ATexto += "Classe " + Codigo(NomeDaClasse(*AGrupo.Tipo));
    if (const auto LDescricao = Descricao(AGrupo); !LDescricao.empty())
        ATexto += "; " + LDescricao;
    ATexto += ".\n";
    if (AGrupo.Tabela->size() > 0)
        ATexto += "\n| Campo | Tipo | Coluna | Regra |\n|---|---|---|---|\n";
    for (const auto& LPropriedade : *AGrupo.Tabela) {
        const bool LGrupo = EhGrupo(LPropriedade.Tipo());
        ATexto +=
            LinhaDaTabela({Codigo(LPropriedade.Nome()), NomeDoTipo(LPropriedade), Codigo(Coluna(LPropriedade)),
                           LGrupo ? Descricao(Filho(AGrupo, LPropriedade)) : Regra(LPropriedade, *AGrupo.Tabela)});
    }
    for (const auto& LPropriedade : *AGrupo.Tabela)
        if (EhGrupo(LPropriedade.Tipo()))
            if (const auto LFilho = Filho(AGrupo, LPropriedade); !LFilho.Repetido())
                AcrescentarSecoes(ATexto, LFilho);
}

std::string TipoDoArgumento(const TArgumentoDeEvento& AArgumento)
{
    std::string LTexto = Codigo(ExemploDoTipo(AArgumento.Tipo));
    if (AArgumento.UltimoOrdinal >= 0)
        LTexto +=
            ", de " + std::to_string(AArgumento.PrimeiroOrdinal) + " a " + std::to_string(AArgumento.UltimoOrdinal);
    return LTexto;
}

std::string ArgumentosEmTabela(const std::vector<TArgumentoDeEvento>& AArgumentos)
{
    std::string LTexto = "| Argumento | Valor | O que é |\n|---|---|---|\n";
    for (const auto& LArgumento : AArgumentos)
        LTexto += LinhaDaTabela({Codigo("--" + std::string(LArgumento.Nome)), TipoDoArgumento(LArgumento),
                                 LArgumento.Descricao + std::string(LArgumento.Obrigatorio ? "" : " (opcional)")});
    return LTexto;
}

// ---------------------------------------------------------------------------------------------------- JSON Schema

/// Name of a class among the definitions; without a character that a reference would have to escape.
std::string NomeDaDefinicao(const std::type_info& ATipo)
{
    std::string LNome;
    for (const char LChar : NomeDaClasse(ATipo)) {
        const bool LLetra = (LChar >= '0' && LChar <= '9') || (LChar >= 'A' && LChar <= 'Z') ||
                            (LChar >= 'a' && LChar <= 'z') || LChar == '_';
        if (LLetra)
            LNome += LChar;
        else if (!LNome.ends_with('.'))
            LNome += '.';
    }
    return LNome;
}

/// The classes below a table, each once, in the order in which they are met.
void AcrescentarDefinicoes(std::vector<const TPropriedade*>& ADefinicoes, std::set<std::type_index>& AVistas,
                           const TPropriedades& ATabela)
{
    for (const auto& LPropriedade : ATabela)
        if (EhGrupo(LPropriedade.Tipo()) && AVistas.emplace(LPropriedade.TipoDeclarado()).second) {
            ADefinicoes.push_back(&LPropriedade);
            AcrescentarDefinicoes(ADefinicoes, AVistas, LPropriedade.TabelaDoTipo());
        }
}

void EscreverPar(TEscritor& AEscritor, const char* ANome, const std::string& AValor)
{
    AEscritor.Key(ANome);
    AEscritor.String(AValor.data(), static_cast<rapidjson::SizeType>(AValor.size()));
}

std::string Referencia(const TPropriedade& APropriedade)
{
    return "#/definitions/" + NomeDaDefinicao(APropriedade.TipoDeclarado());
}

/// A schema of one keyword.
void EscreverObjeto(TEscritor& AEscritor, const char* ANome, const std::string& AValor)
{
    AEscritor.StartObject();
    EscreverPar(AEscritor, ANome, AValor);
    AEscritor.EndObject();
}

void EscreverFaixa(TEscritor& AEscritor, std::int64_t AMinimo, std::int64_t AMaximo)
{
    EscreverPar(AEscritor, "type", "integer");
    AEscritor.Key("minimum");
    AEscritor.Int64(AMinimo);
    AEscritor.Key("maximum");
    AEscritor.Int64(AMaximo);
}

template <class T>
void EscreverFaixaDe(TEscritor& AEscritor)
{
    EscreverFaixa(AEscritor, std::numeric_limits<T>::min(), std::numeric_limits<T>::max());
}

void EscreverLista(TEscritor& AEscritor, const char* ANome, const std::string& AValor)
{
    EscreverPar(AEscritor, "type", "array");
    AEscritor.Key("items");
    EscreverObjeto(AEscritor, ANome, AValor);
}

void EscreverTipo(TEscritor& AEscritor, const TPropriedade& APropriedade)
{
    switch (APropriedade.Tipo()) {
    case TTipoPropriedade::Texto:
        EscreverPar(AEscritor, "type", "string");
        break;
    case TTipoPropriedade::Int32:
        EscreverFaixaDe<std::int32_t>(AEscritor);
        break;
    case TTipoPropriedade::Int64:
        EscreverFaixaDe<std::int64_t>(AEscritor);
        break;
    case TTipoPropriedade::ShortInt:
        EscreverFaixaDe<std::int8_t>(AEscritor);
        break;
    case TTipoPropriedade::Enumeracao:
        EscreverFaixa(AEscritor, 0, std::numeric_limits<std::int32_t>::max());
        break;
    case TTipoPropriedade::Double:
    case TTipoPropriedade::Extended:
    case TTipoPropriedade::Currency:
        EscreverPar(AEscritor, "type", "number");
        break;
    case TTipoPropriedade::Booleano:
        EscreverPar(AEscritor, "type", "boolean");
        break;
    case TTipoPropriedade::Data:
        AEscritor.Key("type");
        AEscritor.StartArray();
        AEscritor.String("string");
        AEscritor.String("null");
        AEscritor.EndArray();
        EscreverPar(AEscritor, "pattern", "^[0-9]{4}-[0-9]{2}-[0-9]{2}(T[0-9]{2}:[0-9]{2}:[0-9]{2})?$");
        break;
    case TTipoPropriedade::Grupo:
        if (!APropriedade.PodeSerNulo()) {
            EscreverPar(AEscritor, "$ref", Referencia(APropriedade));
            break;
        }
        AEscritor.Key("anyOf");
        AEscritor.StartArray();
        EscreverObjeto(AEscritor, "$ref", Referencia(APropriedade));
        EscreverObjeto(AEscritor, "type", "null");
        AEscritor.EndArray();
        break;
    case TTipoPropriedade::ListaDeGrupos:
        EscreverLista(AEscritor, "$ref", Referencia(APropriedade));
        break;
    case TTipoPropriedade::ListaDeTextos:
        EscreverLista(AEscritor, "type", "string");
        break;
    case TTipoPropriedade::ListaDeInteiros:
        EscreverLista(AEscritor, "type", "integer");
        break;
    }
}

/// What a description of a simple property says: its column and its rule.
std::string DescricaoDoCampo(const TPropriedade& APropriedade, const TPropriedades& ATabela)
{
    std::string LTexto;
    if (APropriedade.Tipo() == TTipoPropriedade::Enumeracao)
        Juntar(LTexto, NomeDoTipo(APropriedade));
    if (const auto LColuna = Coluna(APropriedade); !LColuna.empty())
        Juntar(LTexto, "coluna " + LColuna);
    Juntar(LTexto, Regra(APropriedade, ATabela));
    return LTexto;
}

/// The keywords of a group's object; every property is a key of the JSON, and nothing else is.
void EscreverCampos(TEscritor& AEscritor, const TPropriedades& ATabela)
{
    EscreverPar(AEscritor, "type", "object");
    AEscritor.Key("properties");
    AEscritor.StartObject();
    for (const auto& LPropriedade : ATabela) {
        AEscritor.Key(LPropriedade.Nome());
        AEscritor.StartObject();
        if (!EhGrupo(LPropriedade.Tipo()))
            EscreverPar(AEscritor, "description", DescricaoDoCampo(LPropriedade, ATabela));
        EscreverTipo(AEscritor, LPropriedade);
        AEscritor.EndObject();
    }
    AEscritor.EndObject();
    // An empty list is no valid "required".
    if (ATabela.size() > 0) {
        AEscritor.Key("required");
        AEscritor.StartArray();
        for (const auto& LPropriedade : ATabela)
            AEscritor.String(LPropriedade.Nome());
        AEscritor.EndArray();
    }
    AEscritor.Key("additionalProperties");
    AEscritor.Bool(false);
}

} // namespace

std::string ArvoreDoEvento(const TEventoDoCatalogo& AEvento)
{
    std::vector<TLinha> LLinhas{{"CAMPO", "TIPO", "COLUNA", "REGRA"}};
    AcrescentarLinhas(LLinhas, Raiz(AEvento));
    std::array<std::size_t, 4> LLarguras{};
    for (const auto& LLinha : LLinhas)
        for (std::size_t i = 0; i < LLinha.size(); ++i)
            LLarguras[i] = std::max(LLarguras[i], QuantidadeDeCaracteresUtf8(LLinha[i]));
    std::string LTexto;
    for (const auto& LLinha : LLinhas) {
        for (std::size_t i = 0; i < LLinha.size(); ++i)
            LTexto += LLinha[i] + std::string(LLarguras[i] - QuantidadeDeCaracteresUtf8(LLinha[i]) + 2, ' ');
        LTexto.erase(LTexto.find_last_not_of(' ') + 1);
        LTexto += '\n';
    }
    return LTexto;
}

std::string PaginaDoEvento(const TEventoDoCatalogo& AEvento)
{
    std::string LTexto = std::string("# ") + AEvento.Codigo + ": " + AEvento.Titulo + "\n\n";
    LTexto += "Gerado por `esocial-campos eventos " + std::string(AEvento.Codigo) +
              " --markdown`; não altere à mão. [Como ler, e os outros eventos](README.md).\n";
    LTexto += "\n## Argumentos\n\n";
    LTexto += AEvento.Argumentos.empty() ? "Nenhum.\n" : ArgumentosEmTabela(AEvento.Argumentos);
    if (AEvento.Lote)
        LTexto += "\nEm lote (`esocial-campos lote " + std::string(AEvento.Codigo) + "`), para a empresa toda:\n\n" +
                  ArgumentosEmTabela(AEvento.Lote->Argumentos);
    AcrescentarSecoes(LTexto, Raiz(AEvento));
    return LTexto;
}

std::string IndiceDasPaginas()
{
    std::string LTexto = R"(# Eventos

Gerado por `esocial-campos eventos --markdown`; não altere à mão.

| Evento | O que informa |
|---|---|
)";
    for (const auto& LEvento : CatalogoDeEventos())
        LTexto += LinhaDaTabela({"[" + std::string(LEvento.Codigo) + "](" + LEvento.Codigo + ".md)", LEvento.Titulo});
    return LTexto + R"(
## Como ler

Cada página mostra os argumentos do evento e os seus grupos, da raiz para baixo. O título de um grupo é o caminho que
`--definir` e `--sem-grupo` recebem; `[]` marca uma lista, cujos itens são `[0]`, `[1]`, ... Os nomes dos campos são as
chaves do JSON, como estão escritos.

| Tipo | No JSON |
|---|---|
| texto | texto |
| inteiro | número; um texto que não é número na coluna vale 0 |
| número, moeda | número; a moeda com até quatro decimais, exata |
| lógico | `true` ou `false` |
| ordinal | o número do valor na enumeração |
| data | `"2021-03-01"`, com hora `"2021-03-01T08:30:00"`, sem valor `null`; um texto que não é data na coluna é erro |
| grupo | objeto; `null` quando pode ser nulo e falta |
| lista | lista |

Coluna é o nome na consulta do grupo, que pode ser um apelido; sem linha ou com a coluna nula o campo fica como estava,
salvo quando a regra diz um padrão. O grupo ainda pode acertar por código o que leu.

| Regra | O valor vem |
|---|---|
| (nenhuma) | da coluna, como está |
| padrão "X" | da coluna, ou X quando ela falta |
| por código | do próprio grupo, do grupo acima ou dos argumentos |
| por código, só leitura | o mesmo, mas `--definir` não o altera |
| do grupo acima ou de quem chama | de fora: o grupo só declara os campos |

O esquema JSON de um evento, para conferir um documento: `esocial-campos eventos S-1000 --esquema`.
)";
}

std::string EsquemaDoEvento(const TEventoDoCatalogo& AEvento)
{
    const auto& LTabela = AEvento.Construir.Tabela();
    std::vector<const TPropriedade*> LDefinicoes;
    std::set<std::type_index> LVistas;
    AcrescentarDefinicoes(LDefinicoes, LVistas, LTabela);

    rapidjson::StringBuffer LBuffer;
    TEscritor LEscritor(LBuffer);
    LEscritor.SetIndent(' ', 2);
    LEscritor.StartObject();
    EscreverPar(LEscritor, "$schema", "http://json-schema.org/draft-04/schema#");
    EscreverPar(LEscritor, "title", std::string(AEvento.Codigo) + ": " + AEvento.Titulo);
    EscreverCampos(LEscritor, LTabela);
    LEscritor.Key("definitions");
    LEscritor.StartObject();
    for (const auto* LDefinicao : LDefinicoes) {
        LEscritor.Key(NomeDaDefinicao(LDefinicao->TipoDeclarado()).c_str());
        LEscritor.StartObject();
        if (const auto LObservacao = Observacao(LDefinicao->TabelaDoTipo()); !LObservacao.empty())
            EscreverPar(LEscritor, "description", LObservacao);
        EscreverCampos(LEscritor, LDefinicao->TabelaDoTipo());
        LEscritor.EndObject();
    }
    LEscritor.EndObject();
    LEscritor.EndObject();
    return {LBuffer.GetString(), LBuffer.GetSize()};
}

} // namespace tarvo
