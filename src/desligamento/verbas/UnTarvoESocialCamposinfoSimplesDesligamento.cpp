#include "desligamento/verbas/UnTarvoESocialCamposinfoSimplesDesligamento.h"

#include "imports/consultas/UnTarvoConsultasESocial.h"
#include "imports/valores/UnOvraConversoes.h"

namespace tarvo::desligamento {

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
