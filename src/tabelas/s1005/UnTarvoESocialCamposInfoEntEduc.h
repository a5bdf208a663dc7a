#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1005 infoEntEduc: an apprenticeship entity. Source: the provider that FP_INFOGERALCFG names.
class TTarvoESocialCamposInfoEntEduc : public TTarvoESocialCamposGrupoBase {
public:
    /// AIDEntEduc: FP_INFOGERALCFG.IDINFOGERALCFG.
    explicit TTarvoESocialCamposInfoEntEduc(std::int64_t AIDEntEduc);

    std::string nrInsc;

    /// Reads even when the list of groups leaves this one out.
    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }

private:
    std::int64_t FIDEntEduc;
};

} // namespace tarvo::tabelas
