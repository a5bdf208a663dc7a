#include "desligamento/verbas/UnTarvoESocialCamposinfoAgNocivoDesligamento.h"

#include "regras/UnTarvoESocialCamposSqlRemuneracao.h"

namespace tarvo::desligamento {

TTarvoESocialCamposinfoAgNocivoDesligamento::TTarvoESocialCamposinfoAgNocivoDesligamento(std::string_view AGuid,
                                                                                         std::int64_t AIdEmpregado,
                                                                                         TDateTime ADataBase)
    : TTarvoESocialCamposGrupoBase(AGuid), FIdEmpregado(AIdEmpregado), FDataBase(ADataBase)
{}

const TPropriedades& TTarvoESocialCamposinfoAgNocivoDesligamento::Tabela()
{
    using Eu = TTarvoESocialCamposinfoAgNocivoDesligamento;
    static const TPropriedades tabela{
        {"grauExp", &Eu::grauExp, TFieldRelacionado("OCORRENCIA")},
        {"codCateg", &Eu::codCateg, TFieldRelacionado("CODCATEG")},
    };
    return tabela;
}

std::string TTarvoESocialCamposinfoAgNocivoDesligamento::BuscarSQLDados()
{
    return regras::SqlExposicao("CARGOS.OCORRENCIA", FIdEmpregado, FDataBase);
}

} // namespace tarvo::desligamento
