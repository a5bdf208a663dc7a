#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1020 infoEmprParcial: contractor and owner of a partial contract work. Source: SC00_DEPTO and PREST_SERVICO;
/// nothing for an establishment.
class TTarvoESocialCamposInfoEmprParcial : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposInfoEmprParcial(std::int64_t AIDEstab, std::int64_t AIDDepto);

    /// "CNPJ", "NIT" or "CEI".
    std::string tpInscContrat;
    /// The CPF where the kind is "NIT".
    std::string nrInscContrat;
    std::string tpInscProp;
    std::string nrInscProp;
    std::string tpDepto;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDDepto;
};

} // namespace tarvo::tabelas
