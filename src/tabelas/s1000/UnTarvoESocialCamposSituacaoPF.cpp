#include "tabelas/s1000/UnTarvoESocialCamposSituacaoPF.h"

#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposSqlConfiguracao.h"

namespace tarvo::tabelas {

TTarvoESocialCamposSituacaoPF::TTarvoESocialCamposSituacaoPF(std::int64_t AIDEmpresa, TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{FF46BCB0-5892-41C6-A7DE-C8F0A32CC087}"), FIDEmpresa(AIDEmpresa), FData(AData)
{}

const TPropriedades& TTarvoESocialCamposSituacaoPF::Tabela()
{
    static const TPropriedades tabela{
        {"indSitPF", &TTarvoESocialCamposSituacaoPF::indSitPF, TFieldRelacionado("INFORMACAO1")},
    };
    return tabela;
}

std::string TTarvoESocialCamposSituacaoPF::BuscarSQLDados()
{
    // Without FIRST 1, unlike the twin: the load takes the first row anyway.
    static constexpr std::string_view SQL = R"(SELECT SC00_EMPRESACFG.INFORMACAO1
FROM SC00_EMPRESACFG
WHERE %0:s
  AND %1:s
ORDER BY SC00_EMPRESACFG.DATAINICIO DESC, SC00_EMPRESACFG.IDEMPRESACFG)";
    return Format(SQL, regras::CondicaoDaChave(regras::SC00_EMPRESACFG, FIDEmpresa, {90, 38, 8}),
                  regras::CondicaoDaValidade(regras::SC00_EMPRESACFG, FData));
}

void TTarvoESocialCamposSituacaoPF::ReverterDados() { TTarvoESocialCamposGrupoBase::ReverterDados(); }

} // namespace tarvo::tabelas
