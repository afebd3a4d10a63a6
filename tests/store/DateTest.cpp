// Dates: the date number with its June offset, the calendar days, the check of a typed date.
#include "store/Date.h"

#include "tests/Ambiente.h"

#include <random>
#include <tuple>

namespace {
template <class F> std::string Esito(F lettura) {
    std::string valore;
    int guasto = NumeroGuasto([&] { valore = std::to_string(lettura()); });
    return guasto ? "guasto " + std::to_string(guasto) : valore;
}

// The straight reading of a plain "DD/MM/YYYY" gives what the general one gives, or its failure.
bool ComeLaLetturaGenerale(const std::string& t) {
    return Esito([&] { return NumeroData(t); }) + Esito([&] { return GiornoCalendario(t); }) ==
           Esito([&] { return NumeroDataGenerale(t); }) +
               Esito([&] { return GiornoCalendarioGenerale(t); });
}
} // namespace

TEST(NumeroData, ScalaConLoSfasamentoDiGiugno) {
    const std::pair<std::string, float> casi[] = {
        {"29/02/2000", 732060}, {"01/03/2000", 732061}, // 366 * 2000 + 31 + 29; + 59 + 1 + 1
        {"01/03/1900", 695460}, {"01/01/2001", 732367}, // 366 * 1900 + 59 + 1; 366 * 2001 + 1
        {"30/06/2001", 732555}, {"10/07/2001", 732557}, // 732366 + 159 + 30; 732366 + 181 + 10
        {"30/06/2000", 732190}, {"15032001", 732440},   // 732000 + 160 + 30; 732366 + 59 + 15
        {"1/3/2001", 732426},   {"01/13/2001", 732367}, // "1/", "3/": + 59 + 1; no 13th month
        {"__/__/____", 0},      {"", 0}};
    for (const auto& [testo, atteso] : casi) EXPECT_EQ(NumeroData(testo), atteso) << testo;
    PartiData p = DividiData("05/1_/2001"), m = DividiData("1/1/02.5"); // a half goes to even
    EXPECT_EQ(std::vector({p.giorno, p.mese, p.anno, m.anno}), std::vector<short>({5, 1, 2001, 2}));
    EXPECT_EQ(NumeroGuasto([] { DividiData("01/01/1e10"); }), 6);
}

TEST(NumeroData, LaScorciatoiaComeLaLetturaGenerale) {
    for (long giorno = -328716; giorno <= 401768; ++giorno) // 01/01/1000 to 31/12/2999
        ASSERT_TRUE(ComeLaLetturaGenerale(TestoDaGiorno(giorno))) << giorno;
    std::mt19937 caso(2001);
    for (int giro = 0; giro < 20000; ++giro) {
        std::string testo = "00/00/0000"; // mostly digits where digits go, now and then anything
        for (char& c : testo)
            if (caso() % 4 == 0 || c != '/') c = "0123456789/ _-.+ex\xC3"[caso() % 19];
        ASSERT_TRUE(ComeLaLetturaGenerale(testo)) << '"' << testo << '"';
        ASSERT_TRUE(ComeLaLetturaGenerale(testo.substr(0, caso() % 11) + " ")) << testo;
    }
}

TEST_F(Ambiente, VerificaDataEOggi) {
    const std::tuple<int, int, int, bool> casi[] = {
        {31, 4, 2000, false}, {30, 4, 2000, true},   {29, 2, 1900, false}, {29, 2, 2000, true},
        {29, 2, 2001, false}, {0, 1, 2000, true},    {1, 1, 999, false},   {1, 1, 1000, true},
        {1, 13, 2000, false}, {1, 0, 2000, false},   {32, 1, 2000, false}, {31, 1, 2000, true}};
    for (const auto& [giorno, mese, anno, buona] : casi) {
        bool esito = giorno != 0; // a good date doesn't put back an outcome already false
        VerificaData(giorno, mese, anno, esito);
        EXPECT_EQ(esito, buona && giorno != 0) << giorno << "/" << mese << "/" << anno;
        EXPECT_EQ(Messaggi().size(), buona ? 0u : 1u);
    }
    porta.oggi = DataCivile{7, 3, 2024};
    EXPECT_EQ(Oggi() + " " + Oggi("yy-mm-DD"), "07/03/2024 24-03-07");
}

TEST(Calendario, GiorniDal30Dicembre1899) {
    // 1999: 36526 - 365; 2029: 36526 + 29 * 365 + 8 leap days; 1930: 36526 - 70 * 365 - 17.
    const std::pair<std::string, long> casi[] = {
        {"30/12/1899", 0}, {"01/01/2000", 36526}, {"1/1/2000", 36526}, {" 01/01/2000 ", 36526},
        {"01/01/99", 36161}, {"1/1/29", 47119}, {"1/1/30", 10959}};
    for (const auto& [testo, atteso] : casi) EXPECT_EQ(GiornoCalendario(testo), atteso) << testo;
    // 36526 + 31 + 28, and the last day there is.
    EXPECT_EQ(TestoDaGiorno(36585) + TestoDaGiorno(2958465), "29/02/2000" "31/12/9999");
    EXPECT_EQ(NumeroGuasto([] { TestoDaGiorno(2958466); }), 6);
    EXPECT_EQ(DifferenzaGiorni("10/07/2001", "28/02/2001"), -132); // 10 + 30 + 31 + 30 + 31
    for (const std::string testo : {"00/01/2000", "31/04/2000", "01/13/2000", "29/02/1900", "",
                                    "__/__/____", "1/1", "01/01/0050", "1a/01/2000", "1/1/20000"})
        EXPECT_EQ(NumeroGuasto([&] { GiornoCalendario(testo); }), 13) << '"' << testo << '"';
}
