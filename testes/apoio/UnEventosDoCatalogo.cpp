#include "apoio/UnEventosDoCatalogo.h"

#include <algorithm>
#include <filesystem>

#include "catalogo/UnTarvoESocialCamposCatalogo.h"

namespace tarvo::testes {

namespace {

/// An event without a golden is loaded for the first of everything, in March 2021.
TCasoDoGolden CasoSimples(const std::string& ACodigo)
{
    TCasoDoGolden LCaso{ACodigo, "simples", {}};
    for (const auto& LArgumento : BuscarEventoDoCatalogo(ACodigo).Argumentos)
        LCaso.Argumentos[LArgumento.Nome] = ArgumentoBom(LArgumento);
    return LCaso;
}

} // namespace

std::string ArgumentoBom(const TArgumentoDeEvento& AArgumento)
{
    switch (AArgumento.Tipo) {
    case TTipoArgumento::taData:
        return "2021-03-01";
    case TTipoArgumento::taCpf:
        return "111.222.333-96";
    case TTipoArgumento::taInteiro:
        return std::to_string(AArgumento.UltimoOrdinal >= 0 ? AArgumento.PrimeiroOrdinal : 1);
    case TTipoArgumento::taId:
    case TTipoArgumento::taTexto:
        break;
    }
    return "1";
}

std::vector<std::string> EventosDoCatalogo()
{
    std::vector<std::string> LCodigos;
    for (const auto& LEvento : CatalogoDeEventos())
        LCodigos.emplace_back(LEvento.Codigo);
    return LCodigos;
}

std::string NomeDoEvento(const ::testing::TestParamInfo<std::string>& AInfo)
{
    auto LNome = AInfo.param;
    std::erase(LNome, '-');
    return LNome;
}

std::vector<TCasoDoGolden> CasosDoEvento(const std::string& ACodigo, bool ATodos)
{
    auto LCasos = LerCasosDosGoldens();
    std::erase_if(LCasos, [&](const TCasoDoGolden& ACaso) { return ACaso.Evento != ACodigo; });
    if (LCasos.empty())
        return {CasoSimples(ACodigo)};
    if (ATodos)
        return LCasos;
    const auto LTamanho = [](const TCasoDoGolden& ACaso) {
        return std::filesystem::file_size(std::string(PASTA_DOS_GOLDENS) + "/" + ACaso.Evento + "/" + ACaso.Nome +
                                          ".json");
    };
    return {*std::max_element(LCasos.begin(), LCasos.end(),
                              [&](const auto& A, const auto& B) { return LTamanho(A) < LTamanho(B); })};
}

} // namespace tarvo::testes
