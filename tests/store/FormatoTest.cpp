#include "store/Formato.h"
#include "store/Guasto.h"


#include "tests/Ambiente.h"

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
        {"2.675 alle 15 cifre", 2.675, "#,###,###,##0.00", "2,68"},
        {"mezzo centesimo", 0.005, "#,###,###,##0.00", "0,01"},
        {"riporto fino alle migliaia", 999.995, "#,###,###,##0.00", "1.000,00"},
        {"negativo che arrotonda a zero", -0.001, "#,###,###,##0.00", "-0,00"},
        {"senza decimali", 1234.5, "#,###,###,##0", "1.235"},
        {"senza decimali negativo", -2.5, "#,###,###,##0", "-3"},
        {"oltre i posti del modello", 1e12, "#,###,###,##0", "1.000.000.000.000"},
        {"tre decimali", 1.0005, "#,###,###,##0.000", "1,001"},
        {"quattro decimali", 1234.56789, "#,###,###,##0.0000", "1.234,5679"},
    });
}

TEST(Format, FormatiBrevi) {
    Verifica({
        {"migliaia", 1234.5, "##,##0", "1.235"},
        {"zero", 0, "##,##0", "0"},
        {"negativo", -7, "##,##0", "-7"},
        {"due decimali", 3.5, "##,##0.00", "3,50"},
        {"oltre i posti", 12345678.9, "##,##0.000", "12.345.678,900"},
        {"quattro decimali negativo", -0.00005, "##,##0.0000", "-0,0001"},
    });
}

TEST(Format, ModelliFissi) {
    Verifica({
        {"numero d'ordine", 12, "0000", "0012"},
        {"numero d'ordine arrotondato", 7.5, "0000", "0008"},
        {"fogli zero: niente", 0, "##", ""},
        {"fogli", 5, "##", "5"},
        {"quantita senza migliaia", 12345, "###0", "12345"},
        {"tasso", 5.5, "00.000", "05,500"},
        {"tasso arrotondato", 12.3456, "00.000", "12,346"},
        {"tasso stampa riporto", 9.999, "00.00", "10,00"},
        // "," between digit places only groups: "##,00" is a whole number of two digits at least.
        {"ritenuta una cifra", 5, "##,00", "05"},
        {"ritenuta con decimali", 12.5, "##,00", "13"},
        {"ritenuta migliaia", 1234, "##,00", "1.234"},
        {"lista zero", 0, "#,###,###,###.##", ","},
        {"lista mezzo", 0.5, "#,###,###,###.##", ",5"},
        {"lista arrotondata", 1234.567, "#,###,###,###.##", "1.234,57"},
        {"lista negativa", -0.25, "#,###,###,###.##", "-,25"},
        {"condizioni", 1234567, "###,###,###,###", "1.234.567"},
        {"condizioni zero", 0, "###,###,###,###", ""},
    });
}

TEST(Format, DueSezioni) {
    const std::string tasso = "*#,##0.000;(#,##0.000)";
    Verifica({
        {"positivo", 1.5, tasso, "*1,500"},
        {"negativo tra parentesi", -1.5, tasso, "(1,500)"},
        {"zero con la prima sezione", 0, tasso, "*0,000"},
        {"negativo che arrotonda a zero", -0.0004, tasso, "(0,000)"},
        {"sezione negativa vuota: il segno", -2, "0;;", "-2"},
        {"sezione dello zero", 0, "0;(0);\"nulla\"", "nulla"},
        {"virgola prima del punto divide per mille", 1234567, "#,##0,", "1.235"},
    });
}

TEST(Format, ModelloVuotoComeStr) {
    Verifica({
        {"mezzo", 0.5, "", ",5"},
        {"decimale", 1234.5, "", "1234,5"},
        {"intero", 12, "", "12"},
    });
}

TEST(FormatoImporti, BreveDaiDecimali) {
    const char* brevi[] = {"", "##,##0", "##,##0.0", "##,##0.00", "##,##0.000", "##,##0.0000", ""};
    for (int d = -1; d <= 5; ++d) EXPECT_EQ(FormatoBrevePerDecimali(d), brevi[d + 1]) << d;
}

TEST(ImportoDaTesto, SeparatoriItaliani) {
    const struct {
        const char* nome;
        std::string testo;
        double atteso;
    } casi[] = {
        {"migliaia e decimali", "1.234,56", 1234.56},
        {"negativo", "-12,3", -12.3},
        {"blank intorno", "  42  ", 42},
        {"il punto raggruppa", "1.234", 1234},
        {"virgola in testa", ",5", 0.5},
        {"virgola in coda", "5,", 5},
        {"parentesi", "(12,5)", -12.5},
        {"esponente", "1,5E2", 150},
    };
    for (const auto& c : casi) EXPECT_EQ(ImportoDaTesto(c.testo), c.atteso) << c.nome;
}

TEST(ImportoDaTesto, TestoCheNonENumero) {
    for (const std::string testo : {"", "   ", "12a", "1,2,3", ",", "-", "1.234,5.6", ".5", "1E"})
        EXPECT_EQ(NumeroGuasto([&] { ImportoDaTesto(testo); }), 13) << '"' << testo << '"';
    EXPECT_EQ(NumeroGuasto([] { ImportoDaTesto("1E400"); }), 6);
}

TEST(ImportoDaTesto, RileggeCioCheFormatMostra) {
    for (double valore : {1234.56, -0.5, 1000000.0})
        EXPECT_EQ(ImportoDaTesto(Format(valore, "#,###,###,##0.00")), valore) << valore;
    EXPECT_EQ(ImportoDaTesto(Format(-1.5, "*#,##0.000;(#,##0.000)")), -1.5);
}
} // namespace
