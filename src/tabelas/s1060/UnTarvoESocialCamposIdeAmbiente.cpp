#include "tabelas/s1060/UnTarvoESocialCamposIdeAmbiente.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposIdeAmbiente::TTarvoESocialCamposIdeAmbiente(std::int64_t AIdAmbiente)
    : TTarvoESocialCamposGrupoBase("{EFAF7733-F1ED-4840-A2A1-7DC9FEE52574}"), FIdAmbiente(AIdAmbiente)
{}

const TPropriedades& TTarvoESocialCamposIdeAmbiente::Tabela()
{
    using Eu = TTarvoESocialCamposIdeAmbiente;
    static const TPropriedades tabela{
        {"codAmb", &Eu::codAmb, TFieldRelacionado("CODIGOESOCIAL")},
        {"iniValid", &Eu::iniValid, TFieldRelacionado("DATAINICIO")},
        {"fimValid", &Eu::fimValid, TFieldRelacionado("DATAFIM")},
        {"idEmpresa", &Eu::idEmpresa},
    };
    return tabela;
}

std::string TTarvoESocialCamposIdeAmbiente::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  SST_AMBIENTES.CODIGOESOCIAL,
  SST_AMBIENTES.DATAINICIO,
  SST_AMBIENTES.DATAFIM,
  SST_AMBIENTES.IDEMPRESA
FROM SST_AMBIENTES
WHERE SST_AMBIENTES.IDAMBIENTE = %0:d)";
    return Format(SQL, FIdAmbiente);
}

} // namespace tarvo::tabelas
