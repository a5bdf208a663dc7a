#include "tabelas/s1070/UnTarvoESocialCamposIdeProcesso.h"

#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposSqlProcesso.h"

namespace tarvo::tabelas {

TTarvoESocialCamposIdeProcesso::TTarvoESocialCamposIdeProcesso(std::int64_t AIdProcesso)
    : TTarvoESocialCamposGrupoBase("{ED03F5F6-11BD-4D8E-AE4E-E95B4B0317AF}"), FIdProcesso(AIdProcesso)
{}

const TPropriedades& TTarvoESocialCamposIdeProcesso::Tabela()
{
    using Eu = TTarvoESocialCamposIdeProcesso;
    static const TPropriedades tabela{
        {"tpProc", &Eu::tpProc, TFieldRelacionado("TPPROCESSO")},
        {"nrProc", &Eu::nrProc, TFieldRelacionado("NUMERO")},
        {"iniValid", &Eu::iniValid, TFieldRelacionado("DATAABERTURA")},
        {"fimValid", &Eu::fimValid},
    };
    return tabela;
}

std::string TTarvoESocialCamposIdeProcesso::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  ES02_SPPROC.TPPROCESSO,
  %1:s,
  ES02_SPPROC.DATAABERTURA
FROM ES02_SPPROC
WHERE ES02_SPPROC.IDSPPROC = %0:D)";
    return Format(SQL, FIdProcesso, regras::NUMERO_DO_PROCESSO);
}

} // namespace tarvo::tabelas
