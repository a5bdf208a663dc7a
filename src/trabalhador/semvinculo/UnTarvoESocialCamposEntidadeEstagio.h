#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// What the teaching institution and the integration agent of an internship share: they differ in the tag of the CNPJ
/// and in the column of FP_EMPREGADOSDET 1/4 that holds the id. Source: PREST_SERVICO.
class TTarvoESocialCamposEntidadeEstagio : public TTarvoESocialCamposGrupoBase {
public:
    std::string nmRazao;
    std::string dscLograd;
    std::string nrLograd;
    std::string bairro;
    std::string cep;
    std::string codMunic;
    std::string uf;

protected:
    /// AGuid and AColuna are literals.
    TTarvoESocialCamposEntidadeEstagio(std::string_view AGuid, std::int64_t AIDEmpregado, std::string_view AColuna);

    /// The CNPJ's property, then the common ones.
    static TPropriedades TabelaComCnpj(const TPropriedade& ACnpj);
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
    std::string_view FColuna;
};

} // namespace tarvo::trabalhador
