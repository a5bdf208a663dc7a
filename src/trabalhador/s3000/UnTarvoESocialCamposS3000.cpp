#include "trabalhador/s3000/UnTarvoESocialCamposS3000.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposS3000::TTarvoESocialCamposS3000(std::int64_t AIdEvento)
    : TTarvoESocialCamposGrupoBase("{0F53C07C-53A1-4983-9EC9-43F7DA241408}"), InfoExclusao(AIdEvento)
{}

const TPropriedades& TTarvoESocialCamposS3000::Tabela()
{
    using Eu = TTarvoESocialCamposS3000;
    static const TPropriedades tabela{
        {"InfoExclusao", &Eu::InfoExclusao},
    };
    return tabela;
}

void TTarvoESocialCamposS3000::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    InfoExclusao.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
