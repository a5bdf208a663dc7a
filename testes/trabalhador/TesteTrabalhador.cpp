#include "apoio/UnBancoDeTeste.h"
#include "imports/UnOvraExcecoes.h"
#include "trabalhador/pessoa/UnTarvoESocialCamposTrabalhador.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposideVinculo.h"

namespace tarvo::testes {
namespace {

using namespace trabalhador;

constexpr int ID_EMPREGADO = 7;
constexpr const char* GUID_CONTATO = "{A8E43DBD-7104-4D97-8860-7DE8450A4E8F}";

class TTesteTrabalhador : public TTesteComBanco {
protected:
    void SetUp() override
    {
        TTesteComBanco::SetUp();
        Inserir("EMPREGADOS",
                {{"IDEMPREGADO", ID_EMPREGADO}, {"COD_EMPRESA", 1}, {"COD_EMPREGADO", 70}, {"NOME", "Ana"}});
    }

    void Definir(const std::string& ACampo, const TValorSql& AValor)
    {
        Executar("UPDATE EMPREGADOS SET " + ACampo + " = " + AValor.Texto());
    }

    void Tabela(int ATabela, const char* ACodigo, TValorSql AInformacao1 = nullptr, const char* ADescricao = "")
    {
        Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", ++FIdTabela},
                                     {"TABELA", ATabela},
                                     {"CODIGO", ACodigo},
                                     {"DESCRICAO", ADescricao},
                                     {"INFORMACAO1", AInformacao1}});
    }

    void Contato(int ATipo, const char* AContato)
    {
        Inserir("FP_EMPREGADOSCONTATO", {{"IDEMPREGADO", ID_EMPREGADO}, {"TIPOCONTATO", ATipo}, {"CONTATO", AContato}});
    }

    void Dependente(int AId, int AEmpresa, int AEmpregado, const char* ANome, TValorSql AIdTabela = nullptr)
    {
        Inserir("DEPENDENTES", {{"IDDEPENDENTE", AId},
                                {"COD_EMPRESA", AEmpresa},
                                {"COD_EMPREGADO", AEmpregado},
                                {"NOME", ANome},
                                {"IDESOCIALTABELA", AIdTabela}});
    }

    template <class T>
    std::unique_ptr<T> Carregar(std::int64_t AId = ID_EMPREGADO)
    {
        auto LGrupo = std::make_unique<T>(AId);
        LGrupo->CarregarDados();
        return LGrupo;
    }
    std::unique_ptr<TTarvoESocialCamposTrabalhador> Carregar() { return Carregar<TTarvoESocialCamposTrabalhador>(); }

    int FIdTabela = 0;
};

TEST_F(TTesteTrabalhador, EmpregadoInexistenteNadaPreenche)
{
    const auto LGrupo = Carregar<TTarvoESocialCamposTrabalhador>(99);
    EXPECT_EQ("", LGrupo->Nome + LGrupo->Contato.FoneCadEmpregado + LGrupo->Endereco.Brasil.NumeroLogrESocial);
    EXPECT_TRUE(LGrupo->Dependentes.empty());
    EXPECT_FALSE(LGrupo->Documentos.Cnh.PossuiInformacao());
    EXPECT_FALSE(LGrupo->Documentos.Rne.PossuiInformacao());
    EXPECT_TRUE(LGrupo->TrabEstrangeiro.PossuiInformacao());
    EXPECT_EQ(99, LGrupo->Nascimento.IdEmpregado());
    EXPECT_EQ(99, LGrupo->Documentos.Cnh.IdEmpregado());
}

TEST_F(TTesteTrabalhador, TextosDaFolhaViramCodigosCadaUmNaSuaTabela)
{
    // The same text stands in both tables, with different codes.
    Tabela(9993, "1", "02-Branca");
    Tabela(9994, "5", "02-Branca");
    Tabela(9994, "9", "2-Casado(a)");
    Tabela(9993, "2", "2-Casado(a)");
    Definir("RACACOR", "02-Branca");
    Definir("ESTADOCIVILLEGAL", "2-Casado(a)");
    Definir("GRAU_INSTR", "07-Médio completo");
    Definir("SEXO", "F - Feminino");
    auto LGrupo = Carregar();
    EXPECT_EQ("5", LGrupo->CodigoEsocialRacaCor);
    EXPECT_EQ("2", LGrupo->CodigoESocialEstadoCivil);
    EXPECT_EQ("Branca", LGrupo->RacaCorDesc);
    EXPECT_EQ("Médio completo", LGrupo->GrauInstrucaoDesc);
    EXPECT_EQ("Feminino", LGrupo->SexoDesc);
    EXPECT_EQ("2-Casado(a)", LGrupo->EstadoCivil);
    EXPECT_EQ("", LGrupo->EstadoCivilDesc);

    Definir("RACACOR", "02-branca");
    LGrupo = Carregar();
    EXPECT_EQ("", LGrupo->CodigoEsocialRacaCor);
    EXPECT_EQ("branca", LGrupo->RacaCorDesc);
}

TEST_F(TTesteTrabalhador, PaisesDeNascimentoENacionalidadeNaoSeMisturam)
{
    Inserir("CA06_PAIS", {{"IDPAIS", 31}, {"PAIS", 105}, {"NOME", "Brasil"}});
    Inserir("CA06_PAIS", {{"IDPAIS", 32}, {"PAIS", 63}, {"NOME", "Argentina"}});
    Tabela(6, "105");
    Tabela(6, "063");
    Tabela(7, "63");
    Definir("PAISNASCIMENTO", 32);
    Definir("PAISNACIONALIDADE", 31);
    const auto LNascimento = Carregar<TTarvoESocialCamposNascimento>();
    EXPECT_EQ(32, LNascimento->PaisNascimentoID);
    EXPECT_EQ(63, LNascimento->PaisNascimentoCodigo);
    EXPECT_EQ("Argentina", LNascimento->PaisNascimentoNome);
    EXPECT_EQ("063", LNascimento->CodigoESocialPaisNasc);
    EXPECT_EQ(31, LNascimento->PaisNacionalidadeID);
    EXPECT_EQ(105, LNascimento->PaisNacionalidadeCodigo);
    EXPECT_EQ("Brasil", LNascimento->PaisNacionalidadeNome);
    EXPECT_EQ("105", LNascimento->CodigoESocialPaisNascion);
    // The identity card takes the code of the country of birth where others take its id or its name.
    EXPECT_EQ(63, Carregar<TTarvoESocialCamposRg>()->PaisNascimento);
    EXPECT_EQ("ARGENTINA", Carregar<TTarvoESocialCamposRne>()->PaisNascimento);

    Tabela(6, "X");
    EXPECT_THROW(Carregar<TTarvoESocialCamposNascimento>(), EDatabaseError);
}

TEST_F(TTesteTrabalhador, CtpsSoComCategoriaNaTabelaDeCategorias)
{
    Tabela(1, "101");
    Tabela(3, "101");
    Definir("CTPS_NUMERO", "45001");
    const std::tuple<TValorSql, const char*, const char*> LCasos[] = {
        {nullptr, "", ""}, {1, "45001", "101"}, {2, "", ""}};
    for (const auto& [LCategoria, LNumero, LCodigo] : LCasos) {
        Definir("IDCATEGORIAESOCIAL", LCategoria);
        const auto LCtps = Carregar<TTarvoESocialCamposCtps>();
        EXPECT_EQ(LNumero, LCtps->Numero) << LCategoria.Texto();
        EXPECT_EQ(LCodigo, LCtps->CodCategoria) << LCategoria.Texto();
    }
}

TEST_F(TTesteTrabalhador, OrgaoEmissorDoRgPrecisaDeOrgaoEUf)
{
    const std::tuple<TValorSql, TValorSql, const char*> LCasos[] = {
        {"SSP", "SP", "SSPSP"}, {nullptr, "SP", ""}, {"SSP", nullptr, ""}, {"", "SP", "SP"}};
    for (const auto& [LOrgao, LUf, LEsperado] : LCasos) {
        Definir("ORGEXPRG", LOrgao);
        Definir("UF_RG", LUf);
        EXPECT_EQ(LEsperado, Carregar<TTarvoESocialCamposRg>()->OrgaoEmissor);
    }
}

TEST_F(TTesteTrabalhador, DocumentoComUmDadoSoJaPossuiInformacao)
{
    const std::pair<const char*, TValorSql> LDaCnh[] = {{"UFCNH", "SP"},
                                                        {"CART_NAC_HABILIT", "1"},
                                                        {"CAT_CART_HABILIT", "B"},
                                                        {"DATA_VENC_CNH", D(2024, 1, 1)},
                                                        {"DATAEXPEDICAOCNH", D(2019, 1, 1)},
                                                        {"DATAPRIMEIRACNH", D(2009, 1, 1)}};
    for (const auto& [LCampo, LValor] : LDaCnh) {
        Definir(LCampo, LValor);
        EXPECT_TRUE(Carregar<TTarvoESocialCamposCnh>()->PossuiInformacao()) << LCampo;
        Definir(LCampo, nullptr);
    }
    Definir("ORGAOEMISSORCNH", "DETRAN");
    EXPECT_FALSE(Carregar<TTarvoESocialCamposCnh>()->PossuiInformacao());

    const std::pair<const char*, TValorSql> LDoRne[] = {
        {"INSCRNE", "V1"}, {"ORGAOEMISSORRNE", "DPF"}, {"DATAEXPEDICAORNE", D(2016, 1, 1)}};
    for (const auto& [LCampo, LValor] : LDoRne) {
        Definir(LCampo, LValor);
        EXPECT_TRUE(Carregar<TTarvoESocialCamposRne>()->PossuiInformacao()) << LCampo;
        Definir(LCampo, nullptr);
    }
    Inserir("CA06_PAIS", {{"IDPAIS", 33}, {"NOME", "Gana"}});
    Definir("PAISNASCIMENTO", 33);
    EXPECT_FALSE(Carregar<TTarvoESocialCamposRne>()->PossuiInformacao());
}

TEST_F(TTesteTrabalhador, SoQuemNasceuNoBrasilNaoEhEstrangeiro)
{
    Inserir("CA06_PAIS", {{"IDPAIS", 31}, {"PAIS", 105}});
    const std::tuple<TValorSql, TValorSql, bool> LCasos[] = {
        {31, "brasil ", false}, {31, "BRASIL", false}, {31, "Brasil S/A", true}, {31, "", true},
        {31, nullptr, true},    {99, "Brasil", true},  {nullptr, "Brasil", true}};
    for (const auto& [LId, LNome, LEsperado] : LCasos) {
        Definir("PAISNASCIMENTO", LId);
        Executar("UPDATE CA06_PAIS SET NOME = " + LNome.Texto());
        EXPECT_EQ(LEsperado, Carregar<TTarvoESocialCamposTrabEstrangeiro>()->PossuiInformacao()) << LNome.Texto();
    }
}

TEST_F(TTesteTrabalhador, NumeroDoLogradouroNosDoisEnderecos)
{
    const std::tuple<TValorSql, const char*> LCasos[] = {{"12-A", "12-A"}, {"  ", "S/N"}, {"", "S/N"}, {nullptr, ""}};
    for (const auto& [LNumero, LEsperado] : LCasos) {
        Definir("NUM_END", LNumero);
        const auto LEndereco = Carregar<TTarvoESocialCamposEndereco>();
        EXPECT_EQ(LEsperado, LEndereco->Brasil.NumeroLogrESocial) << LNumero.Texto();
        EXPECT_EQ(LEsperado, LEndereco->Exterior.NrLograd) << LNumero.Texto();
    }
}

TEST_F(TTesteTrabalhador, CadaEnderecoTemSeusCadastros)
{
    Inserir("CA06_CODLOGRAD", {{"IDCODLOGRAD", 5}, {"CODLOGRAD", "081"}, {"DESCRICAO", "RUA"}, {"ABREVESOCIAL", "R"}});
    Tabela(6, "R", nullptr, "nada");
    Tabela(20, "R", nullptr, "Rua");
    Inserir("MUNICIPIOS", {{"COD_MUN", "9999901"}, {"NOME_MUN", "Fora do país"}});
    Inserir("CA06_PAIS", {{"IDPAIS", 33}, {"PAIS", 289}, {"NOME", "Gana"}});
    Inserir("CA06_MUNICIPIO",
            {{"CODIGOFEDERAL", "9999901"}, {"NOME", "Acra"}, {"CODIGOPOSTAL", "GA-100"}, {"IDPAIS", 33}});
    Definir("IDCODLOGRAD", 5);
    Definir("COD_MUN", "9999901");
    Definir("CEP", "13000-000");
    const auto LEndereco = Carregar<TTarvoESocialCamposEndereco>();
    EXPECT_EQ("081 RUA R Rua", LEndereco->Brasil.LogradouroTipoCodigo + " " +
                                   LEndereco->Brasil.LogradouroTipoDescricao + " " +
                                   LEndereco->Brasil.ESocialTipoLograd + " " + LEndereco->Brasil.ESocialDescr);
    EXPECT_EQ("Fora do país", LEndereco->Brasil.MunicipioDescricao);
    EXPECT_EQ("RUA", LEndereco->Exterior.DscLograd);
    EXPECT_EQ("Acra", LEndereco->Exterior.NmCid);
    EXPECT_EQ("GA-100", LEndereco->Exterior.CodPostal);
    EXPECT_EQ("13000-000", LEndereco->Exterior.Cep);
    EXPECT_EQ("289", LEndereco->Exterior.PaisResid);
    EXPECT_EQ("Gana", LEndereco->Exterior.PaisNome);
}

TEST_F(TTesteTrabalhador, DescricoesDaDeficienciaEDaAposentadoria)
{
    Definir("DEFICIENCIAESOCIAL", 9);
    const std::pair<TValorSql, const char*> LDeficiencias[] = {
        {0, "Não é Portador"}, {1, "Física"},      {2, "Auditiva"}, {3, "Visual"}, {4, "Intelectual (mental)"},
        {5, "Múltipla"},       {6, "Reabilitado"}, {7, ""},         {-1, ""},      {nullptr, ""}};
    for (const auto& [LTipo, LEsperado] : LDeficiencias) {
        Definir("TIPO_DEFICIENCIA", LTipo);
        const auto LGrupo = Carregar<TTarvoESocialCamposInfoDeficiencia>();
        EXPECT_EQ(LEsperado, LGrupo->TipoDeficienciaDesc) << LTipo.Texto();
        EXPECT_EQ(9, LGrupo->TipoDeficiencia);
    }
    const std::pair<TValorSql, const char*> LAposentadorias[] = {{71, "Aposentadoria por tempo de contribuição"},
                                                                 {78, "Aposentado por idade"},
                                                                 {80, "Aposentadoria especial"},
                                                                 {79, ""},
                                                                 {nullptr, ""}};
    for (const auto& [LCodigo, LEsperado] : LAposentadorias) {
        Definir("APOSENTADORIA", LCodigo);
        EXPECT_EQ(LEsperado, Carregar<TTarvoESocialCamposAposentadoria>()->DescAposent) << LCodigo.Texto();
    }
}

TEST_F(TTesteTrabalhador, DependentesSaoOsDoEmpregadoNaEmpresa)
{
    Tabela(7, "03", nullptr, "Filho");
    Tabela(1, "101", nullptr, "Empregado");
    Dependente(1, 1, 70, "Lia", 1);
    Dependente(2, 2, 70, "De outra empresa");
    Dependente(3, 1, 71, "De outro empregado");
    Dependente(4, 1, 70, "Noé", 2);
    const auto LGrupo = Carregar();
    ASSERT_EQ(2u, LGrupo->Dependentes.size());
    EXPECT_EQ("Lia", LGrupo->Dependentes[0]->Nome);
    EXPECT_EQ("Filho", LGrupo->Dependentes[0]->GrauDependenciaDesc);
    // A degree of another table is none.
    EXPECT_EQ("Noé", LGrupo->Dependentes[1]->Nome);
    EXPECT_EQ("", LGrupo->Dependentes[1]->GrauDependenciaCodigo);
}

TEST_F(TTesteTrabalhador, DependentesSaoRefeitosQualquerQueSejaALista)
{
    Dependente(1, 1, 70, "Lia");
    Definir("FONE", "3210");
    auto LGrupo = Carregar();
    Executar("UPDATE DEPENDENTES SET NOME = 'Lia Maria'");
    Definir("NOME", "Ana Maria");
    Definir("FONE", "4321");
    const TListaCamposModificados LLista{GUID_CONTATO};
    LGrupo->CarregarDados(&LLista);
    EXPECT_EQ("Ana", LGrupo->Nome);
    EXPECT_EQ("4321", LGrupo->Contato.FoneCadEmpregado);
    ASSERT_EQ(1u, LGrupo->Dependentes.size());
    EXPECT_EQ("Lia Maria", LGrupo->Dependentes[0]->Nome);

    LGrupo->CriarDependenteUnico();
    ASSERT_EQ(1u, LGrupo->Dependentes.size());
    EXPECT_EQ("", LGrupo->Dependentes[0]->Nome);
    LGrupo->CarregarDadosDeDependentes = false;
    LGrupo->CarregarDados();
    EXPECT_TRUE(LGrupo->Dependentes.empty());

    // The switches of the group itself stop neither.
    LGrupo->CarregarDadosDeDependentes = true;
    LGrupo->SetCarregarDadosDoGrupo(false);
    Definir("NOME", "Outra");
    LGrupo->CarregarDados();
    EXPECT_EQ("Ana Maria", LGrupo->Nome);
    EXPECT_EQ(1u, LGrupo->Dependentes.size());
}

TEST_F(TTesteTrabalhador, OsDoisPrimeirosFonesEEmailsQueContam)
{
    Definir("FONE", "3210");
    auto LContato = Carregar<TTarvoESocialCamposContato>();
    EXPECT_EQ("", LContato->FonePrincipal);
    EXPECT_EQ("3210", LContato->FoneCadEmpregado);

    Contato(3, "recado");
    Contato(1, "(  ) -");
    Contato(4, "");
    Contato(2, "(19) 9-1");
    Contato(4, "a@x");
    Contato(1, "(19) 9-2");
    Contato(1, "(19) 9-3");
    Contato(4, "-");
    Contato(4, "c@x");
    LContato->CarregarDados();
    EXPECT_EQ("(19) 9-1", LContato->FonePrincipal);
    EXPECT_EQ("(19) 9-2", LContato->FoneAlternativo);
    EXPECT_EQ("a@x", LContato->EmailPrincipal);
    // Nothing is cleaned away from an e-mail, so a hyphen counts.
    EXPECT_EQ("-", LContato->EmailAlternativo);

    Executar("DELETE FROM FP_EMPREGADOSCONTATO WHERE CONTATO <> '(19) 9-3'");
    Executar("UPDATE EMPREGADOS SET FONE = NULL");
    LContato->CarregarDados();
    EXPECT_EQ("(19) 9-3", LContato->FonePrincipal);
    EXPECT_EQ("", LContato->FoneAlternativo + LContato->EmailPrincipal + LContato->EmailAlternativo);
    EXPECT_EQ("3210", LContato->FoneCadEmpregado);
}

TEST_F(TTesteTrabalhador, OrdemDaCarga)
{
    Dependente(1, 1, 70, "Lia");
    std::vector<std::string> LOrdem;
    Conexao().DefinirObservador([&](const TExecucaoSql& AExecucao) {
        for (const char* LMarca :
             {"RACACOR.CODIGO", "PAIS_NASC.PAIS", "CTPS_NUMERO", "NUMERO_RG", "INSCRNE", "INSCOC", "CART_NAC_HABILIT",
              "MUNICIPIOS.NOME_MUN,", "CA06_MUNICIPIO", "CASADOBRASIL", "DEFICIENCIAOBS", "SELECT DEPENDENTES.ID",
              "DEPENDENTES.DEP_PERM", "APOSENTADORIA", "EMPREGADOS.FONE", "(1, 2)", "TIPOCONTATO = 4"})
            if (AExecucao.Sql.find(LMarca) != std::string_view::npos) {
                LOrdem.emplace_back(LMarca);
                return;
            }
        LOrdem.emplace_back(AExecucao.Sql);
    });
    Carregar();
    const std::vector<std::string> LEsperada{
        "RACACOR.CODIGO", "PAIS_NASC.PAIS",        "CTPS_NUMERO",          "NUMERO_RG",      "INSCRNE",
        "INSCOC",         "CART_NAC_HABILIT",      "MUNICIPIOS.NOME_MUN,", "CA06_MUNICIPIO", "CASADOBRASIL",
        "DEFICIENCIAOBS", "SELECT DEPENDENTES.ID", "DEPENDENTES.DEP_PERM", "APOSENTADORIA",  "EMPREGADOS.FONE",
        "(1, 2)",         "TIPOCONTATO = 4"};
    EXPECT_EQ(LEsperada, LOrdem);
}

TEST_F(TTesteTrabalhador, AListaAlcancaCadaGrupoESoEle)
{
    auto LGrupo = Carregar();
    auto& LDocumentos = LGrupo->Documentos;
    std::vector<std::string> LTextos;
    Conexao().DefinirObservador([&](const TExecucaoSql& AExecucao) { LTextos.emplace_back(AExecucao.Sql); });
    struct TCaso {
        const TTarvoESocialCamposGrupoBase& Grupo;
        const char* Marca;
        std::size_t Quantidade = 1;
    };
    const TCaso LCasos[] = {{*LGrupo, "WITH RACACOR"},
                            {LGrupo->Nascimento, "ESOCIALPAISNASC"},
                            {LDocumentos, "", 0},
                            {LDocumentos.Ctps, "CTPS_NUMERO"},
                            {LDocumentos.Ric, "", 0},
                            {LDocumentos.Rg, "NUMERO_RG"},
                            {LDocumentos.Rne, "INSCRNE"},
                            {LDocumentos.Oc, "INSCOC"},
                            {LDocumentos.Cnh, "CART_NAC_HABILIT"},
                            {LGrupo->Endereco, "", 0},
                            {LGrupo->Endereco.Brasil, "MUNICIPIOS"},
                            {LGrupo->Endereco.Exterior, "CA06_MUNICIPIO"},
                            {LGrupo->TrabEstrangeiro, "CASADOBRASIL"},
                            {LGrupo->InfoDeficiencia, "DEFICIENCIAOBS"},
                            {LGrupo->Aposentadoria, "APOSENTADORIA"},
                            {LGrupo->Contato, "EMPREGADOS.FONE", 3}};
    for (const auto& LCaso : LCasos) {
        LTextos.clear();
        const TListaCamposModificados LLista{std::string(LCaso.Grupo.GuidClasse())};
        LGrupo->CarregarDados(&LLista);
        // The list of the dependants is read again in any case.
        std::erase_if(LTextos, [](const auto& ATexto) { return ATexto.starts_with("SELECT DEPENDENTES.ID"); });
        ASSERT_EQ(LCaso.Quantidade, LTextos.size()) << LCaso.Grupo.GuidClasse();
        if (LCaso.Quantidade > 0) {
            EXPECT_NE(std::string::npos, LTextos.front().find(LCaso.Marca)) << LTextos.front();
        }
    }
}

TEST_F(TTesteTrabalhador, FalhaNoMeioDeixaOQueJaVeio)
{
    auto LGrupo = Carregar();
    Dependente(1, 1, 70, "Lia");
    Inserir("CA06_PAIS", {{"IDPAIS", 31}, {"PAIS", 105}});
    Definir("PAISNASCIMENTO", 31);
    Definir("NOME", "Ana Maria");
    Definir("FONE", "3210");
    Tabela(6, "Brasil");
    EXPECT_THROW(LGrupo->CarregarDados(), EDatabaseError);
    EXPECT_EQ("Ana Maria", LGrupo->Nome);
    EXPECT_EQ("", LGrupo->Contato.FoneCadEmpregado);
    EXPECT_TRUE(LGrupo->Dependentes.empty());

    Executar("UPDATE FP_ESOCIALTABELA SET CODIGO = '105'");
    LGrupo->CarregarDados();
    EXPECT_EQ("3210", LGrupo->Contato.FoneCadEmpregado);
    EXPECT_EQ(1u, LGrupo->Dependentes.size());

    // The key of a dependant is read as 32 bits: a longer one is refused rather than cut to another's.
    Executar("UPDATE DEPENDENTES SET IDDEPENDENTE = 4294967297");
    EXPECT_THROW(LGrupo->CarregarDados(), EIntOverflow);
    EXPECT_TRUE(LGrupo->Dependentes.empty());
}

TEST_F(TTesteTrabalhador, GrupoDesligadoMantemOQueTinha)
{
    Definir("APOSENTADORIA", 71);
    Definir("DATA_APOSENTADORIA", D(2020, 1, 1));
    Definir("INSCOC", "987");
    TTarvoESocialCamposTrabalhador LGrupo(ID_EMPREGADO);
    LGrupo.Aposentadoria.SetCarregarDadosDoGrupo(false);
    LGrupo.Documentos.SetCarregarDadosDoGrupo(false);
    LGrupo.CarregarDados();
    EXPECT_TRUE(LGrupo.Aposentadoria.DataAposentadoria.Vazia());
    EXPECT_EQ(0, LGrupo.Aposentadoria.TipoAposent);
    EXPECT_EQ("", LGrupo.Aposentadoria.DescAposent);
    // The children of a group that is off load all the same.
    EXPECT_EQ("987", LGrupo.Documentos.Oc.Numero);

    LGrupo.Aposentadoria.SetCarregarDadosDoGrupo(true);
    LGrupo.CarregarDados();
    EXPECT_EQ(71, LGrupo.Aposentadoria.TipoAposent);
    // A description that has an ELSE is emptied by the next load, a value that became null stays.
    Definir("APOSENTADORIA", nullptr);
    LGrupo.CarregarDados();
    EXPECT_EQ("", LGrupo.Aposentadoria.DescAposent);
    EXPECT_EQ(71, LGrupo.Aposentadoria.TipoAposent);
}

TEST_F(TTesteTrabalhador, IdentificacaoDoVinculo)
{
    Definir("CPF", "101.112.223-54");
    Definir("PIS", "170.00000.01-3");
    Definir("IDCATEGORIAESOCIAL", 99);
    const std::pair<TValorSql, const char*> LContratos[] = {
        {"1", "01"}, {"12", "12"}, {"06-Temporário", "06"}, {"", "00"}, {nullptr, ""}};
    for (const auto& [LContrato, LEsperado] : LContratos) {
        Definir("CONTRATO", LContrato);
        const auto LVinculo = Carregar<TTarvoESocialCamposideVinculo>();
        EXPECT_EQ(LEsperado, LVinculo->Contrato) << LContrato.Texto();
        EXPECT_EQ("10111222354", LVinculo->cpfTrab);
        EXPECT_EQ("170.00000.01-3", LVinculo->nisTrab);
        EXPECT_EQ("", LVinculo->CodCateg);
    }
    // Unlike the work card's, this category may stand in any table.
    Tabela(3, "999");
    Definir("IDCATEGORIAESOCIAL", 1);
    EXPECT_EQ("999", Carregar<TTarvoESocialCamposideVinculo>()->CodCateg);
}

} // namespace
} // namespace tarvo::testes
