#pragma once

#include "trabalhador/semvinculo/UnTarvoESocialCamposSupervisorEstagio.h"
#include "trabalhador/semvinculo/UnTarvoESocialCamposageIntegracao.h"
#include "trabalhador/semvinculo/UnTarvoESocialCamposinstEnsino.h"

namespace tarvo::trabalhador {

/// Internship of a trainee at a date. Source: SP_BUSCARSALARIOEMPREGADO, EMPREGADOS and, where it exists,
/// FP_EMPREGADOSDET 1/4. Without a salary at the date nothing is filled but the children.
class TTarvoESocialCamposInfoEstagiario : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposInfoEstagiario(std::int64_t AIDEmpregado, TDateTime ADataGeracao);

    std::string natEstagio;
    std::string nivEstagio;
    std::string areaAtuacao;
    std::string nrApol;
    /// Amount of a month, with a decimal comma.
    std::string vlrBolsa;
    /// The name is spelt so in the tree that is transmitted; meant.
    TDateTime DataInicoContrato;
    /// First term and extension together.
    std::int32_t NumDiasContrato = 0;
    std::int32_t UnidadeMedidaContrato = 0;
    std::string DescricaoNatEstagio;
    std::string DescricaoNivEstagio;
    TTarvoESocialCamposinstEnsino instEnsino;
    TTarvoESocialCamposageIntegracao ageIntegracao;
    TTarvoESocialCamposSupervisorEstagio supervisorEstagio;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
    TDateTime FDataGeracao;
};

} // namespace tarvo::trabalhador
