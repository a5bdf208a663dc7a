#pragma once

#include "tabelas/s1005/UnTarvoESocialCamposProcAdmJud.h"

namespace tarvo::tabelas {

/// S-1005 procAdmJudFap: the process about the FAP, with its newest suspension. Source: ES02_SPPROC and ES02_SPPROCDET
/// by INFORMACAO2 of SC00_FILIALCFG 90/51/1; a department has none of its own. Raises EDatabaseError when two rows of
/// the setting are in force.
class TTarvoESocialCamposProcAdmJudFap : public TTarvoESocialCamposProcAdmJud {
public:
    TTarvoESocialCamposProcAdmJudFap(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData);

protected:
    std::string BuscarSQLDados() override;
};

} // namespace tarvo::tabelas
