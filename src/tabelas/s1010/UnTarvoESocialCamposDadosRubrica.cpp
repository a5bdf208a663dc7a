#include "tabelas/s1010/UnTarvoESocialCamposDadosRubrica.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasESocial.h"
#include "imports/consultas/UnTarvoConsultasVerbas.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposSqlRubricaRpa.h"

namespace tarvo::tabelas {

TTarvoESocialCamposDadosRubrica::TTarvoESocialCamposDadosRubrica(
    std::int64_t AIdVerba, std::int64_t AIdEmpresa, TDateTime ADataGeracao, std::int64_t AIdRubricaRpa,
    const regras::TCodigosIncidenciaVerba* ACodigosIncidencia)
    : TTarvoESocialCamposGrupoBase("{A1A06C71-BE7A-4AE5-9004-430786D6C559}"), FIdVerba(AIdVerba),
      FIdEmpresa(AIdEmpresa), FDataGeracao(ADataGeracao), FIdRubricaRpa(AIdRubricaRpa),
      FCodigosIncidencia(ACodigosIncidencia)
{}

const TPropriedades& TTarvoESocialCamposDadosRubrica::Tabela()
{
    using Eu = TTarvoESocialCamposDadosRubrica;
    static const TPropriedades tabela{
        {"dscRubr", &Eu::dscRubr, TFieldRelacionado("NOME")},
        {"natRubr", &Eu::natRubr, TFieldRelacionado("NATRUBR")},
        {"tpRubr", &Eu::tpRubr, TFieldRelacionado("TIPO")},
        {"observacao", &Eu::observacao, TFieldRelacionado("OBSERVACAOESOCIAL")},
        {"codIncFGTS", &Eu::codIncFGTS, TFieldRelacionado("CODINCFGTS")},
        {"codIncSIND", &Eu::codIncSIND, TFieldRelacionado("CODINCCS")},
        {"codIncCP", &Eu::codIncCP, TFieldRelacionado("CODINCPREVSOC")},
        {"codIncIRRF", &Eu::codIncIRRF, TFieldRelacionado("CODINCIRRF")},
        {"DataInicioRelacionamento", &Eu::DataInicioRelacionamento, TFieldRelacionado("DATAINICIO")},
        {"IdeProcessoCP", &Eu::IdeProcessoCP},
        {"IdeProcessoFGTS", &Eu::IdeProcessoFGTS},
        {"IdeProcessoIRRF", &Eu::IdeProcessoIRRF},
        {"IdeProcessoSIND", &Eu::IdeProcessoSIND},
    };
    return tabela;
}

void TTarvoESocialCamposDadosRubrica::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    // By the date as it was given, also where the rubric itself is sought as of now; meant.
    const auto LTributos =
        TTarvoConsultasVerbas::BuscarTiposDeTributosComProcessoParaVerbaNaEmpresa(FIdVerba, FIdEmpresa, FDataGeracao);
    if (LTributos.INSS)
        IdeProcessoCP.CarregarDados(AListaCamposModificados, FIdVerba, LTributos.IDProcessoINSS);
    if (LTributos.CS)
        IdeProcessoSIND.CarregarDados(AListaCamposModificados, LTributos.IDProcessoCS);
    if (LTributos.IRRF)
        IdeProcessoIRRF.CarregarDados(AListaCamposModificados, LTributos.IDProcessoIRRF);
    if (LTributos.FGTS)
        IdeProcessoFGTS.CarregarDados(AListaCamposModificados, LTributos.IDProcessoFGTS);
}

std::string TTarvoESocialCamposDadosRubrica::BuscarSQLDados()
{
    if (FIdRubricaRpa != 0)
        return BuscarSqlDaRubricaRpa();
    // Before the statement runs, which has no such columns and leaves the properties alone.
    AtribuirCodigosIncidencia();
    return BuscarSqlDaVerba();
}

std::string TTarvoESocialCamposDadosRubrica::BuscarSqlDaVerba() const
{
    // The earliest link that hasn't ended, whether or not it has begun at the date; meant.
    static constexpr std::string_view SQL = R"(SELECT TAB_VERBAS.NOME,
       TAB_VERBAS.TIPO,
       TAB_VERBAS.OBSERVACAOESOCIAL,
       TABELAESOCIAL.CODIGO AS NATRUBR,
       TABELAESOCIAL.DATAINICIO
FROM TAB_VERBAS
LEFT JOIN (SELECT FIRST 1 FP_ESOCIALTABELA.CODIGO, FP_RUBRICARELAC.DATAINICIO
           FROM FP_ESOCIALTABELA
           JOIN FP_RUBRICARELAC ON (FP_RUBRICARELAC.IDESOCIALTABELA = FP_ESOCIALTABELA.IDESOCIALTABELA)
           WHERE FP_RUBRICARELAC.IDVERBA = %0:d
             AND (FP_RUBRICARELAC.DATAFIM >= CAST(%1:s AS TIMESTAMP) OR FP_RUBRICARELAC.DATAFIM IS NULL)
           ORDER BY FP_RUBRICARELAC.DATAINICIO ASC, FP_RUBRICARELAC.IDRUBRICARELAC) AS TABELAESOCIAL ON (1=1)
WHERE TAB_VERBAS.IDVERBA = %0:d)";
    // The very start of the test environment stands for a rubric sought as of now, with its time of day, which a DATE
    // column refuses in a bare literal.
    const auto LData = FDataGeracao == TTarvoConsultasESocial::BuscarDataInicioAmbienteTeste() ? Now() : FDataGeracao;
    return Format(SQL, FIdVerba, FormatarDataDB(LData, true));
}

std::string TTarvoESocialCamposDadosRubrica::BuscarSqlDaRubricaRpa() const
{
    static constexpr std::string_view SQL = R"(SELECT FP_ESOCIALTABELA.CODIGO NATRUBR,
       RPATPVALOR.DESCRICAO NOME,
       RPATPVALOR.TIPO,
       FP_ESOCIALTABELACP.CODIGO CODINCPREVSOC,
       FP_ESOCIALTABELAIRRF.CODIGO CODINCIRRF,
       FP_ESOCIALTABELAFGTS.CODIGO CODINCFGTS,
       FP_ESOCIALTABELACS.CODIGO CODINCCS
%1:s
WHERE FP_RUBRICARELACRPA.IDRUBRICARELACRPA = %0:D)";
    return Format(SQL, FIdRubricaRpa, regras::ORIGEM_DA_RUBRICA_RPA);
}

void TTarvoESocialCamposDadosRubrica::AtribuirCodigosIncidencia()
{
    if (FCodigosIncidencia == nullptr)
        return;
    codIncFGTS = IntToStr(FCodigosIncidencia->codIncFGTS);
    codIncIRRF = IntToStr(FCodigosIncidencia->codIncIRRF);
    codIncCP = IntToStr(FCodigosIncidencia->codIncCP);
    codIncSIND = IntToStr(FCodigosIncidencia->codIncSIND);
}

} // namespace tarvo::tabelas
