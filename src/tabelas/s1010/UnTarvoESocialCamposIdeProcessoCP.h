#pragma once

#include "tabelas/s1010/UnTarvoESocialCamposIdeProcessoVerba.h"

namespace tarvo::tabelas {

/// S-1010 ideProcessoCP: the process that suspends social security on a rubric, with the reach of its decision.
/// Sources: ES02_SPPROC, its newest ES02_SPPROCDET, FP_VERBAPROCESSO.
class TTarvoESocialCamposIdeProcessoCP : public TTarvoESocialCamposIdeProcessoVerba {
public:
    TTarvoESocialCamposIdeProcessoCP();

    std::string TpProc;
    std::string NrProc;
    std::string CodSusp;
    std::string ExtDecisao;

    using TTarvoESocialCamposGrupoBase::CarregarDados;
    void CarregarDados(const TListaCamposModificados* AListaCamposModificados, std::int64_t AIdVerba,
                       std::int64_t AIdProcesso);

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdVerba = 0;
};

} // namespace tarvo::tabelas
