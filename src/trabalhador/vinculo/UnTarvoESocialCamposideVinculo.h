#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Identification of a worker's bond, the same in every event that refers to one. Source: EMPREGADOS, with the code of
/// the category from FP_ESOCIALTABELA.
class TTarvoESocialCamposideVinculo : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposideVinculo(std::int64_t AIdEmpregado);

    /// Without punctuation; nisTrab keeps what it has.
    std::string cpfTrab;
    std::string nisTrab;
    std::string matricula;
    std::string CodCateg;
    /// Always two characters when set: a longer one is cut.
    std::string Contrato;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
