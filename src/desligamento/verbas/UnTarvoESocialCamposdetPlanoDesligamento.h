#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::desligamento {

/// detPlano: a dependant in the health plan and his share, cut to the days worked in the lotação. Sources:
/// FP_PSAUDEVLRMESDEP, DEPENDENTES, FP_ESOCIALTABELA.
class TTarvoESocialCamposdetPlanoDesligamento : public TTarvoESocialCamposGrupoBase {
public:
    std::string tpDep;
    std::string cpfDep;
    std::string nmDep;
    TDateTime dtNascto;
    /// In reais.
    Currency vlrPgDep;

    static const TPropriedades& Tabela();

protected:
    TTarvoESocialCamposdetPlanoDesligamento(std::string_view AGuid, std::int64_t AIdPSaudeVlrMesDep,
                                            TDateTime ADataInicioCalculo, TDateTime ADataFimCalculo,
                                            std::int32_t ADiasTrabalhadosNaLotacao);

    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;
    void AtribuirValoresManualmente() override;

private:
    void ProporcionalizarValorPelosDiasTrabalhados();

    std::int64_t FIdPSaudeVlrMesDep;
    TDateTime FDataInicioCalculo;
    TDateTime FDataFimCalculo;
    std::int32_t FDiasTrabalhadosNaLotacao;
};

} // namespace tarvo::desligamento
