#pragma once

#include "tabelas/s1005/UnTarvoESocialCamposDadosEstab.h"
#include "tabelas/s1005/UnTarvoESocialCamposIdeEstab.h"

namespace tarvo::tabelas {

/// S-1005 infoEstab: identification and data of the place.
class TTarvoESocialCamposInfoEstab : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposInfoEstab(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData);

    TTarvoESocialCamposIdeEstab IdeEstab;
    TTarvoESocialCamposDadosEstab DadosEstab;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
