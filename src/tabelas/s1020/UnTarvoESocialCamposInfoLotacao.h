#pragma once

#include "tabelas/s1020/UnTarvoESocialCamposDadosLotacao.h"
#include "tabelas/s1020/UnTarvoESocialCamposIdeLotacao.h"

namespace tarvo::tabelas {

/// S-1020 infoLotacao: identification and data of the lotação.
class TTarvoESocialCamposInfoLotacao : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposInfoLotacao(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData);

    TTarvoESocialCamposIdeLotacao IdeLotacao;
    TTarvoESocialCamposDadosLotacao DadosLotacao;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
