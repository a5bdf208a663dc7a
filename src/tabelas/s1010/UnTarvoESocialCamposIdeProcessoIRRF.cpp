#include "tabelas/s1010/UnTarvoESocialCamposIdeProcessoIRRF.h"

#include "regras/UnTarvoESocialCamposSqlProcesso.h"

namespace tarvo::tabelas {

TTarvoESocialCamposIdeProcessoIRRF::TTarvoESocialCamposIdeProcessoIRRF()
    : TTarvoESocialCamposIdeProcessoVerba("{FAEA57A6-60F4-46FB-A371-0D2FF4DC533D}")
{}

const TPropriedades& TTarvoESocialCamposIdeProcessoIRRF::Tabela()
{
    using Eu = TTarvoESocialCamposIdeProcessoIRRF;
    static const TPropriedades tabela{
        {"NrProc", &Eu::NrProc, TFieldRelacionado("NUMERO")},
        {"CodSusp", &Eu::CodSusp, TFieldRelacionado("IDSPPROCDET")},
    };
    return tabela;
}

std::string TTarvoESocialCamposIdeProcessoIRRF::BuscarSQLDados() { return regras::SqlProcessoComDetalhe(FIdProcesso); }

} // namespace tarvo::tabelas
