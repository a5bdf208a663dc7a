#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::sst {

/// S-2245 ideProfResp: a professional of the course, worker or provider, by its FP_CURSOEMPREGADODET row. A worker with
/// several positions multiplies the row, and the first that the database gives counts.
class TTarvoESocialCamposideProfResp : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposideProfResp(std::int64_t AIdeProfResp);

    std::string cpfProf;
    std::string nmProf;
    std::string tpProf;
    std::string formProf;
    std::string codCBO;
    std::string nacProf;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdeProfResp;
};

} // namespace tarvo::sst
