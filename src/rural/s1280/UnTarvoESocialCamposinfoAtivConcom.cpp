#include "rural/s1280/UnTarvoESocialCamposinfoAtivConcom.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::rural {

TTarvoESocialCamposinfoAtivConcom::TTarvoESocialCamposinfoAtivConcom(std::int64_t AIdEmpresa, TDateTime ACompt)
    : TTarvoESocialCamposGrupoBase("{C03CF9DD-C91B-4B0C-8E5A-7F614B2CD36D}"), FIdEmpresa(AIdEmpresa), FCompt(ACompt)
{}

const TPropriedades& TTarvoESocialCamposinfoAtivConcom::Tabela()
{
    using Eu = TTarvoESocialCamposinfoAtivConcom;
    static const TPropriedades tabela{
        {"fatorMes", &Eu::fatorMes, TFieldRelacionado("FATOR")},
        {"fator13", &Eu::fator13, TFieldRelacionado("FATOR")},
    };
    return tabela;
}

std::string TTarvoESocialCamposinfoAtivConcom::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT FIRST 1 FP_RECEITASIMPLES.FATOR
FROM FP_RECEITASIMPLES
JOIN SC00_FILIAL ON (FP_RECEITASIMPLES.IDFILIAL = SC00_FILIAL.IDFILIAL)
WHERE FP_RECEITASIMPLES.IDEMPRESA = %0:d
  AND EXTRACT(MONTH FROM FP_RECEITASIMPLES.DATA) = %1:s
  AND EXTRACT(YEAR FROM FP_RECEITASIMPLES.DATA) = %2:s
ORDER BY SC00_FILIAL.EHMATRIZ, FP_RECEITASIMPLES.IDFILIAL, FP_RECEITASIMPLES.IDDEPTO, FP_RECEITASIMPLES.IDRECEITASIMPLES)";
    return Format(SQL, FIdEmpresa, FormatDateTime("m", FCompt), FormatDateTime("yyyy", FCompt));
}

} // namespace tarvo::rural
