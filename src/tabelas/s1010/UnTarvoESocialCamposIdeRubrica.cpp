#include "tabelas/s1010/UnTarvoESocialCamposIdeRubrica.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

// The code is the rubric's own in both kinds: the incidences are not part of it here.
TTarvoESocialCamposIdeRubrica::TTarvoESocialCamposIdeRubrica(std::int64_t AIdVerba, std::int64_t AidEmpresa,
                                                             std::int64_t AIdRubricaRpa,
                                                             const regras::TCodigosIncidenciaVerba*)
    : TTarvoESocialCamposGrupoBase("{380563FD-0740-4378-A5C6-83EF6E32FBDD}"), FIdVerba(AIdVerba),
      FIdEmpresa(AidEmpresa), FIdRubricaRpa(AIdRubricaRpa)
{
    if (AIdRubricaRpa != 0)
        IdeTabRubr = "0";
}

const TPropriedades& TTarvoESocialCamposIdeRubrica::Tabela()
{
    using Eu = TTarvoESocialCamposIdeRubrica;
    static const TPropriedades tabela{
        {"codRubr", &Eu::codRubr, TFieldRelacionado("CODIGO")},
        {"IdeTabRubr", &Eu::IdeTabRubr, TFieldRelacionado("IDETABRUBR")},
        {"iniValid", &Eu::iniValid},
        {"fimValid", &Eu::fimValid},
    };
    return tabela;
}

std::string TTarvoESocialCamposIdeRubrica::BuscarSQLDados()
{
    static constexpr std::string_view IDETABRUBR = R"(COALESCE((SELECT SC00_EMPRESACFG.INFORMACAO1
                 FROM SC00_EMPRESACFG
                 WHERE ORIGEM = 90 AND ESPECIE = 38 AND TP = 13 AND IDEMPRESA = %0:d),0) AS IDETABRUBR)";
    static constexpr std::string_view SQL_VERBA = R"(SELECT(SELECT TAB_VERBAS.CODIGO
       FROM TAB_VERBAS
       WHERE TAB_VERBAS.IDVERBA = %0:d) AS CODIGO,
       %1:s
FROM RDB$DATABASE)";
    static constexpr std::string_view SQL_RPA = R"(SELECT RPATPVALOR.IDRPATPVALOR CODIGO,
       %1:s
FROM RPATPVALOR
JOIN FP_RUBRICARELACRPA ON (RPATPVALOR.IDRPATPVALOR = FP_RUBRICARELACRPA.IDRPATPVALOR)
WHERE FP_RUBRICARELACRPA.IDRUBRICARELACRPA = %0:d)";
    const auto LTabela = Format(IDETABRUBR, FIdEmpresa);
    return FIdVerba != 0 ? Format(SQL_VERBA, FIdVerba, LTabela) : Format(SQL_RPA, FIdRubricaRpa, LTabela);
}

} // namespace tarvo::tabelas
