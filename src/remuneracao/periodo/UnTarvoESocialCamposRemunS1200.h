#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "remuneracao/periodo/UnTarvoESocialCamposInfoAgNocivoS1200.h"
#include "remuneracao/periodo/UnTarvoESocialCamposInfoTrabInterm.h"
#include "remuneracao/periodo/UnTarvoESocialCamposItensRemunS1200.h"
#include "remuneracao/periodo/UnTarvoESocialCamposS1200DadosCalculo.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200IOP.h"

namespace tarvo::remuneracao {

/// What remunPerApur and remunPerAnt of S-1200 have in common: the amounts of one worker in one lotação. Both bear one
/// GUID: a list of groups selects both. The worker is that of the parameter object.
class TTarvoESocialCamposRemunS1200 : public TTarvoESocialCamposGrupoBase {
public:
    std::int64_t IdFilial;
    std::int64_t IdDepto;
    /// In force at the end of the period on the parameter object.
    std::int32_t indSimples = 0;
    std::string matricula;
    TListaDeGrupos<TTarvoESocialCamposItensRemunS1200> itensRemun;
    TTarvoESocialCamposInfoAgNocivoS1200 infoAgNocivo;
    TListaDeGrupos<TTarvoESocialCamposInfoTrabInterm> infoTrabInterm;

    static const TPropriedades& Tabela();

protected:
    TTarvoESocialCamposRemunS1200(TTarvoESocialCamposS1200IOP& AinfoBind1200, std::int64_t AIdFilial,
                                  std::int64_t AIdDepto);

    const TPropriedades& Propriedades() const override { return Tabela(); }
    /// The registration of a contract.
    std::string BuscarSQLDados() override;
    void AtribuirValoresManualmente() override;

    /// Reads the calculated rows of the worker here and makes the items of them; gives the rows.
    std::vector<TDadosCalculo> GerarListaItensRemunEmpregados(TTagOrigem ATagOrigem,
                                                              const TListaCamposModificados* AListaCamposModificados);

    TTarvoESocialCamposS1200IOP& FInfoBind;
};

} // namespace tarvo::remuneracao
