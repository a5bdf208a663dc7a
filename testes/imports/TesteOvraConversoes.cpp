#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>

#include "imports/UnOvraExcecoes.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraCurrency.h"
#include "imports/valores/UnOvraDataHora.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo {
namespace {

TEST(OvraConversoes, TextoParaInteiro)
{
    const std::pair<const char*, std::int64_t> LValidos[] = {
        {"0", 0},
        {"42", 42},
        {"+42", 42},
        {"-42", -42},
        {" \t42\r\n", 42},
        {"007", 7},
        {"-0", 0},
        {"9223372036854775807", std::numeric_limits<std::int64_t>::max()},
        {"-9223372036854775808", std::numeric_limits<std::int64_t>::min()},
    };
    for (const auto& [LTexto, LValor] : LValidos) {
        EXPECT_EQ(StrToInt64Def(LTexto, -7), LValor) << LTexto;
        EXPECT_EQ(StrToInt64(LTexto), LValor) << LTexto;
    }
    for (const char* LTexto : {"", " ", "+", "-", "+-1", "--1", "- 1", "1 2", "1,0", "1.0", "12a", "0x10", "1e3",
                               "9223372036854775808", "-9223372036854775809",
                               "\xC2\xA0" // NOLINT(bugprone-suspicious-missing-comma): the 1 is no digit of the code
                               "1"}) {
        EXPECT_EQ(StrToInt64Def(LTexto, -7), -7) << LTexto;
        try {
            StrToInt64(LTexto);
            ADD_FAILURE() << LTexto;
        } catch (const EConvertError& LErro) {
            EXPECT_NE(std::string(LErro.what()).find(LTexto), std::string::npos);
        }
    }
}

TEST(OvraConversoes, TextoParaNumero)
{
    const std::pair<const char*, double> LValidos[] = {{"10,5", 10.5},   {"1200", 1200},
                                                       {"-0,25", -0.25}, {" +3,5 ", 3.5},
                                                       {",5", 0.5},      {"5,", 5},
                                                       {"1e3", 1000},    {"1,5E-2", 0.015},
                                                       {"0,1", 0.1},     {"1E+2", 100},
                                                       {"-,5", -0.5},    {"007,10", 7.1},
                                                       {"1e300", 1e300}, {"123456789012345,25", 123456789012345.25}};
    for (const auto& [LTexto, LValor] : LValidos)
        EXPECT_EQ(static_cast<double>(StrToFloatDef(LTexto, -7)), LValor) << LTexto;
    for (const char* LTexto : {"", " ", ",", "-", "10.5", "1.200,50", "1,2,3", "1e", "e5", "1e+", "1 000", "nan", "inf",
                               "INF", "1e400", "0x1p3", "R$ 5", "+-5"}) {
        EXPECT_EQ(StrToFloatDef(LTexto, -7), -7.0L) << LTexto;
        EXPECT_THROW(StrToFloat(LTexto), EConvertError) << LTexto;
    }
}

TEST(OvraConversoes, TextoParaData)
{
    const std::pair<const char*, TDateTime> LValidos[] = {
        {"01/03/2021", EncodeDate(2021, 3, 1)},
        {"01.03.2021", EncodeDate(2021, 3, 1)},
        {"1/3/2021", EncodeDate(2021, 3, 1)},
        {" 01/03/2021 ", EncodeDate(2021, 3, 1)},
        {"29/02/2020", EncodeDate(2020, 2, 29)},
        {"01/01/49", EncodeDate(2049, 1, 1)},
        {"01/01/50", EncodeDate(1950, 1, 1)},
        {"31/12/00", EncodeDate(2000, 12, 31)},
        {"31/12/99", EncodeDate(1999, 12, 31)},
        {"01/03/2021 08:30", EncodeDate(2021, 3, 1) + EncodeTime(8, 30, 0)},
        {"01/03/2021  8:5:9", EncodeDate(2021, 3, 1) + EncodeTime(8, 5, 9)},
        {"01/03/2021 00:00:00", EncodeDate(2021, 3, 1)},
        {"30/12/1899", TDateTime()},
        {"01/01/0001", EncodeDate(1, 1, 1)},
    };
    for (const auto& [LTexto, LData] : LValidos)
        EXPECT_EQ(StrToDateTime(LTexto), LData) << LTexto;
    for (const char* LTexto : {"",
                               "   ",
                               "29/02/2021",
                               "31/04/2021",
                               "32/01/2021",
                               "01/13/2021",
                               "00/01/2021",
                               "01/00/2021",
                               "01/01/0000",
                               "2021-03-01",
                               "01-03-2021",
                               "01/03/021",
                               "01/03/20210",
                               "001/03/2021",
                               "01/03",
                               "01/03/2021 8",
                               "01/03/2021 24:00",
                               "01/03/2021 08:60",
                               "01/03/2021 08:30:60",
                               "01/03/2021 08:30:00 x",
                               "01/03/2021x",
                               "hoje",
                               "1",
                               "01/03/2021 08:",
                               "01/03/2021 08:30:",
                               "/03/2021",
                               "01//2021"}) {
        try {
            StrToDateTime(LTexto);
            ADD_FAILURE() << LTexto;
        } catch (const EConvertError& LErro) {
            EXPECT_NE(std::string(LErro.what()).find(LTexto), std::string::npos);
        }
        EXPECT_EQ(StrToDateTimeDef(LTexto, EncodeDate(2000, 1, 1)), EncodeDate(2000, 1, 1));
    }
}

TEST(OvraConversoes, NumeroParaTexto)
{
    const std::pair<double, const char*> LDuplos[] = {{10.5, "10,5"},
                                                      {1200, "1200"},
                                                      {-0.25, "-0,25"},
                                                      {0.1 + 0.2, "0,30000000000000004"},
                                                      {0.0, "0"},
                                                      {-0.0, "0"},
                                                      {1e15, "1000000000000000"},
                                                      {0.0001, "0,0001"},
                                                      {123456.789, "123456,789"}};
    for (const auto& [LValor, LTexto] : LDuplos)
        EXPECT_EQ(FloatToStr(LValor), LTexto);
    EXPECT_EQ(FloatToStr(507.1F), "507,1");
    EXPECT_EQ(FloatToStr(0.1F), "0,1");
    EXPECT_EQ(FloatToStr(16'777'216.0F), "16777216");
    // Whatever the form, reading it back gives the same number.
    for (const double LValor :
         {1e-300, 1e300, 5e-324, 1.7976931348623157e308, -2.5e-9, 1.0 / 3.0, -2.28554749606892e49})
        EXPECT_EQ(StrToDouble(FloatToStr(LValor)), LValor) << FloatToStr(LValor);

    const std::tuple<std::int64_t, int, const char*> LDecimais[] = {
        {12345, -2, "123,45"},
        {12300, -2, "123"},
        {5, -4, "0,0005"},
        {-5, -2, "-0,05"},
        {0, -4, "0"},
        {-100, -2, "-1"},
        {12345, 0, "12345"},
        {1200, 0, "1200"},
        {std::numeric_limits<std::int64_t>::min(), -4, "-922337203685477,5808"}};
    for (const auto& [LValor, LEscala, LTexto] : LDecimais)
        EXPECT_EQ(DecimalToStr(LValor, LEscala), LTexto);
}

TEST(OvraConversoes, LocalDoHospedeiroNaoConta)
{
    const std::string LAntes = std::setlocale(LC_ALL, nullptr);
    for (const char* LNome : {"pt_BR.UTF-8", "de_DE.UTF-8", "en_US.UTF-8", "C.UTF-8"}) {
        std::setlocale(LC_ALL, LNome);
        EXPECT_EQ(FloatToStr(1234.5), "1234,5");
        EXPECT_EQ(StrToFloatDef("1234,5", 0), 1234.5L);
        EXPECT_EQ(FormatFloat("0.00", 1234.5), "1234,50");
    }
    std::setlocale(LC_ALL, LAntes.c_str());
}

TEST(OvraConversoes, DataParaTexto)
{
    EXPECT_EQ(DateTimeToStr(EncodeDate(2021, 3, 1)), "01/03/2021");
    EXPECT_EQ(DateTimeToStr(EncodeDate(2021, 3, 1) + EncodeTime(8, 5, 9)), "01/03/2021 08:05:09");
    EXPECT_EQ(DateTimeToStr(JuntarDataHora(EncodeDate(1890, 3, 1), EncodeTime(18, 0, 0))), "01/03/1890 18:00:00");
    EXPECT_EQ(StrToDateTime("01/03/1890 18:00:00"), JuntarDataHora(EncodeDate(1890, 3, 1), EncodeTime(18, 0, 0)));
}

TEST(OvraConversoes, Utf8EhWindows1252)
{
    EXPECT_EQ(ParaUtf8("São"), "São");
    EXPECT_EQ(ParaUtf8("S\xE3o \x80 \x96 \xE7"), "São € – ç");
    for (const char* LRuim :
         {"\xC0\xAF", "\xED\xA0\x80", "\xF5\x80\x80\x80", "\xE2\x82", "\x80", "\xC3(", "\xF4\x90\x80\x80"})
        EXPECT_FALSE(Utf8Valido(LRuim));
    EXPECT_TRUE(Utf8Valido("\xF0\x9F\x98\x80 \xED\x9F\xBF \xEF\xBF\xBD"));
}

TEST(OvraDataHora, Calendario)
{
    EXPECT_EQ(EncodeDate(1900, 1, 1).Valor(), 2.0);
    EXPECT_EQ(EncodeDate(2021, 3, 1).Valor(), 44256.0);
    EXPECT_FALSE(DataValida(1900, 2, 29));
    EXPECT_TRUE(DataValida(2000, 2, 29));
    EXPECT_THROW(EncodeDate(2021, 2, 29), EConvertError);
    EXPECT_THROW(EncodeTime(24, 0, 0), EConvertError);
    // Half a millisecond before midnight is the next day, for the date as for the time.
    const TDateTime LQuase(EncodeDate(2021, 3, 2).Valor() - 1e-9);
    EXPECT_EQ(DateOf(LQuase), EncodeDate(2021, 3, 2));
    EXPECT_FALSE(TemHora(LQuase));
    EXPECT_EQ(DateTimeToStr(TDateTime(-1.25)), "29/12/1899 06:00:00");
    EXPECT_EQ(DayOf(TDateTime(-1.25)), 29);
    EXPECT_EQ(DecodeTime(TDateTime(-1.25)).Hora, 6);
}

TEST(OvraCurrency, ConversaoArredondaMetadeParaOhPar)
{
    const std::pair<const char*, std::int64_t> LCasos[] = {
        {"1,00005", 10000},  {"1,00015", 10002}, {"-1,00005", -10000},    {"-1,00015", -10002},
        {"1,000051", 10001}, {"0,1", 1000},      {"1234,5678", 12345678}, {"-0,00004", 0}};
    for (const auto& [LTexto, LDecimos] : LCasos)
        EXPECT_EQ(Currency(StrToFloat(LTexto)).DecimosMilesimos(), LDecimos) << LTexto;
    EXPECT_EQ(Currency(1.00005).DecimosMilesimos(), 10000);
    EXPECT_EQ(Currency(1.00015).DecimosMilesimos(), 10002);
    EXPECT_EQ(Currency(-2.67545).DecimosMilesimos(), -26754);
    EXPECT_EQ(Currency(1.0000500001).DecimosMilesimos(), 10001);
    EXPECT_EQ(Currency(0.1 + 0.2).DecimosMilesimos(), 3000);
    EXPECT_EQ(Currency(123456789012.3456).DecimosMilesimos(), 1'234'567'890'123'456);
    // Every half of a decimal grid, as the product or the literal that it came from.
    for (int i = 1; i < 20'000; i += 2) {
        const std::int64_t LPar = (i / 2) % 2 == 0 ? i / 2 : i / 2 + 1;
        EXPECT_EQ(Currency(i / 20'000.0).DecimosMilesimos(), LPar) << i;
        EXPECT_EQ(Currency(Currency::DeDecimosMilesimos(i) * 0.5L).DecimosMilesimos(), LPar) << i;
        EXPECT_EQ(Currency(Currency::DeDecimosMilesimos(std::int64_t{5} * i) / Currency(10)).DecimosMilesimos(), LPar)
            << i;
    }
    for (const double LValor : {1e15, -1e15, std::nan(""), HUGE_VAL, -HUGE_VAL})
        EXPECT_THROW(Currency{LValor}, EIntOverflow);
}

TEST(OvraCurrency, SomasExatasEhProdutosArredondadosUmaVez)
{
    Currency LSoma;
    for (int i = 0; i < 10'000; ++i)
        LSoma += Currency::DeDecimosMilesimos(1001);
    EXPECT_EQ(CurrToStr(LSoma), "1001");
    EXPECT_EQ(Currency(Currency(100) / Currency(3) * 3.0L), Currency(100)); // 33.3333 would lose a ten-thousandth
    EXPECT_EQ(CurrToStr(Currency(Currency::DeDecimosMilesimos(1'234'500) * 0.11L)), "13,5795");
    EXPECT_EQ(CurrToStr(-Currency::DeDecimosMilesimos(5)), "-0,0005");
    EXPECT_LT(Currency(-1), Currency());
    const auto LMaximo = Currency::DeDecimosMilesimos(std::numeric_limits<std::int64_t>::max());
    EXPECT_THROW(LMaximo + Currency::DeDecimosMilesimos(1), EIntOverflow);
    EXPECT_THROW(-LMaximo - Currency(1), EIntOverflow);
    EXPECT_THROW(Currency(1) / Currency(), EZeroDivide);
    EXPECT_THROW(Currency(1) / 0.0L, EZeroDivide);
    EXPECT_THROW(Dividir(0.0L, 0.0L), EZeroDivide);
}

TEST(OvraFormat, ModelosComArgumentosPosicionais)
{
    EXPECT_EQ(Format("%0:d %1:s %0:D %1:S", 7, "x"), "7 x 7 x");
    EXPECT_EQ(Format("%d-%s-%d", 1, "b", 3), "1-b-3");
    EXPECT_EQ(Format("%1:s %s", "a", "b", "c"), "b c"); // without an index, the one after the last
    EXPECT_EQ(Format("LIKE '8DL%%'"), "LIKE '8DL%'");
    EXPECT_EQ(Format("%0:d", std::int64_t{-9'000'000'000}), "-9000000000");
    EXPECT_EQ(Format("%.7d|%.3d|%5d|%-5d|%5s|%-5s|%.2s", -42, 4242, 42, 42, "ab", "ab", "abc"),
              "-0000042|4242|   42|42   |   ab|ab   |ab");
    EXPECT_EQ(Format("%1:s", 1, "só o segundo", 3), "só o segundo");
    EXPECT_EQ(Format("", 1), "");
    EXPECT_EQ(Format("%0:s", std::string("a%d")), "a%d"); // an argument is no template

    EXPECT_THROW(Format("%0:d"), EConvertError);
    EXPECT_THROW(Format("%1:d", 1), EConvertError);
    EXPECT_THROW(Format("%0:d", "texto"), EConvertError);
    EXPECT_THROW(Format("%0:s", 1), EConvertError);
    EXPECT_THROW(Format("%0:x", 1), EConvertError);
    EXPECT_THROW(Format("50%", 1), EConvertError);
    EXPECT_THROW(Format("%99999999999999999999:d", 1), EConvertError);
}

TEST(OvraFormat, MascarasNumericas)
{
    const std::tuple<const char*, std::int64_t, const char*> LInteiros[] = {
        {"000", 7, "007"},
        {"000", 12345, "12345"},
        {"000", -7, "-007"},
        {"0", 0, "0"},
        {"00000000000", 12345678909, "12345678909"},
        {"0000000000", 0, "0000000000"},
        {"0.00", 5, "5,00"},
        {"0", std::numeric_limits<std::int64_t>::min(), "-9223372036854775808"}};
    for (const auto& [LMascara, LValor, LTexto] : LInteiros)
        EXPECT_EQ(FormatFloat(LMascara, LValor), LTexto);
    const std::tuple<const char*, double, const char*> LNumeros[] = {{"0.00", 1.005, "1,01"},
                                                                     {"0.00", -1.005, "-1,01"},
                                                                     {"0.00", 0.125, "0,13"},
                                                                     {"0", 0.5, "1"},
                                                                     {"0", 2.5, "3"},
                                                                     {"0", 0.49, "0"},
                                                                     {"0.00", 999.995, "1000,00"},
                                                                     {"000", 7.6, "008"},
                                                                     {"0.##", 1.5, "1,5"},
                                                                     {"0.##", 1.0, "1"},
                                                                     {"0.0#", 1.0, "1,0"},
                                                                     {"0.00", -0.001, "0,00"},
                                                                     {"#.##", 0.5, ",5"},
                                                                     {"0.00", 1e20, "100000000000000000000,00"},
                                                                     {"00.00", 5.25, "05,25"}};
    for (const auto& [LMascara, LValor, LTexto] : LNumeros)
        EXPECT_EQ(FormatFloat(LMascara, LValor), LTexto) << LMascara << " " << LValor;
    EXPECT_THROW(FormatFloat("0.00", std::nan("")), EConvertError);
    EXPECT_THROW(FormatFloat("R$ 0", 1.0), EConvertError);
}

TEST(OvraFormat, MascarasDeData)
{
    const TDateTime LData = EncodeDate(2021, 3, 7) + EncodeTime(8, 5, 9);
    const std::pair<const char*, const char*> LCasos[] = {{"DDMMYYYY", "07032021"},
                                                          {"YYYY-MM", "2021-03"},
                                                          {"dd/mm/yyyy hh:nn:ss", "07/03/2021 08:05:09"},
                                                          {"d/m/yy", "7/3/21"},
                                                          {"yyyy_mm", "2021_03"},
                                                          {"h:n:s", "8:5:9"},
                                                          {"", ""}};
    for (const auto& [LMascara, LTexto] : LCasos)
        EXPECT_EQ(FormatDateTime(LMascara, LData), LTexto);
    EXPECT_EQ(FormatDateTime("yyyy", EncodeDate(33, 1, 1)), "0033");
}

} // namespace
} // namespace tarvo
