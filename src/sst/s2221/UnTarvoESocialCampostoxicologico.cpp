#include "sst/s2221/UnTarvoESocialCampostoxicologico.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::sst {

TTarvoeSocialCampostoxicologico::TTarvoeSocialCampostoxicologico(std::int64_t AIdExameToxicologico)
    : TTarvoESocialCamposGrupoBase("{FA948AF9-DCC8-4DD8-B450-6F76DFBA84DF}"), FIdExameToxicologico(AIdExameToxicologico)
{}

const TPropriedades& TTarvoeSocialCampostoxicologico::Tabela()
{
    using Eu = TTarvoeSocialCampostoxicologico;
    static const TPropriedades tabela{
        {"dtExame", &Eu::dtExame, TFieldRelacionado("DTEXAME")},
        {"DataObtencaoResult", &Eu::DataObtencaoResult, TFieldRelacionado("DATAOBTENCAORESULT")},
        {"cnpjLab", &Eu::cnpjLab, TFieldRelacionado("CNPJLAB")},
        {"codSeqExame", &Eu::codSeqExame, TFieldRelacionado("CODSEQEXAME")},
        {"nmMed", &Eu::nmMed, TFieldRelacionado("NMMED")},
        {"nrCRM", &Eu::nrCRM, TFieldRelacionado("NRCRM")},
        {"ufCRM", &Eu::ufCRM, TFieldRelacionado("UFCRM")},
        {"indRecusa", &Eu::indRecusa, TFieldRelacionado("INDRECUSA")},
    };
    return tabela;
}

std::string TTarvoeSocialCampostoxicologico::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  CASE FP_EXAMETOXICOLOGICO.INDICATIVORECUSA
    WHEN 1 THEN EMPREGADOS.DATA_DEMISSAO
    WHEN 2 THEN FP_EXAMETOXICOLOGICO.DATAEXAME
  END AS DTEXAME,
  FP_EXAMETOXICOLOGICO.DATAOBTENCAORESULT,
  FP_EXAMETOXICOLOGICO.CNPJLABORATORIO AS CNPJLAB,
  SUBSTRING(Lpad(FP_EXAMETOXICOLOGICO.CODIGOEXAME, 17, ' ') FROM CHAR_LENGTH(Lpad(FP_EXAMETOXICOLOGICO.CODIGOEXAME, 17, ' ')) - 10 FOR CHAR_LENGTH(Lpad(FP_EXAMETOXICOLOGICO.CODIGOEXAME, 17, ' '))) AS CODSEQEXAME,
  PREST_SERVICO.NOME AS NMMED,
  PREST_SERVICO.NUMREGPROFISS AS NRCRM,
  PREST_SERVICO.UFCONSCLASSE AS UFCRM,
  CASE FP_EXAMETOXICOLOGICO.INDICATIVORECUSA
    WHEN 1 THEN 'S'
    WHEN 2 THEN 'N'
  END AS INDRECUSA
FROM FP_EXAMETOXICOLOGICO
LEFT JOIN PREST_SERVICO ON (PREST_SERVICO.IDPRESTSERVICO = FP_EXAMETOXICOLOGICO.IDPRESTSERVICO)
LEFT JOIN EMPREGADOS ON (EMPREGADOS.IDEMPREGADO = FP_EXAMETOXICOLOGICO.IDEMPREGADO)
WHERE FP_EXAMETOXICOLOGICO.IDEXAMETOXICOLOGICO = %0:d)";
    return Format(SQL, FIdExameToxicologico);
}

} // namespace tarvo::sst
