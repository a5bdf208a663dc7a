#include <set>

#include "imports/UnOvraExcecoes.h"
#include "imports/valores/UnOvraConversoes.h"
#include "tabelas/UnLugarDeTeste.h"
#include "tabelas/estabelecimento/UnTarvoESocialCamposTipoInscricao1005.h"
#include "tabelas/s1005/UnTarvoESocialCamposS1005.h"

namespace tarvo::testes {
namespace {

using namespace tabelas;

const auto HOJE = D(2021, 3, 1);
constexpr regras::TChaveDeConfiguracao RAT{90, 51, 3};
constexpr regras::TChaveDeConfiguracao FAP{90, 51, 1};
constexpr regras::TChaveDeConfiguracao FAP_DA_EMPRESA{90, 18, 1};
constexpr regras::TChaveDeConfiguracao APRENDIZES{90, 58, 1};

class TTesteTipoInscricao1005 : public TTesteComLugar {
protected:
    static std::string Buscar(std::int64_t AIdEstab, std::int64_t AIdDepto)
    {
        const TTarvoESocialCamposTipoInscricao1005 LInscricao(AIdEstab, AIdDepto);
        return std::to_string(static_cast<int>(LInscricao.TipoInscricao)) + " " + LInscricao.Inscricao;
    }
};

TEST_F(TTesteTipoInscricao1005, ODepartamentoVenceQuandoOsDoisSaoDados)
{
    EXPECT_EQ("0 11222333000181", Buscar(1, 0));
    EXPECT_EQ("3 512345678901", Buscar(0, 10));
    EXPECT_EQ("3 512345678901", Buscar(1, 10));
    EXPECT_EQ("0 ", Buscar(0, 0));
    EXPECT_EQ("0 ", Buscar(1, 99));
}

TEST_F(TTesteTipoInscricao1005, OTipoVemDoCodigoDoLugar)
{
    for (const auto& [LCodigo, LTipo] : {std::pair{1, "0"}, {2, "3"}, {3, "3"}, {4, "0"}, {0, "0"}}) {
        Executar("UPDATE SC00_FILIAL SET TPINSCRICAO = " + std::to_string(LCodigo));
        EXPECT_EQ(std::string(LTipo) + " 11222333000181", Buscar(1, 0)) << LCodigo;
    }
}

TEST_F(TTesteTipoInscricao1005, CaepfAntesDoCeiAntesDoCnpj)
{
    Executar("UPDATE SC00_FILIAL SET MATRICULACEI = '512345678999'");
    EXPECT_EQ("0 512345678999", Buscar(1, 0));
    Executar("UPDATE SC00_FILIAL SET MATRICULACAEPF = '31245678900144'");
    // Of a company with CNPJ: the number is the CAEPF, the kind is still the place's own.
    EXPECT_EQ("0 31245678900144", Buscar(1, 0));
    Executar("UPDATE SC00_EMPRESA SET TPINSCRICAO = 2");
    EXPECT_EQ("2 31245678900144", Buscar(1, 0));
    // A department has no CAEPF of its own.
    EXPECT_EQ("3 512345678901", Buscar(0, 10));
    Executar("UPDATE SC00_FILIAL SET MATRICULACAEPF = '', MATRICULACEI = ''");
    EXPECT_EQ("0 11222333000181", Buscar(1, 0));
}

class TTesteS1005 : public TTesteComLugar {
protected:
    static std::unique_ptr<TTarvoESocialCamposS1005> CarregarEstab(TDateTime AData = HOJE)
    {
        return Carregar<TTarvoESocialCamposS1005>(1, 0, AData);
    }
    static std::unique_ptr<TTarvoESocialCamposS1005> CarregarDepto(TDateTime AData = HOJE)
    {
        return Carregar<TTarvoESocialCamposS1005>(0, 10, AData);
    }
    static std::string Aliquotas(const TTarvoESocialCamposS1005& AEvento)
    {
        const auto& LGrupo = AEvento.InfoEstab.DadosEstab.AliqGilRat;
        return LGrupo.AliqRat + "/" + FloatToStr(LGrupo.Fap);
    }
    static std::string Processo(const TTarvoESocialCamposProcAdmJud& AGrupo)
    {
        return std::to_string(AGrupo.IdSPPROC) + "/" + AGrupo.TpProc + "/" + AGrupo.NrProc + "/" + AGrupo.CodSusp +
               "/" + AGrupo.IndMatProc;
    }
    static std::string ProcessoDoRat(const TTarvoESocialCamposS1005& AEvento)
    {
        return Processo(AEvento.InfoEstab.DadosEstab.AliqGilRat.ProcAdmJudRat);
    }
    static std::string ProcessoDoFap(const TTarvoESocialCamposS1005& AEvento)
    {
        return Processo(AEvento.InfoEstab.DadosEstab.AliqGilRat.ProcAdmJudFap);
    }
    using TTesteComLugar::Processo;

    /// Everything that a configuration row of the place decides, in one text.
    static std::string Configuracao(const TTarvoESocialCamposS1005& AEvento)
    {
        const auto& LDados = AEvento.InfoEstab.DadosEstab;
        const auto& LApr = LDados.InfoTrab.InfoApr;
        return Aliquotas(AEvento) + " " + LDados.InfoCaepf.tpCaepf + " " + LDados.InfoObra.IndSubstPatrObra + " " +
               LDados.InfoTrab.RegPt + " " + LApr.contApr + "," + LApr.nrProcJud + "," + LApr.contEntEd + " " +
               LDados.InfoTrab.InfoPCD.ContPCD + "," + LDados.InfoTrab.InfoPCD.NrProcJud;
    }
};

TEST_F(TTesteS1005, OEstabelecimentoVenceQuandoOsDoisSaoDados)
{
    for (const auto LTabela : {regras::SC00_FILIALCFG, regras::SC00_DEPARTAMENTOCFG}) {
        const char* LNivel = LTabela.Nome == "SC00_FILIALCFG" ? "1" : "2";
        Configurar(LTabela, {90, 7, 1}, SEMPRE, LNivel);
        Configurar(LTabela, RAT, SEMPRE, LNivel);
        Configurar(LTabela, APRENDIZES, SEMPRE, LNivel, nullptr, "S");
    }
    const auto Resumo = [](std::int64_t AEstab, std::int64_t ADepto) {
        const auto LEvento = Carregar<TTarvoESocialCamposS1005>(AEstab, ADepto, HOJE);
        return LEvento->InfoEstab.IdeEstab.NrInsc + " " + Configuracao(*LEvento);
    };
    EXPECT_EQ("11222333000181 1/0  0 1 1,,S ,", Resumo(1, 0));
    EXPECT_EQ("11222333000181 1/0  0 1 1,,S ,", Resumo(1, 10));
    EXPECT_EQ("512345678901 2/0  0 2 2,,S ,", Resumo(0, 10));
    EXPECT_EQ(" /0  0  ,, ,", Resumo(0, 0));
}

TEST_F(TTesteS1005, InscricaoDoEstabelecimentoIgnoraEspacos)
{
    const auto Buscar = [] {
        const auto LGrupo = Carregar<TTarvoESocialCamposIdeEstab>(1, 10);
        return LGrupo->NrInsc + "/" + LGrupo->MatriculaCAEPF + "/" + LGrupo->MatriculaCEI + "/" + LGrupo->TpInscEmp;
    };
    for (const auto& [LCaepf, LCei, LEsperado] : {std::tuple{"'900'", "'500'", "900/900/500/1"},
                                                  {"'  '", "'500'", "500//500/1"},
                                                  {"NULL", "' '", "11222333000181///1"},
                                                  {"NULL", "NULL", "11222333000181///1"}}) {
        Executar(std::string("UPDATE SC00_FILIAL SET MATRICULACAEPF = ") + LCaepf + ", MATRICULACEI = " + LCei);
        EXPECT_EQ(LEsperado, Buscar());
    }
    EXPECT_TRUE(Carregar<TTarvoESocialCamposIdeEstab>(1, 0)->IniValid.Vazia());

    const auto LDepto = Carregar<TTarvoESocialCamposIdeEstab>(0, 10);
    EXPECT_EQ("3 512345678901 ", LDepto->TpInsc + " " + LDepto->NrInsc + " " + LDepto->TpInscEmp);
    EXPECT_EQ(D(2020, 2, 3), LDepto->IniValid);
    EXPECT_TRUE(LDepto->FimValid.Vazia());
}

TEST_F(TTesteS1005, ALinhaNaoValeMaisNoDiaDoSeuFim)
{
    const TValidade LValidade{D(2020, 1, 1), D(2020, 6, 30)};
    Processo(5, "P5");
    Configurar(regras::SC00_EMPRESACFG, {1, 1, 1}, LValidade, "2062");
    Configurar(regras::SC00_EMPRESACFG, {90, 38, 14}, LValidade, "7", "5");
    Configurar(regras::SC00_EMPRESACFG, FAP_DA_EMPRESA, LValidade, "0,5");
    Configurar(regras::SC00_FILIALCFG, RAT, LValidade, "3");
    for (const auto LTabela : {regras::SC00_FILIALCFG, regras::SC00_DEPARTAMENTOCFG}) {
        Configurar(LTabela, {90, 7, 1}, LValidade, "2");
        Configurar(LTabela, APRENDIZES, LValidade, "4", "5", "S");
    }
    Configurar(regras::SC00_DEPARTAMENTOCFG, {90, 40, 1}, LValidade, "1");

    const std::string LFora = "/0  0  ,, ,";
    for (const auto LData : {D(2019, 12, 31), D(2020, 6, 30), D(2020, 7, 1)}) {
        EXPECT_EQ(LFora, Configuracao(*CarregarEstab(LData)));
        EXPECT_EQ(LFora, Configuracao(*CarregarDepto(LData)));
    }
    for (const auto LData : {D(2020, 1, 1), D(2020, 6, 29)}) {
        EXPECT_EQ("3/0,5 2062 0 2 4,P5,S 7,P5", Configuracao(*CarregarEstab(LData)));
        EXPECT_EQ("3/0,5 2062 1 2 4,P5,S 7,P5", Configuracao(*CarregarDepto(LData)));
    }
}

TEST_F(TTesteS1005, NemAsAliquotasProcessosEFapDeCadaNivelValemNoDiaDoFim)
{
    const TValidade LValidade{D(2020, 1, 1), D(2020, 6, 30)};
    Processo(2, "P2");
    Processo(3, "P3");
    Processo(4, "P4");
    Configurar(regras::SC00_FILIALCFG, FAP, LValidade, "1,75", "2");
    Configurar(regras::SC00_FILIALCFG, RAT, LValidade, "3", "3");
    const auto Resumo = [](const TTarvoESocialCamposS1005& AEvento) {
        return Aliquotas(AEvento) + " " + ProcessoDoRat(AEvento) + " " + ProcessoDoFap(AEvento);
    };
    const std::string LFora = "/0 0//// 0////";
    for (const auto LData : {D(2020, 1, 1), D(2020, 6, 29)}) {
        EXPECT_EQ("3/1,75 3/2/P3//1 2/2/P2//1", Resumo(*CarregarEstab(LData)));
        EXPECT_EQ("3/1,75 3/2/P3// 2/2/P2//1", Resumo(*CarregarDepto(LData)));
    }
    for (const auto LData : {D(2019, 12, 31), D(2020, 6, 30)}) {
        EXPECT_EQ(LFora, Resumo(*CarregarEstab(LData)));
        EXPECT_EQ(LFora, Resumo(*CarregarDepto(LData)));
    }
    // The department's own rate and process.
    Configurar(regras::SC00_DEPARTAMENTOCFG, RAT, LValidade, "2", "4");
    EXPECT_EQ("2/1,75 4/2/P4// 2/2/P2//1", Resumo(*CarregarDepto(D(2020, 6, 29))));
    EXPECT_EQ(LFora, Resumo(*CarregarDepto(D(2020, 6, 30))));
}

TEST_F(TTesteS1005, AsEntidadesEducacionaisAindaValemNoDiaDoFim)
{
    Inserir("PREST_SERVICO", {{"IDPRESTSERVICO", 8}, {"INSCRICAO", "88112233000127"}});
    Inserir("PREST_SERVICO", {{"IDPRESTSERVICO", 9}, {"INSCRICAO", "99112233000109"}});
    Configurar(regras::SC00_FILIALCFG, APRENDIZES, {D(2020, 1, 1), D(2020, 6, 30)}, "4");
    Configurar(regras::SC00_DEPARTAMENTOCFG, APRENDIZES, {D(2020, 1, 1), D(2020, 6, 30)}, "5");
    const auto LDaFilial = std::stoi(Consultar("SELECT IDFILIALCFG FROM SC00_FILIALCFG"));
    const auto LDoDepto = std::stoi(Consultar("SELECT IDDEPARTAMENTOCFG FROM SC00_DEPARTAMENTOCFG"));
    const auto Entidade = [](const char* AColuna, int AId, int ATp, const char* APrestador) {
        Inserir("FP_INFOGERALCFG",
                {{AColuna, AId}, {"ORIGEM", 90}, {"ESPECIE", 58}, {"TP", ATp}, {"INFORMACAO1", APrestador}});
    };
    Entidade("IDFILIALCFG", LDaFilial, 1, "8");
    Entidade("IDFILIALCFG", LDaFilial, 1, "9");
    Entidade("IDFILIALCFG", LDaFilial, 2, "8");
    Entidade("IDFILIALCFG", LDaFilial + 1000, 1, "8");
    for (const char* LOutro : {"ORIGEM = 91", "ESPECIE = 57"}) {
        Entidade("IDFILIALCFG", LDaFilial, 1, "8");
        Executar(std::string("UPDATE FP_INFOGERALCFG SET ") + LOutro +
                 " WHERE IDINFOGERALCFG = (SELECT MAX(IDINFOGERALCFG) FROM FP_INFOGERALCFG)");
    }
    Entidade("IDDEPARTAMENTOCFG", LDoDepto, 1, "9");
    // A child that names a provider that doesn't exist is there all the same.
    Entidade("IDDEPARTAMENTOCFG", LDoDepto, 1, "77");

    const auto Resumo = [](std::int64_t AEstab, std::int64_t ADepto, TDateTime AData) {
        const auto LGrupo = Carregar<TTarvoESocialCamposInfoApr>(AEstab, ADepto, AData);
        std::multiset<std::string> LInscricoes;
        for (const auto& LItem : LGrupo->InfoEntEduc)
            LInscricoes.insert(LItem->nrInsc);
        std::string LTexto = LGrupo->contApr + ":";
        for (const auto& LInscricao : LInscricoes)
            LTexto += " " + LInscricao;
        return LTexto;
    };
    EXPECT_EQ("4: 88112233000127 99112233000109", Resumo(1, 0, D(2020, 6, 29)));
    EXPECT_EQ(": 88112233000127 99112233000109", Resumo(1, 0, D(2020, 6, 30)));
    EXPECT_EQ(":", Resumo(1, 0, D(2020, 7, 1)));
    EXPECT_EQ(":", Resumo(1, 0, D(2019, 12, 31)));
    EXPECT_EQ(":  99112233000109", Resumo(0, 10, D(2020, 6, 30)));

    // The list is that of the construction: a load neither doubles it nor reads it again.
    TTarvoESocialCamposInfoApr LGrupo(1, 0, D(2020, 3, 1));
    ASSERT_EQ(2U, LGrupo.InfoEntEduc.size());
    EXPECT_EQ("", LGrupo.contApr);
    Executar("DELETE FROM FP_INFOGERALCFG");
    LGrupo.CarregarDados();
    EXPECT_EQ(2U, LGrupo.InfoEntEduc.size());
    EXPECT_EQ("4", LGrupo.contApr);
}

TEST_F(TTesteS1005, DeDuasLinhasNoMesmoDiaAsEntidadesSaoDaMaisNova)
{
    Inserir("PREST_SERVICO", {{"IDPRESTSERVICO", 8}, {"INSCRICAO", "88112233000127"}});
    Inserir("PREST_SERVICO", {{"IDPRESTSERVICO", 9}, {"INSCRICAO", "99112233000109"}});
    for (const auto LTabela : {regras::SC00_FILIALCFG, regras::SC00_DEPARTAMENTOCFG}) {
        Configurar(LTabela, APRENDIZES, {D(2020, 6, 30), nullptr}, "5");
        Configurar(LTabela, APRENDIZES, {D(2020, 1, 1), D(2020, 6, 30)}, "4");
        const std::string LChave = LTabela.Nome == "SC00_FILIALCFG" ? "IDFILIALCFG" : "IDDEPARTAMENTOCFG";
        Executar("INSERT INTO FP_INFOGERALCFG (" + LChave + ", ORIGEM, ESPECIE, TP, INFORMACAO1) SELECT " + LChave +
                 ", ORIGEM, ESPECIE, TP, IIF(INFORMACAO1 = '5', '9', '8') FROM " + std::string(LTabela.Nome));
    }
    const auto Entidades = [](std::int64_t AEstab, std::int64_t ADepto, TDateTime AData) {
        const TTarvoESocialCamposInfoApr LGrupo(AEstab, ADepto, AData);
        std::string LTexto;
        for (const auto& LItem : LGrupo.InfoEntEduc)
            LTexto += LItem->nrInsc + " ";
        return LTexto;
    };
    for (const auto& [LEstab, LDepto] : {std::pair{1, 0}, {0, 10}}) {
        EXPECT_EQ("88112233000127 ", Entidades(LEstab, LDepto, D(2020, 6, 29)));
        EXPECT_EQ("99112233000109 ", Entidades(LEstab, LDepto, D(2020, 6, 30)));
    }
}

TEST_F(TTesteS1005, AtividadeMaisNovaDoEstabelecimentoEMaisAntigaDoDepartamento)
{
    Configurar(regras::SC00_FILIALCFG, {1, 1, 2}, {D(2019, 1, 1), D(2019, 12, 31)}, nullptr, "meio");
    Configurar(regras::SC00_FILIALCFG, {1, 1, 2}, {D(2018, 1, 1), D(2018, 12, 31)}, nullptr, "antiga");
    // Whatever the date: it hasn't even started.
    Configurar(regras::SC00_FILIALCFG, {1, 1, 2}, {D(2030, 1, 1), nullptr}, nullptr, "nova");
    Configurar(regras::SC00_FILIALCFG, {90, 1, 2}, {D(2031, 1, 1), nullptr}, nullptr, "outra origem");
    EXPECT_EQ("nova", CarregarEstab()->InfoEstab.DadosEstab.CnaePrep);
    EXPECT_EQ("antiga", CarregarDepto()->InfoEstab.DadosEstab.CnaePrep);
}

TEST_F(TTesteS1005, AliquotaEFapDescemDeNivelEmNivel)
{
    Configurar(regras::SC00_EMPRESACFG, FAP_DA_EMPRESA, SEMPRE, "0,5");
    // Without a rate an establishment has no FAP either; a department has.
    EXPECT_EQ("/0", Aliquotas(*CarregarEstab()));
    EXPECT_EQ("/0,5", Aliquotas(*CarregarDepto()));
    Configurar(regras::SC00_FILIALCFG, RAT, SEMPRE, "3");
    EXPECT_EQ("3/0,5", Aliquotas(*CarregarEstab()));
    EXPECT_EQ("3/0,5", Aliquotas(*CarregarDepto()));
    Configurar(regras::SC00_FILIALCFG, FAP, SEMPRE, "1,75");
    Configurar(regras::SC00_DEPARTAMENTOCFG, RAT, SEMPRE, "2");
    // A FAP of the department's own level is no setting of the system.
    Configurar(regras::SC00_DEPARTAMENTOCFG, FAP, SEMPRE, "9");
    EXPECT_EQ("3/1,75", Aliquotas(*CarregarEstab()));
    EXPECT_EQ("2/1,75", Aliquotas(*CarregarDepto()));
    Executar("UPDATE SC00_FILIALCFG SET INFORMACAO1 = NULL WHERE TP = 1");
    EXPECT_EQ("3/0,5", Aliquotas(*CarregarEstab()));

    const auto LEvento = CarregarDepto();
    const auto& LGrupo = LEvento->InfoEstab.DadosEstab.AliqGilRat;
    EXPECT_EQ(0.0, LGrupo.AliqRatAjust);
    EXPECT_EQ(0, LGrupo.IdEstab);
    EXPECT_EQ(10, LGrupo.IdDepto);
}

TEST_F(TTesteS1005, DuasLinhasVigentesSaoErroDoBanco)
{
    Configurar(regras::SC00_FILIALCFG, RAT, SEMPRE, "3");
    Configurar(regras::SC00_FILIALCFG, FAP, SEMPRE, "1");
    Configurar(regras::SC00_FILIALCFG, FAP, {D(2021, 3, 1), nullptr}, "2");
    EXPECT_EQ("3/1", Aliquotas(*CarregarEstab(D(2021, 2, 28))));
    TTarvoESocialCamposS1005 LEvento(1, 0, HOJE);
    EXPECT_THROW(LEvento.CarregarDados(), EDatabaseError);
    // What stands before it in the tree is loaded.
    EXPECT_EQ("11222333000181", LEvento.InfoEstab.IdeEstab.NrInsc);
    EXPECT_EQ("", LEvento.InfoEstab.DadosEstab.AliqGilRat.AliqRat);
}

TEST_F(TTesteS1005, ProcessoDoRatDoDepartamentoAntesDoEstabelecimento)
{
    Processo(3, "P3");
    Processo(4, "P4");
    Suspensao(31, 3, D(2020, 1, 1), "01");
    EXPECT_EQ("0////", ProcessoDoRat(*CarregarEstab()));
    EXPECT_EQ("0////", ProcessoDoRat(*CarregarDepto()));

    Configurar(regras::SC00_DEPARTAMENTOCFG, RAT, SEMPRE, "2");
    Configurar(regras::SC00_FILIALCFG, RAT, SEMPRE, "3", "3");
    // The department has a rate and no process; its subject is never selected.
    EXPECT_EQ("3/2/P3/01/1", ProcessoDoRat(*CarregarEstab()));
    EXPECT_EQ("3/2/P3/01/", ProcessoDoRat(*CarregarDepto()));

    // Column by column: the department's process without a suspension shows that of the establishment's.
    Executar("UPDATE SC00_DEPARTAMENTOCFG SET INFORMACAO2 = '4'");
    EXPECT_EQ("4/2/P4/01/", ProcessoDoRat(*CarregarDepto()));
    Suspensao(41, 4, D(2020, 1, 1), "04");
    EXPECT_EQ("4/2/P4/04/", ProcessoDoRat(*CarregarDepto()));
    Executar("DELETE FROM SC00_FILIALCFG");
    EXPECT_EQ("4/2/P4/04/", ProcessoDoRat(*CarregarDepto()));
    EXPECT_EQ("0////", ProcessoDoRat(*CarregarEstab()));
}

TEST_F(TTesteS1005, ProcessoDoFapComASuspensaoMaisNova)
{
    Processo(2, "P2");
    Configurar(regras::SC00_FILIALCFG, FAP, SEMPRE, "1", "");
    EXPECT_EQ("0////", ProcessoDoFap(*CarregarEstab()));
    EXPECT_EQ("0////", ProcessoDoFap(*CarregarDepto()));
    Executar("UPDATE SC00_FILIALCFG SET INFORMACAO2 = '2'");
    EXPECT_EQ("2/2/P2//1", ProcessoDoFap(*CarregarEstab()));
    Suspensao(21, 2, D(2020, 1, 1), "01");
    Suspensao(22, 2, D(2020, 6, 1), "02");
    Suspensao(23, 2, D(2019, 1, 1), "03");
    EXPECT_EQ("2/2/P2/02/1", ProcessoDoFap(*CarregarEstab()));
    // The department takes it from its establishment, subject included.
    Configurar(regras::SC00_DEPARTAMENTOCFG, FAP, SEMPRE, "1", "99");
    EXPECT_EQ("2/2/P2/02/1", ProcessoDoFap(*CarregarDepto()));
}

TEST_F(TTesteS1005, SoOsTrintaEDoisBitsBaixosContamNoCaepf)
{
    constexpr std::int64_t LAcima = std::int64_t{1} << 32;
    Configurar(regras::SC00_EMPRESACFG, {1, 1, 1}, SEMPRE, "2062");
    for (const auto& [LEstab, LDepto, LEsperado] : {std::tuple{LAcima + 1, std::int64_t{0}, "2062"},
                                                    {LAcima, std::int64_t{10}, "2062"},
                                                    {LAcima, LAcima + 10, "2062"},
                                                    {LAcima + 2, std::int64_t{10}, ""},
                                                    {LAcima, std::int64_t{0}, ""}})
        EXPECT_EQ(LEsperado, Carregar<TTarvoESocialCamposInfoCaepf>(LEstab, LDepto, HOJE)->tpCaepf);
}

TEST_F(TTesteS1005, ObraSoDeDepartamentoEComPadrao)
{
    Configurar(regras::SC00_FILIALCFG, {90, 40, 1}, SEMPRE, "9");
    Configurar(regras::SC00_DEPARTAMENTOCFG, {90, 40, 1}, SEMPRE, "2");
    TTarvoESocialCamposInfoObra LObra(1, 10, HOJE);
    EXPECT_EQ("", LObra.IndSubstPatrObra);
    LObra.CarregarDados();
    // Here the department counts even beside an establishment.
    EXPECT_EQ("2", LObra.IndSubstPatrObra);
    Executar("DELETE FROM SC00_DEPARTAMENTOCFG");
    LObra.CarregarDados();
    EXPECT_EQ("0", LObra.IndSubstPatrObra);
    EXPECT_EQ("0", Carregar<TTarvoESocialCamposInfoObra>(1, 0, HOJE)->IndSubstPatrObra);
}

TEST_F(TTesteS1005, CotaDePcdSoDaMatriz)
{
    Configurar(regras::SC00_EMPRESACFG, {90, 38, 14}, SEMPRE, "7");
    Inserir("SC00_FILIAL", {{"IDFILIAL", 2}, {"IDEMPRESA", 1}, {"EHMATRIZ", 0}});
    Inserir("SC00_FILIAL", {{"IDFILIAL", 3}, {"IDEMPRESA", 1}, {"EHMATRIZ", 1}});
    Inserir("SC00_DEPTO", {{"IDDEPTO", 11}, {"IDFILIAL", 1}});
    Inserir("SC00_DEPTO", {{"IDDEPTO", 20}, {"IDFILIAL", 2}});
    const auto Cota = [](std::int64_t AEstab, std::int64_t ADepto) {
        return Carregar<TTarvoESocialCamposInfoPCD>(AEstab, ADepto, HOJE)->ContPCD;
    };
    EXPECT_EQ("7", Cota(1, 0));
    EXPECT_EQ("7", Cota(0, 10));
    EXPECT_EQ("", Cota(2, 0));
    EXPECT_EQ("", Cota(0, 20));
    // A head office without a department has no quota.
    EXPECT_EQ("", Cota(3, 0));
}

} // namespace
} // namespace tarvo::testes
