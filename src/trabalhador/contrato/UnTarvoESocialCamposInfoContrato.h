#pragma once

#include "trabalhador/contrato/UnTarvoESocialCamposDuracao.h"
#include "trabalhador/contrato/UnTarvoESocialCamposFiliacaoSindical.h"
#include "trabalhador/contrato/UnTarvoESocialCamposHorContratual.h"
#include "trabalhador/contrato/UnTarvoESocialCamposLocalTrabalho.h"
#include "trabalhador/contrato/UnTarvoESocialCamposObservacoes.h"
#include "trabalhador/contrato/UnTarvoESocialCamposRemuneracao.h"
#include "trabalhador/contrato/UnTarvoESocialCamposServPubl.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposAlvaraJudicial.h"

namespace tarvo::trabalhador {

/// Terms of a contract at a date: position, category, and what stands below. Source: EMPREGADOS, the position of
/// SP_BUSCARCARGOEMPREGADO with FP_CARGOSDESCR and FP_CARGOSPUBLICO, FP_EMPREGADOOBS. A load adds to Observacoes; a
/// second one repeats the items.
class TTarvoESocialCamposInfoContrato : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposInfoContrato(std::int64_t AIDEmpregado, TDate ADataGeracao);

    TTarvoESocialCamposRemuneracao Remuneracao;
    TTarvoESocialCamposLocalTrabalho LocalTrabalho;
    TTarvoESocialCamposDuracao Duracao;
    TTarvoESocialCamposHorContratual HorContratual;
    TTarvoESocialCamposFiliacaoSindical FiliacaoSindical;
    TTarvoESocialCamposAlvaraJudicial AlvaraJudicial;
    TListaDeGrupos<TTarvoESocialCamposObservacoes> Observacoes;
    /// Never created here: only a change of contract has it, as a child of its own.
    std::unique_ptr<TTarvoESocialCamposServPubl> ServPubl;
    std::string CodigoCargo;
    std::string DescricaoCargo;
    /// Has no source.
    std::string CodigoFuncao;
    std::string CodigoCategoria;
    /// Of a public position; 0 and unset for others.
    std::int32_t TipoCargo = 0;
    TDate dtIngrCarr;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    /// For a subclass with a GUID of its own, a literal.
    TTarvoESocialCamposInfoContrato(std::string_view AGuid, std::int64_t AIDEmpregado, TDate ADataGeracao);

    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    void CarregarDadosObservacoes();

    std::int64_t FIDEmpregado;
    TDate FDataGeracao;
};

} // namespace tarvo::trabalhador
