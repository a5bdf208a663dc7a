#include <gtest/gtest.h>

#include "imports/UnOvraEsocialReinfControleAmbientes.h"
#include "imports/UnOvraExcecoes.h"
#include "imports/UnOvraSerializacaoXmlReader.h"
#include "imports/UnOvraUtilsDialogs.h"
#include "imports/UnOvraUtilsValidacoes.h"
#include "imports/banco/UnTarvoConexaoBrenco.h"
#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasESocial.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/consultas/UnTarvoConsultasIrrf.h"
#include "imports/valores/UnOvraUtilsStrings.h"
#include "imports/valores/UnTarvoUtilsDatas.h"
#include "imports/valores/UnTarvoUtilsGeral.h"
#include "imports/valores/UnTarvoUtilsMatematica.h"
#include "imports/valores/UnTarvoUtilsStrings.h"

namespace tarvo {
namespace {

std::string ListaAte(int AUltimo)
{
    std::string LLista;
    for (int i = 1; i <= AUltimo; ++i)
        TTarvoUtilsStrings::AdicionarItemNaLista(LLista, std::to_string(i));
    return LLista;
}

std::size_t Quantas(std::string_view ATexto, std::string_view AParte)
{
    std::size_t LTotal = 0;
    for (auto i = ATexto.find(AParte); i != std::string_view::npos; i = ATexto.find(AParte, i + 1))
        ++LTotal;
    return LTotal;
}

TEST(ServicosUtilsDb, CondicaoDeUmaListaDeIds)
{
    const auto Condicao = [](std::string_view ALista, std::string_view AOperador) {
        return FormatarListaParaClausulaIN("CALCULO", "IDEMPREGADO", ALista, AOperador);
    };
    EXPECT_EQ(Condicao("7", "AND"), " AND CALCULO.IDEMPREGADO IN (7)");
    EXPECT_EQ(Condicao("7,8", " WHERE "), " WHERE CALCULO.IDEMPREGADO IN (7,8)");
    EXPECT_EQ(Condicao(" 7 , 8 ,", "AND"), " AND CALCULO.IDEMPREGADO IN (7,8)");
    EXPECT_EQ(Condicao("", " AND "), "");
    EXPECT_EQ(Condicao(" , ", " AND "), "");
    EXPECT_EQ(FormatarListaParaClausulaIN("T", "C", "1,2", "AND", true), " AND T.C NOT IN (1,2)");
}

TEST(ServicosUtilsDb, ListaLongaEhDivididaSemPerderIds)
{
    const auto LLimite = FormatarListaParaClausulaIN("T", "C", ListaAte(1000), "AND");
    EXPECT_EQ(Quantas(LLimite, "IN ("), 1U);
    EXPECT_EQ(LLimite.find("(T.C"), std::string::npos);

    const auto LPassou = FormatarListaParaClausulaIN("T", "C", ListaAte(1001), "AND");
    EXPECT_TRUE(LPassou.starts_with(" AND (T.C IN (1,2,"));
    EXPECT_TRUE(LPassou.ends_with(",1000) OR T.C IN (1001))"));

    const auto LTres = FormatarListaParaClausulaIN("T", "C", ListaAte(2500), "AND");
    EXPECT_EQ(Quantas(LTres, "T.C IN ("), 3U);
    EXPECT_EQ(Quantas(LTres, " OR "), 2U);
    EXPECT_EQ(Quantas(LTres, ","), 2500U - 3U);

    // Denied, one value of any part would be enough to let every row pass if the parts were joined by OR.
    EXPECT_TRUE(
        FormatarListaParaClausulaIN("T", "C", ListaAte(1001), "AND", true).ends_with(") AND T.C NOT IN (1001))"));
}

TEST(ServicosUtilsDb, LiteralDeData)
{
    EXPECT_EQ(FormatarDataDB(EncodeDate(2021, 3, 1), true), "'01.03.2021'");
    EXPECT_EQ(FormatarDataDB(EncodeDate(2021, 3, 1), false), "01.03.2021");
    EXPECT_EQ(FormatarDataDB(EncodeDate(2021, 3, 1) + EncodeTime(8, 5, 9), true), "'01.03.2021 08:05:09'");
    EXPECT_EQ(FormatarDataDB(EncodeDate(987, 1, 2), true), "'02.01.0987'");
    EXPECT_EQ(FormatarDataDB(TDateTime(), true), "'30.12.1899'");
    // A thousandth before midnight is still the old day; what rounds up to midnight is the new one.
    EXPECT_EQ(FormatarDataDB(EncodeDate(2021, 3, 1) + EncodeTime(23, 59, 59, 999), true), "'01.03.2021 23:59:59'");
    EXPECT_EQ(FormatarDataDB(TDateTime(EncodeDate(2021, 3, 2).Valor() - 1e-10), true), "'02.03.2021'");
}

TEST(ServicosUtilsDatas, PrimeiroEhUltimoDiaDoMes)
{
    struct TCaso {
        TDateTime Data;
        TDateTime Primeiro;
        TDateTime Ultimo;
    };
    const TCaso LCasos[] = {
        {EncodeDate(2021, 2, 15), EncodeDate(2021, 2, 1), EncodeDate(2021, 2, 28)},
        {EncodeDate(2020, 2, 29), EncodeDate(2020, 2, 1), EncodeDate(2020, 2, 29)},
        {EncodeDate(2021, 12, 31), EncodeDate(2021, 12, 1), EncodeDate(2021, 12, 31)},
        {EncodeDate(2021, 4, 30) + EncodeTime(23, 59, 59), EncodeDate(2021, 4, 1), EncodeDate(2021, 4, 30)},
        {EncodeDate(1899, 12, 1), EncodeDate(1899, 12, 1), EncodeDate(1899, 12, 31)},
        {EncodeDate(1899, 11, 30), EncodeDate(1899, 11, 1), EncodeDate(1899, 11, 30)},
    };
    for (const auto& LCaso : LCasos) {
        EXPECT_EQ(TransformarData(LCaso.Data, 0, TDiasTransformarData::PrimeiroDiaDoMes), LCaso.Primeiro);
        EXPECT_EQ(UltimoDiaDoMes(LCaso.Data), LCaso.Ultimo);
    }
    EXPECT_EQ(TransformarData(EncodeDate(2021, 1, 31), 1, TDiasTransformarData::UltimoDiaDoMes),
              EncodeDate(2021, 2, 28));
}

TEST(ServicosUtilsStrings, LimparTextoDeixaLetrasDigitosEhBrancosSimples)
{
    const std::pair<const char*, const char*> LCasos[] = {
        {"123.456.789-09", "12345678909"},
        {"74.000-000", "74000000"},
        {"JOSÉ D'ÁVILA & CIA. LTDA", "JOSÉ DÁVILA CIA LTDA"},
        {"  Praça\t1º   de\r\nMaio ", "Praça 1º de Maio"},
        {"Ação – nº 5×3÷2", "Ação nº 532"},
        {"A\xC2\xA0"
         "B",
         "A B"},
        {"Joa\xCC\x83o", "Joa\xCC\x83o"}, // a decomposed accent is part of its letter
        {"\xF0\x9F\x98\x80 ok", "ok"},
        {"a\xFF"
         "b\xC3",
         "ab"}, // bytes that are no UTF-8
        {"---", ""},
        {"", ""},
    };
    for (const auto& [LEntrada, LSaida] : LCasos)
        EXPECT_EQ(GOvraUtilsStrings.LimparTexto(LEntrada), LSaida) << LEntrada;
    EXPECT_EQ(TTarvoUtilsStrings::RemoverCaracteresEspeciais("(62) 3212-0000", true), "6232120000");
    EXPECT_EQ(TTarvoUtilsStrings::RemoverCaracteresEspeciais(" São João, 5", true), "SãoJoão5");
}

TEST(ServicosUtilsStrings, RemoverCaracteresNaoCortaCaracteresAoMeio)
{
    EXPECT_EQ(GOvraUtilsStrings.RemoverCaracteres(".-/*", "123.456.789-09/*"), "12345678909");
    EXPECT_EQ(GOvraUtilsStrings.RemoverCaracteres("ã", "São, é"), "So, é");
    EXPECT_EQ(GOvraUtilsStrings.RemoverCaracteres("", "a.b"), "a.b");
    EXPECT_EQ(GOvraUtilsStrings.SomenteNumeros("nº 12.3-4"), "1234");
}

TEST(ServicosUtilsStrings, ListasEmTexto)
{
    using TLista = std::vector<std::string>;
    EXPECT_EQ(TTarvoUtilsStrings::TransfereStringParaLista("1, 2 ,3"), (TLista{"1", "2", "3"}));
    EXPECT_EQ(TTarvoUtilsStrings::TransfereStringParaLista(",1,,2,"), (TLista{"1", "2"}));
    EXPECT_EQ(TTarvoUtilsStrings::TransfereStringParaLista(""), TLista{});
    EXPECT_EQ(TTarvoUtilsGeral::ConverterTListParaMultisselecao({3, -1, 9'000'000'000}), "3,-1,9000000000");
    EXPECT_EQ(TTarvoUtilsGeral::ConverterTListParaMultisselecao({}), "0");
    EXPECT_EQ(GOvraUtilsValidacoes.Iif(false, 1, 2), 2);
}

TEST(ServicosUtilsStrings, FormatarTextoCompletaAhMascara)
{
    EXPECT_EQ(FormatarTexto("00000000000", "12345678"), "00012345678");
    EXPECT_EQ(FormatarTexto("000", "12345"), "12345");
    EXPECT_EQ(FormatarTexto("000", ""), "000");
    EXPECT_EQ(FormatarTexto("     ", "ab", TFormatacaoTexto::CompletarADireita), "ab   ");
}

TEST(ServicosTipos, FolhaPeloCodigoEhDeVolta)
{
    const std::pair<const char*, int> LCasos[] = {{"01", 0}, {"02", 1},  {"03", 2}, {"04", 3},  {"05", 4},  {"06", 5},
                                                  {"09", 8}, {"97", 18}, {"", 10},  {"77", 10}, {" 05 ", 4}};
    for (const auto& [LCodigo, LOrdinal] : LCasos)
        EXPECT_EQ(static_cast<int>(BuscarTTipoFolha(LCodigo)), LOrdinal) << LCodigo;
    EXPECT_EQ(CodigoDaFolha(TTiposFolha::Rescisao), "05");
    EXPECT_EQ(CodigoDaFolha(TTiposFolha::Rpa), "97");
    EXPECT_EQ(CodigoDaFolha(TTiposFolha::Nenhuma), "");
}

TEST(ServicosTipos, EventosPorNomeEhOrdinal)
{
    const std::pair<const char*, int> LCasos[] = {{"teS1000", 0},  {"TES1200", 11}, {"teS1210", 14},
                                                  {"tes2200", 24}, {"teS2206", 26}, {"teS3000", 42}};
    for (const auto& [LNome, LOrdinal] : LCasos) {
        ASSERT_TRUE(BuscarTTipoEvento(LNome)) << LNome;
        EXPECT_EQ(static_cast<int>(*BuscarTTipoEvento(LNome)), LOrdinal);
    }
    for (const char* LNome : {"", "teS", "S1000", "teS-1000", "teS9999", "teS10000"})
        EXPECT_FALSE(BuscarTTipoEvento(LNome)) << LNome;
    EXPECT_EQ(BuscarTpEvento(static_cast<TTipoEventoFolha>(35)), "S-2299");
    EXPECT_EQ(BuscarTpEvento(static_cast<TTipoEventoFolha>(38)), "S-2399");
    EXPECT_EQ(BuscarTpEvento(TTipoEvento::teS2299), "S-2299");
    EXPECT_EQ(BuscarTpEvento(static_cast<TTipoEvento>(200)), "");
}

TEST(ServicosMatematica, ArredondarAfastaAMetadeDoZero)
{
    struct TCaso {
        std::int64_t DecimosMilesimos;
        std::uint8_t Casas;
        double Esperado;
    };
    const TCaso LCasos[] = {
        {10'050, 2, 1.01},
        {-10'050, 2, -1.01},
        {10'049, 2, 1.0},
        {-10'049, 2, -1.0},
        {10'150, 2, 1.02},
        {25'000, 0, 3.0},
        {-25'000, 0, -3.0},
        {24'999, 0, 2.0},
        {12'345, 3, 1.235},
        {12'344, 3, 1.234},
        {99'950, 2, 10.0},
        {-99'950, 2, -10.0},
        {12'345, 4, 1.2345},
        {12'345, 9, 1.2345},
        {0, 2, 0.0},
        {50, 2, 0.01},
        {-49, 2, 0.0},
        {10'500, 1, 1.1},
        {1'234'567'850, 2, 123'456.79},
    };
    for (const auto& LCaso : LCasos)
        EXPECT_EQ(Arredondar(Currency::DeDecimosMilesimos(LCaso.DecimosMilesimos), LCaso.Casas), LCaso.Esperado)
            << LCaso.DecimosMilesimos << " com " << int{LCaso.Casas} << " casas";
}

TEST(ServicosMatematica, HorasEmDecimais)
{
    const auto Converter = TTarvoUtilsMatematica::ConverterHorasEmDecimais;
    EXPECT_EQ(Converter(7.30), 7.5);
    EXPECT_EQ(Converter(220.0), 220.0);
    EXPECT_EQ(Converter(0.45), 0.75);
    EXPECT_EQ(Converter(-1.15), -1.25);
    EXPECT_EQ(Converter(7.75), 8.25); // minutes past the hour are minutes all the same
    EXPECT_EQ(Converter(100.01), static_cast<double>(100.0L + 1.0L / 60.0L));
    EXPECT_EQ(Converter(1.005), static_cast<double>(1.0L + 0.5L / 60.0L)); // half a minute isn't lost
    for (int LMinutos = 0; LMinutos < 60; ++LMinutos)
        EXPECT_EQ(Converter(12 + LMinutos / 100.0), static_cast<double>(12.0L + LMinutos / 60.0L)) << LMinutos;
}

TEST(ServicosIrrf, DeducaoDosDependentesMudaNoDiaDaLei)
{
    struct TCaso {
        TDateTime Data;
        std::int64_t Centavos;
    };
    const TCaso LCasos[] = {
        {EncodeDate(2006, 12, 31), 0},    {EncodeDate(2007, 1, 1), 13205},  {EncodeDate(2007, 12, 31), 13205},
        {EncodeDate(2008, 1, 1), 13799},  {EncodeDate(2009, 1, 1), 14420},  {EncodeDate(2010, 1, 1), 15069},
        {EncodeDate(2011, 3, 31), 15069}, {EncodeDate(2011, 4, 1), 15747},  {EncodeDate(2012, 1, 1), 16456},
        {EncodeDate(2013, 1, 1), 17197},  {EncodeDate(2014, 1, 1), 17971},  {EncodeDate(2015, 3, 31), 17971},
        {EncodeDate(2015, 4, 1), 18959},  {EncodeDate(2023, 6, 15), 18959},
    };
    for (const auto& LCaso : LCasos)
        EXPECT_EQ(TTarvoConsultasIrrf::BuscarValorDeDeducaoDosDependentes(1, LCaso.Data).DecimosMilesimos(),
                  LCaso.Centavos * 100)
            << FormatarDataDB(LCaso.Data, false);
    EXPECT_EQ(TTarvoConsultasIrrf::BuscarValorDeDeducaoDosDependentes(3, EncodeDate(2021, 3, 1)).DecimosMilesimos(),
              5'687'700);
    EXPECT_EQ(TTarvoConsultasIrrf::BuscarValorDeDeducaoDosDependentes(0, EncodeDate(2021, 3, 1)), Currency());
}

TEST(ServicosESocial, TributosPelosBits)
{
    const auto LTributos = TTarvoConsultasESocial::RetornarTpTribsMarcados(2 + 8);
    EXPECT_FALSE(LTributos.IRRF);
    EXPECT_TRUE(LTributos.INSS);
    EXPECT_FALSE(LTributos.FGTS);
    EXPECT_TRUE(LTributos.CS);
    const auto LContribuicoes = TTarvoConsultasESocial::RetornarTiposContribIncid1250(1 + 4);
    EXPECT_TRUE(LContribuicoes.CP);
    EXPECT_FALSE(LContribuicoes.RAT);
    EXPECT_TRUE(LContribuicoes.Senar);
}

TEST(ServicosESocial, BaseSoNasNaturezasDeBase)
{
    for (const int LNatureza : {9905, 9930, 9931, 9932}) {
        EXPECT_TRUE(TTarvoConsultasGeral::VerbaUsaBase(LNatureza, "98A"));
        for (const char* LFormula : {"6BCA", "8BN", "6BRL", "6BCAL", "8BNL", "6BCAK", "8BNM"})
            EXPECT_FALSE(TTarvoConsultasGeral::VerbaUsaBase(LNatureza, LFormula)) << LFormula;
        EXPECT_TRUE(TTarvoConsultasGeral::VerbaUsaBase(LNatureza, "6BC"));
    }
    for (const int LNatureza : {0, 1000, 9933, 9901})
        EXPECT_FALSE(TTarvoConsultasGeral::VerbaUsaBase(LNatureza, "98A"));
}

constexpr const char* XML_FECHAMENTO = R"(<?xml version="1.0" encoding="ISO-8859-1"?>
<eS:eSocial xmlns:eS="http://www.esocial.gov.br/schema/evt">
  <eS:evtFechaEvPer Id="ID1">
    <ideEvento><procEmi>1</procEmi></ideEvento>
    <infoFech/>
    <eS:infoFech>
      <evtRemun>S</evtRemun>
      <x:compSemMovto xmlns:x="u"> 2021-03 </x:compSemMovto>
      <obs>São &amp; <![CDATA[<Cia>]]></obs>
    </eS:infoFech>
  </eS:evtFechaEvPer>
</eS:eSocial>)";

TEST(ServicosXml, ValorPeloCaminhoAbaixoDaRaiz)
{
    const TOvraSerializacaoXmlReader LLeitor(XML_FECHAMENTO);
    EXPECT_EQ(LLeitor.BuscarValorTag("evtFechaEvPer.ideEvento.procEmi"), "1");
    // The first infoFech has no such tag; the second has.
    EXPECT_EQ(LLeitor.BuscarValorTag("evtFechaEvPer.infoFech.evtRemun"), "S");
    EXPECT_EQ(LLeitor.BuscarValorTag("evtFechaEvPer.infoFech.compSemMovto"), " 2021-03 ");
    for (const char* LCaminho : {"evtFechaEvPer.infoFech.nada", "eSocial.evtFechaEvPer.ideEvento.procEmi", "procEmi",
                                 "evtFechaEvPer.infofech.evtRemun", "", ".", "evtFechaEvPer."})
        EXPECT_EQ(LLeitor.BuscarValorTag(LCaminho), "") << LCaminho;
}

TEST(ServicosXml, TextoVazioEhTextoMalFormado)
{
    EXPECT_EQ(TOvraSerializacaoXmlReader("").BuscarValorTag("a.b"), "");
    EXPECT_EQ(TOvraSerializacaoXmlReader(" \r\n").BuscarValorTag("a.b"), "");
    for (const char* LTexto : {"<a><b></a>", "nada disso", "<a", "<a>x</a"})
        EXPECT_THROW(TOvraSerializacaoXmlReader LLeitor(LTexto), EConvertError) << LTexto;
}

TEST(ServicosAmbiente, CondicaoEhCodigo)
{
    TOvraEsocialReinfControleAmbientes LAmbientes;
    EXPECT_EQ(LAmbientes.BuscarTpAmbParaXML(), 1);
    EXPECT_EQ(LAmbientes.RetornarSqlControleAmbiente("AND"), " AND SC00_ESOCIALREINFXML.TPAMB = 1 ");
    LAmbientes.DefinirTpAmb(2);
    EXPECT_EQ(LAmbientes.RetornarSqlControleAmbiente(" WHERE "), " WHERE SC00_ESOCIALREINFXML.TPAMB = 2 ");
    for (const int LCodigo : {0, 3, -1})
        EXPECT_THROW(LAmbientes.DefinirTpAmb(LCodigo), Exception);
    EXPECT_EQ(LAmbientes.BuscarTpAmbParaXML(), 2);
    EXPECT_EQ(&BuscarInstanciaOvraEsocialReinfControleAmbientes(), &BuscarInstanciaOvraEsocialReinfControleAmbientes());
}

std::string LUltimoAlerta;

TEST(ServicosDialogs, AlertaSoComReacao)
{
    TOvraUtilsDialogs LDialogs;
    LDialogs.Alerta("calado");
    LDialogs.DefinirReacao([](const std::string& AMensagem) { LUltimoAlerta = AMensagem; });
    LDialogs.Alerta("ouvido");
    EXPECT_EQ(LUltimoAlerta, "ouvido");
    LDialogs.DefinirReacao(nullptr);
    LDialogs.Alerta("calado de novo");
    EXPECT_EQ(LUltimoAlerta, "ouvido");
}

TEST(ServicosBrenco, SemConexaoEhSemPermissaoDeInicio)
{
    EXPECT_FALSE(BuscarInstanciaTarvoConexaoBrenco().Conectado());
    EXPECT_THROW(BuscarInstanciaTarvoConexaoBrenco().OvraConnection(), Exception);
    EXPECT_FALSE(BuscarInstanciaTarvoConexaoBrencoUsuario().GetUsuarioTemPermissao());
}

} // namespace
} // namespace tarvo
