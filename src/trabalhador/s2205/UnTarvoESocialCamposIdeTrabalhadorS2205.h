#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// S-2205 ideTrabalhador. It goes without the base's construction, so it takes part in no load and stays empty; meant.
/// The CPF stands in alteracao.dadosTrabalhador.
class TTarvoESocialCamposIdeTrabalhadorS2205 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposIdeTrabalhadorS2205(std::int64_t AIdEmpregado);

    std::string cpfTrab;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdEmpregado;
};

} // namespace tarvo::trabalhador
