#include "ferramenta/UnBarraDeProgresso.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::ferramenta {

namespace {

constexpr std::chrono::milliseconds INTERVALO_ENTRE_DESENHOS{100};
constexpr std::size_t LARGURA_PADRAO = 80;
constexpr std::size_t LARGURA_MAXIMA_DA_BARRA = 40;
constexpr const char* APAGA_A_LINHA = "\r\x1b[K";

std::size_t LarguraDoTerminal(int ADescritor)
{
    winsize LTamanho{};
    return ioctl(ADescritor, TIOCGWINSZ, &LTamanho) == 0 && LTamanho.ws_col > 0 ? LTamanho.ws_col : LARGURA_PADRAO;
}

/// 75 is 1:15.
std::string Duracao(std::int64_t ASegundos)
{
    const auto LDoisDigitos = [](std::int64_t AValor) { return FormatFloat("00", AValor); };
    const auto LMinutos = ASegundos / 60;
    return (LMinutos < 60 ? std::to_string(LMinutos)
                          : std::to_string(LMinutos / 60) + ":" + LDoisDigitos(LMinutos % 60)) +
           ":" + LDoisDigitos(ASegundos % 60);
}

} // namespace

TBarraDeProgresso::TBarraDeProgresso(int ADescritor, std::string ATitulo)
    : FDescritor(ADescritor), FEhTerminal(isatty(ADescritor) == 1), FTitulo(std::move(ATitulo)),
      FInicio(TRelogio::now())
{}

TBarraDeProgresso::~TBarraDeProgresso() { Apagar(); }

void TBarraDeProgresso::Avancar(std::size_t AFeitos, std::size_t ATotal)
{
    FFeitos = AFeitos;
    FTotal = ATotal;
    if (!FDesenhada || TRelogio::now() - FUltimoDesenho >= INTERVALO_ENTRE_DESENHOS)
        Desenhar();
}

void TBarraDeProgresso::EscreverLinha(const std::string& ATexto)
{
    Apagar();
    Escrever(ATexto + "\n");
    if (FTotal > 0)
        Desenhar();
}

void TBarraDeProgresso::Desenhar()
{
    if (!FEhTerminal || FTotal == 0)
        return;
    FUltimoDesenho = TRelogio::now();
    const auto LDecorridos = std::chrono::duration_cast<std::chrono::seconds>(FUltimoDesenho - FInicio).count();
    std::string LFim = " " + std::to_string(FFeitos * 100 / FTotal) + "% " + std::to_string(FFeitos) + "/" +
                       std::to_string(FTotal) + " " + Duracao(LDecorridos);
    if (FFeitos > 0 && FFeitos < FTotal)
        LFim += ", faltam " +
                Duracao(LDecorridos * static_cast<std::int64_t>(FTotal - FFeitos) / static_cast<std::int64_t>(FFeitos));
    // The last column stays free: a terminal would wrap there.
    const auto LLargura = LarguraDoTerminal(FDescritor) - 1;
    const auto LOcupada = FTitulo.size() + LFim.size() + 3;
    const auto LBarra = LLargura > LOcupada ? std::min(LLargura - LOcupada, LARGURA_MAXIMA_DA_BARRA) : 0;
    const auto LCheia = LBarra * FFeitos / FTotal;
    Escrever(APAGA_A_LINHA + (LBarra == 0 ? LFim.substr(1, LLargura)
                                          : FTitulo + " [" + std::string(LCheia, '#') +
                                                std::string(LBarra - LCheia, '.') + "]" + LFim));
    FDesenhada = true;
}

void TBarraDeProgresso::Apagar()
{
    if (FDesenhada)
        Escrever(APAGA_A_LINHA);
    FDesenhada = false;
}

void TBarraDeProgresso::Escrever(const std::string& ATexto) const
{
    // A terminal that went away is no reason to stop the work.
    for (std::size_t LPosicao = 0; LPosicao < ATexto.size();) {
        const auto LEscritos = write(FDescritor, ATexto.data() + LPosicao, ATexto.size() - LPosicao);
        if (LEscritos < 0 && errno != EINTR)
            return;
        LPosicao += static_cast<std::size_t>(std::max<ssize_t>(LEscritos, 0));
    }
}

} // namespace tarvo::ferramenta
