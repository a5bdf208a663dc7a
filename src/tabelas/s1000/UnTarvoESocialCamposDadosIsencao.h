#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1000 dadosIsencao: the exemption certificate, whose validity is the row's own. Source: SC00_EMPRESACFG 90/38/2.
/// Raises EConvertError when INFORMACAO3 or INFORMACAO5 holds a text that is no date.
class TTarvoESocialCamposDadosIsencao : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposDadosIsencao(std::int64_t AIDEmpresa, TDateTime AData);

    std::string IdeMinLei;
    std::string NrCertif;
    TDateTime DtEmisCertif;
    TDateTime DtVencCertif;
    std::string NrProtRenov;
    TDateTime DtProtRenov;
    TDateTime DtDou;
    std::string PagDou;

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
