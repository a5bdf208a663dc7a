#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1020 procJudTerceiro: one suspended entity and the process, with its newest suspension. Source: ES02_SPPROC,
/// ES02_SPPROCDET.
class TTarvoESocialCamposProcJudTerceiro : public TTarvoESocialCamposGrupoBase {
public:
    /// AIdProcesso: ES02_SPPROC.IDSPPROC.
    explicit TTarvoESocialCamposProcJudTerceiro(std::int64_t AIdProcesso);

    /// One bit; set by the parent.
    std::string codTerc;
    std::string nrProcJud;
    std::int32_t codSusp = 0;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdProcesso;
};

} // namespace tarvo::tabelas
