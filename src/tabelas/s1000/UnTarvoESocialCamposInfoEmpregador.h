#pragma once

#include "tabelas/s1000/UnTarvoESocialCamposIdePeriodo.h"
#include "tabelas/s1000/UnTarvoESocialCamposInfoCadastro.h"

namespace tarvo::tabelas {

/// S-1000 infoEmpregador: registration and validity.
class TTarvoESocialCamposInfoEmpregador : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposInfoEmpregador(std::int64_t AIDEmpresa, TDateTime AData);

    TTarvoESocialCamposInfoCadastro infoCadastro;
    TTarvoESocialCamposIdePeriodo idePeriodo;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;
    void ReverterDados() override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
