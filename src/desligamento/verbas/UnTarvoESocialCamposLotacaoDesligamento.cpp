#include "desligamento/verbas/UnTarvoESocialCamposLotacaoDesligamento.h"

#include "imports/consultas/UnTarvoConsultasESocial.h"
#include "imports/valores/UnOvraConversoes.h"
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
    return tabelas::SqlExposicao("CARGOS.OCORRENCIA", FIdEmpregado, FDataBase);
}

TTarvoESocialCamposinfoSimplesDesligamento::TTarvoESocialCamposinfoSimplesDesligamento(std::string_view AGuid,
                                                                                       std::int64_t AIDEstabelecimento,
                                                                                       std::int64_t AIDDepartamento,
                                                                                       TDateTime ADataBase)
    : TTarvoESocialCamposGrupoBase(AGuid), FIDEstabelecimento(AIDEstabelecimento), FIDDepartamento(AIDDepartamento),
      FDataBase(ADataBase)
{}

const TPropriedades& TTarvoESocialCamposinfoSimplesDesligamento::Tabela()
{
    static const TPropriedades tabela{{"indSimples", &TTarvoESocialCamposinfoSimplesDesligamento::indSimples}};
    return tabela;
}

void TTarvoESocialCamposinfoSimplesDesligamento::AtribuirValoresManualmente()
{
    TTarvoESocialCamposGrupoBase::AtribuirValoresManualmente();
    indSimples = IntToStr(TTarvoConsultasESocial::BuscarIndSimples(FIDEstabelecimento, FIDDepartamento, FDataBase));
}

} // namespace tarvo::desligamento
