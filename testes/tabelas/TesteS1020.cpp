#include "imports/UnOvraExcecoes.h"
#include "tabelas/UnLugarDeTeste.h"
#include "tabelas/s1020/UnTarvoESocialCamposS1020.h"

namespace tarvo::testes {
namespace {

using namespace tabelas;

const auto DATA_DO_EVENTO = D(2021, 3, 1);
constexpr regras::TChaveDeConfiguracao FPAS_DO_ESTAB{90, 51, 2};
constexpr regras::TChaveDeConfiguracao FPAS_DO_DEPTO{90, 18, 2};
constexpr regras::TChaveDeConfiguracao CLASSIFICACAO{90, 38, 1};

class TTesteS1020 : public TTesteComLugar {
protected:
    static std::string Dados(std::int64_t AEstab, std::int64_t ADepto, TDateTime AData = DATA_DO_EVENTO)
    {
        const auto LGrupo = Carregar<TTarvoESocialCamposDadosLotacao>(AEstab, ADepto, AData);
        return LGrupo->tpLotacao + "/" + LGrupo->tpInsc + "/" + LGrupo->nrInsc;
    }
    static std::string Fpas(std::int64_t AEstab, std::int64_t ADepto, TDateTime AData = DATA_DO_EVENTO)
    {
        const auto LGrupo = Carregar<TTarvoESocialCamposFPASLotacao>(AEstab, ADepto, AData);
        return LGrupo->Fpas + "/" + LGrupo->CodTercs + "/" + LGrupo->CodTercsSusp;
    }
    /// Codes of the suspended entities, then the process and the suspension that they share.
    static std::string Suspensos(std::int64_t AEstab, std::int64_t ADepto)
    {
        const TTarvoESocialCamposInfoProcJudTerceiros LGrupo(AEstab, ADepto);
        std::string LTexto;
        for (const auto& LItem : LGrupo.ProcJudTerceiro)
            LTexto += LItem->codTerc + ",";
        return LGrupo.ProcJudTerceiro.empty() ? ""
                                              : LTexto + LGrupo.ProcJudTerceiro.back()->nrProcJud + "," +
                                                    std::to_string(LGrupo.ProcJudTerceiro.back()->codSusp);
    }

    /// FPAS 507 (id 77) with no entity at all, of the establishment and of the department.
    static void ConfigurarFpas()
    {
        Inserir("FP_FPASCODIGO", {{"IDFPASCODIGO", 77}, {"CODIGO", 507}});
        Inserir("FP_FPASPERCENTUAIS", {{"IDFPASCODIGO", 77}});
        // The rows have ended, or not begun: their dates don't matter.
        Configurar(regras::SC00_FILIALCFG, FPAS_DO_ESTAB, {D(2018, 1, 1), D(2018, 12, 31)}, "77", nullptr, nullptr,
                   "12");
        Configurar(regras::SC00_DEPARTAMENTOCFG, FPAS_DO_DEPTO, {D(2030, 1, 1), nullptr}, "507", "3");
        Configurar(regras::SC00_EMPRESACFG, CLASSIFICACAO, SEMPRE, "99");
    }
};

TEST_F(TTesteS1020, ODepartamentoVenceMasOsSuspensosSaoDoEstabelecimento)
{
    Processo(3, "P3");
    ConfigurarFpas();
    Executar("UPDATE SC00_FILIALCFG SET INFORMACAO9 = '3'");
    Executar("UPDATE SC00_DEPARTAMENTOCFG SET INFORMACAO3 = '3'");
    Executar("UPDATE FP_FPASPERCENTUAIS SET SENAI = 1, SESI = 1.5");
    const auto Resumo = [](std::int64_t AEstab, std::int64_t ADepto) {
        const auto LEvento = Carregar<TTarvoESocialCamposS1020>(AEstab, ADepto, DATA_DO_EVENTO);
        const auto& LLotacao = LEvento->InfoLotacao;
        std::string LTexto = LLotacao.IdeLotacao.codLotacao + " " + LLotacao.DadosLotacao.nrInsc + " " +
                             LLotacao.DadosLotacao.FpasLotacao.CodTercsSusp + ":";
        for (const auto& LItem : LLotacao.DadosLotacao.FpasLotacao.InfoProcJudTerceiros.ProcJudTerceiro)
            LTexto += " " + LItem->codTerc;
        return LTexto;
    };
    EXPECT_EQ("D10 512345678901 3: 2 1", Resumo(0, 10));
    EXPECT_EQ("D10 512345678901 3: 4 8", Resumo(1, 10));
    EXPECT_EQ("F1  12: 4 8", Resumo(1, 0));
    EXPECT_EQ("  :", Resumo(0, 0));
}

TEST_F(TTesteS1020, IdentificacaoTemInicioSoNoDepartamento)
{
    const auto LDepto = Carregar<TTarvoESocialCamposIdeLotacao>(1, 10);
    EXPECT_EQ("D10", LDepto->codLotacao);
    EXPECT_EQ(D(2020, 2, 3), LDepto->iniValid);
    EXPECT_TRUE(LDepto->fimValid.Vazia());
    EXPECT_TRUE(Carregar<TTarvoESocialCamposIdeLotacao>(1, 0)->iniValid.Vazia());
}

TEST_F(TTesteS1020, InscricaoDoDepartamentoOuDoContratante)
{
    Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", 50}, {"TABELA", 10}, {"CODIGO", "02"}});
    Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", 51}, {"TABELA", 11}, {"CODIGO", "99"}});
    const auto Definir = [](const std::string& AAtribuicao) { Executar("UPDATE SC00_DEPTO SET " + AAtribuicao); };
    for (const auto& [LCodigo, LTipo] : {std::pair{"1", "1"}, {"2", "2"}, {"3", "4"}, {"4", ""}, {"NULL", ""}}) {
        Definir(std::string("TIPODEPTO = 4, TPINSCRICAO = ") + LCodigo);
        EXPECT_EQ(std::string("/") + LTipo + "/512345678901", Dados(0, 10));
    }
    Definir("IDTIPOLOTACAO = 51");
    EXPECT_EQ("//512345678901", Dados(0, 10));
    Definir("IDTIPOLOTACAO = 50, TIPODEPTO = 5, TPINSCRICAO = 1");
    EXPECT_EQ("02//", Dados(0, 10));

    Definir("IDCONTRATANTE = 8");
    Inserir("PREST_SERVICO", {{"IDPRESTSERVICO", 8}, {"INSCRICAO", "INSC"}, {"CPF", "CPF"}});
    for (const auto& [LTipo, LEsperado] :
         {std::pair{"CNPJ", "1/INSC"}, {"NIT", "2/CPF"}, {"CEI", "4/INSC"}, {"CPF", "/INSC"}}) {
        Executar(std::string("UPDATE PREST_SERVICO SET TIPOINSCR = '") + LTipo + "'");
        EXPECT_EQ(std::string("02/") + LEsperado, Dados(0, 10));
    }
    // The contractor counts for partial contract work only.
    Definir("TIPODEPTO = 4");
    EXPECT_EQ("02/1/512345678901", Dados(0, 10));
}

TEST_F(TTesteS1020, OEstabelecimentoPrecisaDeUmaLinhaJaIniciada)
{
    constexpr regras::TChaveDeConfiguracao TIPO{90, 50, 1};
    Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", 50}, {"TABELA", 10}, {"CODIGO", "01"}});
    Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", 51}, {"TABELA", 10}, {"CODIGO", "21"}});
    EXPECT_EQ("//", Dados(1, 0));
    Configurar(regras::SC00_FILIALCFG, TIPO, {D(2019, 1, 1), D(2019, 1, 31)}, "50");
    Configurar(regras::SC00_FILIALCFG, TIPO, {D(2020, 1, 1), nullptr}, "51");
    for (const auto& [LData, LEsperado] : {std::pair{D(2018, 12, 31), "//"},
                                           {D(2019, 1, 1), "01/1/11222333000181"},
                                           // It has ended, and still counts.
                                           {D(2019, 12, 31), "01/1/11222333000181"},
                                           {D(2020, 1, 1), "21/1/11222333000181"}})
        EXPECT_EQ(LEsperado, Dados(1, 0, LData));
    // The suite's own code, where a department shows that of the layout.
    Executar("UPDATE SC00_FILIAL SET TPINSCRICAO = 3");
    EXPECT_EQ("21/3/11222333000181", Dados(1, 0));
    Executar("UPDATE FP_ESOCIALTABELA SET TABELA = 11");
    EXPECT_EQ("/3/11222333000181", Dados(1, 0)) << "a code of another table is no kind";
}

TEST_F(TTesteS1020, UmBitPorEntidadeComPercentual)
{
    ConfigurarFpas();
    EXPECT_EQ("507/0/12", Fpas(1, 0));
    EXPECT_EQ("507/0/3", Fpas(0, 10));
    int LBit = 1;
    for (const char* LEntidade : {"SALARIOEDUC", "INCRA", "SENAI", "SESI", "SENAC", "SESC", "SEBRAE", "DPC", "FAER",
                                  "SENAR", "SEST", "SENAT", "SESCOOP"}) {
        Executar(std::string("UPDATE FP_FPASPERCENTUAIS SET ") + LEntidade + " = 0.01");
        EXPECT_EQ("507/" + std::to_string(LBit) + "/12", Fpas(1, 0)) << LEntidade;
        EXPECT_EQ("507/" + std::to_string(LBit) + "/3", Fpas(0, 10)) << LEntidade;
        Executar(std::string("UPDATE FP_FPASPERCENTUAIS SET ") + LEntidade + " = 0");
        LBit *= 2;
    }
    Executar("UPDATE FP_FPASPERCENTUAIS SET SENAI = 1, SESI = 1.5");
    EXPECT_EQ("507/12/12", Fpas(1, 0));
    // The department takes out what its establishment takes out.
    Executar("UPDATE SC00_FILIALCFG SET INFORMACAO10 = '4'");
    EXPECT_EQ("507/8/12", Fpas(1, 0));
    EXPECT_EQ("507/8/3", Fpas(0, 10));
}

TEST_F(TTesteS1020, OEstabelecimentoGuardaOIdEODepartamentoOCodigo)
{
    ConfigurarFpas();
    Executar("UPDATE FP_FPASCODIGO SET CODIGO = 507.1");
    EXPECT_EQ("507,1/0/12", Fpas(1, 0));
    EXPECT_EQ("//", Fpas(0, 10));
    Executar("UPDATE SC00_DEPARTAMENTOCFG SET INFORMACAO1 = '507.1'");
    EXPECT_EQ("507,1/0/3", Fpas(0, 10));
    // Without the establishment's row a department has nothing.
    Executar("DELETE FROM SC00_FILIALCFG");
    EXPECT_EQ("//", Fpas(0, 10));
}

TEST_F(TTesteS1020, ClassificacaoTributariaVigenteNaData)
{
    ConfigurarFpas();
    Executar("UPDATE FP_FPASPERCENTUAIS SET INCRA = 0.2");
    for (const auto& [LClasse, LCodigo] :
         {std::pair{"01", "0"}, {"02", "0"}, {"03", "0"}, {"04", "0"}, {"05", "2"}, {"3", "2"}}) {
        Executar(std::string("UPDATE SC00_EMPRESACFG SET INFORMACAO1 = '") + LClasse + "'");
        EXPECT_EQ(std::string("507/") + LCodigo + "/12", Fpas(1, 0));
        EXPECT_EQ(std::string("507/") + LCodigo + "/3", Fpas(0, 10));
    }
    Executar("UPDATE SC00_EMPRESACFG SET DATAINICIO = '01.01.2020', DATAFIM = '30.06.2020'");
    for (const auto& [LData, LEsperado] : {std::pair{D(2019, 12, 31), "//"},
                                           {D(2020, 1, 1), "507/2/12"},
                                           // Here, unlike in S-1005, the last day still counts.
                                           {D(2020, 6, 30), "507/2/12"},
                                           {D(2020, 7, 1), "//"}})
        EXPECT_EQ(LEsperado, Fpas(1, 0, LData));
}

TEST_F(TTesteS1020, UmFilhoPorEntidadeSuspensa)
{
    Processo(3, "P3");
    Suspensao(31, 3, D(2020, 5, 1), "01");
    Suspensao(32, 3, D(2020, 7, 1), "02");
    Suspensao(33, 3, D(2020, 6, 1), "03");
    Configurar(regras::SC00_FILIALCFG, FPAS_DO_ESTAB, {D(2018, 1, 1), D(2018, 12, 31)}, nullptr, "99", "99", "0", "3");
    Configurar(regras::SC00_DEPARTAMENTOCFG, FPAS_DO_DEPTO, {D(2030, 1, 1), nullptr}, nullptr, "0", "3", "99", "99");
    for (const auto& [LCodigo, LEsperado] : {std::pair{"'0'", ""},
                                             {"NULL", ""},
                                             {"'1'", "1,P3,32"},
                                             {"'2'", "2,P3,32"},
                                             {"'3'", "2,1,P3,32"},
                                             {"'5'", "1,4,P3,32"},
                                             {"'8192'", "8192,P3,32"},
                                             {"'16384'", ""},
                                             {"'16383'", "2,1,4,8,16,32,64,128,256,512,1024,2048,4096,8192,P3,32"}}) {
        Executar(std::string("UPDATE SC00_FILIALCFG SET INFORMACAO8 = ") + LCodigo);
        Executar(std::string("UPDATE SC00_DEPARTAMENTOCFG SET INFORMACAO2 = ") + LCodigo);
        EXPECT_EQ(LEsperado, Suspensos(1, 0));
        EXPECT_EQ(LEsperado, Suspensos(1, 10));
        EXPECT_EQ(LEsperado, Suspensos(0, 10));
    }
}

TEST_F(TTesteS1020, SemProcessoNaoHaSuspensos)
{
    Configurar(regras::SC00_FILIALCFG, FPAS_DO_ESTAB, SEMPRE, nullptr, nullptr, nullptr, "3");
    EXPECT_EQ("", Suspensos(1, 0));
    Executar("UPDATE SC00_FILIALCFG SET INFORMACAO9 = ''");
    EXPECT_EQ("", Suspensos(1, 0));
    // The process needn't exist.
    Executar("UPDATE SC00_FILIALCFG SET INFORMACAO9 = '77'");
    EXPECT_EQ("2,1,,0", Suspensos(1, 0));
    EXPECT_EQ("", Suspensos(2, 0));

    TTarvoESocialCamposInfoProcJudTerceiros LGrupo(1, 0);
    Executar("DELETE FROM SC00_FILIALCFG");
    LGrupo.CarregarDados();
    EXPECT_EQ(2U, LGrupo.ProcJudTerceiro.size());
}

TEST_F(TTesteS1020, CodigoDeSuspensosQueNaoEhNumeroFalhaNaConstrucao)
{
    Configurar(regras::SC00_FILIALCFG, FPAS_DO_ESTAB, SEMPRE, nullptr, nullptr, nullptr, "doze", "3");
    EXPECT_THROW(TTarvoESocialCamposS1020(1, 0, DATA_DO_EVENTO), EDatabaseError);
    Executar("UPDATE SC00_FILIALCFG SET INFORMACAO8 = '1', INFORMACAO9 = 'P3'");
    EXPECT_THROW(TTarvoESocialCamposS1020(1, 0, DATA_DO_EVENTO), EConvertError);
    Executar("UPDATE SC00_FILIALCFG SET INFORMACAO8 = '0'");
    EXPECT_NO_THROW(TTarvoESocialCamposS1020(1, 0, DATA_DO_EVENTO));
}

TEST_F(TTesteS1020, EmpreitadaParcialSoDoDepartamento)
{
    Inserir("PREST_SERVICO", {{"IDPRESTSERVICO", 7}, {"TIPOINSCR", "NIT"}, {"INSCRICAO", "I7"}, {"CPF", "C7"}});
    Inserir("PREST_SERVICO", {{"IDPRESTSERVICO", 8}, {"TIPOINSCR", "CEI"}, {"INSCRICAO", "I8"}, {"CPF", "C8"}});
    const auto Buscar = [](std::int64_t AEstab, std::int64_t ADepto) {
        const auto LGrupo = Carregar<TTarvoESocialCamposInfoEmprParcial>(AEstab, ADepto);
        return LGrupo->tpDepto + " " + LGrupo->tpInscContrat + LGrupo->nrInscContrat + " " + LGrupo->tpInscProp +
               LGrupo->nrInscProp;
    };
    EXPECT_EQ("  ", Buscar(0, 10));
    Executar("UPDATE SC00_DEPTO SET TIPODEPTO = 1, IDCONTRATANTE = 7, IDPROPRIETARIOOBRA = 8");
    EXPECT_EQ("1 NITC7 CEII8", Buscar(0, 10));
    EXPECT_EQ("1 NITC7 CEII8", Buscar(1, 10));
    EXPECT_EQ("  ", Buscar(1, 0));
    Executar("UPDATE SC00_DEPTO SET IDCONTRATANTE = 8, IDPROPRIETARIOOBRA = 7");
    EXPECT_EQ("1 CEII8 NITC7", Buscar(0, 10));
}

} // namespace
} // namespace tarvo::testes
