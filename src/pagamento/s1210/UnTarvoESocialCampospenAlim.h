#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "pagamento/s1210/UnTarvoESocialCamposS1210IOP.h"

namespace tarvo::pagamento {

/// S-1210 penAlim: a beneficiary of alimony and his share in reais. Source: DEPENDENTES by id.
class TTarvoESocialCampospenAlim : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCampospenAlim(const TTarvoESocialCamposS1210IOP& AInfoBind);

    std::string cpfBenef;
    TDateTime dtNasctoBenef;
    std::string nmBenefic;
    /// These two are set by whoever creates the group, before the load.
    std::int64_t IdDependente = 0;
    long double vlrPensao = 0;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;
};

} // namespace tarvo::pagamento
