#pragma once

#include "sst/s2210/UnTarvoESocialCamposAgenteCausador.h"
#include "sst/s2210/UnTarvoESocialCamposAtestado.h"
#include "sst/s2210/UnTarvoESocialCamposcatOrigem.h"
#include "sst/s2210/UnTarvoESocialCamposlocalAcidente.h"
#include "sst/s2210/UnTarvoESocialCamposparteAtingida.h"

namespace tarvo::sst {

/// S-2210 cat: the accident. Source: TABCAT, only where the employer registered it (TIPOREGISTRADOR 1) and the worker is
/// known; the children load all the same.
class TTarvoESocialCamposCat : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposCat(std::int64_t AIdTabCat);

    TDateTime dtAcid;
    std::string TpAcid;
    std::string hrAcid;
    std::string hrsTrabAntesAcid;
    std::int32_t tpCat = 0;
    std::int32_t indCatObito = 0;
    TDate dtOBito;
    std::int32_t indComunPolicia = 0;
    std::int32_t codSitGeradora = 0;
    std::int32_t iniciatCAT = 0;
    std::string observacao;
    TTarvoESocialCamposlocalAcidente localAcidente;
    TListaDeGrupos<TTarvoESocialCamposparteAtingida> parteAtingida;
    TListaDeGrupos<TTarvoESocialCamposAgenteCausador> agenteCausador;
    TTarvoESocialCamposAtestado Atestado;
    TTarvoESocialCamposcatOrigem catOrigem;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    void CarregarDadosParteAtingida();
    void CarregarAgenteCausador();

    std::int64_t FIdTabCat;
};

} // namespace tarvo::sst
