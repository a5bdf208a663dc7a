#include "imports/firebird/UnOvraFirebirdSessao.h"

#include <string>

#include "imports/UnOvraExcecoes.h"
#include "imports/banco/UnOvraFormaSql.h"

namespace tarvo::firebird {

using namespace Firebird;

namespace {

constexpr unsigned DIALETO = 3;
/// isc_dpb_set_bind, by its number: the header of version 3 lacks it.
constexpr unsigned char DPB_SET_BIND = 93;
constexpr const char* PARAMETRO_SEM_VALOR =
    "O comando tem um parâmetro sem valor (?): o valor vai no próprio texto do comando";

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
    return LBloco;
}

} // namespace

TSessao::TSessao(const TParametrosConexao& AParametros)
{
    const auto LBloco = ParametrosDeConexao(AParametros);
    TStatus LStatus;
    const unsigned LTamanho = LBloco->getBufferLength(&LStatus);
    const unsigned char* LBuffer = LBloco->getBuffer(&LStatus);
    const TReferencia<IProvider> LProvedor(Mestre()->getDispatcher());
    FAnexo.reset(LProvedor->attachDatabase(&LStatus, AParametros.BancoDeDados.c_str(), LTamanho, LBuffer));
}

TSessao::~TSessao()
{
    // What fails here fails because the connection is gone already; the handles are released all the same.
    try {
        Desfazer();
    } catch (...) {
    }
    if (!FAnexo)
        return; // its database was deleted
    try {
        TStatus LStatus;
        FAnexo->detach(&LStatus);
        FAnexo.release(); // an attachment that detached well is freed by it
    } catch (...) {
    }
}

void TSessao::CriarBanco(const TParametrosConexao& AParametros)
{
    const auto LBloco = ParametrosDeConexao(AParametros);
    TStatus LStatus;
    LBloco->insertString(&LStatus, isc_dpb_set_db_charset, "UTF8");
    LBloco->insertInt(&LStatus, isc_dpb_page_size, 8192);
    const unsigned LTamanho = LBloco->getBufferLength(&LStatus);
    const unsigned char* LBuffer = LBloco->getBuffer(&LStatus);
    const TReferencia<IProvider> LProvedor(Mestre()->getDispatcher());
    TReferencia<IAttachment> LAnexo(
        LProvedor->createDatabase(&LStatus, AParametros.BancoDeDados.c_str(), LTamanho, LBuffer));
    LAnexo->detach(&LStatus);
    LAnexo.release();
}

void TSessao::ApagarBanco()
{
    TStatus LStatus;
    FAnexo->dropDatabase(&LStatus);
    FAnexo.release(); // as after a detach
}

ITransaction* TSessao::TransacaoCorrente()
{
    if (!FTransacao)
        IniciarTransacao(TOvraConnection::TIsolamento::LeituraConfirmada);
    return FTransacao.get();
}

void TSessao::IniciarTransacao(TOvraConnection::TIsolamento AIsolamento)
{
    if (FTransacao)
        return;
    auto LBloco = CriarBloco(IXpbBuilder::TPB);
    TStatus LStatus;
    if (AIsolamento == TOvraConnection::TIsolamento::Instantaneo) {
        LBloco->insertTag(&LStatus, isc_tpb_concurrency);
    } else {
        LBloco->insertTag(&LStatus, isc_tpb_read_committed);
        LBloco->insertTag(&LStatus, isc_tpb_rec_version);
    }
    LBloco->insertTag(&LStatus, isc_tpb_nowait);
    LBloco->insertTag(&LStatus, isc_tpb_write);
    const unsigned LTamanho = LBloco->getBufferLength(&LStatus);
    const unsigned char* LBuffer = LBloco->getBuffer(&LStatus);
    FTransacao.reset(FAnexo->startTransaction(&LStatus, LTamanho, LBuffer));
}

void TSessao::Confirmar()
{
    if (!FTransacao)
        return;
    TStatus LStatus;
    FTransacao->commit(&LStatus);
    FTransacao.release(); // a transaction that ended well is freed by its end
}

void TSessao::Desfazer()
{
    if (!FTransacao)
        return;
    // Whatever the engine answers, there is nothing left to undo: on a lost connection it undoes by itself.
    TReferencia<ITransaction> LTransacao(std::move(FTransacao));
    TStatus LStatus;
    LTransacao->rollback(&LStatus);
    LTransacao.release(); // as after a commit
}

TReferencia<IStatement> TSessao::PrepararTexto(std::string_view ASql)
{
    ITransaction* LTransacao = TransacaoCorrente();
    TStatus LStatus;
    Vigiar(TPassoSql::Preparar);
    return TReferencia<IStatement>(FAnexo->prepare(&LStatus, LTransacao, static_cast<unsigned>(ASql.size()),
                                                   ASql.data(), DIALETO, IStatement::PREPARE_PREFETCH_METADATA));
}

TReferencia<IStatement> TSessao::Preparar(std::string_view ASql, std::size_t AParametros)
{
    TReferencia<IStatement> LComando;
    try {
        LComando = PrepararTexto(ASql);
    } catch (const EDatabaseError& LErro) {
        // The engine finds no type for some of them, and its words for that help nobody.
        if (AParametros == 0 && !EhPerdaDeConexao(LErro) && TemParametro(ASql))
            throw EDatabaseError(std::string(PARAMETRO_SEM_VALOR) + "\n" + LErro.what(), LErro.Codigo(),
                                 LErro.SqlState());
        throw;
    }
    TStatus LStatus;
    const auto LTipo = LComando->getType(&LStatus);
    if (LTipo == isc_info_sql_stmt_start_trans || LTipo == isc_info_sql_stmt_commit ||
        LTipo == isc_info_sql_stmt_rollback)
        throw EDatabaseError("Uma transação não começa nem termina por um comando: use Confirmar, Desfazer ou "
                             "IniciarTransacao",
                             0, "");
    // Run so, the engine would take zeros for the values.
    const TReferencia<IMessageMetadata> LEntrada(LComando->getInputMetadata(&LStatus));
    if (LEntrada->getCount(&LStatus) != AParametros)
        throw EDatabaseError(PARAMETRO_SEM_VALOR, 0, "");
    return LComando;
}

} // namespace tarvo::firebird
