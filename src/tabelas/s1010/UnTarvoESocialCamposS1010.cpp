#include "tabelas/s1010/UnTarvoESocialCamposS1010.h"

namespace tarvo::tabelas {

TTarvoESocialCamposS1010::TTarvoESocialCamposS1010(std::int64_t AIdVerba, std::int64_t AidEmpresa,
                                                   std::int64_t AIdRubricaRpa, TDateTime ADataGeracao,
                                                   const regras::TCodigosIncidenciaVerba* ACodigosIncidencia)
    : TTarvoESocialCamposGrupoBase("{FB212D2E-76FD-4E48-9AFE-A985BC6AE4D7}"),
      InfoRubrica(AIdVerba, AidEmpresa, AIdRubricaRpa, ADataGeracao, ACodigosIncidencia)
{}

const TPropriedades& TTarvoESocialCamposS1010::Tabela()
{
    static const TPropriedades tabela{
        {"InfoRubrica", &TTarvoESocialCamposS1010::InfoRubrica},
    };
    return tabela;
}

void TTarvoESocialCamposS1010::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    InfoRubrica.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::tabelas
