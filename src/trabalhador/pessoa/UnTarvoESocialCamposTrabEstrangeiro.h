#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Foreign worker: arrival, class and family in Brazil. Source: EMPREGADOS, with the name of the country of birth from
/// CA06_PAIS.
class TTarvoESocialCamposTrabEstrangeiro : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposTrabEstrangeiro(std::int64_t AIDEmpregado);

    TDate DataChegada;
    std::int32_t ClassificacaoTrabEstrang = 0;
    std::string CasadoBrasil;
    std::string FilhosBrasil;
    /// Name, in capitals.
    std::string PaisNascimento;
    /// True for every country of birth but Brazil, and also where there is none.
    bool PossuiInformacao() const;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
