#pragma once

#include "tabelas/s1020/UnTarvoESocialCamposInfoLotacao.h"

namespace tarvo::tabelas {

/// Event S-1020: a lotação, the unit under which social contributions are reported, at a date.
class TTarvoESocialCamposS1020 : public TTarvoESocialCamposGrupoBase {
public:
    /// AIDDepto: SC00_DEPTO.IDDEPTO, or 0 to report the establishment AIDEstab (SC00_FILIAL.IDFILIAL); with both the
    /// department is reported, but the suspended entities are the establishment's. The constructor reads the database.
    TTarvoESocialCamposS1020(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData);

    TTarvoESocialCamposInfoLotacao InfoLotacao;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
