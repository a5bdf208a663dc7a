#include "trabalhador/s2250/UnTarvoESocialCamposinfoAvPrevio.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposinfoAvPrevio::TTarvoESocialCamposinfoAvPrevio(std::int64_t AIdAvisoPrevio)
    : TTarvoESocialCamposGrupoBase("{F7ED58AC-87A4-439C-9E39-E0149056B449}"), detAvPrevio(AIdAvisoPrevio),
      cancAvPrevio(AIdAvisoPrevio)
{}

const TPropriedades& TTarvoESocialCamposinfoAvPrevio::Tabela()
{
    using Eu = TTarvoESocialCamposinfoAvPrevio;
    static const TPropriedades tabela{
        {"detAvPrevio", &Eu::detAvPrevio},
        {"cancAvPrevio", &Eu::cancAvPrevio},
    };
    return tabela;
}

void TTarvoESocialCamposinfoAvPrevio::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    detAvPrevio.CarregarDados(AListaCamposModificados);
    cancAvPrevio.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
