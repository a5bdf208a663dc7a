#pragma once

#include "tabelas/s1070/UnTarvoESocialCamposDadosProc.h"
#include "tabelas/s1070/UnTarvoESocialCamposIdeProcesso.h"

namespace tarvo::tabelas {

/// Event S-1070: an administrative or judicial process and its suspensions.
class TTarvoESocialCamposS1070 : public TTarvoESocialCamposGrupoBase {
public:
    /// AIdProcesso: ES02_SPPROC.IDSPPROC.
    explicit TTarvoESocialCamposS1070(std::int64_t AIdProcesso);

    TTarvoESocialCamposIdeProcesso IdeProcesso;
    TTarvoESocialCamposDadosProc DadosProc;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
