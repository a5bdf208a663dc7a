#include "sst/s2221/UnTarvoESocialCamposS2221.h"

#include "imports/consultas/UnTarvoConsultasExamesToxicologicos.h"

namespace tarvo::sst {

TTarvoESocialCamposS2221::TTarvoESocialCamposS2221(std::int64_t AIdExameToxicologico)
    : TTarvoESocialCamposGrupoBase("{18C0BFD1-26F7-48D8-9013-FB6F33F424C4}"),
      ideVinculo(TTarvoConsultasExamesToxicologicos::BuscarIdEmpregadoPeloIdExameToxic(AIdExameToxicologico)),
      toxicologico(AIdExameToxicologico)
{}

const TPropriedades& TTarvoESocialCamposS2221::Tabela()
{
    using Eu = TTarvoESocialCamposS2221;
    static const TPropriedades tabela{
        {"ideVinculo", &Eu::ideVinculo},
        {"toxicologico", &Eu::toxicologico},
    };
    return tabela;
}

void TTarvoESocialCamposS2221::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    ideVinculo.CarregarDados(AListaCamposModificados);
    toxicologico.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::sst
