#include "trabalhador/s2260/UnTarvoESocialCamposInfoConvInterm.h"

#include "imports/valores/UnOvraFormat.h"
#include "trabalhador/s2260/UnTarvoESocialCamposSqlConvocacao.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposInfoConvInterm::TTarvoESocialCamposInfoConvInterm(std::int64_t AIdEmpregado, TDateTime ADataInicio)
    : TTarvoESocialCamposGrupoBase("{ABC48786-6ED1-49B8-902E-0EFB8D3D9491}"),
      Jornada(static_cast<std::int32_t>(AIdEmpregado), ADataInicio),
      LocalTrab(static_cast<std::int32_t>(AIdEmpregado), ADataInicio),
      FIdEmpregado(static_cast<std::int32_t>(AIdEmpregado)), FDataInicio(ADataInicio)
{}

const TPropriedades& TTarvoESocialCamposInfoConvInterm::Tabela()
{
    using Eu = TTarvoESocialCamposInfoConvInterm;
    static const TPropriedades tabela{
        {"codConv", &Eu::codConv, TFieldRelacionado("CODIGOESOCIAL")},
        {"dtInicio", &Eu::dtInicio, TFieldRelacionado("DATAINICIO")},
        {"dtFim", &Eu::dtFim, TFieldRelacionado("DATAFIM")},
        {"dtPrevPgto", &Eu::dtPrevPgto, TFieldRelacionado("DATAPAGAMENTO")},
        {"Jornada", &Eu::Jornada},
        {"LocalTrab", &Eu::LocalTrab},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoConvInterm::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  FP_CONTRAINTERM.CODIGOESOCIAL,
  FP_CONTRAINTERM.DATAINICIO,
  FP_CONTRAINTERM.DATAFIM,
  FP_CONTRAINTERM.DATAPAGAMENTO
FROM FP_CONTRAINTERM
WHERE %0:s)";
    return Format(SQL, CondicaoEOrdemDaConvocacao(FIdEmpregado, FDataInicio));
}

void TTarvoESocialCamposInfoConvInterm::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    LocalTrab.CarregarDados(AListaCamposModificados);
    Jornada.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
