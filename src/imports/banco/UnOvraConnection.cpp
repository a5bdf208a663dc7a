#include "imports/banco/UnOvraConnection.h"

#include <chrono>
#include <cstdlib>

#include "imports/UnOvraExcecoes.h"
#include "imports/firebird/UnOvraFirebirdComando.h"
#include "imports/firebird/UnOvraFirebirdComandosGuardados.h"
#include "imports/firebird/UnOvraFirebirdSessao.h"
#include "imports/valores/UnOvraConversoes.h"

namespace tarvo {

using namespace firebird;

TParametrosConexao ParametrosDaConexao(std::string ABancoDeDados, const std::string& AUsuario,
                                       const std::string& ASenha)
{
    TParametrosConexao LParametros;
    LParametros.BancoDeDados = std::move(ABancoDeDados);
    const auto Definir = [](std::string& AOnde, const std::string& AInformado, const char* AVariavel) {
        const char* LDoAmbiente = std::getenv(AVariavel);
        if (!AInformado.empty())
            AOnde = AInformado;
        else if (LDoAmbiente != nullptr && *LDoAmbiente != '\0')
            AOnde = LDoAmbiente;
    };
    Definir(LParametros.Usuario, AUsuario, "ISC_USER");
    Definir(LParametros.Senha, ASenha, "ISC_PASSWORD");
    return LParametros;
}

bool TParametrosConexao::EhServidor() const
{
    if (BancoDeDados.find("://") != std::string::npos)
        return true;
    // "C:\..." and "C:/..." are drives, not hosts.
    const auto LDoisPontos = BancoDeDados.find(':');
    return LDoisPontos != std::string::npos && LDoisPontos > 1 && BancoDeDados.front() != '/' &&
           BancoDeDados.front() != '.';
}

struct TOvraConnection::TImplementacao {
    explicit TImplementacao(const TParametrosConexao& AParametros) : Parametros(AParametros), Sessao(AParametros) {}

    TParametrosConexao Parametros;
    TSessao Sessao;
    TComandosPelaForma Comandos{Sessao};
    TObservadorSql Observador;
    int VersaoMaior = 0;
    bool Reaproveitar = true;

    TConjuntoDeLinhas Consultar(std::string_view ASql);
    std::int64_t Executar(std::string_view ASql);
    /// Undoes what ExecutouSQL did, on the way of an exception: never raises. What it failed by, to stand behind the
    /// reason of the undoing; a lost connection undoes by itself.
    std::string VoltarAoSavepoint();

    /// Runs an operation, and tells the observer of it when it ends well.
    template <class TOperacao, class TContagem>
    auto Observar(std::string_view ASql, TOperacao AOperacao, TContagem AContagem)
    {
        const auto LInicio = std::chrono::steady_clock::now();
        auto LResultado = AOperacao();
        if (Observador) {
            const auto LTempo = std::chrono::steady_clock::now() - LInicio;
            Observador(
                {ASql, AContagem(LResultado), std::chrono::duration_cast<std::chrono::microseconds>(LTempo).count()});
        }
        return LResultado;
    }
};

TConjuntoDeLinhas TOvraConnection::TImplementacao::Consultar(std::string_view ASql)
{
    if (!Reaproveitar)
        return Ler(Sessao, *PrepararComando(Sessao, ASql));
    try {
        return Comandos.Consultar(ASql);
    } catch (const EDatabaseError& LErro) {
        if (EhPerdaDeConexao(LErro))
            throw;
        // A statement that changes data must not run twice.
        const auto LTexto = Trim(ASql);
        if (!MesmoTexto(LTexto.substr(0, 6), "SELECT") && !MesmoTexto(LTexto.substr(0, 4), "WITH"))
            throw;
    }
    // What failed with parameters has to fail, or to pass, as it stands.
    return Ler(Sessao, *PrepararComando(Sessao, ASql));
}

std::int64_t TOvraConnection::TImplementacao::Executar(std::string_view ASql)
{
    const auto LComando = Sessao.Preparar(ASql);
    TStatus LStatus;
    // A kept statement holds its tables: none may stand in the way of a table's change, nor outlive it.
    if (LComando->getType(&LStatus) == isc_info_sql_stmt_ddl)
        Comandos.Esquecer();
    Sessao.Vigiar(TPassoSql::Executar);
    LComando->execute(&LStatus, Sessao.TransacaoCorrente(), nullptr, nullptr, nullptr, nullptr);
    const auto LAfetadas = LComando->getAffectedRecords(&LStatus);
    return static_cast<std::int64_t>(LAfetadas);
}

std::string TOvraConnection::TImplementacao::VoltarAoSavepoint()
{
    try {
        Executar("ROLLBACK TO SAVEPOINT OVRA_EXECUTOUSQL");
    } catch (const std::exception& LErro) {
        const auto* LDoMotor = dynamic_cast<const EDatabaseError*>(&LErro);
        if (LDoMotor == nullptr || !EhPerdaDeConexao(*LDoMotor))
            return std::string("\nO que já tinha sido feito não pôde ser desfeito: ") + LErro.what();
    } catch (...) {
    }
    return {};
}

TOvraConnection::TOvraConnection(const TParametrosConexao& AParametros)
    : FImplementacao(std::make_unique<TImplementacao>(AParametros))
{}

TOvraConnection::~TOvraConnection()
{
    if (OvraConnectionOuNulo() == this)
        DefinirOvraConnection(nullptr);
}

void TOvraConnection::CriarBanco(const TParametrosConexao& AParametros) { TSessao::CriarBanco(AParametros); }

void TOvraConnection::ApagarBanco(const TParametrosConexao& AParametros) { TSessao(AParametros).ApagarBanco(); }

TConjuntoDeLinhas TOvraConnection::Consultar(std::string_view ASql)
{
    return FImplementacao->Observar(
        ASql, [&] { return FImplementacao->Consultar(ASql); },
        [](const TConjuntoDeLinhas& ALinhas) { return static_cast<std::int64_t>(ALinhas.QuantidadeDeLinhas()); });
}

std::int64_t TOvraConnection::Executar(std::string_view ASql)
{
    return FImplementacao->Observar(
        ASql, [&] { return FImplementacao->Executar(ASql); }, [](std::int64_t AAfetadas) { return AAfetadas; });
}

TResultStatus TOvraConnection::ExecutouSQL(const std::vector<std::string>& ASql, bool ACommit)
{
    try {
        FImplementacao->Executar("SAVEPOINT OVRA_EXECUTOUSQL");
        try {
            for (const auto& LSql : ASql)
                Executar(LSql);
            FImplementacao->Executar("RELEASE SAVEPOINT OVRA_EXECUTOUSQL ONLY");
        } catch (const EDatabaseError& LErro) {
            return {false, LErro.what() + FImplementacao->VoltarAoSavepoint()};
        } catch (...) {
            FImplementacao->VoltarAoSavepoint();
            throw;
        }
        if (ACommit)
            Confirmar();
    } catch (const EDatabaseError& LErro) {
        return {false, LErro.what()};
    }
    return {true, {}};
}

void TOvraConnection::IniciarTransacao(TIsolamento AIsolamento)
{
    FImplementacao->Sessao.IniciarTransacao(AIsolamento);
}

void TOvraConnection::Confirmar() { FImplementacao->Sessao.Confirmar(); }

void TOvraConnection::Desfazer() { FImplementacao->Sessao.Desfazer(); }

bool TOvraConnection::EmTransacao() const { return FImplementacao->Sessao.EmTransacao(); }

std::string TOvraConnection::GetDataBaseLineFull() const { return FImplementacao->Parametros.BancoDeDados; }

int TOvraConnection::VersaoMaiorDoServidor()
{
    if (FImplementacao->VersaoMaior == 0) {
        const auto LLinhas =
            FImplementacao->Consultar("SELECT RDB$GET_CONTEXT('SYSTEM', 'ENGINE_VERSION') AS VERSAO FROM RDB$DATABASE");
        const auto LVersao = LLinhas.Texto(0, 0);
        FImplementacao->VersaoMaior = static_cast<int>(StrToInt64Def(LVersao.substr(0, LVersao.find('.')), 0));
    }
    return FImplementacao->VersaoMaior;
}

void TOvraConnection::DefinirReaproveitamento(bool ALigado)
{
    FImplementacao->Reaproveitar = ALigado;
    FImplementacao->Comandos.Esquecer();
}

std::size_t TOvraConnection::ComandosGuardados() const { return FImplementacao->Comandos.Quantidade(); }

void TOvraConnection::DefinirObservador(TObservadorSql AObservador)
{
    FImplementacao->Observador = std::move(AObservador);
}

void TOvraConnection::DefinirVigia(TVigiaSql AVigia) { FImplementacao->Sessao.DefinirVigia(std::move(AVigia)); }

} // namespace tarvo
