#include "store/Formato.h"
#include "store/Guasto.h"

#include "tests/NumeroGuasto.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace {
struct CasoFormat {
    const char* nome;
    double valore;
    std::string modello;
    std::string atteso;
};

void Verifica(const std::vector<CasoFormat>& casi) {
    for (const auto& c : casi)
        EXPECT_EQ(Format(c.valore, c.modello), c.atteso) << c.nome << " in " << c.modello;
}

TEST(Format, Importi) {
    Verifica({
        {"migliaia e decimali", 1234.56, "#,###,###,##0.00", "1.234,56"},
        {"milioni", 1234567.891, "#,###,###,##0.00", "1.234.567,89"},
        {"negativo", -1234.5, "#,###,###,##0.00", "-1.234,50"},
        {"zero", 0, "#,###,###,##0.00", "0,00"},
        {"sotto l'unita", 0.5, "#,###,###,##0.00", "0,50"},
        {"2.675 alle 15 cifre", 2.675, "#,###,###,##0.00", "2,68"},
        {"mezzo centesimo", 0.005, "#,###,###,##0.00", "0,01"},
        {"mezzo centesimo negativo", -0.005, "#,###,###,##0.00", "-0,01"},
        {"riporto fino alle migliaia", 999.995, "#,###,###,##0.00", "1.000,00"},
        {"negativo che arrotonda a zero", -0.001, "#,###,###,##0.00", "-0,00"},
        {"senza decimali", 1234.5, "#,###,###,##0", "1.235"},
        {"senza decimali negativo", -2.5, "#,###,###,##0", "-3"},
        {"sotto il mezzo", 0.4, "#,###,###,##0", "0"},
        {"oltre i posti del modello", 1e12, "#,###,###,##0", "1.000.000.000.000"},
        {"un decimale", 12.25, "#,###,###,##0.0", "12,3"},
        {"tre decimali", 1.0005, "#,###,###,##0.000", "1,001"},
        {"quattro decimali", 1234.56789, "#,###,###,##0.0000", "1.234,5679"},
    });
}

TEST(Format, FormatiBrevi) {
    Verifica({
        {"migliaia", 1234.5, "##,##0", "1.235"},
        {"zero", 0, "##,##0", "0"},
        {"negativo", -7, "##,##0", "-7"},
        {"un decimale", 0.05, "##,##0.0", "0,1"},
        {"due decimali", 3.5, "##,##0.00", "3,50"},
        {"oltre i posti", 12345678.9, "##,##0.000", "12.345.678,900"},
        {"quattro decimali negativo", -0.00005, "##,##0.0000", "-0,0001"},
    });
}

TEST(Format, ModelliFissi) {
    Verifica({
        {"numero d'ordine", 12, "0000", "0012"},
        {"numero d'ordine lungo", 12345, "0000", "12345"},
        {"numero d'ordine zero", 0, "0000", "0000"},
        {"numero d'ordine arrotondato", 7.5, "0000", "0008"},
        {"fogli zero: niente", 0, "##", ""},
        {"fogli", 5, "##", "5"},
        {"fogli dieci", 10, "##", "10"},
        {"fogli oltre i posti", 123, "##", "123"},
        {"quantita zero", 0, "###0", "0"},
        {"quantita senza migliaia", 12345, "###0", "12345"},
        {"tasso", 5.5, "00.000", "05,500"},
        {"tasso arrotondato", 12.3456, "00.000", "12,346"},
        {"tasso zero", 0, "00.000", "00,000"},
        {"tasso oltre i posti", 123.4, "00.000", "123,400"},
        {"tasso stampa", 3.25, "00.00", "03,25"},
        {"tasso stampa riporto", 9.999, "00.00", "10,00"},
        // "," between digit places only groups: "##,00" is a whole number of two digits at least.
        {"ritenuta", 27, "##,00", "27"},
        {"ritenuta una cifra", 5, "##,00", "05"},
        {"ritenuta zero", 0, "##,00", "00"},
        {"ritenuta con decimali", 12.5, "##,00", "13"},
        {"ritenuta migliaia", 1234, "##,00", "1.234"},
        {"lista zero", 0, "#,###,###,###.##", ","},
        {"lista mezzo", 0.5, "#,###,###,###.##", ",5"},
        {"lista intero", 1234, "#,###,###,###.##", "1.234,"},
        {"lista un decimale", 1234.5, "#,###,###,###.##", "1.234,5"},
        {"lista arrotondata", 1234.567, "#,###,###,###.##", "1.234,57"},
        {"lista negativa", -0.25, "#,###,###,###.##", "-,25"},
        {"lista milione", 1000000, "#,###,###,###.##", "1.000.000,"},
        {"condizioni", 1234567, "###,###,###,###", "1.234.567"},
        {"condizioni zero", 0, "###,###,###,###", ""},
        {"condizioni negativo", -1000, "###,###,###,###", "-1.000"},
        {"condizioni arrotondato", 999.5, "###,###,###,###", "1.000"},
    });
}

TEST(Format, DueSezioni) {
    const std::string tasso = "*#,##0.000;(#,##0.000)";
    Verifica({
        {"positivo", 1.5, tasso, "*1,500"},
        {"negativo tra parentesi", -1.5, tasso, "(1,500)"},
        {"zero con la prima sezione", 0, tasso, "*0,000"},
        {"migliaia", 1234.5678, tasso, "*1.234,568"},
        {"negativo che arrotonda a zero", -0.0004, tasso, "(0,000)"},
        {"sezione negativa vuota: il segno", -2, "0;;", "-2"},
        {"sezione dello zero", 0, "0;(0);\"nulla\"", "nulla"},
    });
}

TEST(Format, LetteraliEScala) {
    Verifica({
        {"testo tra virgolette", 5, "0\" EUR\"", "5 EUR"},
        {"carattere protetto", 5, "\\#0", "#5"},
        {"virgola prima del punto divide per mille", 1234567, "#,##0,", "1.235"},
        {"due virgole dividono per un milione", 2500000, "0,,", "3"},
    });
}

TEST(Format, ModelloVuotoComeStr) {
    Verifica({
        {"mezzo", 0.5, "", ",5"},
        {"meno mezzo", -0.5, "", "-,5"},
        {"decimale", 1234.5, "", "1234,5"},
        {"intero", 12, "", "12"},
        {"zero", 0, "", "0"},
    });
}

TEST(Format, CambioAndataERitorno) {
    const double cambio = 1936.27;
    double memorizzato = 1000000 / cambio;
    EXPECT_NEAR(memorizzato, 516.4568, 0.0001);
    EXPECT_EQ(Format(memorizzato * cambio, FormatoImportiPerDecimali(2)), "1.000.000,00");
}

TEST(FormatoImporti, PerDecimali) {
    const char* importi[] = {"#,###,###,##0", "#,###,###,##0.0", "#,###,###,##0.00",
                             "#,###,###,##0.000", "#,###,###,##0.0000"};
    const char* brevi[] = {"##,##0", "##,##0.0", "##,##0.00", "##,##0.000", "##,##0.0000"};
    for (int d = 0; d <= 4; ++d) {
        EXPECT_EQ(FormatoImportiPerDecimali(d), importi[d]) << d;
        EXPECT_EQ(FormatoBrevePerDecimali(d), brevi[d]) << d;
    }
    for (int d : {-1, 5}) {
        EXPECT_EQ(FormatoImportiPerDecimali(d), "") << d;
        EXPECT_EQ(FormatoBrevePerDecimali(d), "") << d;
    }
}

TEST(ImportoDaTesto, SeparatoriItaliani) {
    const struct {
        const char* nome;
        std::string testo;
        double atteso;
    } casi[] = {
        {"migliaia e decimali", "1.234,56", 1234.56},
        {"solo decimali", "1234,5", 1234.5},
        {"negativo", "-12,3", -12.3},
        {"blank intorno", "  42  ", 42},
        {"il punto raggruppa", "1.234", 1234},
        {"milione formattato", "1.000.000,00", 1000000},
        {"zero", "0", 0},
        {"virgola in testa", ",5", 0.5},
        {"virgola in coda", "5,", 5},
        {"parentesi", "(12,5)", -12.5},
        {"esponente", "1,5E2", 150},
    };
    for (const auto& c : casi) EXPECT_EQ(ImportoDaTesto(c.testo), c.atteso) << c.nome;
}

TEST(ImportoDaTesto, TestoCheNonENumero) {
    for (const std::string testo :
         {"", "   ", "abc", "12a", "1,2,3", ",", "-", "1.234,5.6", ".5", "1E", "12 3"}) {
        EXPECT_EQ(NumeroGuasto([&] { ImportoDaTesto(testo); }), 13) << '"' << testo << '"';
    }
    EXPECT_EQ(NumeroGuasto([] { ImportoDaTesto("1E400"); }), 6);
}

TEST(ImportoDaTesto, RileggeCioCheFormatMostra) {
    for (double valore : {1234.56, -0.5, 1000000.0, 7.0}) {
        EXPECT_EQ(ImportoDaTesto(Format(valore, "#,###,###,##0.00")), valore) << valore;
    }
    EXPECT_EQ(ImportoDaTesto(Format(-1.5, "*#,##0.000;(#,##0.000)")), -1.5);
}
} // namespace
