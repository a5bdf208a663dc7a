#include "tabelas/s1000/UnTarvoESocialCamposDadosIsencao.h"

#include "framework/UnTarvoESocialCamposListaSqlReversao.h"
#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposSqlConfiguracao.h"

namespace tarvo::tabelas {

TTarvoESocialCamposDadosIsencao::TTarvoESocialCamposDadosIsencao(std::int64_t AIDEmpresa, TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{79BF728D-E393-4B62-840F-5DCE75175BDE}"), FIDEmpresa(AIDEmpresa), FData(AData)
{}

const TPropriedades& TTarvoESocialCamposDadosIsencao::Tabela()
{
    using Eu = TTarvoESocialCamposDadosIsencao;
    static const TPropriedades tabela{
        {"IdeMinLei", &Eu::IdeMinLei, TFieldRelacionado("INFORMACAO8")},
        {"NrCertif", &Eu::NrCertif, TFieldRelacionado("INFORMACAO2")},
        {"DtEmisCertif", &Eu::DtEmisCertif, TFieldRelacionado("DATAINICIO")},
        {"DtVencCertif", &Eu::DtVencCertif, TFieldRelacionado("DATAFIM")},
        {"NrProtRenov", &Eu::NrProtRenov, TFieldRelacionado("INFORMACAO4")},
        {"DtProtRenov", &Eu::DtProtRenov, TFieldRelacionado("INFORMACAO3")},
        {"DtDou", &Eu::DtDou, TFieldRelacionado("INFORMACAO5")},
        {"PagDou", &Eu::PagDou, TFieldRelacionado("INFORMACAO6")},
    };
    return tabela;
}

std::string TTarvoESocialCamposDadosIsencao::BuscarSQLDados()
{
    return regras::SqlConfiguracaoVigente("SC00_EMPRESACFG.INFORMACAO8, SC00_EMPRESACFG.INFORMACAO2, "
                                          "SC00_EMPRESACFG.DATAINICIO, SC00_EMPRESACFG.DATAFIM, "
                                          "SC00_EMPRESACFG.INFORMACAO4, SC00_EMPRESACFG.INFORMACAO3, "
                                          "SC00_EMPRESACFG.INFORMACAO5, SC00_EMPRESACFG.INFORMACAO6",
                                          regras::SC00_EMPRESACFG, FIDEmpresa, {90, 38, 2}, FData);
}

void TTarvoESocialCamposDadosIsencao::ReverterDados()
{
    // %7:s and %8:s arrive quoted and are quoted again, so that the engine refuses the statement; meant.
    static constexpr std::string_view SQL =
        "UPDATE SC00_EMPRESACFG SET SC00_EMPRESACFG.INFORMACAO8 = '%2:s', SC00_EMPRESACFG.INFORMACAO2 = '%3:s', "
        "SC00_EMPRESACFG.DATAINICIO = %4:s, SC00_EMPRESACFG.DATAFIM = %5:s, SC00_EMPRESACFG.INFORMACAO4 = '%6:s', "
        "SC00_EMPRESACFG.INFORMACAO3 = '%7:s', SC00_EMPRESACFG.INFORMACAO5 = '%8:s', SC00_EMPRESACFG.INFORMACAO6 = "
        "'%9:s' "
        "WHERE SC00_EMPRESACFG.IDEMPRESA = %0:d AND SC00_EMPRESACFG.ORIGEM = 90 AND SC00_EMPRESACFG.ESPECIE = 38 AND "
        "SC00_EMPRESACFG.TP = 2 AND SC00_EMPRESACFG.DATAINICIO <= %1:s AND (SC00_EMPRESACFG.DATAFIM >= %1:s OR "
        "SC00_EMPRESACFG.DATAFIM IS NULL) ORDER BY SC00_EMPRESACFG.DATAINICIO DESC";
    BuscarInstanciaListaSql().Lista.push_back(
        Format(SQL, FIDEmpresa, FormatarDataDB(FData, true), IdeMinLei, NrCertif, FormatarDataDB(DtEmisCertif, true),
               FormatarDataDB(DtVencCertif, true), NrProtRenov, FormatarDataDB(DtProtRenov, true),
               FormatarDataDB(DtDou, true), PagDou));
}

} // namespace tarvo::tabelas
