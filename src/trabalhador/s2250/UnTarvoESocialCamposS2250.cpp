#include "trabalhador/s2250/UnTarvoESocialCamposS2250.h"

#include "imports/consultas/UnTarvoConsultasRescisao.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposS2250::TTarvoESocialCamposS2250(std::int64_t AIdAvisoPrevio)
    : TTarvoESocialCamposGrupoBase("{1F9481A9-7081-48C5-8DDB-E33E15E37293}"),
      ideVinculo(TTarvoConsultasRescisao::BuscarIDEmpregadoPeloIDAvisoPrevio(AIdAvisoPrevio)),
      infoAvPrevio(AIdAvisoPrevio)
{}

const TPropriedades& TTarvoESocialCamposS2250::Tabela()
{
    using Eu = TTarvoESocialCamposS2250;
    static const TPropriedades tabela{
        {"ideVinculo", &Eu::ideVinculo},
        {"infoAvPrevio", &Eu::infoAvPrevio},
    };
    return tabela;
}

void TTarvoESocialCamposS2250::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    ideVinculo.CarregarDados(AListaCamposModificados);
    infoAvPrevio.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
