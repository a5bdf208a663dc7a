#pragma once

#include "pagamento/s1210/UnTarvoESocialCamposideBenef.h"

namespace tarvo::pagamento {

/// Event S-1210: what a beneficiary was paid in a period, by payment date. The CPF of the parameter object becomes the
/// contracts of the company and the providers of the whole database that bear it.
class TTarvoESocialCamposS1210 : public TTarvoESocialCamposGrupoBase {
public:
    /// The parameter object must outlive the event.
    explicit TTarvoESocialCamposS1210(TTarvoESocialCamposS1210IOP& AInfoBind);

    TTarvoESocialCamposideBenef ideBenef;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }

private:
    void BuscarListaIdTrabalhadorPeloCPF();
    std::string RemoverEmpregadosComDataAdmissaoPosteriorAoCalculo(const std::string& ALista) const;

    TTarvoESocialCamposS1210IOP& FInfoBind;
};

} // namespace tarvo::pagamento
