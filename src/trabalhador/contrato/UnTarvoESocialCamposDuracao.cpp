#include "trabalhador/contrato/UnTarvoESocialCamposDuracao.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposDuracao::TTarvoESocialCamposDuracao(std::int64_t AIDEmpregado, TDate)
    : TTarvoESocialCamposGrupoBase("{AEF38A88-2193-474A-B55A-FBAA3B4DE942}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposDuracao::Tabela()
{
    using Eu = TTarvoESocialCamposDuracao;
    static const TPropriedades tabela{
        {"DataAdmissao", &Eu::DataAdmissao, TFieldRelacionado("DATA_ADMISSAO")},
        {"NumDiasPrazoInicio", &Eu::NumDiasPrazoInicio, TFieldRelacionado("C_EXP_PRAZO_INICIO")},
        {"NumDiasPrazoFim", &Eu::NumDiasPrazoFim, TFieldRelacionado("C_EXP_PRAZO_FIM")},
        {"UnidadeSomaTempoContrato", &Eu::UnidadeSomaTempoContrato, TFieldRelacionado("UNIDADETEMPOCONTRATO")},
        {"DataTerminoContrato", &Eu::DataTerminoContrato},
        {"TipoContratoCod", &Eu::TipoContratoCod, TFieldRelacionado("TPCONTRATO")},
        {"clauAssec", &Eu::clauAssec, TFieldRelacionado("REGIDOPELOART")},
        {"TipoContratoDesc", &Eu::TipoContratoDesc},
        {"objDet", &Eu::objDet, TFieldRelacionado("OBJDET")},
    };
    return tabela;
}

std::string TTarvoESocialCamposDuracao::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  EMPREGADOS.DATA_ADMISSAO,
  EMPREGADOS.TPCONTRATO,
  EMPREGADOS.CONTRATO,
  EMPREGADOS.VINCULO,
  EMPREGADOS.VINCULO AS DESC_VINCULO,
  EMPREGADOS.REGIDOPELOART,
  EMPREGADOS.UNIDADETEMPOCONTRATO,
  COALESCE(EMPREGADOS.C_EXP_PRAZO_INICIO, 0) AS C_EXP_PRAZO_INICIO,
  COALESCE(EMPREGADOS.C_EXP_PRAZO_FIM, 0) AS C_EXP_PRAZO_FIM,
  FP_EMPREGADOSDET.INFORMACAO10 AS OBJDET
FROM EMPREGADOS
LEFT JOIN FP_EMPREGADOSDET ON (FP_EMPREGADOSDET.IDEMPREGADO = EMPREGADOS.IDEMPREGADO
  AND FP_EMPREGADOSDET.ESPECIE = 5 AND FP_EMPREGADOSDET.TP = 1)
WHERE EMPREGADOS.IDEMPREGADO = %0:d
ORDER BY FP_EMPREGADOSDET.IDEMPREGADOSDET + 0)";
    return Format(SQL, FIDEmpregado);
}

void TTarvoESocialCamposDuracao::AtribuirTipoContratoDesc()
{
    switch (TipoContratoCod) {
    case 1:
        TipoContratoDesc = "Prazo indeterminado";
        break;
    case 2:
        TipoContratoDesc = "Prazo determinado, definido em dias";
        break;
    case 3:
        TipoContratoDesc = "Prazo determinado, vinculado à ocorrência de um fato";
        break;
    default:
        break;
    }
}

void TTarvoESocialCamposDuracao::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    AtribuirTipoContratoDesc();
}

} // namespace tarvo::trabalhador
