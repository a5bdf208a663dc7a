#include "tabelas/s1070/UnTarvoESocialCamposS1070.h"

namespace tarvo::tabelas {

TTarvoESocialCamposS1070::TTarvoESocialCamposS1070(std::int64_t AIdProcesso)
    : TTarvoESocialCamposGrupoBase("{0B19E0FD-DA10-4900-9A5B-59538DDD330D}"), IdeProcesso(AIdProcesso),
      DadosProc(AIdProcesso)
{}

const TPropriedades& TTarvoESocialCamposS1070::Tabela()
{
    using Eu = TTarvoESocialCamposS1070;
    static const TPropriedades tabela{
        {"IdeProcesso", &Eu::IdeProcesso},
        {"DadosProc", &Eu::DadosProc},
    };
    return tabela;
}

void TTarvoESocialCamposS1070::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    IdeProcesso.CarregarDados(AListaCamposModificados);
    DadosProc.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::tabelas
