#include "tabelas/s1000/UnTarvoESocialCamposSituacaoPJ.h"

#include "regras/UnTarvoESocialCamposSqlConfiguracao.h"

namespace tarvo::tabelas {

TTarvoESocialCamposSituacaoPJ::TTarvoESocialCamposSituacaoPJ(std::int64_t AIDEmpresa, TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{D428D78E-7613-424D-A62D-962AA5796A15}"), FIDEmpresa(AIDEmpresa), FData(AData)
{}

const TPropriedades& TTarvoESocialCamposSituacaoPJ::Tabela()
{
    static const TPropriedades tabela{
        {"indSitPJ", &TTarvoESocialCamposSituacaoPJ::indSitPJ, TFieldRelacionado("INFORMACAO1")},
    };
    return tabela;
}

std::string TTarvoESocialCamposSituacaoPJ::BuscarSQLDados()
{
    return regras::SqlConfiguracaoVigente("SC00_EMPRESACFG.INFORMACAO1", regras::SC00_EMPRESACFG, FIDEmpresa,
                                          {90, 38, 8}, FData);
}

void TTarvoESocialCamposSituacaoPJ::ReverterDados() { TTarvoESocialCamposGrupoBase::ReverterDados(); }

} // namespace tarvo::tabelas
