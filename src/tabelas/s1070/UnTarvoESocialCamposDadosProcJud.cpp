#include "tabelas/s1070/UnTarvoESocialCamposDadosProcJud.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposDadosProcJud::TTarvoESocialCamposDadosProcJud(std::int64_t AIdProcesso)
    : TTarvoESocialCamposGrupoBase("{3297D003-ACB3-405F-BBC0-BA67DD22FFDD}"), FIdProcesso(AIdProcesso)
{}

const TPropriedades& TTarvoESocialCamposDadosProcJud::Tabela()
{
    using Eu = TTarvoESocialCamposDadosProcJud;
    static const TPropriedades tabela{
        {"ufVara", &Eu::ufVara, TFieldRelacionado("UF")},
        {"codMunic", &Eu::codMunic, TFieldRelacionado("CODIGOFEDERAL")},
        {"idVara", &Eu::idVara, TFieldRelacionado("VARA")},
    };
    return tabela;
}

std::string TTarvoESocialCamposDadosProcJud::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  CA06_UF.UF,
  CA06_MUNICIPIO.CODIGOFEDERAL,
  ES02_SPPROC.VARA
FROM ES02_SPPROC
LEFT JOIN CA06_MUNICIPIO ON (ES02_SPPROC.IDMUNICIPIO = CA06_MUNICIPIO.IDMUNICIPIO)
JOIN CA06_UF ON (CA06_MUNICIPIO.UF = CA06_UF.UF)
WHERE ES02_SPPROC.IDSPPROC = %0:D)";
    return Format(SQL, FIdProcesso);
}

} // namespace tarvo::tabelas
