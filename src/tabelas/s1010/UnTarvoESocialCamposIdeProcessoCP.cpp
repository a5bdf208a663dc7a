#include "tabelas/s1010/UnTarvoESocialCamposIdeProcessoCP.h"

#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposSqlProcesso.h"

namespace tarvo::tabelas {

TTarvoESocialCamposIdeProcessoCP::TTarvoESocialCamposIdeProcessoCP()
    : TTarvoESocialCamposIdeProcessoVerba("{2E195B15-6A53-43BD-A0F1-97B19946AA2F}")
{}

const TPropriedades& TTarvoESocialCamposIdeProcessoCP::Tabela()
{
    using Eu = TTarvoESocialCamposIdeProcessoCP;
    static const TPropriedades tabela{
        {"TpProc", &Eu::TpProc, TFieldRelacionado("TPPROCESSO")},
        {"NrProc", &Eu::NrProc, TFieldRelacionado("NUMERO")},
        {"CodSusp", &Eu::CodSusp, TFieldRelacionado("IDSPPROCDET")},
        {"ExtDecisao", &Eu::ExtDecisao, TFieldRelacionado("EXTENSAODECISAO")},
    };
    return tabela;
}

void TTarvoESocialCamposIdeProcessoCP::CarregarDados(const TListaCamposModificados* AListaCamposModificados,
                                                     std::int64_t AIdVerba, std::int64_t AIdProcesso)
{
    FIdVerba = AIdVerba;
    TTarvoESocialCamposIdeProcessoVerba::CarregarDados(AListaCamposModificados, AIdProcesso);
}

std::string TTarvoESocialCamposIdeProcessoCP::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT FIRST 1
       ES02_SPPROC.TPPROCESSO,
       %2:s,
       ES02_SPPROCDET.IDSPPROCDET,
       FP_VERBAPROCESSO.EXTENSAODECISAO
FROM ES02_SPPROC
LEFT JOIN ES02_SPPROCDET ON (ES02_SPPROC.IDSPPROC = ES02_SPPROCDET.IDSPPROC)
INNER JOIN FP_VERBAPROCESSO ON (ES02_SPPROC.IDSPPROC = FP_VERBAPROCESSO.IDSPPROC)
WHERE ES02_SPPROC.IDSPPROC = %0:d
  AND FP_VERBAPROCESSO.IDVERBA = %1:d
ORDER BY ES02_SPPROCDET.DATA DESC, ES02_SPPROCDET.IDSPPROCDET, FP_VERBAPROCESSO.IDVERBAPROCESSO)";
    return Format(SQL, FIdProcesso, FIdVerba, regras::NUMERO_DO_PROCESSO);
}

} // namespace tarvo::tabelas
