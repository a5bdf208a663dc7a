#pragma once

#include "tabelas/s1000/UnTarvoESocialCamposContatoEmpresa.h"
#include "tabelas/s1000/UnTarvoESocialCamposDadosIsencao.h"
#include "tabelas/s1000/UnTarvoESocialCamposInfoComplementares.h"
#include "tabelas/s1000/UnTarvoESocialCamposInfoOP.h"
#include "tabelas/s1000/UnTarvoESocialCamposInfoOrgInternacional.h"
#include "tabelas/s1000/UnTarvoESocialCamposSoftwareHouse.h"

namespace tarvo::tabelas {

/// S-1000 infoCadastro: name, classification and indicators of the employer at the date. Source: SC00_EMPRESA and
/// nine configuration rows of SC00_EMPRESACFG, each of which may be missing.
class TTarvoESocialCamposInfoCadastro : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposInfoCadastro(std::int64_t AIDEmpresa, TDateTime AData);

    TTarvoESocialCamposDadosIsencao DadosIsencao;
    TTarvoESocialCamposContatoEmpresa Contato;
    TTarvoESocialCamposInfoOP InfoOP;
    TTarvoESocialCamposInfoOrgInternacional InfoOrgInternacional;
    TTarvoESocialCamposSoftwareHouse SoftwareHouse;
    TTarvoESocialCamposInfoComplementares InfoComplementares;

    std::string NmRazao;
    std::string ClassTrib;
    std::string NatJurid;
    std::string IndCoop;
    std::string IndConstr;
    std::string IndDesFolha;
    std::string IndOptRegEletron;
    /// Nothing sets it.
    std::string MultTabRubricas;
    std::string IndEntEd;
    std::string IndEtt;
    std::string nrRegEtt;
    /// "CNPJ", "CPF", "CEI", or empty for any other kind.
    std::string TipoInscricao;
    std::string indOpcCP;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;
    /// Those of the children, then nine statements. Texts aren't escaped.
    void ReverterDados() override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpresa;
    TDateTime FData;
};

} // namespace tarvo::tabelas
