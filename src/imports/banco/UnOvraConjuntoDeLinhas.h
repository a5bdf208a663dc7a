#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "imports/valores/UnOvraCurrency.h"
#include "imports/valores/UnOvraDataHora.h"

namespace tarvo {

/// Kinds of value that a column of the engine arrives as.
enum class TTipoColuna : std::uint8_t { Texto, Inteiro, Float, Double, Data, Hora, DataHora, Booleano };

struct TColuna {
    std::string Nome;
    TTipoColuna Tipo = TTipoColuna::Texto;
    /// Power of ten of an exact numeric: -2 for NUMERIC(15,2).
    int Escala = 0;
};

/// The rows of one statement, decoded once and held in one buffer. Read-only after it was filled.
class TConjuntoDeLinhas {
public:
    TConjuntoDeLinhas() = default;
    explicit TConjuntoDeLinhas(std::shared_ptr<const std::vector<TColuna>> AColunas);

    std::size_t QuantidadeDeLinhas() const { return FLinhas; }
    const std::vector<TColuna>& Colunas() const;
    /// Index of a column, without regard to case; -1 when there is none.
    int IndiceDaColuna(std::string_view ANome) const;

    bool Nulo(std::size_t ALinha, std::size_t AColuna) const;
    /// Each reads one value by the rules of the field's kind; a null gives the empty value. Numbers and dates of a
    /// text column are parsed, EConvertError with the text when they can't be.
    std::string Texto(std::size_t ALinha, std::size_t AColuna) const;
    std::int64_t Inteiro(std::size_t ALinha, std::size_t AColuna) const;
    double Numero(std::size_t ALinha, std::size_t AColuna) const;
    Currency Moeda(std::size_t ALinha, std::size_t AColuna) const;
    TDateTime Data(std::size_t ALinha, std::size_t AColuna) const;

    // Filling, by the connection: one cell after the other, column by column, row by row.
    void AcrescentarNulo();
    void AcrescentarInteiro(std::int64_t AValor);
    void AcrescentarNumero(double AValor);
    void AcrescentarTexto(std::string_view AValor);
    void FecharLinha() { ++FLinhas; }

private:
    struct TCelula {
        union {
            std::int64_t Inteiro;
            double Numero;
            std::size_t Posicao;
        };
        std::uint32_t Tamanho;
        bool Nula;
    };

    const TCelula& Celula(std::size_t ALinha, std::size_t AColuna) const;
    std::string_view TextoCru(const TCelula& ACelula) const;

    std::shared_ptr<const std::vector<TColuna>> FColunas;
    std::vector<TCelula> FCelulas;
    std::string FTextos;
    std::size_t FLinhas = 0;
};

} // namespace tarvo
