#include "sst/s2245/UnTarvoESocialCamposinfoComplemS2245.h"

#include "framework/UnTarvoESocialCamposListaDeGrupos.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::sst {

TTarvoESocialCamposinfoComplemS2245::TTarvoESocialCamposinfoComplemS2245(std::int64_t AIdCursoEmpregado)
    : TTarvoESocialCamposGrupoBase("{D0F1AC11-CCF4-48C2-A031-98F74C02AF8C}"), FIdCursoEmpregado(AIdCursoEmpregado)
{}

const TPropriedades& TTarvoESocialCamposinfoComplemS2245::Tabela()
{
    using Eu = TTarvoESocialCamposinfoComplemS2245;
    static const TPropriedades tabela{
        {"dtTreiCap", &Eu::dtTreiCap, TFieldRelacionado("DTTREICAP")},
        {"durTreiCap", &Eu::durTreiCap, TFieldRelacionado("DURTREICAP")},
        {"modTreiCap", &Eu::modTreiCap, TFieldRelacionado("MODTREICAP")},
        {"tpTreiCap", &Eu::tpTreiCap, TFieldRelacionado("TPTREICAP")},
        {"ideProfResp", &Eu::ideProfResp},
    };
    return tabela;
}

std::string TTarvoESocialCamposinfoComplemS2245::BuscarSQLDados()
{
    // The mark is tested twice; meant.
    static constexpr std::string_view SQL = R"(SELECT
  FP_CURSOEMPREGADO.DATAINICIO AS DTTREICAP,
  FP_CURSOEMPREGADO.HORASTREINAMENTO AS DURTREICAP,
  FP_CURSOEMPREGADO.MODALIDADE AS MODTREICAP,
  FP_CURSOEMPREGADO.TIPO AS TPTREICAP
FROM FP_CURSOEMPREGADO
WHERE FP_CURSOEMPREGADO.ENVIARS2245 = 1
  AND FP_CURSOEMPREGADO.IDCURSOEMPREGADO = %0:d
  AND FP_CURSOEMPREGADO.ENVIARS2245 = 1)";
    return Format(SQL, FIdCursoEmpregado);
}

void TTarvoESocialCamposinfoComplemS2245::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    CarregarProfissionais(AListaCamposModificados);
}

void TTarvoESocialCamposinfoComplemS2245::CarregarProfissionais(const TListaCamposModificados* AListaCamposModificados)
{
    static constexpr std::string_view SQL = R"(SELECT FP_CURSOEMPREGADODET.IDCURSOEMPREGADODET
FROM FP_CURSOEMPREGADODET
WHERE FP_CURSOEMPREGADODET.IDCURSOEMPREGADO = %0:d
ORDER BY FP_CURSOEMPREGADODET.IDCURSOEMPREGADO, FP_CURSOEMPREGADODET.IDCURSOEMPREGADODET)";
    // The list isn't emptied first: a second load doubles it; meant.
    AcrescentarUmPorLinha(ideProfResp,
                          TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(Format(SQL, FIdCursoEmpregado)),
                          "IDCURSOEMPREGADODET", AListaCamposModificados);
}

} // namespace tarvo::sst
