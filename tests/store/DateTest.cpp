#include "store/Date.h"
#include "store/Guasto.h"
#include "store/Piattaforma.h"

#include "tests/Ambiente.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {
// A fixed today.
struct DateConPiattaforma : Ambiente {
    void SetUp() override {
        Ambiente::SetUp();
        porta.oggi = DataCivile{7, 3, 2024};
    }
};

TEST(NumeroData, ScalaConLoSfasamentoDiGiugno) {
    const struct {
        const char* nome;
        std::string testo;
        float atteso;
    } casi[] = {
        {"29 febbraio bisestile", "29/02/2000", 732060},    // 732000 + 31 + 29
        {"primo marzo bisestile", "01/03/2000", 732061},    // 732000 + 59 + 1 + 1
        {"primo gennaio", "01/01/2001", 732367},            // 732366 + 1
        {"30 giugno", "30/06/2001", 732555},                // 732366 + 159 + 30
        {"10 luglio", "10/07/2001", 732557},                // 732366 + 181 + 10
        {"5 luglio sotto il 30 giugno", "05/07/2001", 732552},
        {"giugno bisestile", "30/06/2000", 732190},         // 732000 + 160 + 30
        {"senza barre", "15032001", 732440},                // 732366 + 59 + 15
        // "1/" gives the day; character 3 isn't "/", so the month is read from "3/".
        {"cifre singole", "1/3/2001", 732426},              // 732366 + 59 + 1
        {"mese fuori scala", "01/13/2001", 732367},
        {"maschera vuota", "__/__/____", 0},
        {"testo vuoto", "", 0},
    };
    for (const auto& c : casi) EXPECT_EQ(NumeroData(c.testo), c.atteso) << c.nome;
    EXPECT_EQ(NumeroData("23/06/2001"), NumeroData("01/07/2001"));
}

TEST(Bisestile, RegolaDeiSecoli) {
    for (int anno : {2000, 2004, 2400}) EXPECT_TRUE(Bisestile(anno)) << anno;
    for (int anno : {1900, 2001, 2100}) EXPECT_FALSE(Bisestile(anno)) << anno;
}

TEST(DividiData, PezziComeNumeroData) {
    const std::pair<std::string, std::vector<short>> casi[] = {
        {"29/02/2000", {29, 2, 2000}}, {"15032001", {15, 3, 2001}}, {"05/1_/2001", {5, 1, 2001}}};
    for (const auto& [testo, pezzi] : casi) {
        PartiData p = DividiData(testo);
        EXPECT_EQ((std::vector<short>{p.giorno, p.mese, p.anno}), pezzi) << testo;
    }
    EXPECT_EQ(NumeroGuasto([] { DividiData("01/01/1e10"); }), 6);
}

TEST_F(DateConPiattaforma, VerificaData) {
    const struct {
        int giorno, mese, anno;
        bool buona;
    } casi[] = {
        {31, 4, 2000, false}, {29, 2, 1900, false}, {29, 2, 2000, true},  {0, 1, 2000, true},
        {1, 1, 999, false},   {1, 13, 2000, false}, {1, 0, 2000, false},  {32, 1, 2000, false},
        {29, 2, 2001, false}, {30, 4, 2000, true},  {31, 12, 9999, true},
    };
    const std::string errata = "[Errore]  Data Errata; Inserire la data nel formato GGMMAAAA "
                               "immettendo lo zero davanti ai numeri con una sola cifra. -> OK";
    for (const auto& c : casi) {
        porta.messaggi.clear();
        bool esito = true;
        VerificaData(c.giorno, c.mese, c.anno, esito);
        EXPECT_EQ(esito, c.buona) << c.giorno << "/" << c.mese << "/" << c.anno;
        EXPECT_EQ(porta.messaggi, c.buona ? std::vector<std::string>{}
                                          : std::vector<std::string>{errata});
    }
    ASSERT_FALSE(porta.box.empty());
    EXPECT_EQ(porta.box[0].icona, Icona::Esclamazione);
    EXPECT_EQ(porta.box[0].pulsanti, Pulsanti::OK);
    // A good date doesn't put back an outcome already false.
    bool esito = false;
    VerificaData(1, 1, 2000, esito);
    EXPECT_FALSE(esito);
}

TEST_F(DateConPiattaforma, MessaggioDataBreveEOggi) {
    MessaggioDataBreve();
    EXPECT_EQ(porta.messaggi, std::vector<std::string>{
                                  "[Errore]  Data Errata; Inserire la data nel formato GGMMAA "
                                  "immettendo lo zero davanti ai numeri con una sola cifra. "
                                  "-> OK"});
    ASSERT_EQ(porta.box.size(), 1u);
    EXPECT_EQ(porta.box[0].icona, Icona::Esclamazione);

    EXPECT_EQ(Oggi(), "07/03/2024");
    EXPECT_EQ(Oggi("DD-MM-YYYY"), "07-03-2024");
}

TEST(TestoData, ZeriInTestaESoloLaMascheraEsattaEVuota) {
    EXPECT_EQ(TestoData(5, 3, 2001), "05/03/2001");
    EXPECT_EQ(TestoData(0, 1, 2000), "00/01/2000");
    EXPECT_TRUE(DataVuota("__/__/____"));
    for (const char* testo : {"", "  /  /    ", "__/__/_____"})
        EXPECT_FALSE(DataVuota(testo)) << testo;
}

TEST(Calendario, GiorniVeri) {
    const std::pair<std::string, long> casi[] = {
        {"30/12/1899", 0}, {"01/01/2000", 36526}, {"1/1/2000", 36526}, {" 01/01/2000 ", 36526}};
    for (const auto& [testo, atteso] : casi) EXPECT_EQ(GiornoCalendario(testo), atteso) << testo;
    EXPECT_EQ(GiornoCalendario("01/01/99"), GiornoCalendario("01/01/1999"));
    EXPECT_EQ(TestoDaGiorno(36526), "01/01/2000");
    EXPECT_EQ(TestoDaGiorno(GiornoCalendario("01/03/2000") - 1), "29/02/2000");
    EXPECT_EQ(NumeroGuasto([] { TestoDaGiorno(3000000); }), 6);
}

TEST(Calendario, DifferenzeEBisestili) {
    EXPECT_EQ(DifferenzaGiorni("28/02/2000", "01/03/2000"), 2);
    EXPECT_EQ(DifferenzaGiorni("28/02/1900", "01/03/1900"), 1);
    EXPECT_EQ(DifferenzaGiorni("01/01/2000", "01/01/2001"), 366);
    EXPECT_EQ(DifferenzaGiorni("10/07/2001", "30/06/2001"), -10);
}

TEST(Calendario, DateInesistentiOTestoNonData) {
    for (const std::string testo : {"00/01/2000", "31/04/2000", "01/13/2000", "29/02/1900", "abc",
                                    "__/__/____", "", "1/1", "01/01/0050", "1a/01/2000",
                                    "01/01/20000"}) {
        EXPECT_EQ(NumeroGuasto([&] { GiornoCalendario(testo); }), 13) << '"' << testo << '"';
    }
}
} // namespace
