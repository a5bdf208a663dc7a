#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Court licence of a worker under age. Source: EMPREGADOS and its process in ES02_SPPROC.
class TTarvoESocialCamposAlvaraJudicial : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposAlvaraJudicial(std::int64_t AIDEmpregado);

    std::string NumeroProcessoJuridico;
    std::string AlvaraJudicial;
    /// True when there is a process.
    bool PossuiInformacao() const;
    std::int64_t IdProcesso = 0;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
