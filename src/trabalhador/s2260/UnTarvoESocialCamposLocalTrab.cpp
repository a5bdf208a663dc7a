#include "trabalhador/s2260/UnTarvoESocialCamposLocalTrab.h"

#include "imports/valores/UnOvraFormat.h"
#include "trabalhador/s2260/UnTarvoESocialCamposSqlConvocacao.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposLocalTrab::TTarvoESocialCamposLocalTrab(std::int64_t AIdEmpregado, TDateTime ADataInicio)
    : TTarvoESocialCamposGrupoBase("{599CD510-C9EA-4755-8D7E-DC23EEFEBB78}"),
      LocalTrabInterm(AIdEmpregado, ADataInicio), FIdEmpregado(AIdEmpregado), FDataInicio(ADataInicio)
{}

const TPropriedades& TTarvoESocialCamposLocalTrab::Tabela()
{
    using Eu = TTarvoESocialCamposLocalTrab;
    static const TPropriedades tabela{
        {"indLocal", &Eu::indLocal, TFieldRelacionado("LOCALPRESTACAO")},
        {"LocalTrabInterm", &Eu::LocalTrabInterm},
    };
    return tabela;
}

std::string TTarvoESocialCamposLocalTrab::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT FP_CONTRAINTERM.LOCALPRESTACAO
FROM FP_CONTRAINTERM
WHERE %0:s)";
    return Format(SQL, CondicaoEOrdemDaConvocacao(FIdEmpregado, FDataInicio));
}

void TTarvoESocialCamposLocalTrab::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    LocalTrabInterm.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
