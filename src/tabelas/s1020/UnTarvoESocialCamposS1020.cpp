#include "tabelas/s1020/UnTarvoESocialCamposS1020.h"

namespace tarvo::tabelas {

TTarvoESocialCamposS1020::TTarvoESocialCamposS1020(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{C2AB6AC1-4B8B-4531-A121-69F20791F694}"), InfoLotacao(AIDEstab, AIDDepto, AData)
{}

const TPropriedades& TTarvoESocialCamposS1020::Tabela()
{
    using Eu = TTarvoESocialCamposS1020;
    static const TPropriedades tabela{
        {"InfoLotacao", &Eu::InfoLotacao},
    };
    return tabela;
}

void TTarvoESocialCamposS1020::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    InfoLotacao.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::tabelas
