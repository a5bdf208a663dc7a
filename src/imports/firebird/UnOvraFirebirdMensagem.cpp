#include "imports/firebird/UnOvraFirebirdMensagem.h"

#include <string>

#include "imports/UnOvraExcecoes.h"
#include "imports/firebird/UnOvraFirebirdStatus.h"

namespace tarvo::firebird {

using namespace Firebird;

namespace {

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

} // namespace

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
    LDescricao.Colunas = std::move(LColunas);
    return LDescricao;
}

} // namespace tarvo::firebird
