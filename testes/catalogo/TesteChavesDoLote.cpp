#include <set>

#include "apoio/UnBancoDeTeste.h"
#include "catalogo/UnTarvoESocialCamposCatalogo.h"
#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::testes {
namespace {

class TTesteChavesDoLote : public TTesteComBanco {
protected:
    void SetUp() override
    {
        TTesteComBanco::SetUp();
        for (const int LEmpresa : {1, 2})
            Inserir("SC00_FILIAL", {{"IDFILIAL", LEmpresa * 10}, {"IDEMPRESA", LEmpresa}});
    }

    static std::string Chaves(int AIdEmpresa)
    {
        std::string LTexto;
        for (const auto& LChave : BuscarChavesDoLote("s-1200", {{"idempresa", std::to_string(AIdEmpresa)},
                                                                {"DataInicio", "2021-03-01"},
                                                                {"DataFim", "2021-03-31"}})) {
            LTexto += (LTexto.empty() ? "" : " ") + LChave.Json;
            EXPECT_EQ(LChave.Json, "\"" + LChave.Argumentos.at("Cpf") + "\"");
            EXPECT_EQ(4u, LChave.Argumentos.size());
            EXPECT_NO_THROW(ConstruirEvento("S-1200", LChave.Argumentos));
        }
        return LTexto;
    }
    static void Empregado(TValorSql ACpf, int AIdEmpresa = 1)
    {
        Inserir("EMPREGADOS", {{"IDEMPRESA", AIdEmpresa}, {"CPF", ACpf}});
    }
    static void Recibo(int AIdPrestador, TValorSql ACpf, TDateTime APagto, int AIdEmpresa = 1)
    {
        Inserir("PREST_SERVICO", {{"IDPRESTSERVICO", AIdPrestador}, {"CPF", ACpf}});
        Inserir("RPA", {{"IDPRESTSERVICO", AIdPrestador}, {"IDFILIAL", AIdEmpresa * 10}, {"DATAPAGTO", APagto}});
    }
};

TEST_F(TTesteChavesDoLote, EmpregadosAntesDosPrestadoresCadaCpfUmaVez)
{
    EXPECT_EQ("", Chaves(1));
    Empregado("333.333.333-33");
    Empregado("111.111.111-11");
    Empregado("111.111.111-11");
    Empregado("444.444.444-44", 2);
    Empregado(nullptr);
    Empregado("");
    EXPECT_EQ(R"("111.111.111-11" "333.333.333-33")", Chaves(1));
    // An employee with a receipt is one person, however the CPF is written; so are two records of a provider.
    Recibo(1, "33333333333", D(2021, 3, 1));
    Recibo(2, "00011122233", D(2021, 3, 31));
    Recibo(3, "000.111.222-33", D(2021, 3, 15));
    Recibo(4, nullptr, D(2021, 3, 15));
    Recibo(5, "55555555555", D(2021, 2, 28));
    Recibo(6, "66666666666", D(2021, 4, 1));
    Recibo(7, "77777777777", D(2021, 3, 15), 2);
    EXPECT_EQ(R"("111.111.111-11" "333.333.333-33" "000.111.222-33")", Chaves(1));
    EXPECT_EQ(R"("444.444.444-44" "77777777777")", Chaves(2));
}

TEST_F(TTesteChavesDoLote, PagamentosVaoPelosMesmosCpfsComOsSeusArgumentos)
{
    Empregado("333.333.333-33");
    Recibo(1, "00011122233", D(2021, 3, 31));
    // The payments are found by the digits: a second form of the CPF would report each of them twice.
    Empregado("33333333333");
    const auto LChaves = BuscarChavesDoLote("S-1210", {{"IdEmpresa", "1"},
                                                       {"DataInicio", "2021-03-01"},
                                                       {"DataFim", "2021-03-31"},
                                                       {"DataInicioVigencia", "2018-07-01"},
                                                       {"TipoTrabalhador", "1"}});
    ASSERT_EQ(2u, LChaves.size());
    EXPECT_EQ(R"("333.333.333-33")", LChaves[0].Json);
    EXPECT_EQ(R"("333.333.333-33" "33333333333" "00011122233")", Chaves(1)) << "S-1200 finds the contracts of a form";
    EXPECT_EQ(R"("00011122233")", LChaves[1].Json);
    EXPECT_EQ("2018-07-01", LChaves[1].Argumentos.at("DataInicioVigencia"));
    EXPECT_NO_THROW(ConstruirEvento("S-1210", LChaves[1].Argumentos));
    EXPECT_THROW(
        BuscarChavesDoLote(
            "S-1210",
            {{"IdEmpresa", "1"}, {"DataInicio", "2021-03-01"}, {"DataFim", "2021-03-31"}, {"TipoTrabalhador", "2"}}),
        EArgumentoInvalido);
}

TEST_F(TTesteChavesDoLote, SaudeESegurancaVaoPelosRegistrosDaEmpresa)
{
    for (const int LEmpresa : {1, 2}) {
        Inserir("SC00_EMPRESA", {{"IDEMPRESA", LEmpresa}, {"EMPRESA", 40 + LEmpresa}});
        for (const int LNumero : {2, 1}) {
            const int LId = LEmpresa * 10 + LNumero;
            Inserir("EMPREGADOS", {{"IDEMPREGADO", LId}, {"IDEMPRESA", LEmpresa}});
            Inserir("TABCAT", {{"IDTABCAT", LId + 100}, {"COD_EMPRESA", 40 + LEmpresa}});
            Inserir("FP_EXAMETOXICOLOGICO", {{"IDEXAMETOXICOLOGICO", LId + 200}, {"IDEMPREGADO", LId}});
            Inserir("FP_CURSOEMPREGADO", {{"IDCURSOEMPREGADO", LId + 300}, {"IDEMPREGADO", LId}});
        }
    }
    for (const auto& [LEvento, LEsperado] :
         {std::pair{"S-2210", "121 122 "}, {"S-2220", "21 22 "}, {"S-2221", "221 222 "}, {"S-2245", "321 322 "}}) {
        std::string LTexto;
        for (const auto& LChave : BuscarChavesDoLote(LEvento, {{"IdEmpresa", "2"}})) {
            LTexto += LChave.Json + " ";
            // The company is no argument of the event.
            EXPECT_EQ(1u, LChave.Argumentos.size());
            EXPECT_NO_THROW(ConstruirEvento(LEvento, LChave.Argumentos));
        }
        EXPECT_EQ(LEsperado, LTexto) << LEvento;
    }
}

TEST_F(TTesteChavesDoLote, SemVinculoPelaCategoriaECadaEventoDoVinculoPeloSeuRegistro)
{
    // The categories that the payments know are without a bond, and so is every one from 700 on.
    int LId = 20;
    for (const char* LCodigo : {"101", "158", "201", "301", "401", "410", "701", "723.1", "901", "903"}) {
        Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", ++LId}, {"CODIGO", LCodigo}});
        Inserir("EMPREGADOS", {{"IDEMPREGADO", LId},
                               {"IDEMPRESA", 2},
                               {"IDCATEGORIAESOCIAL", LId},
                               {"DATA_DEMISSAO", LId % 2 == 0 ? TValorSql(D(2021, 3, 31)) : TValorSql(nullptr)}});
    }
    Inserir("EMPREGADOS", {{"IDEMPREGADO", 40}, {"IDEMPRESA", 2}, {"DATA_DEMISSAO", D(2021, 3, 1)}});
    Inserir("EMPREGADOS", {{"IDEMPREGADO", 50}, {"IDEMPRESA", 1}, {"IDCATEGORIAESOCIAL", 29}});
    for (const int LDono : {21, 50})
        for (const int LMais : {2, 1}) {
            const int LNumero = LDono * 10 + LMais;
            const TValorSql LSoNoPrimeiro = LMais == 1 ? TValorSql(D(2021, 3, 31)) : TValorSql(nullptr);
            Inserir("SITUACOES", {{"IDSITUACAO", LNumero},
                                  {"IDEMPREGADO", LDono},
                                  {"DATA", D(2021, 3, 1)},
                                  {"DATA_FIM", LSoNoPrimeiro},
                                  {"IDESOCIALTABELA18", 21}});
            Inserir("FP_AVISOPREVIO", {{"IDAVISOPREVIO", LNumero}, {"IDEMPREGADO", LDono}});
            for (int LVez = 0; LVez < 2; ++LVez)
                Inserir("FP_CONTRAINTERM", {{"IDEMPREGADO", LDono}, {"DATACONVOCACAO", D(2021, 3, LMais)}});
            Inserir("SC00_ESOCIALREINFXML", {{"IDESOCIALREINFXML", LNumero},
                                             {"IDEMPRESA", LDono == 50 ? 1 : 2},
                                             {"TPEVENTO", "S-2300"},
                                             {"TPAMB", LMais}});
            for (const int LStatus : {401, 201, 202})
                Inserir("SC00_ESOCIALREINFDET", {{"IDEVENTO", LNumero}, {"STATUS", LStatus}});
        }
    // Accepted with a warning.
    Inserir("SC00_ESOCIALREINFXML", {{"IDESOCIALREINFXML", 9}, {"IDEMPRESA", 2}, {"TPEVENTO", "S-2300"}, {"TPAMB", 1}});
    Inserir("SC00_ESOCIALREINFDET", {{"IDEVENTO", 9}, {"STATUS", 202}});
    // Neither a situation that is no leave nor an event that was refused.
    Inserir("SITUACOES",
            {{"IDSITUACAO", 3}, {"IDEMPREGADO", 21}, {"DATA", D(2021, 3, 1)}, {"DATA_FIM", D(2021, 3, 2)}});
    Inserir("SC00_ESOCIALREINFXML", {{"IDESOCIALREINFXML", 3}, {"IDEMPRESA", 2}, {"TPEVENTO", "S-2300"}, {"TPAMB", 1}});
    Inserir("SC00_ESOCIALREINFDET", {{"IDEVENTO", 3}, {"STATUS", 401}});

    using TArgumentos = std::map<std::string, std::string>;
    const TArgumentos LPeriodo{
        {"DataInicio", "2021-03-01"}, {"DataFim", "2021-03-31"}, {"ADataInicioEventosPeriodicos", "2018-05-01"}};
    for (auto [LEvento, LArgumentos, LEsperado] :
         {std::tuple<const char*, TArgumentos, const char*>{"S-2100", {{"ADataGeracao", "2021-03-31"}}, "21 24 40 "},
          {"S-2190", {}, "21 24 40 "},
          {"S-2205", {}, "21 22 23 24 25 26 27 28 29 30 40 "},
          {"S-2206", {{"AData", "2021-03-31"}}, "21 24 40 "},
          {"S-2300", {{"ADataGeracao", "2021-03-31"}}, "22 23 25 26 27 28 29 30 "},
          {"S-2306", {{"adata", "2021-03-31"}}, "22 23 25 26 27 28 29 30 "},
          {"S-2399", LPeriodo, "22 26 28 30 "},
          {"S-2299", LPeriodo, "24 40 "},
          {"S-2230", {{"ATipoEvento", "1"}}, "211 212 "},
          {"S-2230", {{"ATipoEvento", "2"}}, "211 "},
          {"S-2250", {}, "211 212 "},
          {"S-2260",
           {},
           R"({"AIdEmpregado":21,"ADataInicio":"2021-03-01"} {"AIdEmpregado":21,"ADataInicio":"2021-03-02"} )"},
          {"S-3000", {}, "9 211 "}}) {
        LArgumentos["IdEmpresa"] = "2";
        std::string LTexto;
        for (const auto& LChave : BuscarChavesDoLote(LEvento, LArgumentos)) {
            LTexto += LChave.Json + " ";
            EXPECT_NO_THROW(ConstruirEvento(LEvento, LChave.Argumentos)) << LEvento;
        }
        EXPECT_EQ(LEsperado, LTexto) << LEvento;
    }
}

TEST_F(TTesteChavesDoLote, HorariosPelosDiasComHorasEPelosDetalhes)
{
    Inserir("SC00_EMPRESA", {{"IDEMPRESA", 1}});
    Inserir("TAB_HORARIOS", {{"IDHORARIO", 1}, {"DURJORNADADOM", 0}, {"DURJORNADASEG", 480}, {"DURJORNADASAB", 240}});
    Inserir("TAB_HORARIOS", {{"IDHORARIO", 2}, {"DURJORNADADOM", 360}});
    Inserir("TAB_HORARIOSDET", {{"IDHORARIODET", 7}, {"IDHORARIO", 1}});
    std::string LTexto;
    for (const auto& LChave : BuscarChavesDoLote("S-1050", {{"IdEmpresa", "1"}}))
        for (const char* LNome : {"AIdHorario", "AIdHorarioDet", "ADiaSemana"})
            LTexto += LChave.Argumentos.at(LNome) + (LNome[1] == 'D' ? " " : ",");
    EXPECT_EQ("1,0,1 1,0,6 1,7,0 2,0,0 ", LTexto);
}

TEST_F(TTesteChavesDoLote, ArgumentoErradoOuEventoSemLote)
{
    EXPECT_THROW(BuscarChavesDoLote("S-1000", {}), EArgumentoInvalido);
    EXPECT_THROW(BuscarChavesDoLote("S-9999", {}), EArgumentoInvalido);
    EXPECT_THROW(BuscarChavesDoLote("S-1200", {{"IdEmpresa", "1"}, {"DataInicio", "2021-03-01"}}), EArgumentoInvalido);
    EXPECT_THROW(
        BuscarChavesDoLote("S-1200",
                           {{"IdEmpresa", "1"}, {"DataInicio", "2021-03-01"}, {"DataFim", "2021-03-31"}, {"Cpf", "1"}}),
        EArgumentoInvalido)
        << "the batch fills the CPF";
    for (const char* LIndicador : {"2", "-1", "x"})
        EXPECT_THROW(BuscarChavesDoLote("S-1200", {{"IdEmpresa", "1"},
                                                   {"DataInicio", "2021-03-01"},
                                                   {"DataFim", "2021-03-31"},
                                                   {"IndApuracao", LIndicador}}),
                     EArgumentoInvalido);
}

class TTesteLoteDoExemplo : public TTesteComExemplo {};

TEST_F(TTesteLoteDoExemplo, CadaChaveDaEmpresaCarrega)
{
    for (const auto& LEvento : CatalogoDeEventos()) {
        if (!LEvento.Lote)
            continue;
        std::map<std::string, std::string> LArgumentos;
        for (const auto& LArgumento : LEvento.Lote->Argumentos)
            if (LArgumento.Obrigatorio)
                LArgumentos[LArgumento.Nome] = LArgumento.Tipo != TTipoArgumento::taData           ? "1"
                                               : std::string_view(LArgumento.Nome) == "DataInicio" ? "2021-03-01"
                                                                                                   : "2021-03-31";
        const auto LChaves = BuscarChavesDoLote(LEvento.Codigo, LArgumentos);
        EXPECT_FALSE(LChaves.empty()) << LEvento.Codigo;
        std::set<std::string> LDistintas;
        for (const auto& LChave : LChaves) {
            EXPECT_TRUE(LDistintas.insert(LChave.Json).second) << LEvento.Codigo << " twice: " << LChave.Json;
            EXPECT_NO_THROW(ConstruirEvento(LEvento.Codigo, LChave.Argumentos).Evento->CarregarDados())
                << LEvento.Codigo << " " << LChave.Json;
        }
    }
}

} // namespace
} // namespace tarvo::testes
