#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Duration of a contract. Source: EMPREGADOS as it stands, whatever the date, and the object of a contract for a
/// term in FP_EMPREGADOSDET 5/1.
class TTarvoESocialCamposDuracao : public TTarvoESocialCamposGrupoBase {
public:
    /// ADataGeracao has no effect.
    TTarvoESocialCamposDuracao(std::int64_t AIDEmpregado, TDate ADataGeracao);

    TDate DataAdmissao;
    /// First term of a contract on trial and its extension, in the unit of UnidadeSomaTempoContrato; 0 without one.
    std::int32_t NumDiasPrazoInicio = 0;
    std::int32_t NumDiasPrazoFim = 0;
    std::int32_t UnidadeSomaTempoContrato = 0;
    /// Set by the caller, who works it out of the admission and the terms.
    TDate DataTerminoContrato;
    std::int32_t TipoContratoCod = 0;
    std::string clauAssec;
    /// Text of TipoContratoCod; a code that has none leaves it as it was.
    std::string TipoContratoDesc;
    std::string objDet;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    void AtribuirTipoContratoDesc();

    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
