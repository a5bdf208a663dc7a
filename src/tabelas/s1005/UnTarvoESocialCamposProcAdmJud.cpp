#include "tabelas/s1005/UnTarvoESocialCamposProcAdmJud.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposProcAdmJud::TTarvoESocialCamposProcAdmJud(std::string_view AGuid, std::int64_t AIDEstab,
                                                             std::int64_t AIDDepto, TDateTime AData)
    : TTarvoESocialCamposGrupoBase(AGuid), FLugar(regras::EstabelecimentoPrimeiro(AIDEstab, AIDDepto)), FData(AData)
{}

const TPropriedades& TTarvoESocialCamposProcAdmJud::Tabela()
{
    using Eu = TTarvoESocialCamposProcAdmJud;
    static const TPropriedades tabela{
        {"TpProc", &Eu::TpProc, TFieldRelacionado("TPPROCESSO")},
        {"NrProc", &Eu::NrProc, TFieldRelacionado("NUMERO")},
        {"CodSusp", &Eu::CodSusp, TFieldRelacionado("INDSUSPENSAO")},
        {"IndMatProc", &Eu::IndMatProc, TFieldRelacionado("INDMATERIA")},
        {"IdSPPROC", &Eu::IdSPPROC, TFieldRelacionado("IDSPPROC")},
    };
    return tabela;
}

std::string TTarvoESocialCamposProcAdmJud::SqlProcesso(std::string_view APrefixo, const std::string& ASqlDoId)
{
    static constexpr std::string_view SQL = R"(SELECT %0:s
  ES02_SPPROC.TPPROCESSO,
  ES02_SPPROC.NUMERO,
  ES02_SPPROCDET.INDSUSPENSAO,
  ES02_SPPROC.INDMATERIA,
  ES02_SPPROC.IDSPPROC
FROM ES02_SPPROC
LEFT JOIN ES02_SPPROCDET ON (ES02_SPPROCDET.IDSPPROC = ES02_SPPROC.IDSPPROC)
WHERE ES02_SPPROC.IDSPPROC = (%1:s))";
    return Format(SQL, APrefixo, ASqlDoId);
}

} // namespace tarvo::tabelas
