#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace tarvo::ferramenta {

/// A progress bar on the last line of a terminal; on anything else than a terminal it writes nothing but the lines.
/// The bar is drawn at most ten times a second and wiped off at the end.
class TBarraDeProgresso {
public:
    /// ADescritor is an open file descriptor, standard error as a rule.
    explicit TBarraDeProgresso(int ADescritor, std::string ATitulo);
    TBarraDeProgresso(const TBarraDeProgresso&) = delete;
    TBarraDeProgresso& operator=(const TBarraDeProgresso&) = delete;
    ~TBarraDeProgresso();

    void Avancar(std::size_t AFeitos, std::size_t ATotal);
    /// Wipes the bar off, before something else is written to the same terminal; Avancar draws it again at once.
    void Apagar();
    /// Writes a message of its own above the bar.
    void EscreverLinha(const std::string& ATexto);

private:
    using TRelogio = std::chrono::steady_clock;

    void Desenhar();
    void Escrever(const std::string& ATexto) const;

    int FDescritor;
    bool FEhTerminal;
    bool FDesenhada = false;
    std::string FTitulo;
    std::size_t FFeitos = 0;
    std::size_t FTotal = 0;
    TRelogio::time_point FInicio;
    TRelogio::time_point FUltimoDesenho;
};

} // namespace tarvo::ferramenta
