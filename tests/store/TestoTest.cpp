// The classic text functions: numbers read and written, substrings by character, case.
#include "store/Guasto.h"
#include "store/Testo.h"

#include "tests/Ambiente.h"

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>

TEST(Val, IlNumeroInTesta) {
    const std::pair<std::string, double> casi[] = {
        {"123", 123},   {"  12 34", 1234}, {"\t7\n", 7},   {"-5", -5},      {"- 5", -5},
        {"1.5.3", 1.5}, {".5", 0.5},       {"1e3", 1000},  {"1e-2", 0.01},  {"2d2", 200},
        {"3e", 3},      {"1,5", 1},        {"abc", 0},     {"__/", 0},      {"--5", 0},
        {"0x10", 0},    {"1e-400", 0}};
    for (const auto& [testo, atteso] : casi) EXPECT_EQ(Val(testo), atteso) << testo;
    EXPECT_EQ(NumeroGuasto([] { Val("-9e99999999999999999999"); }), 6);
}

TEST(Str, BlankPerINonNegativiEQuindiciCifre) {
    const std::pair<double, std::string> casi[] = {
        {0.5, " .5"},           {-0.5, "-.5"},     {12, " 12"},           {0, " 0"},
        {0.1 + 0.2, " .3"},     {1e15, " 1E+15"},  {2.5e20, " 2.5E+20"},  {1e-5, " 1E-05"},
        {1.0 / 3, " .333333333333333"},            {123456789012345.0, " 123456789012345"},
        // 16 digits, exact in binary: the half at the 15th digit goes to the even one.
        {123456789012345.5, " 123456789012346"},   {123456789012344.5, " 123456789012344"},
        {-999999999999999.5, "-1E+15"}};
    for (const auto& [valore, atteso] : casi) EXPECT_EQ(Str(valore), atteso) << valore;
    EXPECT_EQ(NumeroGuasto([] { Str(std::numeric_limits<double>::infinity()); }), 6);
}

// The 15 digits and the exponent of a value as glibc's printf rounds it, exactly, from its
// binary value.
std::string CifreDiPrintf(double valore) {
    char t[64];
    std::snprintf(t, sizeof t, "%.14e", std::fabs(valore)); // d.dddddddddddddde±XX
    const std::string cifre = std::string(1, t[0]) + std::string(t + 2, 14);
    return cifre + " " + std::to_string(cifre == std::string(15, '0') ? 0 : std::atoi(t + 17));
}

TEST(Arrotonda15, ComePrintfSuOgniGenereDiValore) {
    std::mt19937_64 caso(15);
    auto intero = [&](std::uint64_t fino) { return static_cast<double>(caso() % fino); };
    // Any bits, amounts in cents divided by a rate, halves at the 16th digit, beside the powers
    // of ten, near 1E+15.
    const std::function<double()> generi[] = {
        [&] { return std::bit_cast<double>(caso()); },
        [&] { return intero(10000000000) / 100 / 1936.27; },
        [&] { return intero(1000000000000000) + 0.5; },
        [&] { return std::nextafter(std::pow(10.0, intero(40) - 20), caso() % 2 ? 0.0 : 1e300); },
        [&] { return 1e15 * (0.999999 + intero(2000) / 1e9); }};
    for (int giro = 0; giro < 200000; ++giro) {
        double v = generi[giro % 5]();
        if (!std::isfinite(v)) continue;
        Cifre15 c = Arrotonda15(v);
        ASSERT_EQ(c.cifre + " " + std::to_string(c.esponente), CifreDiPrintf(v)) << v;
    }
}

TEST(Intero16, UnMezzoVaAlPariFuoriScalaEUnGuasto) {
    const std::pair<double, int> casi[] = {{0.5, 0},  {1.5, 2},  {2.5, 2},   {-2.5, -2},
                                           {-3.5, -4}, {2.4999, 2}, {2.5001, 3}, {32767.4, 32767},
                                           {-32768.5, -32768}};
    for (const auto& [valore, atteso] : casi) EXPECT_EQ(Intero16(valore), atteso) << valore;
    EXPECT_EQ(NumeroGuasto([] { Intero16(32767.5); }) + NumeroGuasto([] { Intero16(-32768.6); }),
              6 + 6);
}

// "città è": seven characters, nine bytes.
const std::string kCitta = "citt\xC3\xA0 \xC3\xA8";

TEST(Sottostringhe, ContanoICaratteri) {
    const std::pair<std::string, std::string> casi[] = {
        {Left(kCitta, 5), "citt\xC3\xA0"},  {Left(kCitta, 100), kCitta},
        {Right(kCitta, 1), "\xC3\xA8"},     {Mid(kCitta, 5, 1), "\xC3\xA0"},
        {Mid(kCitta, 6, 10), " \xC3\xA8"},  {Mid(kCitta, 8), ""},
        {Left("\xC3" "abc", 2), "\xC3" "a"}, // a stray byte is a character of its own
        {Trim("  a b  ") + LTrim(" a ") + RTrim(" a ") + Trim("\ta\t"), "a ba  a\ta\t"},
        {Giustifica("per\xC3\xB2xx", 4) + Giustifica("ab", 3), "per\xC3\xB2" "ab "},
        {AllineaDestra("12", 5) + AllineaDestra("123456", 3), "   12123456"}};
    for (const auto& [risultato, atteso] : casi) EXPECT_EQ(risultato, atteso);
    // Invalid, overlong and surrogate bytes count one each.
    EXPECT_EQ(Len(kCitta) + Len("\xFF\xFE") + Len("a\xE0\x80\x80") + Len("\xED\xA0\x80"), 16);
    EXPECT_EQ(NumeroGuasto([] { Mid(kCitta, 0); }) + NumeroGuasto([] { Left(kCitta, -1); }) +
                  NumeroGuasto([] { Space(-1); }),
              5 + 5 + 5);
}

TEST(Maiuscole, AsciiEAccentateDiWindows1252) {
    // Signs, the sharp s and the euro have no other case.
    const std::string minuscole = "abc xyz 09 àèéìòù ÿ š ×÷ß€";
    const std::string maiuscole = "ABC XYZ 09 ÀÈÉÌÒÙ Ÿ Š ×÷ß€";
    EXPECT_EQ(UCase(minuscole), maiuscole);
    EXPECT_EQ(LCase(maiuscole), minuscole);
}
