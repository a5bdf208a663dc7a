#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Transfer of a domestic worker from another employer of the family. Source: FP_EMPREGADOSDET 1/3, which
/// SucessaoVinc reads as well. Raises EConvertError when the stored date is none.
class TTarvoESocialCampostransfDom : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCampostransfDom(std::int64_t AIdEmpregado);

    std::string cpfSubstituido;
    std::string matricAnt;
    TDateTime dtTransf;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
