#include "apoio/UnCasosDeOrdem.h"
#include "rural/UnComprasDeTeste.h"
#include "rural/fechamento/UnTarvoESocialCamposS1299.h"
#include "rural/s1280/UnTarvoESocialCamposS1280.h"

namespace tarvo::testes {
namespace {

using namespace tarvo::rural;

class TTesteOrdemRural : public TTesteDeOrdem<TTesteComprasComBrenco> {
public:
    /// The purchases as they are shown, with the first suspension of each process.
    static std::string Compras(int ATipoConexao)
    {
        auto LEvento = Evento(ATipoConexao);
        LEvento.CarregarDados();
        auto LTexto = Resumo(*LEvento.ideEstabAdquir).substr(std::string(CNPJ).size() + 2);
        for (const auto& LTipo : LEvento.ideEstabAdquir->tpAquis) {
            for (const auto& LProcesso : LTipo->infoProcJ)
                LTexto += " " + LProcesso->codSusp;
            for (const auto& LProdutor : LTipo->ideProdutor)
                for (const auto& LProcesso : LProdutor->infoProcJud)
                    LTexto += " " + LProcesso->codSusp;
        }
        return LTexto;
    }
};

std::string Prestador(int AId, const char* ACpf, int AIndOpcCp = 1)
{
    const auto LId = std::to_string(AId);
    return "PREST_SERVICO (IDPRESTSERVICO, CODIGO, CPF, TIPOINSCR, CATEGORIA, INDOPCCP) VALUES (" + LId + ", " + LId +
           ", '" + ACpf + "', 'NIT', '00-Segurado Especial', " + std::to_string(AIndOpcCp) + ")";
}

std::string Movimento(int APrestador, int AValor, const char* AIsenta = "NULL")
{
    return "MOV_PRESTSERV (COD_PRESTSERV, COD_EMPRESA, COD_FILIAL, DATA_MOVIMENTO, VALOR, PRODUCAOISENTA) VALUES (" +
           std::to_string(APrestador) + ", 10, 1, '05.03.2021', " + std::to_string(AValor) + ", " + AIsenta + ")";
}

std::string Produtor(int AId, const char* ACpf, int AIndOpcCp = 1)
{
    return "ES02_CLIFOR (IDCLIFOR, CNPJ, PRODUTOR, TPINSCRICAO, INDOPCCP) VALUES (" + std::to_string(AId) + ", '" +
           ACpf + "', 1, 2, " + std::to_string(AIndOpcCp) + ")";
}

std::string Plano(int AId, int AProdutor)
{
    return "CO01_PLANO (IDPLANO, IDCLIFOR) VALUES (" + std::to_string(AId) + ", " + std::to_string(AProdutor) + ")";
}

std::string Entrada(int AId, int APlano, int AValor, const char* AIsenta = "NULL")
{
    return "ES02_ENTRADA (IDENTRADA, IDFILIAL, IDPLANO, DATAENTRADA, MODELO, PRODUCAOISENTA, VLRCONTABIL) VALUES (" +
           std::to_string(AId) + ", 10, " + std::to_string(APlano) + ", '05.03.2021', '04', " + AIsenta + ", " +
           std::to_string(AValor) + ")";
}

std::string Item(int AEntrada)
{
    return "ES02_ENTRADADET (IDENTRADA, IDCFOP) VALUES (" + std::to_string(AEntrada) + ", 1)";
}

const std::string CFOP = "ES02_CFOP (IDCFOP, CFOP) VALUES (1, '1.101')";

/// A process of the owner in a column, without a suspension.
std::string Processo(int AId, const std::string& AColuna, int ADono)
{
    const auto LId = std::to_string(AId);
    return "ES02_SPPROC (IDSPPROC, " + AColuna + ", NUMERO, DATAABERTURA, ABRANGS1250, INDMATERIATPTRIB, TPIMPETRANTE" +
           (AColuna == "IDPLANO" ? ", IDFILIAL" : "") + ") VALUES (" + LId + ", " + std::to_string(ADono) + ", 'P" +
           LId + "', '01.01.2020', 7, 2, " + (AColuna == "IDPLANO" ? "3, 10" : "5") + ")";
}

std::string Suspensao(int AId, int AProcesso)
{
    return "ES02_SPPROCDET (IDSPPROCDET, IDSPPROC) VALUES (" + std::to_string(AId) + ", " + std::to_string(AProcesso) +
           ")";
}

const std::string FECHAMENTO =
    "SC00_ESOCIALREINFXML (IDESOCIALREINFXML, IDEMPRESA, TPEVENTO, TPAMB, STATUS, INIVALID, DATA, XML) VALUES "
    "(%, 1, 'S-1299', 1, 201, '01.02.2021', '05.03.2021', '<eSocial><evtFechaEvPer><infoFech><compSemMovto>2020-0%"
    "</compSemMovto></infoFech></evtFechaEvPer></eSocial>')";

/// A row with its key in the places of the percent signs.
std::string ComChave(std::string AModelo, const std::string& AChave)
{
    for (auto LPosicao = AModelo.find('%'); LPosicao != std::string::npos; LPosicao = AModelo.find('%'))
        AModelo.replace(LPosicao, 1, AChave);
    return AModelo;
}

const std::vector<TCasoDeOrdem> CASOS{
    {"ProdutoresETiposDaFolha",
     {Prestador(1, "222"), Movimento(1, 1000), Prestador(2, "111"), Movimento(2, 2000), Movimento(2, 500, "1")},
     [] { return TTesteOrdemRural::Compras(FOLHA); },
     "4=500 111 500/0/0/1 1=3000 111 2000/24/2/4 222 1000/12/1/2"},
    {"ProdutorDeDoisCadastros",
     {Prestador(1, "111", 2), Movimento(1, 1000), Prestador(2, "111", 1), Movimento(2, 3000)},
     [] { return TTesteOrdemRural::Compras(FOLHA); },
     "1=4000 111 1000/0/0/2"},
    {"ProcessosDoProdutorESuaSuspensao",
     {Prestador(1, "111"), Movimento(1, 1000), Processo(1, "IDPRESTSERVICO", 1), Processo(2, "IDPRESTSERVICO", 1),
      Suspensao(5, 1), Suspensao(6, 2), Suspensao(7, 1)},
     [] { return TTesteOrdemRural::Compras(FOLHA); },
     "1=1000 111 1000/0/0/0(P1 6/0,5/1)(P2 6/0,5/1) 5 6"},
    {"ProcessosDoAdquirente",
     {Prestador(1, "111"), Movimento(1, 1000), Processo(1, "IDFILIAL", 10), Processo(2, "IDFILIAL", 10),
      Suspensao(5, 2), Suspensao(6, 1), Suspensao(7, 1)},
     [] { return TTesteOrdemRural::Compras(FOLHA); },
     "1=1000 111 1000/0/0/0 {P1 6/0,5/1} {P2 6/0,5/1} 6 5"},
    {"ProdutoresETiposDoBrenco",
     {CFOP, Produtor(1, "222", 2), Plano(1, 1), Entrada(1, 1, 1000, "2"), Item(1), Produtor(2, "111"), Plano(2, 2),
      Entrada(2, 2, 2000, "2"), Item(2), Entrada(3, 2, 500, "1"), Item(3)},
     [] { return TTesteOrdemRural::Compras(BRENCO) + " | " + TTesteOrdemRural::Compras(EXTERNO); },
     "4=500 111 500/0/0/0 1=3000 111 2000/0/0/0 222 1000/0/0/0 | "
     "4=500 111 500/0/0/0 1=3000 111 2000/0/0/0 222 1000/0/0/0"},
    {"ProdutorDeDoisCadastrosNoBrenco",
     {CFOP, Produtor(1, "111", 2), Plano(2, 1), Entrada(1, 2, 1000), Item(1), Produtor(2, "111", 1), Plano(1, 2),
      Entrada(2, 1, 3000), Item(2), Processo(1, "IDPLANO", 1), Processo(2, "IDPLANO", 2), Processo(3, "IDPLANO", 1),
      Processo(4, "IDPLANO", 2), Suspensao(5, 1), Suspensao(6, 2), Suspensao(7, 3), Suspensao(8, 4)},
     // Of the plans of a producer the lowest stands for all where the processes are of another database.
     [] { return TTesteOrdemRural::Compras(BRENCO) + " | " + TTesteOrdemRural::Compras(EXTERNO); },
     "1=4000 111 1000/0/0/0(P1 3/0,25/0,5)(P2 3/0,25/0,5)(P3 3/0,25/0,5)(P4 3/0,25/0,5) 5 6 7 8 | "
     "1=4000 111 1000/0/0/0(P1 6/0,5/1)(P3 6/0,5/1) 5 7"},
    {"EstabelecimentoNoOutroBanco",
     {"SC00_EMPRESA (IDEMPRESA, EMPRESA) VALUES (9, 9)",
      "SC00_FILIAL (IDFILIAL, IDEMPRESA, FILIAL, TPINSCRICAO, CNPJ) VALUES (8, 9, 1, 1, '81300700000101')",
      "SC00_FILIAL (IDFILIAL, IDEMPRESA, FILIAL, TPINSCRICAO, CNPJ) VALUES (9, 9, 1, 2, '81300700000101')"},
     [] {
         const TTarvoESocialCamposS1250 LEvento(10, D(2021, 3, 1), D(2021, 3, 31), static_cast<TTipoConexao>(EXTERNO));
         LEvento.ideEstabAdquir->CarregarDados();
         return LEvento.ideEstabAdquir->tpInscAdq;
     },
     "1"},
    {"ComplementosDoMes",
     {"FP_RECEITACPRB (IDRECEITACPRB, IDEMPRESA, COMPETENCIA, VALORRECEITANB, VALORRECEITATOTAL) VALUES (1, 1, "
      "'3/2021', 2, 2)",
      "FP_RECEITACPRB (IDRECEITACPRB, IDEMPRESA, COMPETENCIA, VALORRECEITANB, VALORRECEITATOTAL) VALUES (2, 1, "
      "'3/2021', 1, 1)",
      "FP_RECEITASIMPLES (IDRECEITASIMPLES, IDEMPRESA, IDFILIAL, IDDEPTO, DATA, FATOR) VALUES (1, 1, 10, 1, "
      "'15.03.2021', 0.5)",
      "FP_RECEITASIMPLES (IDRECEITASIMPLES, IDEMPRESA, IDFILIAL, IDDEPTO, DATA, FATOR) VALUES (2, 1, 10, 1, "
      "'01.03.2021', 0.25)"},
     [] {
         TTarvoESocialCamposS1280 LEvento(1, D(2021, 3, 1));
         LEvento.CarregarDados();
         return IntToStr(LEvento.InfoSubstPatr.indSubstPatr) + " " + FloatToStr(LEvento.infoAtivConcom.fatorMes);
     },
     "2 0,5"},
    {"ResponsavelEFechamentoAnterior",
     {"CA06_CFG (IDCFG, ORIGEM, TP, INFORMACAO1) VALUES (1, 97, 2, 'Rita')",
      "CA06_CFG (IDCFG, ORIGEM, TP, INFORMACAO1) VALUES (2, 97, 2, 'Ana')", ComChave(FECHAMENTO, "1"),
      ComChave(FECHAMENTO, "2")},
     [] {
         TTarvoESocialCamposS1299 LEvento(1, D(2021, 3, 1), D(2021, 3, 31), tpIndApuracao::Mensal);
         LEvento.CarregarDados();
         return LEvento.ideRespInf.nmResp + " " + LEvento.infoFech.compSemMovto;
     },
     "Rita 2020-01"},
};

TEST_P(TTesteOrdemRural, NaoDependeDeComoAsLinhasForamGravadas) { Conferir(); }

INSTANTIATE_TEST_SUITE_P(Rural, TTesteOrdemRural, ::testing::Combine(::testing::ValuesIn(CASOS), ::testing::Bool()),
                         NomeDoCasoDeOrdem);

} // namespace
} // namespace tarvo::testes
