#include "c/tarvo_esocial.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <mutex>
#include <new>

#include "catalogo/UnTarvoESocialCamposCatalogo.h"
#include "catalogo/UnTarvoESocialCamposReferencia.h"
#include "framework/UnOvraSerializacaoObject.h"
#include "framework/UnTarvoESocialCamposCaminhos.h"
#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "framework/UnTarvoESocialCamposListaSqlReversao.h"
#include "framework/UnTarvoESocialCamposVersao.h"
#include "imports/banco/UnOvraConnection.h"
#include "imports/banco/UnOvraContexto.h"
#include "imports/banco/UnOvraUtilsDbFirebird.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnTarvoUtilsStrings.h"

using namespace tarvo;

struct tarvo_textos {
    std::vector<std::string> Lista;
};

namespace {

/// What the events of a connection work in.
struct TMeio {
    explicit TMeio(const TParametrosConexao& AParametros) : Folha(AParametros) {}

    /// Held by the call that runs on this connection or on one of its events; everything below is behind it.
    std::mutex Trava;
    TOvraConnection Folha;
    std::unique_ptr<TOvraConnection> Brenco;
    TOvraContexto Contexto{&Folha};
    /// The caller holds the moment over its calls.
    bool Instantaneo = false;

    /// On both connections or on none.
    void IniciarInstantaneo()
    {
        try {
            for (auto* LConexao : {&Folha, Brenco.get()})
                if (LConexao != nullptr)
                    LConexao->IniciarTransacao(TOvraConnection::TIsolamento::Instantaneo);
        } catch (...) {
            Largar();
            throw;
        }
    }
    /// Ends the moment. Nothing was written, so a connection that broke loses nothing; its next use tells so.
    void Largar() noexcept
    {
        for (auto* LConexao : {&Folha, Brenco.get()}) {
            try {
                if (LConexao != nullptr)
                    LConexao->Desfazer();
            } catch (const std::exception&) {
            }
        }
    }
};

} // namespace

struct tarvo_conexao {
    std::shared_ptr<TMeio> Meio;
};

struct tarvo_evento {
    std::shared_ptr<TMeio> Meio;
    const TEventoDoCatalogo* Definicao = nullptr;
    TEventoConstruido Construido;
    bool Carregado = false;
};

namespace {

/// What the caller gave wrongly.
class EUsoErrado : public Exception {
public:
    using Exception::Exception;
};

thread_local std::string FErro;

void GuardarErro(const char* ATexto) noexcept
{
    try {
        FErro = ATexto;
    } catch (...) {
        FErro.clear();
    }
}

/// The body of every function that can fail: nothing that it raises gets out.
template <class F>
tarvo_situacao Fazer(F ACorpo) noexcept
{
    FErro.clear();
    try {
        ACorpo();
        return TARVO_FEITO;
    } catch (const EUsoErrado& LErro) {
        GuardarErro(LErro.what());
        return TARVO_USO_ERRADO;
    } catch (const EArgumentoInvalido& LErro) {
        GuardarErro(LErro.what());
        return TARVO_USO_ERRADO;
    } catch (const ECaminhoInvalido& LErro) {
        GuardarErro(LErro.what());
        return TARVO_USO_ERRADO;
    } catch (const std::bad_alloc&) {
        GuardarErro("Falta memória");
    } catch (const std::exception& LErro) {
        GuardarErro(LErro.what());
    } catch (...) {
        GuardarErro("Erro desconhecido");
    }
    return TARVO_FALHA;
}

/// What a pointer of the caller points to; EUsoErrado for null.
template <class T>
T& Dado(T* APonteiro, const char* ANome)
{
    if (APonteiro == nullptr)
        throw EUsoErrado(std::string("Falta informar ") + ANome);
    return *APonteiro;
}

std::string Texto(const char* ATexto, const char* ANome) { return &Dado(ATexto, ANome); }
std::string TextoOuVazio(const char* ATexto) { return ATexto == nullptr ? std::string() : std::string(ATexto); }

TParametrosConexao LerLigacao(const char* ABanco, const char* AUsuario, const char* ASenha)
{
    const auto LBanco = TextoOuVazio(ABanco);
    if (LBanco.empty())
        throw EUsoErrado("Falta informar o banco");
    return ParametrosDaConexao(LBanco, TextoOuVazio(AUsuario), TextoOuVazio(ASenha));
}

/// Where a result goes, null until there is one.
template <class T>
T*& Resultado(T** AOnde, const char* ANome)
{
    auto& LOnde = Dado(AOnde, ANome);
    LOnde = nullptr;
    return LOnde;
}

/// Frees a handle when no call runs on its connection, and the connection with the last of its handles.
template <class T>
void Liberar(T* AInstancia) noexcept
{
    if (AInstancia == nullptr)
        return;
    const auto LMeio = AInstancia->Meio;
    const std::lock_guard LTravado(LMeio->Trava);
    delete AInstancia;
}

char* Copiar(const std::string& ATexto)
{
    auto* LCopia = static_cast<char*>(std::malloc(ATexto.size() + 1));
    if (LCopia == nullptr)
        throw std::bad_alloc();
    std::memcpy(LCopia, ATexto.c_str(), ATexto.size() + 1);
    return LCopia;
}

/// A call's use of the database: one moment of it, in the connection's context; the host's own comes back at the end.
class TUso {
public:
    explicit TUso(TMeio& AMeio) : FMeio(AMeio), FContexto(AMeio.Contexto) { FMeio.IniciarInstantaneo(); }
    ~TUso()
    {
        if (!FMeio.Instantaneo)
            FMeio.Largar();
    }
    TUso(const TUso&) = delete;
    TUso& operator=(const TUso&) = delete;

private:
    TMeio& FMeio;
    TUsoDoContexto FContexto;
};

void ConferirCarregado(const tarvo_evento& AEvento)
{
    if (!AEvento.Carregado)
        throw EUsoErrado(std::string("O evento ") + AEvento.Definicao->Codigo + " não está carregado");
}

} // namespace

const char* tarvo_versao(void) { return VersaoDaBiblioteca(); }
const char* tarvo_erro(void) { return FErro.c_str(); }

void tarvo_liberar_texto(char* texto) { std::free(texto); }

size_t tarvo_textos_quantidade(const tarvo_textos* textos) { return textos == nullptr ? 0 : textos->Lista.size(); }

const char* tarvo_textos_item(const tarvo_textos* textos, size_t posicao)
{
    return posicao < tarvo_textos_quantidade(textos) ? textos->Lista[posicao].c_str() : nullptr;
}

void tarvo_liberar_textos(tarvo_textos* textos) { delete textos; }

tarvo_situacao tarvo_eventos(tarvo_textos** codigos)
{
    return Fazer([&] {
        auto& LResultado = Resultado(codigos, "codigos");
        auto LTextos = std::make_unique<tarvo_textos>();
        for (const auto& LEvento : CatalogoDeEventos())
            LTextos->Lista.emplace_back(LEvento.Codigo);
        LResultado = LTextos.release();
    });
}

tarvo_situacao tarvo_argumentos(const char* codigo, int so_obrigatorios, tarvo_textos** nomes)
{
    return Fazer([&] {
        auto& LResultado = Resultado(nomes, "nomes");
        auto LTextos = std::make_unique<tarvo_textos>();
        for (const auto& LArgumento : BuscarEventoDoCatalogo(Texto(codigo, "o código")).Argumentos)
            if (LArgumento.Obrigatorio || so_obrigatorios == 0)
                LTextos->Lista.emplace_back(LArgumento.Nome);
        LResultado = LTextos.release();
    });
}

tarvo_situacao tarvo_referencia(const char* codigo, char** texto)
{
    return Fazer([&] {
        auto& LResultado = Resultado(texto, "texto");
        LResultado = Copiar(PaginaDoEvento(BuscarEventoDoCatalogo(Texto(codigo, "o código"))));
    });
}

tarvo_situacao tarvo_esquema(const char* codigo, char** texto)
{
    return Fazer([&] {
        auto& LResultado = Resultado(texto, "texto");
        LResultado = Copiar(EsquemaDoEvento(BuscarEventoDoCatalogo(Texto(codigo, "o código"))));
    });
}

tarvo_situacao tarvo_conectar(const char* banco, const char* usuario, const char* senha, tarvo_conexao** conexao)
{
    return Fazer([&] {
        auto& LResultado = Resultado(conexao, "conexao");
        // Before any call reads the environment: it may write there.
        static const bool LTravasPreparadas = (PrepararPastaDeTravas(), true);
        static_cast<void>(LTravasPreparadas);
        const auto LParametros = LerLigacao(banco, usuario, senha);
        LResultado = new tarvo_conexao{std::make_shared<TMeio>(LParametros)};
    });
}

void tarvo_desconectar(tarvo_conexao* conexao) { Liberar(conexao); }

tarvo_situacao tarvo_definir_ambiente(tarvo_conexao* conexao, int ambiente)
{
    return Fazer([&] {
        auto& LMeio = *Dado(conexao, "a conexão").Meio;
        const std::lock_guard LTravado(LMeio.Trava);
        try {
            LMeio.Contexto.Ambientes.DefinirTpAmb(ambiente);
        } catch (const Exception& LErro) {
            throw EUsoErrado(LErro.what());
        }
    });
}

tarvo_situacao tarvo_conectar_brenco(tarvo_conexao* conexao, const char* banco, const char* usuario, const char* senha)
{
    return Fazer([&] {
        auto& LMeio = *Dado(conexao, "a conexão").Meio;
        const std::lock_guard LTravado(LMeio.Trava);
        if (LMeio.Instantaneo)
            throw EUsoErrado("A conexão tem um instantâneo aberto");
        LMeio.Brenco = std::make_unique<TOvraConnection>(LerLigacao(banco, usuario, senha));
        LMeio.Contexto.Brenco.DefinirConexao(LMeio.Brenco.get());
        LMeio.Contexto.UsuarioBrenco.DefinirUsuarioTemPermissao(true);
    });
}

tarvo_situacao tarvo_iniciar_instantaneo(tarvo_conexao* conexao)
{
    return Fazer([&] {
        auto& LMeio = *Dado(conexao, "a conexão").Meio;
        const std::lock_guard LTravado(LMeio.Trava);
        if (LMeio.Instantaneo)
            throw EUsoErrado("A conexão já tem um instantâneo aberto");
        LMeio.IniciarInstantaneo();
        LMeio.Instantaneo = true;
    });
}

tarvo_situacao tarvo_encerrar_instantaneo(tarvo_conexao* conexao)
{
    return Fazer([&] {
        auto& LMeio = *Dado(conexao, "a conexão").Meio;
        const std::lock_guard LTravado(LMeio.Trava);
        LMeio.Instantaneo = false;
        LMeio.Largar();
    });
}

tarvo_situacao tarvo_evento_criar(tarvo_conexao* conexao, const char* codigo, const char* const* nomes,
                                  const char* const* valores, size_t quantos, tarvo_evento** evento)
{
    return Fazer([&] {
        auto& LResultado = Resultado(evento, "evento");
        auto LEvento = std::make_unique<tarvo_evento>();
        LEvento->Meio = Dado(conexao, "a conexão").Meio;
        LEvento->Definicao = &BuscarEventoDoCatalogo(Texto(codigo, "o código"));
        std::map<std::string, std::string> LArgumentos;
        for (size_t i = 0; i < quantos; ++i) {
            const auto LNome = Texto((&Dado(nomes, "os nomes"))[i], "o nome de um argumento");
            const auto LValor = Texto((&Dado(valores, "os valores"))[i], ("o valor de " + LNome).c_str());
            if (!LArgumentos.emplace(LNome, LValor).second)
                throw EUsoErrado("Argumento repetido: " + LNome);
        }
        const std::lock_guard LTravado(LEvento->Meio->Trava);
        const TUso LUso(*LEvento->Meio);
        LEvento->Construido = ConstruirEvento(LEvento->Definicao->Codigo, LArgumentos);
        LResultado = LEvento.release();
    });
}

tarvo_situacao tarvo_evento_desligar_grupo(tarvo_evento* evento, const char* caminho)
{
    return Fazer([&] {
        auto& LEvento = Dado(evento, "o evento");
        const std::lock_guard LTravado(LEvento.Meio->Trava);
        BuscarGrupoPeloCaminho(*LEvento.Construido.Evento, Texto(caminho, "o caminho")).SetCarregarDadosDoGrupo(false);
    });
}

tarvo_situacao tarvo_evento_carregar(tarvo_evento* evento, const char* grupos)
{
    return Fazer([&] {
        auto& LEvento = Dado(evento, "o evento");
        const auto LGrupos = TTarvoUtilsStrings::TransfereStringParaLista(TextoOuVazio(grupos));
        const std::lock_guard LTravado(LEvento.Meio->Trava);
        LEvento.Carregado = false;
        const TUso LUso(*LEvento.Meio);
        LEvento.Construido.Evento->CarregarDados(&LGrupos);
        LEvento.Carregado = true;
    });
}

tarvo_situacao tarvo_evento_json(tarvo_evento* evento, int identado, char** json)
{
    return Fazer([&] {
        auto& LResultado = Resultado(json, "json");
        auto& LEvento = Dado(evento, "o evento");
        const std::lock_guard LTravado(LEvento.Meio->Trava);
        ConferirCarregado(LEvento);
        LResultado = Copiar(LEvento.Construido.Evento->ToJson().AsJSON(identado != 0));
    });
}

tarvo_situacao tarvo_evento_definir(tarvo_evento* evento, const char* caminho, const char* valor)
{
    return Fazer([&] {
        auto& LEvento = Dado(evento, "o evento");
        const std::lock_guard LTravado(LEvento.Meio->Trava);
        ConferirCarregado(LEvento);
        const auto LCaminho = Texto(caminho, "o caminho");
        const auto LValor = Texto(valor, "o valor");
        try {
            DefinirPropriedadePeloCaminho(*LEvento.Construido.Evento, LCaminho, LValor);
        } catch (const EConvertError& LErro) {
            throw EUsoErrado(LCaminho + ": " + LErro.what());
        }
    });
}

tarvo_situacao tarvo_evento_reverter(tarvo_evento* evento, tarvo_textos** comandos)
{
    return Fazer([&] {
        auto& LResultado = Resultado(comandos, "comandos");
        auto& LEvento = Dado(evento, "o evento");
        const std::lock_guard LTravado(LEvento.Meio->Trava);
        ConferirCarregado(LEvento);
        if (!LEvento.Definicao->Construir.TemReversao())
            throw EUsoErrado(std::string("Os valores do evento ") + LEvento.Definicao->Codigo +
                             " não voltam para o banco");
        auto LTextos = std::make_unique<tarvo_textos>();
        const TUso LUso(*LEvento.Meio);
        auto& LLista = BuscarInstanciaListaSql();
        LLista.LimparLista();
        LEvento.Construido.Evento->ReverterDados();
        LTextos->Lista = LLista.Lista;
        LResultado = LTextos.release();
    });
}

void tarvo_evento_liberar(tarvo_evento* evento) { Liberar(evento); }

tarvo_situacao tarvo_executar(tarvo_conexao* conexao, const tarvo_textos* comandos)
{
    return Fazer([&] {
        auto& LMeio = *Dado(conexao, "a conexão").Meio;
        const std::lock_guard LTravado(LMeio.Trava);
        const auto& LComandos = Dado(comandos, "os comandos").Lista;
        const TUso LUso(LMeio);
        LMeio.Instantaneo = false;
        std::string LErros;
        const auto LRecusados = ExecutarReversao(LMeio.Folha, LComandos);
        for (const auto& [LSql, LMotivo] : LRecusados)
            LErros += "Comando recusado: " + LSql + "\n" + LMotivo + "\n";
        if (!LRecusados.empty())
            throw Exception(LErros + "Nada foi gravado: " + IntToStr(static_cast<std::int64_t>(LRecusados.size())) +
                            " de " + IntToStr(static_cast<std::int64_t>(LComandos.size())) + " comandos recusados");
    });
}
