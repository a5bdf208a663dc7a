#include "imports/firebird/UnOvraFirebirdComando.h"

#include <array>
#include <string>

#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraDataHora.h"

namespace tarvo::firebird {

using namespace Firebird;

namespace {

/// The engine counts the time of day in ten-thousandths of a second.
constexpr double FRACOES_DO_DIA = 864'000'000.0;

double DiaDoMotor(ISC_DATE AData) { return static_cast<double>(AData - DIA_ZERO_DO_MOTOR); }

std::string LerBlob(TSessao& ASessao, ISC_QUAD AId, bool ATexto)
{
    TStatus LStatus;
    ASessao.Vigiar(TPassoSql::LerLinha);
    TReferencia<IBlob> LBlob(ASessao.Anexo().openBlob(&LStatus, ASessao.TransacaoCorrente(), &AId, 0, nullptr));
    std::string LConteudo;
    std::array<char, 32'000> LBuffer{};
    for (;;) {
        unsigned LLidos = 0;
        const int LResultado = LBlob->getSegment(&LStatus, LBuffer.size(), LBuffer.data(), &LLidos);
        LConteudo.append(LBuffer.data(), LLidos);
        if (LResultado == IStatus::RESULT_NO_DATA)
            break;
    }
    LBlob->close(&LStatus);
    LBlob.release(); // a blob that closed well is freed by its close
    return ATexto ? ParaUtf8(LConteudo) : LConteudo;
}

void LerLinha(TSessao& ASessao, TConjuntoDeLinhas& ALinhas, const TDescricao& ADescricao,
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
            ALinhas.AcrescentarTexto(
                LerBlob(ASessao, LerDaMensagem<ISC_QUAD>(LValor), LColuna.SubTipo == isc_blob_text));
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

} // namespace

std::unique_ptr<TComando> PrepararComando(TSessao& ASessao, std::string_view ASql, std::size_t AParametros)
{
    auto LComando = std::make_unique<TComando>();
    LComando->Comando = ASessao.Preparar(ASql, AParametros);
    TStatus LStatus;
    LComando->Saida.reset(LComando->Comando->getOutputMetadata(&LStatus));
    LComando->Entrada.reset(LComando->Comando->getInputMetadata(&LStatus));
    LComando->TemCursor = (LComando->Comando->getFlags(&LStatus) & IStatement::FLAG_HAS_CURSOR) != 0;
    LComando->Descricao = Descrever(*LComando->Saida);
    LComando->MensagemDeSaida.resize(LComando->Descricao.Tamanho);
    LComando->Parametros = DescreverMensagem(*LComando->Entrada);
    LComando->MensagemDeEntrada.resize(LComando->Entrada->getMessageLength(&LStatus));
    return LComando;
}

TConjuntoDeLinhas Ler(TSessao& ASessao, TComando& AComando)
{
    TStatus LStatus;
    TConjuntoDeLinhas LLinhas(AComando.Descricao.Colunas);
    IMessageMetadata* LEntrada = AComando.Parametros.empty() ? nullptr : AComando.Entrada.get();
    void* LParametros = AComando.Parametros.empty() ? nullptr : AComando.MensagemDeEntrada.data();
    unsigned char* LMensagem = AComando.MensagemDeSaida.data();
    ASessao.Vigiar(TPassoSql::Executar);
    if (!AComando.TemCursor) {
        // A statement that returns its one row by itself, as INSERT ... RETURNING does, or none at all.
        AComando.Comando->execute(&LStatus, ASessao.TransacaoCorrente(), LEntrada, LParametros, AComando.Saida.get(),
                                  LMensagem);
        if (!AComando.Descricao.Mensagem.empty())
            LerLinha(ASessao, LLinhas, AComando.Descricao, LMensagem);
        return LLinhas;
    }
    TReferencia<IResultSet> LCursor(AComando.Comando->openCursor(&LStatus, ASessao.TransacaoCorrente(), LEntrada,
                                                                 LParametros, AComando.Saida.get(), 0));
    for (;;) {
        ASessao.Vigiar(TPassoSql::LerLinha);
        const int LResultado = LCursor->fetchNext(&LStatus, LMensagem);
        if (LResultado != IStatus::RESULT_OK)
            break;
        LerLinha(ASessao, LLinhas, AComando.Descricao, LMensagem);
    }
    LCursor->close(&LStatus);
    LCursor.release(); // a cursor that closed well is freed by its close
    return LLinhas;
}

} // namespace tarvo::firebird
