// The shortcuts that the load of a big account takes must give what the long way gives: the
// date number and the calendar day of a plain "DD/MM/YYYY", the 15 digits of a number, the
// fields whose text doesn't fit their own room.
#include "store/Campi.h"
#include "store/Date.h"
#include "store/Formato.h"
#include "store/RecordRegistro.h"
#include "store/Tabella.h"
#include "store/Testo.h"


#include "tests/Ambiente.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace {
// The value of a reading, or its failure: both ways must agree on either.
template <class T> std::string Esito(const std::function<T()>& lettura) {
    T valore{};
    int guasto = NumeroGuasto([&] { valore = lettura(); });
    return guasto ? "guasto " + std::to_string(guasto) : std::to_string(valore);
}

void ConfrontaLetture(const std::string& testo) {
    EXPECT_EQ(Esito<float>([&] { return NumeroData(testo); }),
              Esito<float>([&] { return NumeroDataGenerale(testo); }))
        << '"' << testo << '"';
    EXPECT_EQ(Esito<long>([&] { return GiornoCalendario(testo); }),
              Esito<long>([&] { return GiornoCalendarioGenerale(testo); }))
        << '"' << testo << '"';
}

TEST(DataSemplice, OgniGiornoDal1000Al2999ComeLaLetturaGenerale) {
    // 01/01/1000 to 31/12/2999 as calendar days.
    for (long giorno = -328716; giorno <= 401768; ++giorno)
        ConfrontaLetture(TestoDaGiorno(giorno));
}

TEST(DataSemplice, TestiStraniComeLaLetturaGenerale) {
    const char* testi[] = {
        // Well formed but no date: the shortcut reads them too.
        "00/00/0000", "99/99/9999", "31/02/2001", "29/02/1900", "00/13/1999", "45/06/2001",
        "01/01/0099", "01/01/0100", "31/12/0999", "24/06/2001", "23/06/2001",
        // Not of the shape: the general reading.
        "__/__/____", "  /  /    ", "", "1/3/2001", "01-02-2000", "01.02.2000", "15032001",
        "01/02/2000 ", " 01/02/2000", "01/02/20 1", "0a/02/2000", "01/0b/2000", "01/02/200x",
        "01/02/+200", "-1/02/2000", "01/02/1e10", "01/1_/2001", "\xC3\xA8" "1/02/2000",
        "01/02/2000/", "1/02/2000", "01/2/2000",
    };
    for (const char* testo : testi) ConfrontaLetture(testo);
}

TEST(DataSemplice, TestiCasualiDiCifreEBarre) {
    std::mt19937 gen(2001);
    const std::string alfabeto = "0123456789/ _-.";
    std::uniform_int_distribution<std::size_t> lettera(0, alfabeto.size() - 1);
    for (int giro = 0; giro < 20000; ++giro) {
        std::string testo = "00/00/0000";
        // Mostly digits where digits go, now and then anything.
        for (char& c : testo)
            if (gen() % 4 == 0 || c != '/') c = alfabeto[lettera(gen)];
        ConfrontaLetture(testo);
    }
}

// The 15 digits of a value as glibc's printf rounds it, exactly, from its binary value.
Cifre15 CifreDiPrintf(double valore) {
    char testo[64];
    std::snprintf(testo, sizeof testo, "%.14e", std::fabs(valore));    // d.dddddddddddddde±XX
    Cifre15 c;
    c.cifre = std::string(1, testo[0]) + std::string(testo + 2, 14);
    c.esponente = std::atoi(testo + 17);
    if (c.cifre == std::string(15, '0')) c.esponente = 0;
    return c;
}

TEST(Arrotonda15, ComePrintfSuOgniGenereDiValore) {
    std::mt19937_64 gen(15);
    auto intero = [&](std::uint64_t fino) { return static_cast<double>(gen() % fino); };
    const struct {
        const char* nome;
        std::function<double()> valore;
    } generi[] = {
        {"bit a caso", [&] { return std::bit_cast<double>(gen()); }},
        {"importi in centesimi", [&] { return intero(10000000000) / 100; }},
        {"importi per un cambio", [&] { return intero(10000000) / 100 * 1936.27; }},
        {"importi diviso un cambio", [&] { return intero(10000000) / 1936.27; }},
        {"mezzi alla quindicesima cifra", [&] { return intero(1000000000000000) + 0.5; }},
        {"mezzi piccoli", [&] { return (intero(1000000) + 0.5) / 1024; }},
        {"interi fino a 10^17", [&] { return intero(100000000000000000); }},
        {"potenze di dieci", [&] { return std::pow(10.0, intero(60) - 30); }},
        {"accanto alle potenze di dieci",
         [&] { return std::nextafter(std::pow(10.0, intero(40) - 20), gen() % 2 ? 0.0 : 1e300); }},
        {"intorno a 10^-5", [&] { return 1e-5 * (0.999 + intero(2000) / 1e6); }},
        {"intorno a 10^15", [&] { return 1e15 * (0.999999 + intero(2000) / 1e9); }},
        {"subnormali", [&] { return std::bit_cast<double>(gen() % (1ull << 52)); }},
    };
    for (const auto& genere : generi) {
        for (int giro = 0; giro < 20000; ++giro) {
            double v = genere.valore();
            if (!std::isfinite(v)) continue;
            Cifre15 atteso = CifreDiPrintf(v), c = Arrotonda15(v);
            ASSERT_EQ(c.cifre, atteso.cifre) << genere.nome << ' ' << v;
            ASSERT_EQ(c.esponente, atteso.esponente) << genere.nome << ' ' << v;
        }
    }
    EXPECT_EQ(NumeroGuasto([] { Arrotonda15(INFINITY); }), 6);
}

TEST(Arrotonda15, UnMezzoVeroVaAlPari) {
    // 16 digits, exact in binary: the 15th digit rounds to the even one.
    const struct {
        double valore;
        std::string atteso;
    } casi[] = {
        {123456789012345.5, " 123456789012346"},
        {123456789012344.5, " 123456789012344"},
        {-999999999999999.5, "-1E+15"},
        {0.5, " .5"},
    };
    for (const auto& c : casi) EXPECT_EQ(Str(c.valore), c.atteso) << c.valore;
}

TEST(Format, NumeriInteriEImportiDelRegistro) {
    const struct {
        const char* nome;
        double valore;
        std::string modello;
        std::string atteso;
    } casi[] = {
        {"numero negativo", -5, "0000", "-0005"},
        {"numero oltre le quattro cifre", 123456, "0000", "123456"},
        {"zero negativo", -0.0, "0000", "0000"},
        {"intero con decimali", 42, "#,###,###,##0.00", "42,00"},
        {"intero grande", 999999999999999, "#,###,###,##0.00", "999.999.999.999.999,00"},
        {"quindici cifre poi il mezzo", 123456789012.345, "#,###,###,##0.00",
         "123.456.789.012,35"},
        {"intero oltre 10^15", 1e16, "#,###,###,##0", "10.000.000.000.000.000"},
        {"cinque milionesimi", 0.000005, "0.00000", "0,00001"},
        {"un centomillesimo", 0.00001, "0.00000", "0,00001"},
        {"intero fra letterali", 1234, "0-0", "123-4"},
    };
    for (const auto& c : casi)
        EXPECT_EQ(Format(c.valore, c.modello), c.atteso) << c.nome << " in " << c.modello;
}

// Texts around the room of a field: N bytes, 8 at least; beyond, a block of its own.
TEST(Fisso, TestiOltreLaStanza) {
    const struct {
        const char* nome;
        std::string testo;
    } casi[] = {
        {"ASCII pieno", "ABCDEFGHIJ"},
        {"ASCII corto", "AB"},
        {"accenti che stanno", "caffè"},
        {"accenti oltre la stanza", "perché è già così"},
        {"euro", "€€€€€€€€€€€€"},
        {"carattere di quattro byte", "a\xF0\x9F\x98\x80z"},
        {"byte spaiati", "\xE8\xE0 x \x80"},
        {"vuoto", ""},
    };
    for (const auto& c : casi) {
        Fisso<1> uno = c.testo;
        Fisso<5> cinque = c.testo;
        Fisso<10> dieci = c.testo;
        Fisso<30> trenta = c.testo;
        EXPECT_EQ(uno.Testo(), Giustifica(c.testo, 1)) << c.nome;
        EXPECT_EQ(cinque.Testo(), Giustifica(c.testo, 5)) << c.nome;
        EXPECT_EQ(dieci.Testo(), Giustifica(c.testo, 10)) << c.nome;
        EXPECT_EQ(trenta.Testo(), Giustifica(c.testo, 30)) << c.nome;

        // Copies, in both directions across the room, and onto itself.
        Fisso<10> copia = dieci;
        EXPECT_EQ(copia, dieci) << c.nome;
        Fisso<10> sopra = "ùùùùùùùùùù";
        sopra = copia;
        EXPECT_EQ(sopra.Testo(), dieci.Testo()) << c.nome;
        copia = "x";
        EXPECT_EQ(copia.Testo(), "x         ") << c.nome;
        EXPECT_EQ(sopra.Testo(), dieci.Testo()) << c.nome;
        const Fisso<10>& stesso = sopra;
        sopra = stesso;
        EXPECT_EQ(sopra.Testo(), dieci.Testo()) << c.nome;
        // Between widths.
        Fisso<5> stretto{trenta};
        EXPECT_EQ(stretto.Testo(), Giustifica(c.testo, 5)) << c.nome;
        trenta = stretto;
        EXPECT_EQ(trenta.Testo(), Giustifica(Giustifica(c.testo, 5), 30)) << c.nome;
    }
}

TEST(Fisso, DalDiscoEAlDiscoOltreLaStanza) {
    // Windows-1252: è is E8, € is 80; bytes 0 read as blanks.
    const struct {
        const char* nome;
        std::vector<unsigned char> disco;
        std::string letto;
    } casi[] = {
        {"ASCII", {'A', 'B', 0, 'C', ' '}, "AB C "},
        {"accento", {'c', 'a', 'f', 'f', 0xE8}, "caffè"},
        {"tutti euro", {0x80, 0x80, 0x80, 0x80, 0x80}, "€€€€€"},
    };
    for (const auto& c : casi) {
        Fisso<5> campo;
        campo.Decodifica(c.disco.data());
        EXPECT_EQ(campo.Testo(), c.letto) << c.nome;
        unsigned char scritti[5];
        campo.Codifica(scritti);
        std::vector<unsigned char> atteso = c.disco;
        for (unsigned char& b : atteso) b = b == 0 ? ' ' : b;
        EXPECT_EQ(std::vector<unsigned char>(scritti, scritti + 5), atteso) << c.nome;
        // A second read over a text in a block of its own.
        campo.Decodifica(c.disco.data());
        EXPECT_EQ(campo.Testo(), c.letto) << c.nome;
    }
}

TEST(Fisso, TabellaDiMovimentiConTestiOltreLaStanza) {
    const std::string lunga = "perché è già così, però più in là";
    Tabella<RecMovimento> movimenti(3);
    movimenti[1].DescMovim = lunga;
    movimenti[2].DescMovim = "semplice";
    movimenti[3] = movimenti[1];
    Tabella<RecMovimento> copia = movimenti;
    movimenti.Ridimensiona(5);
    EXPECT_EQ(copia[1].DescMovim.Testo(), Giustifica(lunga, 30));
    EXPECT_EQ(copia[3].DescMovim, copia[1].DescMovim);
    EXPECT_EQ(copia[2].DescMovim.Testo(), Giustifica("semplice", 30));
    EXPECT_EQ(movimenti[1].DescMovim.Testo(), std::string(30, ' '));
}
} // namespace

TEST(Intero16, UnMezzoVaAlPariFuoriScalaEUnGuasto) {
    const struct {
        double valore;
        int atteso; // -1: failure 6
    } casi[] = {
        {0.5, 0},          {1.5, 2},          {2.5, 2},         {-2.5, -2},
        {-3.5, -4},        {2.4999, 2},       {2.5001, 3},      {32767.4, 32767},
        {-32768.5, -32768}, {32767.5, -1},    {-32768.6, -1},
    };
    for (const auto& c : casi) {
        short valore = 0;
        int guasto = NumeroGuasto([&] { valore = Intero16(c.valore); });
        EXPECT_EQ(c.atteso == -1 ? guasto : valore, c.atteso == -1 ? 6 : c.atteso) << c.valore;
    }
}
