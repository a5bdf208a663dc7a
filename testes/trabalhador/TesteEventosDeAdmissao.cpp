#include "apoio/UnBancoDeTeste.h"
#include "imports/UnOvraExcecoes.h"
#include "trabalhador/s2190/UnTarvoESocialCamposS2190.h"
#include "trabalhador/s2205/UnTarvoESocialCamposS2205.h"
#include "trabalhador/xml/UnTarvoESocialCamposInfoCeletistaXML.h"
#include "trabalhador/xml/UnTarvoESocialCamposVinculoXML.h"

namespace tarvo::testes {
namespace {

using namespace trabalhador;

class TTesteEventosDeAdmissao : public TTesteComBanco {
protected:
    void SetUp() override
    {
        TTesteComBanco::SetUp();
        Inserir("EMPREGADOS", {{"IDEMPREGADO", 7},
                               {"COD_EMPRESA", 1},
                               {"COD_EMPREGADO", 70},
                               {"NOME", "Ana"},
                               {"CPF", "101.112.223-54"},
                               {"DATA_ADMISSAO", D(2021, 3, 1) + 1.0 / 3}});
    }
};

TEST_F(TTesteEventosDeAdmissao, RegistroPreliminarGuardaOCpfComoEsta)
{
    TTarvoESocialCamposS2190 LEvento(7);
    LEvento.CarregarDados();
    EXPECT_EQ("101.112.223-54", LEvento.infoRegPrelim.cpfTrab);
    EXPECT_TRUE(LEvento.infoRegPrelim.dtNascto.Vazia());
    EXPECT_EQ(R"({"infoRegPrelim":{"cpfTrab":"101.112.223-54","dtNascto":null,"dtAdm":"2021-03-01T08:00:00"}})",
              LEvento.ToJson().AsJSON());
}

TEST_F(TTesteEventosDeAdmissao, IdentificacaoDoS2205NuncaCarrega)
{
    TTarvoESocialCamposS2205 LEvento(7);
    LEvento.alteracao.dtAlteracao = D(2021, 3, 15);
    EXPECT_EQ("", LEvento.ideTrabalhador.GuidClasse());
    EXPECT_FALSE(LEvento.ideTrabalhador.CarregarDadosDoGrupo());
    LEvento.CarregarDados();
    EXPECT_EQ("", LEvento.ideTrabalhador.cpfTrab);
    EXPECT_EQ("101.112.223-54", LEvento.alteracao.dadosTrabalhador.Cpf);
    EXPECT_EQ(D(2021, 3, 15), LEvento.alteracao.dtAlteracao);

    // Neither a list with an empty text reaches it, nor has it a dataset to load into.
    const TListaCamposModificados LLista{""};
    LEvento.CarregarDados(&LLista);
    EXPECT_EQ("", LEvento.ideTrabalhador.cpfTrab);
    LEvento.ideTrabalhador.SetCarregarDadosDoGrupo(true);
    EXPECT_THROW(LEvento.CarregarDados(), EAccessViolation);
}

constexpr const char* XML_S2200 =
    R"(<?xml version="1.0"?><eSocial xmlns="urn:x"><evtAdmissao Id="I"><vinculo><tpRegTrab>1</tpRegTrab>)"
    R"(<tpRegPrev>2</tpRegPrev><infoRegimeTrab><infoCeletista><indAdmissao>3</indAdmissao><tpRegJor>4</tpRegJor>)"
    R"(</infoCeletista></infoRegimeTrab></vinculo></evtAdmissao></eSocial>)";
constexpr const char* XML_S2206 =
    R"(<eSocial><evtAltContratual><altContratual><vinculo><tpRegTrab>5</tpRegTrab><tpRegPrev>6</tpRegPrev></vinculo>)"
    R"(<infoRegimeTrab><infoCeletista><tpRegJor>7</tpRegJor><indAdmissao>8</indAdmissao></infoCeletista>)"
    R"(</infoRegimeTrab></altContratual></evtAltContratual></eSocial>)";

TEST(TTesteLeitoresDeXml, CadaEventoTemSeuCaminho)
{
    using enum TTipoEvento;
    const std::tuple<const char*, TTipoEvento, const char*> LCasos[] = {
        {XML_S2200, teS2200, "1243"}, {XML_S2206, teS2206, "5678"}, {XML_S2206, teS2200, ""},
        {XML_S2200, teS2206, ""},     {XML_S2200, teS2205, ""},     {"", teS2200, ""}};
    for (const auto& [LXml, LTipo, LEsperado] : LCasos) {
        TTarvoESocialCamposVinculoXML LVinculo(LXml);
        TTarvoESocialCamposInfoCeletistaXML LCeletista(LXml);
        // What an earlier load left doesn't stay.
        LVinculo.tpRegTrab = LVinculo.tpRegPrev = LCeletista.tpRegJor = LCeletista.indAdmissao = "x";
        LVinculo.CarregarDados(LTipo);
        LCeletista.CarregarDados(LTipo);
        EXPECT_EQ(LEsperado, LVinculo.tpRegTrab + LVinculo.tpRegPrev + LCeletista.tpRegJor + LCeletista.indAdmissao);
    }
    EXPECT_THROW(TTarvoESocialCamposVinculoXML("<eSocial>"), EConvertError);
}

} // namespace
} // namespace tarvo::testes
