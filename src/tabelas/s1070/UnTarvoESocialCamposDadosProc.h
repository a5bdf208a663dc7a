#pragma once

#include "tabelas/s1070/UnTarvoESocialCamposDadosProcJud.h"
#include "tabelas/s1070/UnTarvoESocialCamposInfoSusp.h"

namespace tarvo::tabelas {

/// S-1070 dadosProc: authorship and subject of the process. Source: ES02_SPPROC.
class TTarvoESocialCamposDadosProc : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposDadosProc(std::int64_t AIdProcesso);

    std::string indAutoria;
    std::string indMatProc;
    std::string observacao;
    TTarvoESocialCamposDadosProcJud DadosProcJud;
    /// One a suspension. Every load appends to it; meant.
    TListaDeGrupos<TTarvoESocialCamposInfoSusp> InfoSusp;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    void CarregarInfoSusp(const TListaCamposModificados* AListaCamposModificados);

    std::int64_t FIdProcesso;
};

} // namespace tarvo::tabelas
