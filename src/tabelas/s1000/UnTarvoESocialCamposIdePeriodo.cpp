#include "tabelas/s1000/UnTarvoESocialCamposIdePeriodo.h"

#include "imports/consultas/UnTarvoConsultasESocial.h"
#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposSqlConfiguracao.h"

namespace tarvo::tabelas {

TTarvoESocialCamposIdePeriodo::TTarvoESocialCamposIdePeriodo(std::int64_t AIDEmpresa, TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{7D97CC73-27A8-4D09-9084-19D81F6BBC0A}"), FIDEmpresa(AIDEmpresa), FData(AData)
{}

const TPropriedades& TTarvoESocialCamposIdePeriodo::Tabela()
{
    using Eu = TTarvoESocialCamposIdePeriodo;
    static const TPropriedades tabela{
        {"iniValid", &Eu::iniValid},
        {"fimValid", &Eu::fimValid},
        {"DataIniCfg", &Eu::DataIniCfg, TFieldRelacionado("DTINI")},
    };
    return tabela;
}

std::string TTarvoESocialCamposIdePeriodo::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT SC00_EMPRESACFG.INFORMACAO1 DTINI
FROM SC00_EMPRESACFG
WHERE %0:s
ORDER BY %1:s, SC00_EMPRESACFG.IDEMPRESACFG)";
    return Format(SQL, regras::CondicaoDaChave(regras::SC00_EMPRESACFG, FIDEmpresa, {90, 38, 10}),
                  regras::OrdemDaValidade(regras::SC00_EMPRESACFG, FData));
}

void TTarvoESocialCamposIdePeriodo::AtribuirValoresManualmente()
{
    iniValid = TTarvoConsultasESocial::BuscarDataInicioEmpresaEsocial(FIDEmpresa).DataInicio;
}

} // namespace tarvo::tabelas
