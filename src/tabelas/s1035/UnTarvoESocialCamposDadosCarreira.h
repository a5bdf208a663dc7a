#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1035 dadosCarreira: description and law. Source: FP_CARGOSDESCR and FP_CARGOSPUBLICO, which may be missing.
class TTarvoESocialCamposDadosCarreira : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposDadosCarreira(std::int64_t AIDCargosDescr);

    std::string dscCarreira;
    std::string leiCarr;
    /// dd/mm/yyyy.
    std::string dtleiCarr;
    std::string sitCarr;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDCargosDescr;
};

} // namespace tarvo::tabelas
