#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::remuneracao {

/// S-1200 detPlano: a dependant in the health plan and his share of the month, cut to the days worked in the lotação.
/// Sources: FP_PSAUDEVLRMESDEP, DEPENDENTES, FP_ESOCIALTABELA 7.
class TTarvoESocialCamposDetPlanoS1200 : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposDetPlanoS1200(std::int64_t AIdPSaudeVlrMesDep, TDateTime ADataInicioCalculo,
                                     TDateTime ADataFimCalculo, std::int32_t ADiasTrabalhadosNaLotacao);

    std::string tpDep;
    std::string cpfDep;
    TDate dtNascto;
    std::string nmDep;
    /// In reais, not rounded.
    double vlrPgDep = 0;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;
    void AtribuirValoresManualmente() override;

private:
    std::int64_t FIdPSaudeVlrMesDep;
    TDateTime FDataInicioCalculo;
    TDateTime FDataFimCalculo;
    std::int32_t FDiasTrabalhadosNaLotacao;
};

} // namespace tarvo::remuneracao
