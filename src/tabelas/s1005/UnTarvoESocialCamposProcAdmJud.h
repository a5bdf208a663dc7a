#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "regras/UnTarvoESocialCamposSqlLugar.h"

namespace tarvo::tabelas {

/// What the two processes of S-1005 share: an ES02_SPPROC and a suspension of it, ES02_SPPROCDET.
class TTarvoESocialCamposProcAdmJud : public TTarvoESocialCamposGrupoBase {
public:
    std::string TpProc;
    std::string NrProc;
    std::string CodSusp;
    std::string IndMatProc;
    std::int64_t IdSPPROC = 0;

    static const TPropriedades& Tabela();

protected:
    TTarvoESocialCamposProcAdmJud(std::string_view AGuid, std::int64_t AIDEstab, std::int64_t AIDDepto,
                                  TDateTime AData);

    const TPropriedades& Propriedades() const override { return Tabela(); }
    /// The columns of the process whose id ASqlDoId selects, one row a suspension, without an order. APrefixo stands
    /// before the columns: `FIRST 1`, a further column with its comma, or nothing.
    static std::string SqlProcesso(std::string_view APrefixo, const std::string& ASqlDoId);

    regras::TLugar FLugar;
    TDateTime FData;
};

} // namespace tarvo::tabelas
