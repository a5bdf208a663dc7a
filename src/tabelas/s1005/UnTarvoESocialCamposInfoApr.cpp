#include "tabelas/s1005/UnTarvoESocialCamposInfoApr.h"

#include "framework/UnTarvoESocialCamposListaDeGrupos.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

namespace {

constexpr regras::TChaveDeConfiguracao APRENDIZES{90, 58, 1};

} // namespace

TTarvoESocialCamposInfoApr::TTarvoESocialCamposInfoApr(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{49704D2F-D51A-4389-B6EF-478F2EE59163}"),
      FLugar(regras::EstabelecimentoPrimeiro(AIDEstab, AIDDepto)), FData(AData)
{
    CarregarInfoEntEduc();
}

const TPropriedades& TTarvoESocialCamposInfoApr::Tabela()
{
    using Eu = TTarvoESocialCamposInfoApr;
    static const TPropriedades tabela{
        {"InfoEntEduc", &Eu::InfoEntEduc},
        {"contApr", &Eu::contApr, TFieldRelacionado("INFORMACAO1")},
        {"nrProcJud", &Eu::nrProcJud, TFieldRelacionado("INFORMACAO2")},
        {"contEntEd", &Eu::contEntEd, TFieldRelacionado("INFORMACAO3")},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoApr::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  %0:s.INFORMACAO1,
  ES02_SPPROC.NUMERO INFORMACAO2,
  %0:s.INFORMACAO3
FROM %0:s
LEFT JOIN ES02_SPPROC ON (%0:s.INFORMACAO2 = ES02_SPPROC.IDSPPROC)
WHERE %1:s
  AND %2:s
ORDER BY %0:s.DATAINICIO DESC, %0:s.%3:s)";
    const auto LCfg = FLugar.Cfg();
    return Format(SQL, LCfg.Nome, regras::CondicaoDaChave(LCfg, FLugar.Id, APRENDIZES),
                  regras::CondicaoDaValidade(LCfg, FData, regras::TFimDaValidade::Exclusive), LCfg.ColunaDaChave);
}

void TTarvoESocialCamposInfoApr::CarregarInfoEntEduc()
{
    static constexpr std::string_view SQL = R"(SELECT FP_INFOGERALCFG.IDINFOGERALCFG
FROM FP_INFOGERALCFG
WHERE FP_INFOGERALCFG.ORIGEM = 90
  AND FP_INFOGERALCFG.ESPECIE = 58
  AND FP_INFOGERALCFG.TP = 1
  AND FP_INFOGERALCFG.%0:s = (%1:s)
ORDER BY FP_INFOGERALCFG.IDINFOGERALCFG + 0)";
    const auto LCfg = FLugar.Cfg();
    // The row still counts on the day of its DATAFIM, unlike in the group's own statement; meant. On the day on which
    // one row follows another the newer one is taken.
    const auto LCds = TTarvoConsultasGeral::BuscarRegistros(
        Format(SQL, LCfg.ColunaDaChave,
               regras::SqlConfiguracaoVigente(Format("%0:s.%1:s", LCfg.Nome, LCfg.ColunaDaChave), LCfg, FLugar.Id,
                                              APRENDIZES, FData)));
    AcrescentarUmPorLinha(InfoEntEduc, LCds, "IDINFOGERALCFG");
}

} // namespace tarvo::tabelas
