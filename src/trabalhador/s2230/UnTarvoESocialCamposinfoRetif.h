#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// S-2230 infoRetif: the correction of a leave's reason. Source: FP_EMPREGADOSDET 5/1 of the situation, with the number
/// of the process.
class TTarvoESocialCamposinfoRetif : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposinfoRetif(std::int64_t AIDSituacao);

    std::string origRetif;
    std::string tpProc;
    std::string nrProc;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDSituacao;
};

} // namespace tarvo::trabalhador
