#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::sst {

/// S-2221 toxicologico: the examination, or its refusal, which takes the dismissal's date. Source: FP_EXAMETOXICOLOGICO.
class TTarvoeSocialCampostoxicologico : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoeSocialCampostoxicologico(std::int64_t AIdExameToxicologico);

    TDateTime dtExame;
    TDateTime DataObtencaoResult;
    std::string cnpjLab;
    std::string codSeqExame;
    std::string nmMed;
    std::string nrCRM;
    std::string ufCRM;
    std::string indRecusa;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdExameToxicologico;
};

} // namespace tarvo::sst
