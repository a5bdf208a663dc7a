#pragma once

#include "remuneracao/periodo/UnTarvoESocialCamposRemunS1200.h"
#include "remuneracao/saude/UnTarvoESocialCamposInfoSaudeColetS1200.h"

namespace tarvo::remuneracao {

/// S-1200 remunPerApur: the remuneration of one contract, or of one provider, in one lotação of the current period.
/// Sources: EMPREGADOS for the registration, which is "0" for a provider, the calculated rows for the rest.
/// infoTrabInterm has at most one entry.
class TTarvoESocialCamposRemunPerApurS1200 : public TTarvoESocialCamposRemunS1200 {
public:
    TTarvoESocialCamposRemunPerApurS1200(TTarvoESocialCamposS1200IOP& AinfoBind1200, std::int64_t AIdFilial,
                                         std::int64_t AIdDepto);

    TTarvoESocialCamposInfoSaudeColetS1200 InfoSaudeColet;
    /// Of an employee; 0 for a provider.
    std::int32_t codCateg = 0;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    void GerarListainfoSaudeColet(const TListaCamposModificados* AListaCamposModificados);
    void CarregarDadosinfoTrabInterm();

    std::vector<TDadosCalculo> FListaIdCalculo;
};

} // namespace tarvo::remuneracao
