#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "imports/banco/UnOvraConnection.h"
#include "imports/valores/UnOvraCurrency.h"
#include "imports/valores/UnOvraDataHora.h"

namespace tarvo::testes {

/// Where databases of this run are made: a folder of its own for the embedded engine, or below TESTES_LIGACAO
/// (`host/port:folder`) on a server. Removed at the end of the run.
TParametrosConexao ParametrosDoBanco(const std::string& ANomeDoArquivo);
/// A fresh database with the schema, and with the sample company when asked; made once per name. ANoEsquema may change
/// the texts of the schema.
TParametrosConexao CriarBancoDeTeste(const std::string& ANomeDoArquivo, bool AComExemplo,
                                     const std::function<std::string(std::string_view)>& ANoEsquema = {});
/// Closes the connections that the fixtures share and ends the engine; the last act of a run.
void FecharConexoes();

/// A value of a column on its way into an INSERT.
class TValorSql {
public:
    TValorSql(int AValor) : FTexto(std::to_string(AValor)) {}
    TValorSql(std::int64_t AValor) : FTexto(std::to_string(AValor)) {}
    TValorSql(double AValor);
    TValorSql(TDateTime AData);
    TValorSql(const char* ATexto);
    TValorSql(const std::string& ATexto) : TValorSql(ATexto.c_str()) {}
    TValorSql(std::nullptr_t) : FTexto("NULL") {}

    const std::string& Texto() const { return FTexto; }

private:
    std::string FTexto;
};

using TCamposSql = std::initializer_list<std::pair<const char*, TValorSql>>;

/// Inserts a row that names only the columns that matter.
void Inserir(const char* ATabela, TCamposSql ACampos);
/// Runs a statement on the current connection.
void Executar(const std::string& ASql);
/// First column of the first row as text; empty without a row.
std::string Consultar(const std::string& ASql);

/// A date literal of a test: D(2021, 3, 1).
inline TDateTime D(int AAno, int AMes, int ADia) { return EncodeDate(AAno, AMes, ADia); }
/// Money of a test from its text: R("1234,56").
Currency R(const std::string& ATexto);

/// A test on the empty schema: its rows are undone at its end.
class TTesteComBanco : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;
    virtual bool ComExemplo() const { return false; }
    TOvraConnection& Conexao();
};

/// A test on the sample company; what it changes is undone.
class TTesteComExemplo : public TTesteComBanco {
protected:
    bool ComExemplo() const override { return true; }
};

/// The sibling system on a connection, and the user allowed to read it, as long as this lives.
class TBrencoLigado {
public:
    explicit TBrencoLigado(TOvraConnection& AConexao);
    TBrencoLigado(const TBrencoLigado&) = delete;
    TBrencoLigado& operator=(const TBrencoLigado&) = delete;
    ~TBrencoLigado();
};

/// Compares a text with a file, whole; with ATUALIZAR_GOLDENS=1 in the environment writes it.
void ConferirArquivo(const std::string& AArquivo, const std::string& ATexto);
/// The same for a JSON and the file of that name in goldens/.
void ConferirGolden(const std::string& ANome, const std::string& AJson);

} // namespace tarvo::testes
