// Dates: the date number with its June offset, the calendar days, the check of a typed date.
#include "store/Date.h"

#include "tests/Ambiente.h"

#include <random>
#include <string>
#include <vector>

namespace {
// The value of a reading, or its failure.
template <class F> std::string Esito(F lettura) {
    std::string valore;
    int guasto = NumeroGuasto([&] { valore = std::to_string(lettura()); });
    return guasto ? "guasto " + std::to_string(guasto) : valore;
}

// The straight reading of a plain "DD/MM/YYYY" must give what the general one gives.
void ComeLaLetturaGenerale(const std::string& t) {
    EXPECT_EQ(Esito([&] { return NumeroData(t); }), Esito([&] { return NumeroDataGenerale(t); }))
        << '"' << t << '"';
    EXPECT_EQ(Esito([&] { return GiornoCalendario(t); }),
              Esito([&] { return GiornoCalendarioGenerale(t); }))
        << '"' << t << '"';
}
} // namespace

TEST(NumeroData, ScalaConLoSfasamentoDiGiugno) {
    const std::pair<std::string, float> casi[] = {
        {"29/02/2000", 732060}, // 366 * 2000 + 31 + 29
        {"01/03/2000", 732061}, // 732000 + 59 + 1 (leap) + 1
        {"01/03/1900", 695460}, // 366 * 1900 + 59 + 1: no leap day in 1900
        {"01/01/2001", 732367}, // 366 * 2001 + 0 + 1
        {"30/06/2001", 732555}, // 732366 + 159 + 30
        {"10/07/2001", 732557}, // 732366 + 181 + 10
        {"30/06/2000", 732190}, // 732000 + 160 + 30
        {"15032001", 732440},   // "15", "03" from characters 3-4, "2001": 732366 + 59 + 15
        {"1/3/2001", 732426},   // "1/", "3/" after the "/" of character 2, "2001": + 59 + 1
        {"01/13/2001", 732367}, // a month out of range has no offset
        {"__/__/____", 0},
        {"", 0}};
    for (const auto& [testo, atteso] : casi) EXPECT_EQ(NumeroData(testo), atteso) << testo;
    EXPECT_EQ(NumeroData("23/06/2001"), NumeroData("01/07/2001"));
    PartiData p = DividiData("05/1_/2001");
    EXPECT_EQ((std::vector<short>{p.giorno, p.mese, p.anno}), (std::vector<short>{5, 1, 2001}));
    EXPECT_EQ(NumeroGuasto([] { DividiData("01/01/1e10"); }), 6);
}

TEST(NumeroData, LaScorciatoiaComeLaLetturaGenerale) {
    for (long giorno = -328716; giorno <= 401768; ++giorno) // 01/01/1000 to 31/12/2999
        ComeLaLetturaGenerale(TestoDaGiorno(giorno));
    for (const char* testo :
         {"00/00/0000", "99/99/9999", "31/02/2001", "29/02/1900", "00/13/1999", "01/01/0099",
          "24/06/2001", "__/__/____", "", "1/3/2001", "01-02-2000", "15032001", "01/02/2000 ",
          " 01/02/2000", "01/02/20 1", "0a/02/2000", "01/0b/2000", "01/02/200x", "01/02/+200",
          "-1/02/2000", "01/02/1e10", "01/1_/2001", "\xC3\xA8" "1/02/2000", "01/2/2000"})
        ComeLaLetturaGenerale(testo);
    std::mt19937 caso(2001);
    for (int giro = 0; giro < 20000; ++giro) {
        std::string testo = "00/00/0000"; // mostly digits where digits go, now and then anything
        for (char& c : testo)
            if (caso() % 4 == 0 || c != '/') c = "0123456789/ _-."[caso() % 15];
        ComeLaLetturaGenerale(testo);
    }
}

TEST_F(Ambiente, VerificaDataEOggi) {
    const struct {
        int giorno, mese, anno;
        bool buona;
    } casi[] = {{31, 4, 2000, false}, {29, 2, 1900, false}, {29, 2, 2000, true},
                {0, 1, 2000, true},   {1, 1, 999, false},   {1, 1, 1000, true},
                {1, 13, 2000, false}, {1, 0, 2000, false},  {32, 1, 2000, false},
                {31, 1, 2000, true},  {29, 2, 2001, false}, {30, 4, 2000, true}};
    const std::string errata = "[Errore]  Data Errata; Inserire la data nel formato GGMMAAAA "
                               "immettendo lo zero davanti ai numeri con una sola cifra. -> OK";
    for (const auto& c : casi) {
        bool esito = true;
        VerificaData(c.giorno, c.mese, c.anno, esito);
        EXPECT_EQ(esito, c.buona) << c.giorno << "/" << c.mese << "/" << c.anno;
        EXPECT_EQ(Messaggi(), c.buona ? std::vector<std::string>{} : std::vector{errata});
    }
    // A good date doesn't put back an outcome already false.
    bool esito = false;
    VerificaData(1, 1, 2000, esito);
    EXPECT_FALSE(esito);
    porta.oggi = DataCivile{7, 3, 2024};
    EXPECT_EQ(Oggi() + " " + Oggi("yy-mm-DD"), "07/03/2024 24-03-07");
    EXPECT_TRUE(DataVuota("__/__/____"));
    EXPECT_FALSE(DataVuota("  /  /    "));
}

TEST(Calendario, GiorniDal30Dicembre1899) {
    const std::pair<std::string, long> casi[] = {
        {"30/12/1899", 0},       {"01/01/2000", 36526}, {"1/1/2000", 36526},
        {" 01/01/2000 ", 36526}, {"01/01/99", 36161},   // 36526 - 365
        {"1/1/29", 47119},       // 2029: 36526 + 29 * 365 + 8 leap days
        {"1/1/30", 10959}};      // 1930: 36526 - 70 * 365 - 17 leap days
    for (const auto& [testo, atteso] : casi) EXPECT_EQ(GiornoCalendario(testo), atteso) << testo;
    EXPECT_EQ(TestoDaGiorno(36585), "29/02/2000"); // 36526 + 31 + 28
    EXPECT_EQ(TestoDaGiorno(2958465), "31/12/9999");
    EXPECT_EQ(NumeroGuasto([] { TestoDaGiorno(2958466); }), 6);
    EXPECT_EQ(DifferenzaGiorni("28/02/2000", "01/03/2000"), 2);
    EXPECT_EQ(DifferenzaGiorni("10/07/2001", "30/06/2001"), -10);
    for (const std::string testo : {"00/01/2000", "31/04/2000", "01/13/2000", "29/02/1900", "abc",
                                    "__/__/____", "", "1/1", "01/01/0050", "1a/01/2000",
                                    "01/01/20000"})
        EXPECT_EQ(NumeroGuasto([&] { GiornoCalendario(testo); }), 13) << '"' << testo << '"';
}
