#include "store/Guasto.h"
#include "store/Testo.h"


#include "tests/Ambiente.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <string>

namespace {
struct CasoVal {
    const char* nome;
    std::string testo;
    double atteso;
};

TEST(Val, LeggeIlNumeroInTesta) {
    const CasoVal casi[] = {
        {"intero", "123", 123},
        {"blank dentro il numero", "  12 34", 1234},
        {"tab e a capo saltati", "\t7\n", 7},
        {"segno meno", "-5", -5},
        {"blank dopo il segno", "- 5", -5},
        {"un solo punto", "1.5.3", 1.5},
        {"punto in testa", ".5", 0.5},
        {"esponente E", "1e3", 1000},
        {"esponente negativo", "1e-2", 0.01},
        {"esponente D", "2d2", 200},
        {"E senza cifre", "3e", 3},
        {"la virgola ferma", "1,5", 1},
        {"nessun numero", "abc", 0},
        {"maschera vuota", "__/", 0},
        {"due segni", "--5", 0},
        {"esadecimale non letto", "0x10", 0},
        {"troppo piccolo", "1e-400", 0},
    };
    for (const auto& c : casi) EXPECT_EQ(Val(c.testo), c.atteso) << c.nome;
}

TEST(Val, NumeroTroppoGrandeEOverflow) {
    EXPECT_EQ(NumeroGuasto([] { Val("-9e99999999999999999999"); }), 6);
}

TEST(Str, BlankPerINonNegativiEQuindiciCifre) {
    const struct {
        const char* nome;
        double valore;
        std::string atteso;
    } casi[] = {
        {"mezzo", 0.5, " .5"},
        {"meno mezzo", -0.5, "-.5"},
        {"intero", 12, " 12"},
        {"zero", 0, " 0"},
        {"decimale", 1.5, " 1.5"},
        {"numero di data", 732060, " 732060"},
        {"somma binaria inesatta", 0.1 + 0.2, " .3"},
        {"un terzo", 1.0 / 3, " .333333333333333"},
        {"quindici cifre", 123456789012345.0, " 123456789012345"},
        {"esponente grande", 1e15, " 1E+15"},
        {"esponente con mantissa", 2.5e20, " 2.5E+20"},
        {"esponente piccolo", 1e-5, " 1E-05"},
    };
    for (const auto& c : casi) EXPECT_EQ(Str(c.valore), c.atteso) << c.nome;
    EXPECT_EQ(NumeroGuasto([] { Str(std::numeric_limits<double>::infinity()); }), 6);
}

TEST(Trim, SoloBlank) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(LTrim("  a b  "), "a b  ");
    EXPECT_EQ(RTrim("  a b  "), "  a b");
    EXPECT_EQ(Trim("\ta \t"), "\ta \t");
}

// "città è": seven characters, nine bytes.
const std::string kCitta = "citt\xC3\xA0 \xC3\xA8";

TEST(Sottostringhe, ContanoICaratteri) {
    const struct {
        const char* nome;
        std::string risultato;
        std::string atteso;
    } casi[] = {
        {"Left", Left(kCitta, 5), "citt\xC3\xA0"},
        {"Left oltre la fine", Left(kCitta, 100), kCitta},
        {"Right", Right(kCitta, 1), "\xC3\xA8"},
        {"Mid uno", Mid(kCitta, 5, 1), "\xC3\xA0"},
        {"Mid lunghezza oltre", Mid(kCitta, 6, 10), " \xC3\xA8"},
        {"Mid dopo la fine", Mid(kCitta, 8), ""},
        // The date of a key of the ladder: Str of the number, a blank and the date.
        {"Mid della chiave", Mid(Str(732060) + " 29/02/2000", 8, 11), " 29/02/2000"},
    };
    for (const auto& c : casi) EXPECT_EQ(c.risultato, c.atteso) << c.nome;
    EXPECT_EQ(Len(kCitta), 7);
}

TEST(Sottostringhe, ArgomentiNonValidi) {
    EXPECT_EQ(NumeroGuasto([] { Mid(kCitta, 0); }), 5);
    EXPECT_EQ(NumeroGuasto([] { Left(kCitta, -1); }), 5);
    EXPECT_EQ(NumeroGuasto([] { Space(-1); }), 5);
}

TEST(Sottostringhe, ByteNonValidiSonoUnCarattereCiascuno) {
    EXPECT_EQ(Len("\xFF\xFE"), 2);
    EXPECT_EQ(Len("a\xE0\x80\x80"), 4);        // overlong form
    EXPECT_EQ(Len("\xED\xA0\x80"), 3);         // surrogate
    EXPECT_EQ(Left("\xC3" "abc", 2), "\xC3" "a");
}

TEST(Maiuscole, AsciiEAccentateDiWindows1252) {
    const struct {
        const char* nome;
        std::string minuscolo, maiuscolo;
    } coppie[] = {
        {"ascii", "abc xyz 09", "ABC XYZ 09"},
        {"vocali accentate", "\xC3\xA0\xC3\xA8\xC3\xA9\xC3\xAC\xC3\xB2\xC3\xB9",
         "\xC3\x80\xC3\x88\xC3\x89\xC3\x8C\xC3\x92\xC3\x99"},
        {"y con dieresi", "\xC3\xBF", "\xC5\xB8"},
        {"s caron", "\xC5\xA1", "\xC5\xA0"},
    };
    for (const auto& c : coppie) {
        EXPECT_EQ(UCase(c.minuscolo), c.maiuscolo) << c.nome;
        EXPECT_EQ(LCase(c.maiuscolo), c.minuscolo) << c.nome;
    }
    // Signs and the sharp s have no other case; the euro sign isn't a letter.
    const std::string fissi = "\xC3\x97\xC3\xB7\xC3\x9F\xE2\x82\xAC";
    EXPECT_EQ(UCase(fissi), fissi);
    EXPECT_EQ(LCase(fissi), fissi);
}

TEST(CampiFissi, GiustificaEAllineaDestra) {
    EXPECT_EQ(Giustifica("abc", 5), "abc  ");
    EXPECT_EQ(Giustifica("per\xC3\xB2xx", 4), "per\xC3\xB2");
    EXPECT_EQ(Giustifica("per\xC3\xB2", 6), "per\xC3\xB2  ");
    EXPECT_EQ(AllineaDestra("12", 5), "   12");
    EXPECT_EQ(AllineaDestra("123456", 3), "123456");
}
} // namespace
