#pragma once

#include <string>
#include <string_view>

#include "imports/UnOvraExcecoes.h"

namespace tarvo {

class TTarvoESocialCamposGrupoBase;

/// A property path that the tree doesn't have, or that leads to the wrong kind of property.
class ECaminhoInvalido : public Exception {
public:
    using Exception::Exception;
};

/// A path that the tree may have, but not as it stands: a child that is null, an item beyond the end of its list.
class ECaminhoVazio : public ECaminhoInvalido {
public:
    using ECaminhoInvalido::ECaminhoInvalido;
};

/// The group at a path of property names joined by points (`InfoEmpregador.infoCadastro`, an item of a list as
/// `dmDev[0]`), without regard to case; an empty path is the root. The tree keeps owning it. ECaminhoInvalido when
/// there is none, ECaminhoVazio when there is none at the moment.
TTarvoESocialCamposGrupoBase& BuscarGrupoPeloCaminho(TTarvoESocialCamposGrupoBase& ARaiz, std::string_view ACaminho);

/// Sets the simple property at a path from a text: numbers with a decimal comma, dates as dd/mm/yyyy or yyyy-mm-dd
/// (empty unsets), flags as true or false. ECaminhoInvalido for an unknown path or a read-only property,
/// EConvertError for a text that doesn't fit.
void DefinirPropriedadePeloCaminho(TTarvoESocialCamposGrupoBase& ARaiz, std::string_view ACaminho,
                                   const std::string& ATexto);

} // namespace tarvo
