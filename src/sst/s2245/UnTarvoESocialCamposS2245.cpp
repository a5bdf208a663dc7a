#include "sst/s2245/UnTarvoESocialCamposS2245.h"

#include "imports/consultas/UnTarvoConsultasCursosTreinamentos.h"

namespace tarvo::sst {

TTarvoESocialCamposS2245::TTarvoESocialCamposS2245(std::int64_t AIdCursoEmpregado)
    : TTarvoESocialCamposGrupoBase("{71BEE5E1-7DD9-4D3F-B753-BDABAABC60B7}"),
      ideVinculo(TTarvoConsultasCursosTreinamentos::BuscarDadosEmpregadoPeloIdCurso(AIdCursoEmpregado).IDEmpregado),
      treiCap(AIdCursoEmpregado)
{}

const TPropriedades& TTarvoESocialCamposS2245::Tabela()
{
    using Eu = TTarvoESocialCamposS2245;
    static const TPropriedades tabela{
        {"ideVinculo", &Eu::ideVinculo},
        {"treiCap", &Eu::treiCap},
    };
    return tabela;
}

void TTarvoESocialCamposS2245::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    ideVinculo.CarregarDados(AListaCamposModificados);
    treiCap.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::sst
