#pragma once

#include "imports/UnTarvoTypesGeral.h"
#include "rural/s1250/UnTarvoESocialCampostpAquisBase.h"

namespace tarvo::rural {

/// S-1250 ideEstabAdquir: the establishment that buys rural production. The sources fill it; here is what they share.
class TTarvoESocialCamposideEstabAdquirBase : public TTarvoESocialCamposGrupoBase {
public:
    std::string tpInscAdq;
    std::string nrInscAdq;
    /// Each load adds to it.
    TListaDeGrupos<TTarvoESocialCampostpAquisBase> tpAquis;

    static const TPropriedades& Tabela();

protected:
    TTarvoESocialCamposideEstabAdquirBase(std::int64_t AIDEstabelecimento, TDateTime ADataInicio, TDateTime ADataFim,
                                          TTipoConexao ATipoConexao);

    const TPropriedades& Propriedades() const override { return Tabela(); }
    /// VALOR and PRODUCAOISENTA of each kind of acquisition.
    virtual std::string BuscarSqlTpAquis();

    const TComprasRurais& Compras() const { return FCompras; }
    TTipoConexao TipoConexao() const { return FTipoConexao; }
    /// Creates, loads and adds a kind of acquisition of the source for each row.
    template <class TTpAquis>
    void AcrescentarTpAquis(TOvraClientDataSet& ACds, const TListaCamposModificados* AListaCamposModificados = nullptr)
    {
        for (; !ACds.Eof(); ACds.Next()) {
            auto LTpAquis = std::make_unique<TTpAquis>(FCompras.IdFilial, FCompras.DataInicio, FCompras.DataFim,
                                                       ACds.FieldByName("PRODUCAOISENTA").AsInteger());
            LTpAquis->CarregarDados(AListaCamposModificados);
            tpAquis.push_back(std::move(LTpAquis));
        }
    }

private:
    TComprasRurais FCompras;
    TTipoConexao FTipoConexao;
};

} // namespace tarvo::rural
