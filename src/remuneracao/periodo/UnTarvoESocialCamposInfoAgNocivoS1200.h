#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200IOP.h"

namespace tarvo::remuneracao {

/// S-1200 infoAgNocivo: the degree of exposure to harmful agents in the position held at the end of the period.
/// Sources: CARGOS, the category of the contract.
class TTarvoESocialCamposInfoAgNocivoS1200 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposInfoAgNocivoS1200(const TTarvoESocialCamposS1200IOP& AinfoBind1200);

    /// The first character of the occurrence; 0 where it is no digit.
    std::int32_t grauExp = 0;
    std::string codCateg;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    const TTarvoESocialCamposS1200IOP& FInfoBind;
};

} // namespace tarvo::remuneracao
