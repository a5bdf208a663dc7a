#pragma once

#include "trabalhador/vinculo/UnTarvoESocialCamposFgts.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposTrabTemporario.h"

namespace tarvo::trabalhador {

/// A bond under the labour code at a date. Source: EMPREGADOS, SINDICATOS, the category of FP_ESOCIALTABELA, the
/// admission and the working-time regime of SC00_EMPREGADOCFG 90/38/7.
class TTarvoESocialCamposInfoCeletista : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposInfoCeletista(std::int64_t AIDEmpregado, TDate ADataGeracao);

    TTarvoESocialCamposFgts Fgts;
    TTarvoESocialCamposTrabTemporario TrabTemporario;
    TDate DataAdmissao;
    std::int32_t TipoAdmissao = 0;
    std::string TipoAdmissaoDesc;
    /// Month, 1 to 12, of the union's yearly negotiation.
    std::int32_t DataBaseCateg = 0;
    std::string CnpjSindicatoCategoria;
    std::string DescricaoSindicato;
    /// 1 urban, 2 rural.
    std::int32_t NaturezaAtividade = 0;
    std::string TipoVinculoDesc;
    /// Texts of the two codes below; a load empties them first.
    std::string IndicativoAdmissao;
    std::string TipoRegimeJornada;
    std::int32_t CodIndicativoAdmissao = 0;
    std::int32_t CodTipoRegimeJornada = 0;
    std::string CodigoCategoria;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    void BuscarDadosCfgEmpregado();

    std::int64_t FIDEmpregado;
    TDate FDataGeracao;
};

} // namespace tarvo::trabalhador
