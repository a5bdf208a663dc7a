#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// The bond that this one goes on from, with another employer. Source: FP_EMPREGADOSDET 1/3, which transfDom reads as
/// well, and EMPREGADOS.
class TTarvoESocialCamposSucessaoVinc : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposSucessaoVinc(std::int64_t AIDEmpregado);

    std::string CnpjEmpregadorAnterior;
    std::string MatriculaAnterior;
    /// As stored.
    std::string DataInicioVinculo;
    std::string Observacao;
    TDate DataAdmissaoEmpreg;
    std::int32_t TipoAdmissaoEmpreg = 0;
    std::string TpInscEmpregador;
    std::int64_t IdEmpregado() const { return FIDEmpregado; }

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    /// The same for every worker, whatever the name suggests; meant.
    static int BuscarTpConformeTipoDeAdmissao() { return 3; }

    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
