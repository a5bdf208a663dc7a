#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::desligamento {

/// S-2299 sucessaoVinc: the employer that took the bond over, in the database or outside it. Source: TRANSF_EMPREG, for
/// every reason but the transfer of the holder (34).
class TTarvoESocialCampossucessaoVincS2299 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCampossucessaoVincS2299(std::int64_t AIdEmpregado);

    std::string TpInscSuc;
    std::string cnpjSucessora;
    std::string motivoAfast;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdEmpregado;
};

} // namespace tarvo::desligamento
