#include "imports/banco/UnOvraClientDataSet.h"

#include <limits>

#include "imports/UnOvraExcecoes.h"
#include "imports/banco/UnOvraConnection.h"

namespace tarvo {

bool TField::IsNull() const { return FDataSet->Eof() || FDataSet->FLinhas.Nulo(FDataSet->FLinha, FColuna); }

std::string TField::AsString() const
{
    return FDataSet->Eof() ? std::string() : FDataSet->FLinhas.Texto(FDataSet->FLinha, FColuna);
}

std::int64_t TField::AsLargeInt() const
{
    return FDataSet->Eof() ? 0 : FDataSet->FLinhas.Inteiro(FDataSet->FLinha, FColuna);
}

std::int32_t TField::AsInteger() const
{
    const auto LValor = AsLargeInt();
    if (LValor < std::numeric_limits<std::int32_t>::min() || LValor > std::numeric_limits<std::int32_t>::max())
        throw EIntOverflow("Valor fora da faixa de um inteiro de 32 bits: " + std::to_string(LValor));
    return static_cast<std::int32_t>(LValor);
}

double TField::AsFloat() const { return FDataSet->Eof() ? 0.0 : FDataSet->FLinhas.Numero(FDataSet->FLinha, FColuna); }

Currency TField::AsCurrency() const
{
    return FDataSet->Eof() ? Currency() : FDataSet->FLinhas.Moeda(FDataSet->FLinha, FColuna);
}

TDateTime TField::AsDateTime() const
{
    return FDataSet->Eof() ? TDateTime() : FDataSet->FLinhas.Data(FDataSet->FLinha, FColuna);
}

TOvraClientDataSet::TOvraClientDataSet(TConjuntoDeLinhas ALinhas) { Atribuir(std::move(ALinhas)); }

void TOvraClientDataSet::Close()
{
    FLinhas = TConjuntoDeLinhas();
    FLinha = 0;
    FAberto = false;
}

void TOvraClientDataSet::Atribuir(TConjuntoDeLinhas ALinhas)
{
    FLinhas = std::move(ALinhas);
    FLinha = 0;
    FAberto = true;
}

void TOvraClientDataSet::Next()
{
    if (!Eof())
        ++FLinha;
}

std::optional<TField> TOvraClientDataSet::FindField(std::string_view ANome) const
{
    const int LIndice = FLinhas.IndiceDaColuna(ANome);
    if (LIndice < 0)
        return std::nullopt;
    return TField(*this, static_cast<std::size_t>(LIndice));
}

TField TOvraClientDataSet::FieldByName(std::string_view ANome) const
{
    if (const auto LCampo = FindField(ANome))
        return *LCampo;
    throw EDatabaseError("Campo '" + std::string(ANome) + "' não encontrado", 0, "");
}

void TOvraClientDataSetWithConnection::Open()
{
    Close();
    TOvraConnection& LConexao = FConexao != nullptr ? *FConexao : OvraConnection();
    Atribuir(LConexao.Consultar(FCommandText));
}

} // namespace tarvo
