#include "trabalhador/vinculo/UnTarvoESocialCamposAfastamento.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposAfastamento::TTarvoESocialCamposAfastamento(std::int64_t AIDEmpregado, TDate ADataGeracao)
    : TTarvoESocialCamposGrupoBase("{1867A84F-8C56-46C0-878C-41D65DD3521B}"), FIDEmpregado(AIDEmpregado),
      FDataGeracao(ADataGeracao)
{}

const TPropriedades& TTarvoESocialCamposAfastamento::Tabela()
{
    using Eu = TTarvoESocialCamposAfastamento;
    static const TPropriedades tabela{
        {"CodigoSituacao", &Eu::CodigoSituacao, TFieldRelacionado("CODIGO")},
        {"DescricaoSituacao", &Eu::DescricaoSituacao, TFieldRelacionado("DESC_SITUACAO")},
        {"DataInicioSituacao", &Eu::DataInicioSituacao, TFieldRelacionado("DATA_INICIO")},
        {"DataFimSituacao", &Eu::DataFimSituacao, TFieldRelacionado("DATA_FIM")},
    };
    return tabela;
}

std::string TTarvoESocialCamposAfastamento::BuscarSQLDados()
{
    // Strictly earlier: a leave that begins on the very date isn't in progress yet; meant.
    static constexpr std::string_view SQL = R"(SELECT FIRST 1
  SITUACOES.SITUACAO AS COD_SITUACAO,
  SITUACOES.NOME AS DESC_SITUACAO,
  SITUACOES.DATA AS DATA_INICIO,
  SITUACOES.DATA_FIM,
  FP_ESOCIALTABELA.CODIGO
FROM SITUACOES
LEFT JOIN FP_ESOCIALTABELA ON (SITUACOES.IDESOCIALTABELA18 = FP_ESOCIALTABELA.IDESOCIALTABELA)
WHERE SITUACOES.IDEMPREGADO = %0:D
  AND (SITUACOES.DATA < %1:S AND (SITUACOES.DATA_FIM >= %1:S or SITUACOES.DATA_FIM IS NULL ))
  AND SITUACOES.SITUACAO NOT IN ('01','02')
ORDER BY SITUACOES.DATA DESC, SITUACOES.IDSITUACAO)";
    return Format(SQL, FIDEmpregado, FormatarDataDB(FDataGeracao, true));
}

} // namespace tarvo::trabalhador
