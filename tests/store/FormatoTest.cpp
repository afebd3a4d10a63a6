// Numbers shown through a pattern and typed back, with the Italian separators.
#include "store/Formato.h"

#include "tests/Ambiente.h"

#include <string>

TEST(Format, OgniModelloDelProgramma) {
    const std::string imp = "#,###,###,##0.00", lista = "#,###,###,###.##";
    const std::string tasso = "*#,##0.000;(#,##0.000)", intero = "#,###,###,##0";
    const struct {
        double valore;
        std::string modello, atteso;
    } casi[] = {
        {1234.56, imp, "1.234,56"}, {1234567.891, imp, "1.234.567,89"}, {-1234.5, imp, "-1.234,50"},
        {0, imp, "0,00"}, {2.675, imp, "2,68"}, {0.005, imp, "0,01"}, // half away from zero
        {999.995, imp, "1.000,00"}, {-0.001, imp, "-0,00"}, {42, imp, "42,00"},
        {999999999999999, imp, "999.999.999.999.999,00"},
        {123456789012.345, imp, "123.456.789.012,35"}, // 15 digits, then the half
        {1234.5, intero, "1.235"}, {-2.5, intero, "-3"}, {1e16, intero, "10.000.000.000.000.000"},
        {1.0005, "#,###,###,##0.000", "1,001"}, {1234.56789, "#,###,###,##0.0000", "1.234,5679"},
        {0, "##,##0", "0"}, {-7, "##,##0", "-7"}, {12345678.9, "##,##0.000", "12.345.678,900"},
        {-0.00005, "##,##0.0000", "-0,0001"}, {7.5, "0000", "0008"}, {-5, "0000", "-0005"},
        {123456, "0000", "123456"}, {-0.0, "0000", "0000"}, {0, "##", ""}, {5, "##", "5"},
        {12345, "###0", "12345"}, {12.3456, "00.000", "12,346"}, {0.000005, "0.00000", "0,00001"},
        // "," between digit places only groups: "##,00" is a whole number of two digits at least.
        {5, "##,00", "05"}, {12.5, "##,00", "13"}, {1234, "##,00", "1.234"},
        {0, lista, ","}, {0.5, lista, ",5"}, {1234.567, lista, "1.234,57"}, {-0.25, lista, "-,25"},
        {1234567, "###,###,###,###", "1.234.567"}, {0, "###,###,###,###", ""},
        {1.5, tasso, "*1,500"}, {-1.5, tasso, "(1,500)"}, {0, tasso, "*0,000"},
        {-0.0004, tasso, "(0,000)"}, {-2, "0;;", "-2"}, {0, "0;(0);\"nulla\"", "nulla"},
        {1234567, "#,##0,", "1.235"}, // "," before "." divides by a thousand
        {1234, "0-0", "123-4"}, {0.5, "", ",5"}, {1234.5, "", "1234,5"}, {12, "", "12"}};
    for (const auto& c : casi)
        EXPECT_EQ(Format(c.valore, c.modello), c.atteso) << c.valore << " in " << c.modello;
}

TEST(ImportoDaTesto, SeparatoriItaliani) {
    const std::pair<std::string, double> casi[] = {
        {"1.234,56", 1234.56}, {"-12,3", -12.3}, {"  42  ", 42}, {"1.234", 1234}, {",5", 0.5},
        {"5,", 5},             {"(12,5)", -12.5}, {"1,5E2", 150}};
    for (const auto& [testo, atteso] : casi) EXPECT_EQ(ImportoDaTesto(testo), atteso) << testo;
    for (const std::string testo : {"", "   ", "12a", "1,2,3", ",", "-", "1.234,5.6", ".5", "1E"})
        EXPECT_EQ(NumeroGuasto([&] { ImportoDaTesto(testo); }), 13) << '"' << testo << '"';
    EXPECT_EQ(NumeroGuasto([] { ImportoDaTesto("1E400"); }), 6);
    EXPECT_EQ(ImportoDaTesto(Format(-1234.56, "#,###,###,##0.00")), -1234.56);
}
