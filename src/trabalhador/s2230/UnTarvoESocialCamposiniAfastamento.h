#pragma once

#include "trabalhador/s2230/UnTarvoESocialCamposinfoAtestado.h"
#include "trabalhador/s2230/UnTarvoESocialCamposinfoCessao.h"
#include "trabalhador/s2230/UnTarvoESocialCamposinfoMandSind.h"

namespace tarvo::trabalhador {

/// S-2230 iniAfastamento: the start of a leave. Source: SITUACOES, with the code of the reason; its certificates, of
/// FP_SITUACAOATESTADO, are made anew by each load.
class TTarvoESocialCamposiniAfastamento : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposiniAfastamento(std::int64_t AIdSituacao);

    TDate DtIniAfast;
    std::string codMotAfast;
    /// Whether the leave goes on with the reason of an earlier one; empty for reasons other than accident and illness.
    std::string infoMesmoMtv;
    std::int32_t tpAcidTransito = 0;
    std::string Observacao;
    /// A reference to an item doesn't outlive the next load.
    TListaDeGrupos<TTarvoESocialCamposinfoAtestado> infoAtestado;
    TTarvoESocialCamposinfoCessao infoCessao;
    TTarvoESocialCamposinfoMandSind infoMandSind;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;
    void AtribuirValoresManualmente() override;

private:
    std::string BuscarInfoMesmoMtv();
    void CarregarDadosInfoAtestado();
    std::int32_t BuscarDiasAfastamentoDaSituacao() const;

    std::int64_t FIdSituacao;
};

} // namespace tarvo::trabalhador
