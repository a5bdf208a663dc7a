#include "imports/UnOvraConnection.h"

#include <firebird/Interface.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <list>
#include <optional>
#include <unordered_map>

#include "imports/UnOvraConversoes.h"
#include "imports/UnOvraExcecoes.h"
#include "imports/UnOvraFormaSql.h"

namespace tarvo {

namespace {

using namespace Firebird;

constexpr unsigned DIALETO = 3;
constexpr int CHARSET_NONE = 0;
constexpr int CHARSET_OCTETS = 1;
constexpr int CHARSET_UTF8 = 4;
constexpr unsigned BYTES_POR_CARACTERE_UTF8 = 4;
/// Prepared statements that a connection keeps; the least used gives way.
constexpr std::size_t MAXIMO_DE_COMANDOS = 256;
/// Variants of shapes whose literals have been judged.
constexpr std::size_t MAXIMO_DE_FORMAS = 8192;
/// isc_dpb_set_bind, by its number: the header of version 3 lacks it.
constexpr unsigned char DPB_SET_BIND = 93;
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

/// What to do about an error whose own text doesn't tell; goes in front of it.
std::string ConselhoDoErro(intptr_t ACodigo)
{
    if (ACodigo == isc_unavailable) {
        const auto LVersao = Mestre()->getUtilInterface()->getClientVersion();
        return "Falta o motor do Firebird que abre um arquivo: instale o pacote firebird" +
               std::to_string(LVersao >> 8) + "." + std::to_string(LVersao & 0xFF) + "-server-core\n";
    }
    if (ACodigo == isc_wrong_ods)
        return "O arquivo é de outra versão do Firebird: copie-o com o gbak da versão que o criou (gbak -b) e "
               "restaure-o "
               "com o da versão em uso (gbak -c)\n";
    return {};
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
        throw EDatabaseError(ConselhoDoErro(LErros[1]) + ParaUtf8(LTexto.data()), LErros[1], LSqlState.data());
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
    // and its error is hidden behind the network's. The engine is called so from version 4 on, and otherwise in 3; the
    // client passes over the one that it hasn't.
    if (!AParametros.EhServidor())
        LBloco->insertString(&LStatus, isc_dpb_config, "Providers=Engine13,Engine12");
    // Version 4 widens sums and has times with a zone; they come as the types that version 3 has, which knows nothing of
    // it. What is beyond 64 bits is then an error of the engine's, never cut.
    LBloco->insertString(&LStatus, DPB_SET_BIND, "INT128 TO LEGACY; DECFLOAT TO LEGACY; TIME ZONE TO LEGACY");
    LStatus.Verificar();
    return LBloco;
}

/// How one value stands in the message of a fetch or of a statement's parameters.
struct TColunaDaMensagem {
    unsigned Tipo = 0;
    int SubTipo = 0;
    int Escala = 0;
    unsigned Tamanho = 0;
    unsigned Posicao = 0;
    unsigned PosicaoDoNulo = 0;
    int ConjuntoDeCaracteres = 0;

    bool SemCaracteres() const
    {
        return ConjuntoDeCaracteres == CHARSET_NONE || ConjuntoDeCaracteres == CHARSET_OCTETS;
    }
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

std::vector<TColunaDaMensagem> DescreverMensagem(IMessageMetadata& AMetadados)
{
    TStatus LStatus;
    std::vector<TColunaDaMensagem> LMensagem(AMetadados.getCount(&LStatus));
    for (unsigned i = 0; i < LMensagem.size(); ++i) {
        auto& LNaMensagem = LMensagem[i];
        LNaMensagem.Tipo = AMetadados.getType(&LStatus, i) & ~1U;
        LNaMensagem.SubTipo = AMetadados.getSubType(&LStatus, i);
        LNaMensagem.Escala = AMetadados.getScale(&LStatus, i);
        LNaMensagem.Tamanho = AMetadados.getLength(&LStatus, i);
        LNaMensagem.Posicao = AMetadados.getOffset(&LStatus, i);
        LNaMensagem.PosicaoDoNulo = AMetadados.getNullOffset(&LStatus, i);
        LNaMensagem.ConjuntoDeCaracteres = static_cast<int>(AMetadados.getCharSet(&LStatus, i));
    }
    LStatus.Verificar();
    return LMensagem;
}

TDescricao Descrever(IMessageMetadata& AMetadados)
{
    TDescricao LDescricao;
    LDescricao.Mensagem = DescreverMensagem(AMetadados);
    TStatus LStatus;
    auto LColunas = std::make_shared<std::vector<TColuna>>(LDescricao.Mensagem.size());
    for (unsigned i = 0; i < LColunas->size(); ++i) {
        auto& LColuna = (*LColunas)[i];
        LColuna.Nome = AMetadados.getAlias(&LStatus, i);
        LColuna.Tipo = TipoDaColuna(LDescricao.Mensagem[i].Tipo);
        LColuna.Escala = LColuna.Tipo == TTipoColuna::Inteiro ? LDescricao.Mensagem[i].Escala : 0;
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

template <class T>
void EscreverNaMensagem(unsigned char* AOnde, const T& AValor)
{
    std::memcpy(AOnde, &AValor, sizeof(T));
}

/// A statement prepared once, and what is needed to run it again.
struct TComando {
    TReferencia<IStatement> Comando;
    TReferencia<IMessageMetadata> Saida;
    TReferencia<IMessageMetadata> Entrada;
    TDescricao Descricao;
    std::vector<TColunaDaMensagem> Parametros;
    std::vector<unsigned char> MensagemDeSaida;
    std::vector<unsigned char> MensagemDeEntrada;
    bool TemCursor = false;
};

/// dd.mm.yyyy with an optional hh:nn:ss, as the library writes dates; anything else is left to the engine.
std::optional<ISC_TIMESTAMP> LerDataDoLiteral(const std::string& ATexto)
{
    static constexpr std::string_view MOLDE = "00.00.0000 00:00:00";
    if (ATexto.size() != 10 && ATexto.size() != MOLDE.size())
        return std::nullopt;
    for (std::size_t i = 0; i < ATexto.size(); ++i)
        if (MOLDE[i] == '0' ? ATexto[i] < '0' || ATexto[i] > '9' : ATexto[i] != MOLDE[i])
            return std::nullopt;
    const auto LParte = [&](std::size_t AInicio, std::size_t ATamanho) {
        return static_cast<int>(StrToInt64(std::string_view(ATexto).substr(AInicio, ATamanho)));
    };
    const int LDia = LParte(0, 2);
    const int LMes = LParte(3, 2);
    const int LAno = LParte(6, 4);
    if (!DataValida(LAno, LMes, LDia))
        return std::nullopt;
    ISC_TIMESTAMP LMomento{};
    LMomento.timestamp_date = static_cast<ISC_DATE>(EncodeDate(LAno, LMes, LDia).Valor()) + DIA_ZERO_DO_MOTOR;
    if (ATexto.size() > 10) {
        const int LHora = LParte(11, 2);
        const int LMinuto = LParte(14, 2);
        const int LSegundo = LParte(17, 2);
        if (LHora > 23 || LMinuto > 59 || LSegundo > 59)
            return std::nullopt;
        LMomento.timestamp_time = static_cast<ISC_TIME>(((LHora * 60 + LMinuto) * 60 + LSegundo) * 10'000);
    }
    return LMomento;
}

/// Whether a literal means the same as a parameter that the engine describes so, whatever its value.
bool TipoCombina(const TValorLiteralSql& ALiteral, const TColunaDaMensagem& AParametro)
{
    switch (AParametro.Tipo) {
    case SQL_SHORT:
    case SQL_LONG:
    case SQL_INT64:
        return !ALiteral.EhTexto;
    case SQL_TYPE_DATE:
    case SQL_TIMESTAMP:
        return ALiteral.EhTexto && LerDataDoLiteral(ALiteral.Texto).has_value();
    case SQL_TEXT:
    case SQL_VARYING:
        return ALiteral.EhTexto && AParametro.ConjuntoDeCaracteres != CHARSET_OCTETS;
    default:
        return false;
    }
}

bool EscreverInteiro(const TValorLiteralSql& ALiteral, const TColunaDaMensagem& AParametro, unsigned char* AOnde)
{
    std::int64_t LValor = ALiteral.Inteiro;
    for (int i = AParametro.Escala; i < 0; ++i)
        if (__builtin_mul_overflow(LValor, 10, &LValor))
            return false;
    switch (AParametro.Tipo) {
    case SQL_SHORT:
        if (LValor > std::numeric_limits<ISC_SHORT>::max())
            return false;
        EscreverNaMensagem(AOnde, static_cast<ISC_SHORT>(LValor));
        return true;
    case SQL_LONG:
        if (LValor > std::numeric_limits<ISC_LONG>::max())
            return false;
        EscreverNaMensagem(AOnde, static_cast<ISC_LONG>(LValor));
        return true;
    default:
        EscreverNaMensagem(AOnde, static_cast<ISC_INT64>(LValor));
        return true;
    }
}

bool EscreverTexto(const TValorLiteralSql& ALiteral, const TColunaDaMensagem& AParametro, unsigned char* AOnde)
{
    const auto& LTexto = ALiteral.Texto;
    const auto LCaracteres = static_cast<std::size_t>(
        std::count_if(LTexto.begin(), LTexto.end(), [](char AChar) { return (AChar & 0xC0) != 0x80; }));
    const bool LUtf8 = AParametro.ConjuntoDeCaracteres == CHARSET_UTF8;
    // In another character set only plain ASCII is surely the same text.
    if (!LUtf8 && std::any_of(LTexto.begin(), LTexto.end(), [](char AChar) { return (AChar & 0x80) != 0; }))
        return false;
    if (LCaracteres > AParametro.Tamanho / (LUtf8 ? BYTES_POR_CARACTERE_UTF8 : 1) || LTexto.size() > AParametro.Tamanho)
        return false;
    if (AParametro.Tipo == SQL_VARYING) {
        EscreverNaMensagem(AOnde, static_cast<ISC_USHORT>(LTexto.size()));
        AOnde += sizeof(ISC_USHORT);
    } else {
        std::memset(AOnde, ' ', AParametro.Tamanho);
    }
    std::memcpy(AOnde, LTexto.data(), LTexto.size());
    return true;
}

/// Puts a literal into the message; false when this value doesn't fit the parameter, and has to run as it stands.
bool EscreverParametro(const TValorLiteralSql& ALiteral, const TColunaDaMensagem& AParametro,
                       std::vector<unsigned char>& AMensagem)
{
    unsigned char* LOnde = AMensagem.data() + AParametro.Posicao;
    EscreverNaMensagem(AMensagem.data() + AParametro.PosicaoDoNulo, ISC_SHORT{0});
    if (!TipoCombina(ALiteral, AParametro))
        return false;
    if (!ALiteral.EhTexto)
        return EscreverInteiro(ALiteral, AParametro, LOnde);
    if (AParametro.Tipo == SQL_TEXT || AParametro.Tipo == SQL_VARYING)
        return EscreverTexto(ALiteral, AParametro, LOnde);
    const auto LMomento = *LerDataDoLiteral(ALiteral.Texto);
    if (AParametro.Tipo == SQL_TIMESTAMP) {
        EscreverNaMensagem(LOnde, LMomento);
        return true;
    }
    // A DATE column refuses a literal with a time of day; the engine has to say so.
    if (LMomento.timestamp_time != 0 || ALiteral.Texto.size() > 10)
        return false;
    EscreverNaMensagem(LOnde, LMomento.timestamp_date);
    return true;
}

bool EhPerdaDeConexao(const EDatabaseError& AErro)
{
    static constexpr ISC_STATUS CODIGOS[] = {isc_network_error,      isc_net_read_err,    isc_net_write_err,
                                             isc_lost_db_connection, isc_att_shutdown,    isc_bad_db_handle,
                                             isc_shutdown,           isc_cancelled,       isc_att_handle_busy,
                                             isc_net_connect_err,    isc_bad_trans_handle};
    return std::find(std::begin(CODIGOS), std::end(CODIGOS), AErro.Codigo()) != std::end(CODIGOS);
}

/// What is known of a shape.
struct TFormaConhecida {
    /// The literals that travel as parameters. One that the engine takes as another type in any variant is no longer
    /// among them.
    std::vector<bool> Levantar;
    /// The number of the prepared statement by the texts of the literals that stay.
    std::unordered_map<std::string, std::size_t> Variantes;
};

/// Prepared statements by their number, the least recently used first to go.
class TComandosGuardados {
public:
    /// The statement, taken out while it runs, so that a second use of the same shape prepares its own.
    std::unique_ptr<TComando> Retirar(std::size_t ANumero)
    {
        const auto LItem = FPorNumero.find(ANumero);
        if (LItem == FPorNumero.end())
            return nullptr;
        auto LComando = std::move(LItem->second->second);
        FOrdem.erase(LItem->second);
        FPorNumero.erase(LItem);
        return LComando;
    }
    void Guardar(std::size_t ANumero, std::unique_ptr<TComando> AComando)
    {
        if (FPorNumero.contains(ANumero))
            return;
        FOrdem.emplace_back(ANumero, std::move(AComando));
        FPorNumero.emplace(ANumero, std::prev(FOrdem.end()));
        if (FOrdem.size() > MAXIMO_DE_COMANDOS) {
            FPorNumero.erase(FOrdem.front().first);
            FOrdem.pop_front();
        }
    }
    void Limpar()
    {
        FPorNumero.clear();
        FOrdem.clear();
    }
    std::size_t Quantidade() const { return FOrdem.size(); }

private:
    using TOrdem = std::list<std::pair<std::size_t, std::unique_ptr<TComando>>>;
    TOrdem FOrdem;
    std::unordered_map<std::size_t, TOrdem::iterator> FPorNumero;
};

/// The literals that stay, one after the other.
std::string LiteraisFixos(std::string_view ASql, const TFormaSql& AForma, const std::vector<bool>& ALevantar)
{
    std::string LFixos;
    for (std::size_t i = 0; i < ALevantar.size(); ++i)
        if (!ALevantar[i])
            LFixos.append(ASql, AForma.Literais[i].Posicao, AForma.Literais[i].Tamanho).append(1, ',');
    return LFixos;
}

} // namespace

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
    TParametrosConexao Parametros;
    TReferencia<IAttachment> Anexo;
    TReferencia<ITransaction> Transacao;
    TObservadorSql Observador;
    TVigiaSql Vigia;
    int VersaoMaior = 0;
    bool Reaproveitar = true;
    TComandosGuardados Guardados;
    std::unordered_map<std::string, TFormaConhecida> Formas;
    /// Variants of all shapes, which are numbered for good.
    std::size_t Variantes = 0;
    std::size_t UltimaVariante = 0;

    ITransaction* TransacaoCorrente();
    void IniciarTransacao(TIsolamento AIsolamento);
    TReferencia<IStatement> Preparar(std::string_view ASql);
    std::unique_ptr<TComando> PrepararComando(std::string_view ASql);
    TConjuntoDeLinhas Consultar(std::string_view ASql);
    TConjuntoDeLinhas ConsultarPelaForma(std::string_view ASql);
    std::vector<bool> JulgarForma(std::string_view ASql, const TFormaSql& AForma, const std::vector<bool>& ALevantar,
                                  std::unique_ptr<TComando>& AComando);
    std::optional<std::vector<bool>> CombinarTipos(std::string_view ASql, const TFormaSql& AForma,
                                                   const std::vector<bool>& ALevantar,
                                                   std::unique_ptr<TComando>& AComando);
    TConjuntoDeLinhas Ler(TComando& AComando);
    std::size_t BuscarVariante(std::string_view ASql, const TFormaSql& AForma, TFormaConhecida& AConhecida);
    void EsquecerComandos();
    std::int64_t Executar(std::string_view ASql);
    void LerLinha(TConjuntoDeLinhas& ALinhas, const TDescricao& ADescricao, const unsigned char* AMensagem);
    std::string LerBlob(ISC_QUAD AId, bool ATexto);

    void Vigiar(TPassoSql APasso) const
    {
        if (Vigia)
            Vigia(APasso);
    }

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
    Vigiar(TPassoSql::Preparar);
    TReferencia<IStatement> LComando(Anexo->prepare(&LStatus, LTransacao, static_cast<unsigned>(ASql.size()),
                                                    ASql.data(), DIALETO, IStatement::PREPARE_PREFETCH_METADATA));
    LStatus.Verificar();
    return LComando;
}

std::string TOvraConnection::TImplementacao::LerBlob(ISC_QUAD AId, bool ATexto)
{
    TStatus LStatus;
    Vigiar(TPassoSql::LerLinha);
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
            if (LColuna.SemCaracteres())
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

std::unique_ptr<TComando> TOvraConnection::TImplementacao::PrepararComando(std::string_view ASql)
{
    auto LComando = std::make_unique<TComando>();
    LComando->Comando = Preparar(ASql);
    TStatus LStatus;
    LComando->Saida.reset(LComando->Comando->getOutputMetadata(&LStatus));
    LStatus.Verificar();
    LComando->Entrada.reset(LComando->Comando->getInputMetadata(&LStatus));
    LStatus.Verificar();
    LComando->TemCursor = (LComando->Comando->getFlags(&LStatus) & IStatement::FLAG_HAS_CURSOR) != 0;
    LStatus.Verificar();
    LComando->Descricao = Descrever(*LComando->Saida);
    LComando->MensagemDeSaida.resize(LComando->Descricao.Tamanho);
    LComando->Parametros = DescreverMensagem(*LComando->Entrada);
    LComando->MensagemDeEntrada.resize(LComando->Entrada->getMessageLength(&LStatus));
    LStatus.Verificar();
    return LComando;
}

TConjuntoDeLinhas TOvraConnection::TImplementacao::Ler(TComando& AComando)
{
    TStatus LStatus;
    TConjuntoDeLinhas LLinhas(AComando.Descricao.Colunas);
    IMessageMetadata* LEntrada = AComando.Parametros.empty() ? nullptr : AComando.Entrada.get();
    void* LParametros = AComando.Parametros.empty() ? nullptr : AComando.MensagemDeEntrada.data();
    unsigned char* LMensagem = AComando.MensagemDeSaida.data();
    Vigiar(TPassoSql::Executar);
    if (!AComando.TemCursor) {
        // A statement that returns its one row by itself, as INSERT ... RETURNING does, or none at all.
        AComando.Comando->execute(&LStatus, TransacaoCorrente(), LEntrada, LParametros, AComando.Saida.get(),
                                  LMensagem);
        LStatus.Verificar();
        if (!AComando.Descricao.Mensagem.empty())
            LerLinha(LLinhas, AComando.Descricao, LMensagem);
        return LLinhas;
    }
    TReferencia<IResultSet> LCursor(
        AComando.Comando->openCursor(&LStatus, TransacaoCorrente(), LEntrada, LParametros, AComando.Saida.get(), 0));
    LStatus.Verificar();
    for (;;) {
        Vigiar(TPassoSql::LerLinha);
        const int LResultado = LCursor->fetchNext(&LStatus, LMensagem);
        LStatus.Verificar();
        if (LResultado != IStatus::RESULT_OK)
            break;
        LerLinha(LLinhas, AComando.Descricao, LMensagem);
    }
    LCursor->close(&LStatus);
    LStatus.Verificar();
    LCursor.release(); // a cursor that closed well is freed by its close
    return LLinhas;
}

TConjuntoDeLinhas TOvraConnection::TImplementacao::Consultar(std::string_view ASql)
{
    if (!Reaproveitar)
        return Ler(*PrepararComando(ASql));
    try {
        return ConsultarPelaForma(ASql);
    } catch (const EDatabaseError& LErro) {
        if (EhPerdaDeConexao(LErro))
            throw;
        // A statement that changes data must not run twice.
        const auto LTexto = Trim(ASql);
        if (!MesmoTexto(LTexto.substr(0, 6), "SELECT") && !MesmoTexto(LTexto.substr(0, 4), "WITH"))
            throw;
    }
    // What failed with parameters has to fail, or to pass, as it stands.
    return Ler(*PrepararComando(ASql));
}

TConjuntoDeLinhas TOvraConnection::TImplementacao::ConsultarPelaForma(std::string_view ASql)
{
    if (Variantes >= MAXIMO_DE_FORMAS)
        EsquecerComandos();
    const auto LForma = LerFormaSql(ASql);
    auto& LConhecida = Formas[LForma.Chave];
    const auto LVariante = BuscarVariante(ASql, LForma, LConhecida);
    auto LComando = Guardados.Retirar(LVariante);
    if (!LComando)
        LComando = PrepararComando(MontarSqlComParametros(ASql, LForma, LConhecida.Levantar));
    std::size_t LParametro = 0;
    for (std::size_t i = 0; i < LForma.Literais.size(); ++i) {
        if (!LConhecida.Levantar[i])
            continue;
        if (!EscreverParametro(LerLiteralSql(ASql, LForma.Literais[i]), LComando->Parametros[LParametro++],
                               LComando->MensagemDeEntrada)) {
            Guardados.Guardar(LVariante, std::move(LComando));
            return Ler(*PrepararComando(ASql));
        }
    }
    // A statement that fails is not kept.
    auto LLinhas = Ler(*LComando);
    Guardados.Guardar(LVariante, std::move(LComando));
    return LLinhas;
}

/// The number of the statement that serves this text. A variant that is met for the first time is judged.
std::size_t TOvraConnection::TImplementacao::BuscarVariante(std::string_view ASql, const TFormaSql& AForma,
                                                            TFormaConhecida& AConhecida)
{
    if (AConhecida.Variantes.empty() && AConhecida.Levantar.empty())
        AConhecida.Levantar = LiteraisLevantaveis(ASql, AForma);
    if (const auto LVariante = AConhecida.Variantes.find(LiteraisFixos(ASql, AForma, AConhecida.Levantar));
        LVariante != AConhecida.Variantes.end())
        return LVariante->second;
    std::unique_ptr<TComando> LComando;
    auto LLevantar = JulgarForma(ASql, AForma, AConhecida.Levantar, LComando);
    if (LLevantar != AConhecida.Levantar) {
        Variantes -= AConhecida.Variantes.size();
        AConhecida.Variantes.clear();
        AConhecida.Levantar = std::move(LLevantar);
    }
    ++Variantes;
    AConhecida.Variantes.emplace(LiteraisFixos(ASql, AForma, AConhecida.Levantar), ++UltimaVariante);
    if (LComando)
        Guardados.Guardar(UltimaVariante, std::move(LComando));
    return UltimaVariante;
}

/// Those of the chosen literals whose parameter, as the engine describes it, has the literal's own type; nothing
/// when the engine doesn't prepare the statement so. The statement is handed out when all have.
std::optional<std::vector<bool>> TOvraConnection::TImplementacao::CombinarTipos(std::string_view ASql,
                                                                                const TFormaSql& AForma,
                                                                                const std::vector<bool>& ALevantar,
                                                                                std::unique_ptr<TComando>& AComando)
{
    try {
        auto LComando = PrepararComando(MontarSqlComParametros(ASql, AForma, ALevantar));
        auto LCombinam = ALevantar;
        std::size_t LParametro = 0;
        for (std::size_t i = 0; i < ALevantar.size(); ++i) {
            if (!ALevantar[i])
                continue;
            if (LParametro >= LComando->Parametros.size())
                return std::nullopt;
            LCombinam[i] = TipoCombina(LerLiteralSql(ASql, AForma.Literais[i]), LComando->Parametros[LParametro++]);
        }
        if (LParametro != LComando->Parametros.size())
            return std::nullopt;
        if (LCombinam == ALevantar)
            AComando = std::move(LComando);
        return LCombinam;
    } catch (const EDatabaseError& LErro) {
        if (EhPerdaDeConexao(LErro))
            throw;
        return std::nullopt;
    }
}

/// Which of the literals travel as parameters, and the statement that takes them so, where one was prepared.
std::vector<bool> TOvraConnection::TImplementacao::JulgarForma(std::string_view ASql, const TFormaSql& AForma,
                                                               const std::vector<bool>& ALevantar,
                                                               std::unique_ptr<TComando>& AComando)
{
    const std::vector<bool> LNenhum(ALevantar.size(), false);
    if (ALevantar == LNenhum)
        return LNenhum;
    auto LEscolhidos = ALevantar;
    auto LCombinam = CombinarTipos(ASql, AForma, LEscolhidos, AComando);
    if (!LCombinam) {
        // One of them has no type as a parameter: find those that have, one after the other.
        LCombinam = LNenhum;
        for (std::size_t i = 0; i < ALevantar.size(); ++i) {
            if (!ALevantar[i])
                continue;
            auto LTentativa = *LCombinam;
            LTentativa[i] = true;
            if (const auto LResultado = CombinarTipos(ASql, AForma, LTentativa, AComando);
                LResultado && *LResultado == LTentativa)
                LCombinam = LTentativa;
        }
        AComando.reset(); // of the last that passed, which need not be all of them
        return *LCombinam;
    }
    // With fewer parameters the engine may describe the others anew.
    while (*LCombinam != LEscolhidos) {
        LEscolhidos = *LCombinam;
        LCombinam = CombinarTipos(ASql, AForma, LEscolhidos, AComando);
        if (!LCombinam)
            return LNenhum;
    }
    return *LCombinam;
}

void TOvraConnection::TImplementacao::EsquecerComandos()
{
    Guardados.Limpar();
    Formas.clear();
    Variantes = 0;
}

std::int64_t TOvraConnection::TImplementacao::Executar(std::string_view ASql)
{
    const auto LComando = Preparar(ASql);
    TStatus LStatus;
    // A kept statement holds its tables: none may stand in the way of a table's change, nor outlive it.
    if (LComando->getType(&LStatus) == isc_info_sql_stmt_ddl)
        EsquecerComandos();
    LStatus.Verificar();
    Vigiar(TPassoSql::Executar);
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
    FImplementacao->EsquecerComandos();
    if (!FImplementacao->Anexo)
        return; // its database was deleted
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

void TOvraConnection::ApagarBanco(const TParametrosConexao& AParametros)
{
    TOvraConnection LConexao(AParametros);
    TStatus LStatus;
    LConexao.FImplementacao->Anexo->dropDatabase(&LStatus);
    LStatus.Verificar();
    LConexao.FImplementacao->Anexo.release(); // as after a detach
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
            FImplementacao->Executar("RELEASE SAVEPOINT OVRA_EXECUTOUSQL ONLY");
        } catch (const EDatabaseError&) {
            FImplementacao->Executar("ROLLBACK TO SAVEPOINT OVRA_EXECUTOUSQL");
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

void TOvraConnection::DefinirReaproveitamento(bool ALigado)
{
    FImplementacao->Reaproveitar = ALigado;
    FImplementacao->EsquecerComandos();
}

std::size_t TOvraConnection::ComandosGuardados() const { return FImplementacao->Guardados.Quantidade(); }

void TOvraConnection::DefinirObservador(TObservadorSql AObservador)
{
    FImplementacao->Observador = std::move(AObservador);
}

void TOvraConnection::DefinirVigia(TVigiaSql AVigia) { FImplementacao->Vigia = std::move(AVigia); }

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
