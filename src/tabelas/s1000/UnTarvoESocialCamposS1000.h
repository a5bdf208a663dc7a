#pragma once

#include "tabelas/empregador/UnTarvoESocialCamposIdEmpregador.h"
#include "tabelas/s1000/UnTarvoESocialCamposInfoEmpregador.h"

namespace tarvo::tabelas {

/// Event S-1000: the employer. Loads at a date; the corrected values turn back into ten statements.
class TTarvoESocialCamposS1000 : public TTarvoESocialCamposGrupoBase {
public:
    /// AIDEmpresa: SC00_EMPRESA.IDEMPRESA; AData: the date at which configuration is read.
    TTarvoESocialCamposS1000(std::int64_t AIDEmpresa, TDateTime AData);

    TTarvoESocialCamposIdEmpregador IdeEmpregador;
    TTarvoESocialCamposInfoEmpregador InfoEmpregador;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;
    void ReverterDados() override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
