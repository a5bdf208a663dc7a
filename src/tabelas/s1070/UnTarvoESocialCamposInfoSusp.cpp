#include "tabelas/s1070/UnTarvoESocialCamposInfoSusp.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposInfoSusp::TTarvoESocialCamposInfoSusp(std::int64_t AIdInfoSusp)
    : TTarvoESocialCamposGrupoBase("{F527C803-0B49-4B59-BB9E-ECF17533F32C}"), FIdInfoSusp(AIdInfoSusp)
{}

const TPropriedades& TTarvoESocialCamposInfoSusp::Tabela()
{
    using Eu = TTarvoESocialCamposInfoSusp;
    static const TPropriedades tabela{
        {"codSusp", &Eu::codSusp, TFieldRelacionado("IDSPPROCDET")},
        {"indSusp", &Eu::indSusp, TFieldRelacionado("INDSUSPENSAO")},
        {"dtDecisao", &Eu::dtDecisao, TFieldRelacionado("DATA")},
        {"indDeposito", &Eu::indDeposito, TFieldRelacionado("INDDEPOSITO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoSusp::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  ES02_SPPROCDET.IDSPPROCDET,
  ES02_SPPROCDET.DATA,
  ES02_SPPROCDET.INDSUSPENSAO,
  ES02_SPPROCDET.INDDEPOSITO
FROM ES02_SPPROCDET
WHERE ES02_SPPROCDET.IDSPPROCDET = %0:D)";
    return Format(SQL, FIdInfoSusp);
}

} // namespace tarvo::tabelas
