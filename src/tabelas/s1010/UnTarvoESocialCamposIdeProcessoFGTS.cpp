#include "tabelas/s1010/UnTarvoESocialCamposIdeProcessoFGTS.h"

#include "regras/UnTarvoESocialCamposSqlProcesso.h"

namespace tarvo::tabelas {

TTarvoESocialCamposIdeProcessoFGTS::TTarvoESocialCamposIdeProcessoFGTS()
    : TTarvoESocialCamposIdeProcessoVerba("{191D0C64-5DE5-482F-AFF5-58678CCDE592}")
{}

const TPropriedades& TTarvoESocialCamposIdeProcessoFGTS::Tabela()
{
    static const TPropriedades tabela{
        {"NrProc", &TTarvoESocialCamposIdeProcessoFGTS::NrProc, TFieldRelacionado("NUMERO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposIdeProcessoFGTS::BuscarSQLDados() { return regras::SqlProcessoComDetalhe(FIdProcesso); }

} // namespace tarvo::tabelas
