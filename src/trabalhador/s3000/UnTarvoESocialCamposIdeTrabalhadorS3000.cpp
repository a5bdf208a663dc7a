#include "trabalhador/s3000/UnTarvoESocialCamposIdeTrabalhadorS3000.h"

#include "imports/UnOvraExcecoes.h"
#include "imports/consultas/UnTarvoConsultasEmpregado.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "imports/valores/UnOvraUtilsStrings.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposIdeTrabalhadorS3000::TTarvoESocialCamposIdeTrabalhadorS3000(std::int64_t AIdEvento)
    : TTarvoESocialCamposGrupoBase("{38BE56F7-194D-4D8A-BFD5-B71F2F151CBD}"),
      FIdTrabalhador(TTarvoConsultasEmpregado::BuscarIdTrabalhadorPeloIdEvento(AIdEvento))
{
    BuscarTipoEvento(AIdEvento);
}

const TPropriedades& TTarvoESocialCamposIdeTrabalhadorS3000::Tabela()
{
    using Eu = TTarvoESocialCamposIdeTrabalhadorS3000;
    static const TPropriedades tabela{
        {"cpfTrab", &Eu::cpfTrab, TFieldRelacionado("CPF")},
        {"nisTrab", &Eu::nisTrab, TFieldRelacionado("PIS")},
        {"CodCateg", &Eu::CodCateg, TFieldRelacionado("CATEGORIA")},
    };
    return tabela;
}

void TTarvoESocialCamposIdeTrabalhadorS3000::BuscarTipoEvento(std::int64_t AIdEvento)
{
    static constexpr std::string_view SQL = R"(SELECT
  SC00_ESOCIALREINFXML.IDTABELAEVENTO,
  SC00_ESOCIALREINFXML.TPEVENTO
FROM SC00_ESOCIALREINFXML
WHERE SC00_ESOCIALREINFXML.IDESOCIALREINFXML = %0:D)";
    const auto LCds = TTarvoConsultasGeral::BuscarRegistros(Format(SQL, AIdEvento));
    FIdTabelaEvento = LCds->FieldByName("IDTABELAEVENTO").AsLargeInt();
    const auto LNome = "te" + GOvraUtilsStrings.RemoverCaracteres("-", LCds->FieldByName("TPEVENTO").AsString());
    const auto LTipo = BuscarTTipoEvento(LNome);
    if (!LTipo)
        throw Exception("Erro na conversão de string para enumerado. String: " + LNome);
    FTipoEvento = *LTipo;
}

std::string TTarvoESocialCamposIdeTrabalhadorS3000::BuscarSQLDados()
{
    if (FTipoEvento == TTipoEvento::teS1200 || FTipoEvento == TTipoEvento::teS1210)
        return SqlPeloCpf();
    static constexpr std::string_view SQL = R"(SELECT
  EMPREGADOS.CPF,
  EMPREGADOS.PIS,
  FP_ESOCIALTABELA.CODIGO AS CATEGORIA
FROM EMPREGADOS
JOIN FP_ESOCIALTABELA ON ( FP_ESOCIALTABELA.IDESOCIALTABELA=EMPREGADOS.IDCATEGORIAESOCIAL)
WHERE EMPREGADOS.IDEMPREGADO = %0:d)";
    return Format(SQL, FIdTrabalhador);
}

std::string TTarvoESocialCamposIdeTrabalhadorS3000::SqlPeloCpf() const
{
    // The provider's CPF is compared as stored, without the cleaning that the employee's gets; meant. Equal rows of the
    // two are one.
    static constexpr std::string_view SQL = R"(SELECT
  TRABALHADOR.CPF,
  TRABALHADOR.PIS
FROM (
  SELECT
    1 AS RAMO,
    DADOS_EMPREGADO.IDEMPREGADO AS CHAVE,
    DADOS_EMPREGADO.CPF,
    DADOS_EMPREGADO.PIS
  FROM (
    SELECT FIRST 1 EMPREGADOS.IDEMPREGADO, EMPREGADOS.CPF, EMPREGADOS.PIS
    FROM EMPREGADOS
    WHERE TRIM(REPLACE(REPLACE(EMPREGADOS.CPF,'-',''),'.','')) = '%0:S'
    ORDER BY EMPREGADOS.DATA_ADMISSAO DESC, EMPREGADOS.IDEMPREGADO) AS DADOS_EMPREGADO
  UNION ALL
  SELECT
    2 AS RAMO,
    PREST_SERVICO.IDPRESTSERVICO AS CHAVE,
    PREST_SERVICO.CPF,
    PREST_SERVICO.INSCRICAO
  FROM PREST_SERVICO
  WHERE PREST_SERVICO.CPF = '%0:S') AS TRABALHADOR
GROUP BY
  TRABALHADOR.CPF,
  TRABALHADOR.PIS
ORDER BY
  MIN(TRABALHADOR.RAMO),
  MIN(TRABALHADOR.CHAVE))";
    return Format(SQL, FormatFloat("00000000000", FIdTabelaEvento));
}

void TTarvoESocialCamposIdeTrabalhadorS3000::AtribuirValoresManualmente()
{
    TTarvoESocialCamposGrupoBase::AtribuirValoresManualmente();
    // A contract without a number of social integration doesn't hide the one that the worker has as a provider.
    auto& LCds = CdsDados();
    for (LCds.First(); !LCds.Eof(); LCds.Next()) {
        const auto LPis = LCds.FieldByName("PIS").AsString();
        if (const auto LNis = Trim(LPis); !LNis.empty()) {
            nisTrab = LNis;
            return;
        }
    }
}

} // namespace tarvo::trabalhador
