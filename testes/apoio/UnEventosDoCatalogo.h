#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "apoio/UnCasosDosGoldens.h"
#include "catalogo/UnTarvoESocialCamposCatalogo.h"

namespace tarvo::testes {

/// The codes of the catalogue, so that a new event is tested by itself.
std::vector<std::string> EventosDoCatalogo();
/// The name of a parameterised case of an event.
std::string NomeDoEvento(const ::testing::TestParamInfo<std::string>& AInfo);
/// A value that an argument takes.
std::string ArgumentoBom(const TArgumentoDeEvento& AArgumento);
/// The golden cases of an event: all of them, or the one with the largest JSON. Never none: an event without goldens
/// has a case of its own.
std::vector<TCasoDoGolden> CasosDoEvento(const std::string& ACodigo, bool ATodos);

} // namespace tarvo::testes
