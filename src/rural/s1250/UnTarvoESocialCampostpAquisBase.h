#pragma once

#include "rural/produtor/UnTarvoESocialCamposideProdutorBase.h"
#include "rural/s1250/UnTarvoESocialCamposinfoProcJ.h"

namespace tarvo::rural {

/// S-1250 tpAquis: the purchases of one exemption, with their producers and the processes of the acquirer. The sources
/// fill it; here is the walk that they share.
class TTarvoESocialCampostpAquisBase : public TTarvoESocialCamposGrupoBase {
public:
    /// "4" for exempt purchases, else "1".
    std::string indAquis() const;
    /// 1 exempt, 2 not.
    std::int32_t ProducaoIsenta() const { return FProducaoIsenta; }
    std::string vlrTotAquis;
    /// Each load adds to both lists.
    TListaDeGrupos<TTarvoESocialCamposideProdutorBase> ideProdutor;
    TListaDeGrupos<TTarvoESocialCamposinfoProcJ> infoProcJ;

    /// The group's own load, then the processes of the acquirer, which the producers must know of.
    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    TTarvoESocialCampostpAquisBase(std::int64_t AIDEstabelecimento, TDateTime ADataInicio, TDateTime ADataFim,
                                   std::int32_t AProducaoIsenta);

    const TPropriedades& Propriedades() const override { return Tabela(); }
    /// Opens FDadosProcessosAdquirente with the processes of the establishment's own.
    virtual void CarreagarProcessosAdquirente();

    const TComprasRurais& Compras() const { return FCompras; }
    void AbrirProcessosAdquirente(std::string ASql);
    /// Exception when CarreagarProcessosAdquirente didn't open the dataset.
    bool EncontrouProcessoAdquirente() const;

    /// Creates, loads and adds a producer of the source for each row, by the inscription in its column, and adds up
    /// their amounts.
    template <class TProdutor>
    TTarvoESocialCamposinfoProcJudIOP AcrescentarProdutores(TOvraClientDataSet& AProdutores,
                                                            std::string_view AColunaDaInscricao,
                                                            const TListaCamposModificados* AListaCamposModificados)
    {
        TSomas LSomas;
        for (; !AProdutores.Eof(); AProdutores.Next()) {
            auto LProdutor = std::make_unique<TProdutor>(
                FCompras.IdFilial, AProdutores.FieldByName(AColunaDaInscricao).AsString(), FCompras.DataInicio,
                FCompras.DataFim, EncontrouProcessoAdquirente(), FProducaoIsenta);
            LProdutor->CarregarDados(AListaCamposModificados);
            LSomas.Somar(*LProdutor);
            ideProdutor.push_back(std::move(LProdutor));
        }
        return LSomas.Dados();
    }
    /// The processes of the acquirer, with the amounts of all the producers; none for exempt purchases.
    void AcrescentarInfoProcJ(const TTarvoESocialCamposinfoProcJudIOP& ASomas,
                              const TListaCamposModificados* AListaCamposModificados);

private:
    /// Wide, so that a sum of many producers is rounded once.
    struct TSomas {
        long double vlrBruto = 0;
        long double vrCPDescPR = 0;
        long double vrRatDescPR = 0;
        long double vrSenarDesc = 0;

        void Somar(const TTarvoESocialCamposideProdutorBase& AProdutor);
        TTarvoESocialCamposinfoProcJudIOP Dados() const;
    };

    TComprasRurais FCompras;
    std::int32_t FProducaoIsenta;
    /// Of the library's connection, whichever the source.
    std::unique_ptr<TOvraClientDataSetWithConnection> FDadosProcessosAdquirente;
};

} // namespace tarvo::rural
