#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200IOP.h"

namespace tarvo::remuneracao {

/// S-1200 infoComplCont: occupation and kind of activity of a worker without a bond. Source: PREST_SERVICO by the
/// digits of the CPF, whatever the employer; an employee who is nobody's provider leaves it empty.
class TTarvoESocialCamposinfoComplCont : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposinfoComplCont(const TTarvoESocialCamposS1200IOP& AinfoBind1200);

    std::string codCBO;
    /// Only of an employer of the classifications that report it.
    std::string natAtividade;
    /// Nothing sets it.
    std::int32_t qtdDiasTrab = 0;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    bool ValidouClassTrib() const;

    const TTarvoESocialCamposS1200IOP& FInfoBind;
};

} // namespace tarvo::remuneracao
