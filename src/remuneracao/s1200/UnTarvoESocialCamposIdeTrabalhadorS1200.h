#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "remuneracao/s1200/UnTarvoESocialCamposInfoComplemS1200.h"
#include "remuneracao/s1200/UnTarvoESocialCamposInfoMVS1200.h"
#include "remuneracao/s1200/UnTarvoESocialCamposProcJudTrabS1200.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200IOP.h"
#include "remuneracao/s1200/UnTarvoESocialCamposinfoInterm.h"

namespace tarvo::remuneracao {

/// S-1200 ideTrabalhador: who the event is about. Sources: EMPREGADOS and PREST_SERVICO by CPF. Loaded once, with the
/// month as the caller gave it, before any run is chosen. EMPREGADOS.CPF must be stored as the caller gives the CPF;
/// that of a provider is compared by its digits.
class TTarvoESocialCamposIdeTrabalhadorS1200 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposIdeTrabalhadorS1200(const TTarvoESocialCamposS1200IOP& AinfoBind1200);

    /// As given to the constructor.
    std::string cpfTrab;
    /// Of a contract in force, else of a provider, else of any contract.
    std::string nisTrab;
    TTarvoESocialCamposInfoMVS1200 InfoMV;
    TTarvoESocialCamposInfoComplemS1200 infoComplem;
    TListaDeGrupos<TTarvoESocialCamposProcJudTrabS1200> procJudTrab;
    TTarvoESocialCamposinfoInterm infoInterm;

    /// A further load adds to procJudTrab.
    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    void CarregarDadosprocJudTrab();

    const TTarvoESocialCamposS1200IOP& FInfoBind;
};

} // namespace tarvo::remuneracao
