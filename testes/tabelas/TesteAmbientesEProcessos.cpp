#include "imports/UnOvraExcecoes.h"
#include "tabelas/UnLugarDeTeste.h"
#include "tabelas/s1060/UnTarvoESocialCamposS1060.h"
#include "tabelas/s1070/UnTarvoESocialCamposS1070.h"

namespace tarvo::testes {
namespace {

using namespace tabelas;

class TTesteS1060 : public TTesteComLugar {};

TEST_F(TTesteS1060, InscricaoOuLotacaoConformeOLocal)
{
    Inserir("SST_AMBIENTES", {{"IDAMBIENTE", 5},
                              {"IDEMPRESA", 1},
                              {"IDFILIAL", 1},
                              {"TPINSCRICAO", 4},
                              {"INSCRICAO", "444"},
                              {"DATAINICIO", D(2020, 1, 2)}});
    const auto Buscar = [](const std::string& ALocal, const std::string& ADepto) {
        Executar("UPDATE SST_AMBIENTES SET LOCALAMBIENTE = " + ALocal + ", IDDEPTO = " + ADepto);
        const auto LGrupo = Carregar<TTarvoESocialCamposDadosAmbiente>(5);
        return std::to_string(LGrupo->tpInsc) + "/" + LGrupo->nrInsc + "/" + LGrupo->codLotacao;
    };
    EXPECT_EQ("3/512345678901/", Buscar("1", "10"));
    EXPECT_EQ("1/11222333000181/", Buscar("1", "NULL"));
    EXPECT_EQ("0//D10", Buscar("2", "10"));
    EXPECT_EQ("0//F1", Buscar("2", "NULL"));
    EXPECT_EQ("4/444/", Buscar("3", "10"));
    EXPECT_EQ("0//", Buscar("4", "10"));
    // A department that is set but isn't there doesn't fall back on the establishment.
    EXPECT_EQ("0//", Buscar("1", "99"));
    EXPECT_EQ("0//", Buscar("2", "99"));

    const auto LIde = Carregar<TTarvoESocialCamposIdeAmbiente>(5);
    EXPECT_EQ("02/01/2020", LIde->iniValid);
    EXPECT_EQ("", LIde->fimValid);
    EXPECT_EQ(0, LIde->idEmpresa);
}

TEST_F(TTesteS1060, OFatorDeRiscoEhFixo)
{
    TTarvoESocialCamposS1060 LEvento(5);
    EXPECT_EQ("2222", LEvento.FatorRisco.codFatRis);
    LEvento.CarregarDados();
    EXPECT_EQ("2222", LEvento.FatorRisco.codFatRis);
    EXPECT_EQ("", LEvento.IdeAmbiente.codAmb);
}

class TTesteS1070 : public TTesteComLugar {
protected:
    static std::string Suspensoes(const TTarvoESocialCamposS1070& AEvento)
    {
        std::string LTexto;
        for (const auto& LItem : AEvento.DadosProc.InfoSusp)
            LTexto += LItem->codSusp + ":" + LItem->indSusp + " ";
        return LTexto;
    }
};

TEST_F(TTesteS1070, CadaCargaAcrescentaAsSuspensoes)
{
    Processo(3, "5003333-22.2020");
    Processo(4, "4");
    TTarvoESocialCamposS1070 LEvento(3);
    LEvento.CarregarDados();
    EXPECT_EQ("", Suspensoes(LEvento));
    EXPECT_EQ("5003333222020", LEvento.IdeProcesso.nrProc);
    EXPECT_TRUE(LEvento.IdeProcesso.iniValid.Vazia());
    Suspensao(31, 3, D(2020, 5, 1), "01");
    Suspensao(32, 3, D(2019, 5, 1), "02");
    Suspensao(41, 4, D(2020, 5, 1), "09");
    LEvento.CarregarDados();
    EXPECT_EQ("31:01 32:02 ", Suspensoes(LEvento));
    EXPECT_EQ(D(2020, 5, 1), LEvento.DadosProc.InfoSusp.front()->dtDecisao);
    LEvento.CarregarDados();
    EXPECT_EQ("31:01 32:02 31:01 32:02 ", Suspensoes(LEvento));
}

TEST_F(TTesteS1070, AListaDeGruposVaiAosFilhosMasNaoImpedeQueNascam)
{
    Processo(3, "3");
    Suspensao(31, 3, D(2020, 5, 1), "01");
    TTarvoESocialCamposS1070 LEvento(3);
    const TListaCamposModificados LSoIdentificacao{std::string(LEvento.IdeProcesso.GuidClasse())};
    LEvento.CarregarDados(&LSoIdentificacao);
    EXPECT_EQ(":", Suspensoes(LEvento).substr(0, 1));
    EXPECT_EQ("3", LEvento.IdeProcesso.nrProc);
    EXPECT_EQ("", LEvento.DadosProc.indMatProc);
    // A group that is off still has its children.
    LEvento.DadosProc.SetCarregarDadosDoGrupo(false);
    LEvento.CarregarDados();
    EXPECT_EQ(": 31:01 ", Suspensoes(LEvento));
    EXPECT_EQ("", LEvento.DadosProc.indMatProc);
}

TEST_F(TTesteS1070, VaraSoComMunicipioEUfCadastrados)
{
    Processo(3, "3");
    Executar("UPDATE ES02_SPPROC SET VARA = '07'");
    const auto Buscar = [] {
        const auto LGrupo = Carregar<TTarvoESocialCamposDadosProcJud>(3);
        return LGrupo->ufVara + "/" + LGrupo->codMunic + "/" + LGrupo->idVara;
    };
    EXPECT_EQ("//", Buscar());
    Executar("UPDATE ES02_SPPROC SET IDMUNICIPIO = 2");
    Inserir("CA06_MUNICIPIO", {{"IDMUNICIPIO", 2}, {"CODIGOFEDERAL", "3550308"}, {"UF", "SP"}});
    EXPECT_EQ("//", Buscar());
    Inserir("CA06_UF", {{"UF", "SP"}});
    EXPECT_EQ("SP/3550308/07", Buscar());
}

} // namespace
} // namespace tarvo::testes
