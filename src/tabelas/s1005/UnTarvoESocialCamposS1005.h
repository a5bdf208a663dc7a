#pragma once

#include "tabelas/s1005/UnTarvoESocialCamposInfoEstab.h"

namespace tarvo::tabelas {

/// Event S-1005: an establishment, a construction work or another place with an inscription of its own, at a date.
class TTarvoESocialCamposS1005 : public TTarvoESocialCamposGrupoBase {
public:
    /// AIDEstab: SC00_FILIAL.IDFILIAL, or 0 to report the department AIDDepto (SC00_DEPTO.IDDEPTO); with both the
    /// establishment is reported. AData: the date at which configuration is read. The constructor reads the database.
    TTarvoESocialCamposS1005(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData);

    TTarvoESocialCamposInfoEstab InfoEstab;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
