#include "tabelas/s1020/UnTarvoESocialCamposInfoLotacao.h"

namespace tarvo::tabelas {

TTarvoESocialCamposInfoLotacao::TTarvoESocialCamposInfoLotacao(std::int64_t AIDEstab, std::int64_t AIDDepto,
                                                               TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{BB674820-D339-486D-A1DC-07874BEF2E29}"), IdeLotacao(AIDEstab, AIDDepto),
      DadosLotacao(AIDEstab, AIDDepto, AData)
{}

const TPropriedades& TTarvoESocialCamposInfoLotacao::Tabela()
{
    using Eu = TTarvoESocialCamposInfoLotacao;
    static const TPropriedades tabela{
        {"IdeLotacao", &Eu::IdeLotacao},
        {"DadosLotacao", &Eu::DadosLotacao},
    };
    return tabela;
}

void TTarvoESocialCamposInfoLotacao::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    IdeLotacao.CarregarDados(AListaCamposModificados);
    DadosLotacao.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::tabelas
