#pragma once

#include <firebird/Interface.h>

#include <memory>
#include <string_view>
#include <vector>

#include "imports/banco/UnOvraConjuntoDeLinhas.h"
#include "imports/firebird/UnOvraFirebirdMensagem.h"
#include "imports/firebird/UnOvraFirebirdSessao.h"
#include "imports/firebird/UnOvraFirebirdStatus.h"

namespace tarvo::firebird {

/// A statement prepared once, and what is needed to run it again.
struct TComando {
    TReferencia<Firebird::IStatement> Comando;
    TReferencia<Firebird::IMessageMetadata> Saida;
    TReferencia<Firebird::IMessageMetadata> Entrada;
    TDescricao Descricao;
    std::vector<TColunaDaMensagem> Parametros;
    std::vector<unsigned char> MensagemDeSaida;
    std::vector<unsigned char> MensagemDeEntrada;
    bool TemCursor = false;
};

/// Errors as those of TSessao::Preparar.
std::unique_ptr<TComando> PrepararComando(TSessao& ASessao, std::string_view ASql, std::size_t AParametros = 0);
/// Runs the statement with the parameters that its message holds, and reads all its rows.
TConjuntoDeLinhas Ler(TSessao& ASessao, TComando& AComando);

} // namespace tarvo::firebird
