#pragma once

#include "tabelas/s1005/UnTarvoESocialCamposProcAdmJud.h"

namespace tarvo::tabelas {

/// S-1005 procAdmJudRat: the process about the RAT rate. Source: ES02_SPPROC and ES02_SPPROCDET by INFORMACAO2 of
/// SC00_FILIALCFG 90/51/3; that of SC00_DEPARTAMENTOCFG goes first for a department, whose IndMatProc stays empty.
/// Raises EDatabaseError when two rows of the setting are in force.
class TTarvoESocialCamposProcAdmJudRat : public TTarvoESocialCamposProcAdmJud {
public:
    TTarvoESocialCamposProcAdmJudRat(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData);

protected:
    std::string BuscarSQLDados() override;
};

} // namespace tarvo::tabelas
