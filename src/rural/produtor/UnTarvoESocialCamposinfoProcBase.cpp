#include "rural/produtor/UnTarvoESocialCamposinfoProcBase.h"

#include "imports/consultas/UnTarvoConsultasESocial.h"
#include "imports/valores/UnOvraFormat.h"
#include "rural/s1250/UnTarvoESocialCamposAliquotasS1250.h"

namespace tarvo::rural {

TTarvoESocialCamposinfoProcBase::TTarvoESocialCamposinfoProcBase(const TTarvoESocialCamposinfoProcJudIOP& ADados)
    : TTarvoESocialCamposGrupoBase("{4B4BF030-F2DA-4521-B290-0BB81EF9EF85}"), FDados(ADados)
{}

const TPropriedades& TTarvoESocialCamposinfoProcBase::Tabela()
{
    using Eu = TTarvoESocialCamposinfoProcBase;
    static const TPropriedades tabela{
        {"nrProcJud", &Eu::nrProcJud, TFieldRelacionado("NUMERO")},
        {"codSusp", &Eu::codSusp, TFieldRelacionado("IDSPPROCDET")},
        {"AbrangS1250", &Eu::AbrangS1250, TFieldRelacionado("ABRANGS1250")},
        {"IndMateriaTpTrib", &Eu::IndMateriaTpTrib, TFieldRelacionado("INDMATERIATPTRIB")},
        {"vrCPNRet", &Eu::vrCPNRet},
        {"vrRatNRet", &Eu::vrRatNRet},
        {"vrSenarNRet", &Eu::vrSenarNRet},
    };
    return tabela;
}

std::string TTarvoESocialCamposinfoProcBase::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  ES02_SPPROC.NUMERO,
  ES02_SPPROCDET.IDSPPROCDET,
  ES02_SPPROC.ABRANGS1250,
  ES02_SPPROC.INDMATERIATPTRIB
FROM ES02_SPPROC
JOIN ES02_SPPROCDET ON (ES02_SPPROCDET.IDSPPROC = ES02_SPPROC.IDSPPROC)
WHERE ES02_SPPROC.IDSPPROC = %0:D
ORDER BY ES02_SPPROCDET.IDSPPROCDET + 0)";
    return Format(SQL, FDados.IdProcesso);
}

void TTarvoESocialCamposinfoProcBase::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    const auto LTributos = TTarvoConsultasESocial::RetornarTpTribsMarcados(IndMateriaTpTrib);
    const auto LContribuicoes = TTarvoConsultasESocial::RetornarTiposContribIncid1250(AbrangS1250);
    // What is due less what was retained, shared equally by the processes.
    const auto NaoRetido = [&](bool AAbrangida, long double AAliquota, double ARetido) {
        if (!AAbrangida || !LTributos.INSS)
            return 0.0;
        return static_cast<double>(
            Dividir(ContribuicaoDevida(AAliquota, FDados.vlrBruto) - ARetido, FDados.QtdProcesso));
    };
    vrCPNRet = NaoRetido(LContribuicoes.CP && !FDados.ProducaoIsenta, ALIQUOTA_CP, FDados.vrCPDescPR);
    vrRatNRet = NaoRetido(LContribuicoes.RAT && !FDados.ProducaoIsenta, ALIQUOTA_RAT, FDados.vrRatDescPR);
    vrSenarNRet = NaoRetido(LContribuicoes.Senar, ALIQUOTA_SENAR, FDados.vrSenarDesc);
}

} // namespace tarvo::rural
