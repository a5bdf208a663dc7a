#include "tabelas/s1005/UnTarvoESocialCamposProcAdmJudFap.h"

namespace tarvo::tabelas {

TTarvoESocialCamposProcAdmJudFap::TTarvoESocialCamposProcAdmJudFap(std::int64_t AIDEstab, std::int64_t AIDDepto,
                                                                   TDateTime AData)
    : TTarvoESocialCamposProcAdmJud("{0F7C8276-CCBE-4D86-90CD-6A0C48E8F932}", AIDEstab, AIDDepto, AData)
{}

std::string TTarvoESocialCamposProcAdmJudFap::BuscarSQLDados()
{
    // An empty text is no process.
    return SqlProcesso("FIRST 1",
                       regras::SqlCfgDoEstab("IIF(SC00_FILIALCFG.INFORMACAO2 <> '',SC00_FILIALCFG.INFORMACAO2,NULL)",
                                             FLugar, {90, 51, 1}, FData)) +
           "\nORDER BY ES02_SPPROCDET.DATA DESC, ES02_SPPROCDET.IDSPPROCDET";
}

} // namespace tarvo::tabelas
