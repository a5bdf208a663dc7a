#pragma once

#include "tabelas/s1040/UnTarvoESocialCampoIdeFuncao.h"
#include "tabelas/s1040/UnTarvoESocialCamposDadosFuncao.h"

namespace tarvo::tabelas {

/// S-1040 infoFuncao: identification and data of the function.
class TTarvoESocialCamposInfoFuncao : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposInfoFuncao(std::int64_t AIDCargosDescr);

    TTarvoESocialCamposIdeFuncao IdeFuncao;
    TTarvoESocialCamposDadosFuncao dadosFuncao;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
