#pragma once

#include "trabalhador/vinculo/UnTarvoESocialCamposIdeTomadorServ.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposIdeTrabSubstituido.h"

namespace tarvo::trabalhador {

/// Temporary work of a worker at a date. Source: SC00_EMPREGADOCFG 90/38/9, the term of EMPREGADOS, the justification
/// of an extension in FP_EMPREGADOSDET 1/6.
class TTarvoESocialCamposTrabTemporario : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposTrabTemporario(std::int64_t AIDEmpregado, TDate ADataGeracao);

    TTarvoESocialCamposIdeTomadorServ IdeTomadorServ;
    TTarvoESocialCamposIdeTrabSubstituido IdeTrabSubstituido;
    std::string MotivoContratoCod;
    std::string MotivoContratoDesc;
    std::string justContr;
    std::int32_t tpInclContr = 0;
    /// Length of the extension, in the unit of the contract.
    std::string PrazoFinalContrato;
    std::string justprorr;
    /// True when the reason is a number above zero.
    bool PossuiInformacao() const;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
    TDate FDataGeracao;
};

} // namespace tarvo::trabalhador
