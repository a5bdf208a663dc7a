#include "imports/UnOvraConnection.h"

#include <firebird/Interface.h>

#include <array>
#include <chrono>
#include <cstring>

#include "imports/UnOvraConversoes.h"
#include "imports/UnOvraExcecoes.h"

namespace tarvo {

namespace {

using namespace Firebird;

constexpr unsigned DIALETO = 3;
constexpr int CHARSET_NONE = 0;
constexpr int CHARSET_OCTETS = 1;
/// Days from the engine's day 0 (17 November 1858) to TDateTime's.
constexpr int DIA_ZERO_DO_MOTOR = 15018;
/// The engine counts the time of day in ten-thousandths of a second.
constexpr double FRACOES_DO_DIA = 864'000'000.0;

struct TLiberador {
    void operator()(IReferenceCounted* AInstancia) const { AInstancia->release(); }
};
struct TDescartador {
    void operator()(IDisposable* AInstancia) const { AInstancia->dispose(); }
};
template <class T>
using TReferencia = std::unique_ptr<T, TLiberador>;

IMaster* Mestre()
{
    static IMaster* LMestre = fb_get_master_interface();
    return LMestre;
}

/// The status of one call. Verificar raises what the call reported.
class TStatus {
public:
    TStatus() : FInterno(Mestre()->getStatus()), FStatus(FInterno.get()) {}

    CheckStatusWrapper* operator&() { return &FStatus; }

    bool Falhou() const { return (FStatus.getState() & IStatus::STATE_ERRORS) != 0; }

    void Verificar()
    {
        if (!Falhou())
            return;
        const intptr_t* LErros = FStatus.getErrors();
        std::array<char, 8192> LTexto{};
        Mestre()->getUtilInterface()->formatStatus(LTexto.data(), LTexto.size(), &FStatus);
        std::array<char, 6> LSqlState{};
        fb_sqlstate(LSqlState.data(), LErros);
        throw EDatabaseError(ParaUtf8(LTexto.data()), LErros[1], LSqlState.data());
    }

private:
    std::unique_ptr<IStatus, TDescartador> FInterno;
    CheckStatusWrapper FStatus;
};

using TBlocoDeParametros = std::unique_ptr<IXpbBuilder, TDescartador>;

TBlocoDeParametros CriarBloco(unsigned ATipo)
{
    TStatus LStatus;
    TBlocoDeParametros LBloco(Mestre()->getUtilInterface()->getXpbBuilder(&LStatus, ATipo, nullptr, 0));
    LStatus.Verificar();
    return LBloco;
}

TBlocoDeParametros ParametrosDeConexao(const TParametrosConexao& AParametros)
{
    auto LBloco = CriarBloco(IXpbBuilder::DPB);
    TStatus LStatus;
    LBloco->insertString(&LStatus, isc_dpb_lc_ctype, "UTF8");
    LBloco->insertString(&LStatus, isc_dpb_user_name, AParametros.Usuario.c_str());
    if (!AParametros.Senha.empty())
        LBloco->insertString(&LStatus, isc_dpb_password, AParametros.Senha.c_str());
    LBloco->insertInt(&LStatus, isc_dpb_sql_dialect, DIALETO);
    LBloco->insertInt(&LStatus, isc_dpb_utf8_filename, 1);
    // A plain path is the embedded engine's alone: without this a missing file is looked for on a local server too,
    // and its error is hidden behind the network's.
    if (!AParametros.EhServidor())
        LBloco->insertString(&LStatus, isc_dpb_config, "Providers=Engine12");
    LStatus.Verificar();
    return LBloco;
}

/// How one column stands in the message of a fetch.
struct TColunaDaMensagem {
    unsigned Tipo = 0;
    int SubTipo = 0;
    unsigned Tamanho = 0;
    unsigned Posicao = 0;
    unsigned PosicaoDoNulo = 0;
    bool SemCaracteres = false;
};

struct TDescricao {
    std::shared_ptr<const std::vector<TColuna>> Colunas;
    std::vector<TColunaDaMensagem> Mensagem;
    unsigned Tamanho = 0;
};

TTipoColuna TipoDaColuna(unsigned ATipo)
{
    switch (ATipo) {
    case SQL_SHORT:
    case SQL_LONG:
    case SQL_INT64:
        return TTipoColuna::Inteiro;
    case SQL_FLOAT:
        return TTipoColuna::Float;
    case SQL_DOUBLE:
    case SQL_D_FLOAT:
        return TTipoColuna::Double;
    case SQL_TYPE_DATE:
        return TTipoColuna::Data;
    case SQL_TYPE_TIME:
        return TTipoColuna::Hora;
    case SQL_TIMESTAMP:
        return TTipoColuna::DataHora;
    case SQL_BOOLEAN:
        return TTipoColuna::Booleano;
    case SQL_TEXT:
    case SQL_VARYING:
    case SQL_BLOB:
    case SQL_NULL:
        return TTipoColuna::Texto;
    default:
        throw EDatabaseError("Tipo de coluna não suportado: " + std::to_string(ATipo), 0, "");
    }
}

TDescricao Descrever(IMessageMetadata& AMetadados)
{
    TStatus LStatus;
    const unsigned LQuantas = AMetadados.getCount(&LStatus);
    auto LColunas = std::make_shared<std::vector<TColuna>>(LQuantas);
    TDescricao LDescricao;
    LDescricao.Mensagem.resize(LQuantas);
    for (unsigned i = 0; i < LQuantas; ++i) {
        auto& LNaMensagem = LDescricao.Mensagem[i];
        LNaMensagem.Tipo = AMetadados.getType(&LStatus, i) & ~1U;
        LNaMensagem.SubTipo = AMetadados.getSubType(&LStatus, i);
        LNaMensagem.Tamanho = AMetadados.getLength(&LStatus, i);
        LNaMensagem.Posicao = AMetadados.getOffset(&LStatus, i);
        LNaMensagem.PosicaoDoNulo = AMetadados.getNullOffset(&LStatus, i);
        const auto LConjunto = static_cast<int>(AMetadados.getCharSet(&LStatus, i));
        LNaMensagem.SemCaracteres = LConjunto == CHARSET_NONE || LConjunto == CHARSET_OCTETS;
        LStatus.Verificar();
        auto& LColuna = (*LColunas)[i];
        LColuna.Nome = AMetadados.getAlias(&LStatus, i);
        LColuna.Tipo = TipoDaColuna(LNaMensagem.Tipo);
        LColuna.Escala = LColuna.Tipo == TTipoColuna::Inteiro ? AMetadados.getScale(&LStatus, i) : 0;
    }
    LDescricao.Tamanho = AMetadados.getMessageLength(&LStatus);
    LStatus.Verificar();
    LDescricao.Colunas = std::move(LColunas);
    return LDescricao;
}

template <class T>
T LerDaMensagem(const unsigned char* AOnde)
{
    T LValor{};
    std::memcpy(&LValor, AOnde, sizeof(T));
    return LValor;
}

double DiaDoMotor(ISC_DATE AData) { return static_cast<double>(AData - DIA_ZERO_DO_MOTOR); }

} // namespace

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
    TParametrosConexao Parametros;
    TReferencia<IAttachment> Anexo;
    TReferencia<ITransaction> Transacao;
    TObservadorSql Observador;
    int VersaoMaior = 0;

    ITransaction* TransacaoCorrente();
    void IniciarTransacao(TIsolamento AIsolamento);
    TReferencia<IStatement> Preparar(std::string_view ASql);
    TConjuntoDeLinhas Consultar(std::string_view ASql);
    std::int64_t Executar(std::string_view ASql);
    void LerLinha(TConjuntoDeLinhas& ALinhas, const TDescricao& ADescricao, const unsigned char* AMensagem);
    std::string LerBlob(ISC_QUAD AId, bool ATexto);

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

ITransaction* TOvraConnection::TImplementacao::TransacaoCorrente()
{
    if (!Transacao)
        IniciarTransacao(TIsolamento::LeituraConfirmada);
    return Transacao.get();
}

void TOvraConnection::TImplementacao::IniciarTransacao(TIsolamento AIsolamento)
{
    auto LBloco = CriarBloco(IXpbBuilder::TPB);
    TStatus LStatus;
    if (AIsolamento == TIsolamento::Instantaneo) {
        LBloco->insertTag(&LStatus, isc_tpb_concurrency);
    } else {
        LBloco->insertTag(&LStatus, isc_tpb_read_committed);
        LBloco->insertTag(&LStatus, isc_tpb_rec_version);
    }
    LBloco->insertTag(&LStatus, isc_tpb_nowait);
    LBloco->insertTag(&LStatus, isc_tpb_write);
    LStatus.Verificar();
    const unsigned LTamanho = LBloco->getBufferLength(&LStatus);
    const unsigned char* LBuffer = LBloco->getBuffer(&LStatus);
    LStatus.Verificar();
    Transacao.reset(Anexo->startTransaction(&LStatus, LTamanho, LBuffer));
    LStatus.Verificar();
}

TReferencia<IStatement> TOvraConnection::TImplementacao::Preparar(std::string_view ASql)
{
    ITransaction* LTransacao = TransacaoCorrente();
    TStatus LStatus;
    TReferencia<IStatement> LComando(Anexo->prepare(&LStatus, LTransacao, static_cast<unsigned>(ASql.size()),
                                                    ASql.data(), DIALETO, IStatement::PREPARE_PREFETCH_METADATA));
    LStatus.Verificar();
    return LComando;
}

std::string TOvraConnection::TImplementacao::LerBlob(ISC_QUAD AId, bool ATexto)
{
    TStatus LStatus;
    TReferencia<IBlob> LBlob(Anexo->openBlob(&LStatus, TransacaoCorrente(), &AId, 0, nullptr));
    LStatus.Verificar();
    std::string LConteudo;
    std::array<char, 32'000> LBuffer{};
    for (;;) {
        unsigned LLidos = 0;
        const int LResultado = LBlob->getSegment(&LStatus, LBuffer.size(), LBuffer.data(), &LLidos);
        LStatus.Verificar();
        LConteudo.append(LBuffer.data(), LLidos);
        if (LResultado == IStatus::RESULT_NO_DATA)
            break;
    }
    LBlob->close(&LStatus);
    LStatus.Verificar();
    LBlob.release(); // a blob that closed well is freed by its close
    return ATexto ? ParaUtf8(LConteudo) : LConteudo;
}

void TOvraConnection::TImplementacao::LerLinha(TConjuntoDeLinhas& ALinhas, const TDescricao& ADescricao,
                                               const unsigned char* AMensagem)
{
    for (const auto& LColuna : ADescricao.Mensagem) {
        if (LColuna.Tipo == SQL_NULL || LerDaMensagem<ISC_SHORT>(AMensagem + LColuna.PosicaoDoNulo) != 0) {
            ALinhas.AcrescentarNulo();
            continue;
        }
        const unsigned char* LValor = AMensagem + LColuna.Posicao;
        const auto AcrescentarTexto = [&](std::string_view ATexto) {
            if (LColuna.SemCaracteres)
                ALinhas.AcrescentarTexto(ParaUtf8(ATexto));
            else
                ALinhas.AcrescentarTexto(ATexto);
        };
        switch (LColuna.Tipo) {
        case SQL_TEXT: {
            // The padding belongs to the column's type, not to the value: a CHAR reads as a VARCHAR does.
            std::string_view LTexto(reinterpret_cast<const char*>(LValor), LColuna.Tamanho);
            AcrescentarTexto(LTexto.substr(0, LTexto.find_last_not_of(' ') + 1));
            break;
        }
        case SQL_VARYING:
            AcrescentarTexto(
                {reinterpret_cast<const char*>(LValor) + sizeof(ISC_USHORT), LerDaMensagem<ISC_USHORT>(LValor)});
            break;
        case SQL_BLOB:
            ALinhas.AcrescentarTexto(LerBlob(LerDaMensagem<ISC_QUAD>(LValor), LColuna.SubTipo == isc_blob_text));
            break;
        case SQL_SHORT:
            ALinhas.AcrescentarInteiro(LerDaMensagem<ISC_SHORT>(LValor));
            break;
        case SQL_LONG:
            ALinhas.AcrescentarInteiro(LerDaMensagem<ISC_LONG>(LValor));
            break;
        case SQL_INT64:
            ALinhas.AcrescentarInteiro(LerDaMensagem<ISC_INT64>(LValor));
            break;
        case SQL_BOOLEAN:
            ALinhas.AcrescentarInteiro(LerDaMensagem<FB_BOOLEAN>(LValor) != 0 ? 1 : 0);
            break;
        case SQL_FLOAT:
            ALinhas.AcrescentarNumero(static_cast<double>(LerDaMensagem<float>(LValor)));
            break;
        case SQL_DOUBLE:
        case SQL_D_FLOAT:
            ALinhas.AcrescentarNumero(LerDaMensagem<double>(LValor));
            break;
        case SQL_TYPE_DATE:
            ALinhas.AcrescentarNumero(DiaDoMotor(LerDaMensagem<ISC_DATE>(LValor)));
            break;
        case SQL_TYPE_TIME:
            ALinhas.AcrescentarNumero(LerDaMensagem<ISC_TIME>(LValor) / FRACOES_DO_DIA);
            break;
        case SQL_TIMESTAMP: {
            const auto LMomento = LerDaMensagem<ISC_TIMESTAMP>(LValor);
            ALinhas.AcrescentarNumero(
                JuntarDataHora(TDateTime(DiaDoMotor(LMomento.timestamp_date)), LMomento.timestamp_time / FRACOES_DO_DIA)
                    .Valor());
            break;
        }
        }
    }
    ALinhas.FecharLinha();
}

TConjuntoDeLinhas TOvraConnection::TImplementacao::Consultar(std::string_view ASql)
{
    const auto LComando = Preparar(ASql);
    TStatus LStatus;
    TReferencia<IMessageMetadata> LMetadados(LComando->getOutputMetadata(&LStatus));
    LStatus.Verificar();
    const TDescricao LDescricao = Descrever(*LMetadados);
    TConjuntoDeLinhas LLinhas(LDescricao.Colunas);
    std::vector<unsigned char> LMensagem(LDescricao.Tamanho);
    if ((LComando->getFlags(&LStatus) & IStatement::FLAG_HAS_CURSOR) == 0) {
        LStatus.Verificar();
        // A statement that returns its one row by itself, as INSERT ... RETURNING does, or none at all.
        LComando->execute(&LStatus, TransacaoCorrente(), nullptr, nullptr, LMetadados.get(), LMensagem.data());
        LStatus.Verificar();
        if (!LDescricao.Mensagem.empty())
            LerLinha(LLinhas, LDescricao, LMensagem.data());
        return LLinhas;
    }
    TReferencia<IResultSet> LCursor(
        LComando->openCursor(&LStatus, TransacaoCorrente(), nullptr, nullptr, LMetadados.get(), 0));
    LStatus.Verificar();
    for (;;) {
        const int LResultado = LCursor->fetchNext(&LStatus, LMensagem.data());
        LStatus.Verificar();
        if (LResultado != IStatus::RESULT_OK)
            break;
        LerLinha(LLinhas, LDescricao, LMensagem.data());
    }
    LCursor->close(&LStatus);
    LStatus.Verificar();
    LCursor.release(); // a cursor that closed well is freed by its close
    return LLinhas;
}

std::int64_t TOvraConnection::TImplementacao::Executar(std::string_view ASql)
{
    const auto LComando = Preparar(ASql);
    TStatus LStatus;
    LComando->execute(&LStatus, TransacaoCorrente(), nullptr, nullptr, nullptr, nullptr);
    LStatus.Verificar();
    const auto LAfetadas = LComando->getAffectedRecords(&LStatus);
    LStatus.Verificar();
    return static_cast<std::int64_t>(LAfetadas);
}

TOvraConnection::TOvraConnection(const TParametrosConexao& AParametros)
    : FImplementacao(std::make_unique<TImplementacao>())
{
    FImplementacao->Parametros = AParametros;
    const auto LBloco = ParametrosDeConexao(AParametros);
    TStatus LStatus;
    const unsigned LTamanho = LBloco->getBufferLength(&LStatus);
    const unsigned char* LBuffer = LBloco->getBuffer(&LStatus);
    LStatus.Verificar();
    const TReferencia<IProvider> LProvedor(Mestre()->getDispatcher());
    FImplementacao->Anexo.reset(
        LProvedor->attachDatabase(&LStatus, AParametros.BancoDeDados.c_str(), LTamanho, LBuffer));
    LStatus.Verificar();
}

TOvraConnection::~TOvraConnection()
{
    if (OvraConnectionOuNulo() == this)
        DefinirOvraConnection(nullptr);
    // What fails here fails because the connection is gone already; the handles are released all the same.
    try {
        Desfazer();
    } catch (const EDatabaseError&) {
    }
    TStatus LStatus;
    FImplementacao->Anexo->detach(&LStatus);
    if (!LStatus.Falhou())
        FImplementacao->Anexo.release(); // an attachment that detached well is freed by it
}

void TOvraConnection::CriarBanco(const TParametrosConexao& AParametros)
{
    const auto LBloco = ParametrosDeConexao(AParametros);
    TStatus LStatus;
    LBloco->insertString(&LStatus, isc_dpb_set_db_charset, "UTF8");
    LBloco->insertInt(&LStatus, isc_dpb_page_size, 8192);
    LStatus.Verificar();
    const unsigned LTamanho = LBloco->getBufferLength(&LStatus);
    const unsigned char* LBuffer = LBloco->getBuffer(&LStatus);
    LStatus.Verificar();
    const TReferencia<IProvider> LProvedor(Mestre()->getDispatcher());
    TReferencia<IAttachment> LAnexo(
        LProvedor->createDatabase(&LStatus, AParametros.BancoDeDados.c_str(), LTamanho, LBuffer));
    LStatus.Verificar();
    LAnexo->detach(&LStatus);
    LStatus.Verificar();
    LAnexo.release();
}

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
        } catch (const EDatabaseError&) {
            FImplementacao->Executar("ROLLBACK TO SAVEPOINT OVRA_EXECUTOUSQL");
            throw;
        }
        FImplementacao->Executar("RELEASE SAVEPOINT OVRA_EXECUTOUSQL ONLY");
        if (ACommit)
            Confirmar();
    } catch (const EDatabaseError& LErro) {
        return {false, LErro.what()};
    }
    return {true, {}};
}

void TOvraConnection::IniciarTransacao(TIsolamento AIsolamento)
{
    if (!FImplementacao->Transacao)
        FImplementacao->IniciarTransacao(AIsolamento);
}

void TOvraConnection::Confirmar()
{
    if (!FImplementacao->Transacao)
        return;
    TStatus LStatus;
    FImplementacao->Transacao->commit(&LStatus);
    LStatus.Verificar();
    FImplementacao->Transacao.release(); // a transaction that ended well is freed by its end
}

void TOvraConnection::Desfazer()
{
    if (!FImplementacao->Transacao)
        return;
    // Whatever the engine answers, there is nothing left to undo: on a lost connection it undoes by itself.
    TReferencia<ITransaction> LTransacao(std::move(FImplementacao->Transacao));
    TStatus LStatus;
    LTransacao->rollback(&LStatus);
    LStatus.Verificar();
    LTransacao.release(); // as after a commit
}

bool TOvraConnection::EmTransacao() const { return FImplementacao->Transacao != nullptr; }

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

void TOvraConnection::DefinirObservador(TObservadorSql AObservador)
{
    FImplementacao->Observador = std::move(AObservador);
}

namespace {
TOvraConnection* LConexaoCorrente = nullptr;
}

TOvraConnection& OvraConnection()
{
    if (LConexaoCorrente == nullptr)
        throw Exception("Nenhuma conexão com o banco de dados foi definida");
    return *LConexaoCorrente;
}

void DefinirOvraConnection(TOvraConnection* AConexao) { LConexaoCorrente = AConexao; }

TOvraConnection* OvraConnectionOuNulo() { return LConexaoCorrente; }

} // namespace tarvo
