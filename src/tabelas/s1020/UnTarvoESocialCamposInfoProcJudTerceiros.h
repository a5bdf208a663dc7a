#pragma once

#include "regras/UnTarvoESocialCamposSqlLugar.h"
#include "tabelas/s1020/UnTarvoESocialCamposProcJudTerceiro.h"

namespace tarvo::tabelas {

/// S-1020 infoProcJudTerceiros: the entities whose contribution a process suspends. Source: SC00_FILIALCFG 90/51/2 or
/// SC00_DEPARTAMENTOCFG 90/18/2, whatever the date; of several rows the one in force.
class TTarvoESocialCamposInfoProcJudTerceiros : public TTarvoESocialCamposGrupoBase {
public:
    /// The establishment goes first here, unlike in the rest of the event; meant. Raises EDatabaseError when the code
    /// of the suspended entities is no integer. AData is the event's; without it the newest row stands before the others.
    TTarvoESocialCamposInfoProcJudTerceiros(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData = {});

    /// One child an entity, all of the same process. Read at construction, so that a reload leaves it as it is.
    TListaDeGrupos<TTarvoESocialCamposProcJudTerceiro> ProcJudTerceiro;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }

private:
    void CarregarDadosProcJudTerceiro();
    void BuscarCodigosDeTerceiros();
    /// The codes of a comma text that aren't 0, in its order.
    void AtribuirCodigosNaLista(const std::string& ACodigos);

    regras::TLugar FLugar;
    TDateTime FData;
    std::vector<std::int64_t> FCodTerceiros;
};

} // namespace tarvo::tabelas
