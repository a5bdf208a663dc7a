#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// A judicial process of a worker, in S-1200 and in the termination events; each gives the group a GUID of its own.
/// Source: ES02_SPPROC by id and its newest detail.
class TTarvoESocialCamposprocJudTrab : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposprocJudTrab(std::int64_t AIdSpProc, std::string_view AGuid);

    std::int32_t tpTrib = 0;
    /// Digits only.
    std::string nrProcJud;
    /// Id of the newest detail of the process; empty when it has none.
    std::string codSusp;
    std::int32_t DetalhamentoIndMat = 0;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdSpProc;
};

} // namespace tarvo::tabelas
