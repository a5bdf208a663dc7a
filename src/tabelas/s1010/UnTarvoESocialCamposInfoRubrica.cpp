#include "tabelas/s1010/UnTarvoESocialCamposInfoRubrica.h"

namespace tarvo::tabelas {

TTarvoESocialCamposInfoRubrica::TTarvoESocialCamposInfoRubrica(
    std::int64_t AIdVerba, std::int64_t AidEmpresa, std::int64_t AIdRubricaRpa, TDateTime ADataGeracao,
    const regras::TCodigosIncidenciaVerba* ACodigosIncidencia)
    : TTarvoESocialCamposGrupoBase("{A8F401E8-47C2-4F85-A70D-67DA3260217A}"),
      IdeRubrica(AIdVerba, AidEmpresa, AIdRubricaRpa, ACodigosIncidencia),
      DadosRubrica(AIdVerba, AidEmpresa, ADataGeracao, AIdRubricaRpa, ACodigosIncidencia)
{}

const TPropriedades& TTarvoESocialCamposInfoRubrica::Tabela()
{
    using Eu = TTarvoESocialCamposInfoRubrica;
    static const TPropriedades tabela{
        {"IdeRubrica", &Eu::IdeRubrica},
        {"DadosRubrica", &Eu::DadosRubrica},
    };
    return tabela;
}

void TTarvoESocialCamposInfoRubrica::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    IdeRubrica.CarregarDados(AListaCamposModificados);
    DadosRubrica.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::tabelas
