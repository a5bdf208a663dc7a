#pragma once

#include <firebird/Interface.h>

#include <cstring>
#include <memory>
#include <vector>

#include "imports/banco/UnOvraConjuntoDeLinhas.h"

namespace tarvo::firebird {

constexpr int CHARSET_NONE = 0;
constexpr int CHARSET_OCTETS = 1;
constexpr int CHARSET_UTF8 = 4;
/// Days from the engine's day 0 (17 November 1858) to TDateTime's.
constexpr int DIA_ZERO_DO_MOTOR = 15018;

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

/// What a metadata of the engine tells of a message.
std::vector<TColunaDaMensagem> DescreverMensagem(Firebird::IMessageMetadata& AMetadados);
/// The same with the columns that the rows will have; EDatabaseError for a type that the library doesn't read.
TDescricao Descrever(Firebird::IMessageMetadata& AMetadados);

template <class T>
T LerDaMensagem(const unsigned char* AOnde)
{
    T LValor{};
    std::memcpy(&LValor, AOnde, sizeof(T));
    return LValor;
}

template <class T>
void EscreverNaMensagem(unsigned char* AOnde, const T& AValor)
{
    std::memcpy(AOnde, &AValor, sizeof(T));
}

} // namespace tarvo::firebird
