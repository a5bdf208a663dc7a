#include "sst/s2245/UnTarvoESocialCampostreiCap.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::sst {

TTarvoeSocialCampostreiCap::TTarvoeSocialCampostreiCap(std::int64_t AIdCursoEmpregado)
    : TTarvoESocialCamposGrupoBase("{4DCC406F-682F-4A34-B134-F9206225A994}"), infoComplem(AIdCursoEmpregado),
      FIdCursoEmpregado(AIdCursoEmpregado)
{}

const TPropriedades& TTarvoeSocialCampostreiCap::Tabela()
{
    using Eu = TTarvoeSocialCampostreiCap;
    static const TPropriedades tabela{
        {"codTreiCap", &Eu::codTreiCap, TFieldRelacionado("CODTREICAP")},
        {"obsTreiCap", &Eu::obsTreiCap, TFieldRelacionado("OBSTREICAP")},
        {"infoComplem", &Eu::infoComplem},
    };
    return tabela;
}

std::string TTarvoeSocialCampostreiCap::BuscarSQLDados()
{
    // The mark is tested twice; meant.
    static constexpr std::string_view SQL = R"(SELECT
  FP_ESOCIALTABELA.CODIGO AS CODTREICAP,
  FP_CURSOEMPREGADO.OBSERVACOES AS OBSTREICAP
FROM FP_CURSOEMPREGADO
INNER JOIN FP_ESOCIALTABELA ON (FP_ESOCIALTABELA.IDESOCIALTABELA = FP_CURSOEMPREGADO.IDESOCIALTABELA)
WHERE FP_CURSOEMPREGADO.ENVIARS2245 = 1
  AND FP_CURSOEMPREGADO.IDCURSOEMPREGADO = %0:d
  AND FP_CURSOEMPREGADO.ENVIARS2245 = 1)";
    return Format(SQL, FIdCursoEmpregado);
}

void TTarvoeSocialCampostreiCap::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    infoComplem.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::sst
