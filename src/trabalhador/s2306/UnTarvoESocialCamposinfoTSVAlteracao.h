#pragma once

#include "trabalhador/s2306/UnTarvoESocialCamposinfoComplementares2306.h"

namespace tarvo::trabalhador {

/// S-2306 infoTSVAlteracao: the work as it stands after the change. Source: EMPREGADOS.
class TTarvoESocialCamposinfoTSVAlteracao : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposinfoTSVAlteracao(std::int64_t AIdEmpregado, TDateTime AData);

    /// For the caller; no load sets it.
    TDateTime dtAlteracao;
    std::string natAtividade;
    TTarvoESocialCamposinfoComplementares2306 infoComplementares2306;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdEmpregado;
};

} // namespace tarvo::trabalhador
