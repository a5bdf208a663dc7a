#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "imports/banco/UnOvraConjuntoDeLinhas.h"

namespace tarvo {

class TOvraClientDataSet;
class TOvraConnection;

/// One column of a dataset's current row; valid as long as the dataset is. Past the last row, and in an empty
/// dataset, every value is null. A CHAR column comes without its padding.
class TField {
public:
    TField(const TOvraClientDataSet& ADataSet, std::size_t AColuna) : FDataSet(&ADataSet), FColuna(AColuna) {}

    bool IsNull() const;
    std::string AsString() const;
    /// Decimals are cut off toward zero. EConvertError for a text that is no integer.
    std::int64_t AsLargeInt() const;
    /// As AsLargeInt; EIntOverflow when the value needs more than 32 bits.
    std::int32_t AsInteger() const;
    double AsFloat() const;
    Currency AsCurrency() const;
    TDateTime AsDateTime() const;

private:
    const TOvraClientDataSet* FDataSet;
    std::size_t FColuna;
};

/// The rows of a statement in memory, with a cursor. Closed, it counts as empty.
class TOvraClientDataSet {
public:
    TOvraClientDataSet() = default;
    explicit TOvraClientDataSet(TConjuntoDeLinhas ALinhas);
    TOvraClientDataSet(const TOvraClientDataSet&) = delete;
    TOvraClientDataSet& operator=(const TOvraClientDataSet&) = delete;
    virtual ~TOvraClientDataSet() = default;

    bool Active() const { return FAberto; }
    void Close();
    /// Takes the rows of another statement and stands on the first.
    void Atribuir(TConjuntoDeLinhas ALinhas);

    bool IsEmpty() const { return FLinhas.QuantidadeDeLinhas() == 0; }
    std::size_t RecordCount() const { return FLinhas.QuantidadeDeLinhas(); }
    bool Eof() const { return FLinha >= FLinhas.QuantidadeDeLinhas(); }
    void First() { FLinha = 0; }
    void Next();

    /// Column by name, without regard to case; EDatabaseError when the statement doesn't return it.
    TField FieldByName(std::string_view ANome) const;
    std::optional<TField> FindField(std::string_view ANome) const;
    const std::vector<TColuna>& Colunas() const { return FLinhas.Colunas(); }

private:
    friend class TField;
    TConjuntoDeLinhas FLinhas;
    std::size_t FLinha = 0;
    bool FAberto = false;
};

/// A dataset bound to a connection: a text, and the rows that it returns.
class TOvraClientDataSetWithConnection : public TOvraClientDataSet {
public:
    /// Without a connection of its own, the suite's current one at the time of Open.
    explicit TOvraClientDataSetWithConnection(TOvraConnection* AConexao = nullptr) : FConexao(AConexao) {}

    void SetCommandText(std::string ASql) { FCommandText = std::move(ASql); }
    /// Runs the text as it stands (a colon is no parameter). EDatabaseError with the engine's text.
    void Open();

private:
    TOvraConnection* FConexao;
    std::string FCommandText;
};

/// What the consulting services return; the caller owns it.
using TDataset = std::unique_ptr<TOvraClientDataSet>;

} // namespace tarvo
