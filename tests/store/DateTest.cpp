#include "store/Date.h"
#include "store/Guasto.h"
#include "store/Piattaforma.h"

#include "tests/NumeroGuasto.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace {
// Keeps the message boxes and gives a fixed today.
struct PiattaformaFinta : PortaPiattaforma {
    struct Messaggio {
        std::string testo, titolo;
        Icona icona;
        Pulsanti pulsanti;
        int predefinito;
    };
    std::vector<Messaggio> messaggi;
    DataCivile oggi{7, 3, 2024};

    Risposta MsgBox(const std::string& testo, const std::string& titolo, Icona icona,
                    Pulsanti pulsanti, int predefinito) override {
        messaggi.push_back({testo, titolo, icona, pulsanti, predefinito});
        return Risposta::OK;
    }
    void Beep() override {}
    void Clessidra(bool) override {}
    DataCivile Oggi() override { return oggi; }
    void Guasto(int, const std::string&) override {}
    void MostraSchermo(Schermo&, bool) override {}
    void NascondiSchermo(Schermo&) override {}
    void ScaricaSchermo(Schermo&) override {}
    void Termina() override {}
    void StampanteFont(const std::string&) override {}
    void StampanteCorpo(double) override {}
    void StampanteGrassetto(bool) override {}
    void StampanteTab(int) override {}
    void StampaRiga(const std::string&) override {}
    void StampanteNuovaPagina() override {}
    void StampanteFine() override {}
    std::vector<std::string> Unita() override { return {}; }
};

class DateConPiattaforma : public ::testing::Test {
protected:
    void SetUp() override { ImpostaPiattaforma(&piattaforma); }
    void TearDown() override { ImpostaPiattaforma(nullptr); }
    PiattaformaFinta piattaforma;
};

TEST(NumeroData, ScalaConLoSfasamentoDiGiugno) {
    const struct {
        const char* nome;
        std::string testo;
        float atteso;
    } casi[] = {
        {"29 febbraio bisestile", "29/02/2000", 732060},    // 732000 + 31 + 29
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
        {"campo blank", "          ", 0},
        {"testo vuoto", "", 0},
    };
    for (const auto& c : casi) EXPECT_EQ(NumeroData(c.testo), c.atteso) << c.nome;
    EXPECT_EQ(NumeroData("23/06/2001"), NumeroData("01/07/2001"));
    EXPECT_GT(NumeroData("24/06/2001"), NumeroData("01/07/2001"));
}

TEST(Bisestile, RegolaDeiSecoli) {
    const struct {
        int anno;
        bool atteso;
    } casi[] = {{2000, true}, {1900, false}, {2004, true}, {2001, false}, {2100, false},
                {2400, true}};
    for (const auto& c : casi) EXPECT_EQ(Bisestile(c.anno), c.atteso) << c.anno;
}

TEST(DividiData, PezziComeNumeroData) {
    const struct {
        const char* nome;
        std::string testo;
        short giorno, mese, anno;
    } casi[] = {
        {"con barre", "29/02/2000", 29, 2, 2000},
        {"senza barre", "15032001", 15, 3, 2001},
        {"maschera vuota", "__/__/____", 0, 0, 0},
        {"mese a meta", "05/1_/2001", 5, 1, 2001},
    };
    for (const auto& c : casi) {
        PartiData p = DividiData(c.testo);
        EXPECT_EQ(p.giorno, c.giorno) << c.nome;
        EXPECT_EQ(p.mese, c.mese) << c.nome;
        EXPECT_EQ(p.anno, c.anno) << c.nome;
    }
    EXPECT_EQ(NumeroGuasto([] { DividiData("01/01/1e10"); }), 6);
}

const std::string kDataErrata = " Data Errata; Inserire la data nel formato GGMMAAAA "
                                "immettendo lo zero davanti ai numeri con una sola cifra.";

TEST_F(DateConPiattaforma, VerificaData) {
    const struct {
        const char* nome;
        int giorno, mese, anno;
        bool buona;
    } casi[] = {
        {"31 aprile", 31, 4, 2000, false},
        {"29 febbraio 1900", 29, 2, 1900, false},
        {"29 febbraio 2000", 29, 2, 2000, true},
        {"giorno zero", 0, 1, 2000, true},
        {"anno 999", 1, 1, 999, false},
        {"mese 13", 1, 13, 2000, false},
        {"mese zero", 1, 0, 2000, false},
        {"giorno 32", 32, 1, 2000, false},
        {"29 febbraio comune", 29, 2, 2001, false},
        {"28 febbraio 1900", 28, 2, 1900, true},
        {"30 aprile", 30, 4, 2000, true},
        {"31 giugno", 31, 6, 2000, false},
        {"ultimo giorno", 31, 12, 9999, true},
    };
    for (const auto& c : casi) {
        piattaforma.messaggi.clear();
        bool esito = true;
        VerificaData(c.giorno, c.mese, c.anno, esito);
        EXPECT_EQ(esito, c.buona) << c.nome;
        ASSERT_EQ(piattaforma.messaggi.size(), c.buona ? 0u : 1u) << c.nome;
        if (c.buona) continue;
        const auto& m = piattaforma.messaggi[0];
        EXPECT_EQ(m.testo, kDataErrata) << c.nome;
        EXPECT_EQ(m.titolo, "Errore");
        EXPECT_EQ(m.icona, Icona::Esclamazione);
        EXPECT_EQ(m.pulsanti, Pulsanti::OK);
    }
}

TEST_F(DateConPiattaforma, VerificaDataNonRimetteEsitoATrue) {
    bool esito = false;
    VerificaData(1, 1, 2000, esito);
    EXPECT_FALSE(esito);
}

TEST_F(DateConPiattaforma, MessaggioDataBreve) {
    MessaggioDataBreve();
    ASSERT_EQ(piattaforma.messaggi.size(), 1u);
    EXPECT_EQ(piattaforma.messaggi[0].testo,
              " Data Errata; Inserire la data nel formato GGMMAA immettendo lo zero davanti ai "
              "numeri con una sola cifra.");
    EXPECT_EQ(piattaforma.messaggi[0].titolo, "Errore");
    EXPECT_EQ(piattaforma.messaggi[0].icona, Icona::Esclamazione);
}

TEST_F(DateConPiattaforma, OggiNeiModelli) {
    EXPECT_EQ(Oggi(), "07/03/2024");
    EXPECT_EQ(Oggi("DD-MM-YYYY"), "07-03-2024");
    EXPECT_EQ(Oggi("dd/mm/yyyy"), "07/03/2024");
}

TEST(TestoData, ZeriInTesta) {
    EXPECT_EQ(TestoData(5, 3, 2001), "05/03/2001");
    EXPECT_EQ(TestoData(31, 12, 1999), "31/12/1999");
    EXPECT_EQ(TestoData(0, 1, 2000), "00/01/2000");
}

TEST(DataVuota, SoloLaMascheraEsatta) {
    EXPECT_TRUE(DataVuota("__/__/____"));
    EXPECT_FALSE(DataVuota(""));
    EXPECT_FALSE(DataVuota("  /  /    "));
    EXPECT_FALSE(DataVuota("__/__/_____"));
    EXPECT_FALSE(DataVuota("01/01/2000"));
}

TEST(Calendario, GiorniVeri) {
    const struct {
        const char* nome;
        std::string testo;
        long atteso;
    } casi[] = {
        {"origine", "30/12/1899", 0},
        {"giorno dopo", "31/12/1899", 1},
        {"1900", "01/01/1900", 2},
        {"2000", "01/01/2000", 36526},
        {"cifre singole", "1/1/2000", 36526},
        {"anno di due cifre", "01/01/00", 36526},
        {"blank intorno", " 01/01/2000 ", 36526},
    };
    for (const auto& c : casi) EXPECT_EQ(GiornoCalendario(c.testo), c.atteso) << c.nome;
    EXPECT_EQ(GiornoCalendario("01/01/99"), GiornoCalendario("01/01/1999"));
}

TEST(Calendario, DifferenzeEBisestili) {
    const struct {
        const char* nome;
        std::string da, a;
        long giorni;
    } casi[] = {
        {"febbraio bisestile", "28/02/2000", "01/03/2000", 2},
        {"febbraio comune", "28/02/2001", "01/03/2001", 1},
        {"febbraio del 1900", "28/02/1900", "01/03/1900", 1},
        {"anno bisestile", "01/01/2000", "01/01/2001", 366},
        {"anno comune", "01/01/2001", "01/01/2002", 365},
        {"all'indietro", "10/07/2001", "30/06/2001", -10},
        {"stesso giorno", "23/06/2001", "23/06/2001", 0},
    };
    for (const auto& c : casi) EXPECT_EQ(DifferenzaGiorni(c.da, c.a), c.giorni) << c.nome;
}

TEST(Calendario, DateInesistentiOTestoNonData) {
    for (const std::string testo : {"00/01/2000", "31/04/2000", "01/13/2000", "29/02/1900",
                                    "29/02/2001", "abc", "__/__/____", "", "1/1", "01/01/0050",
                                    "1a/01/2000", "01/01/20000"}) {
        EXPECT_EQ(NumeroGuasto([&] { GiornoCalendario(testo); }), 13) << '"' << testo << '"';
    }
}

TEST(Calendario, TestoDaGiorno) {
    EXPECT_EQ(TestoDaGiorno(36526), "01/01/2000");
    EXPECT_EQ(TestoDaGiorno(0), "30/12/1899");
    EXPECT_EQ(TestoDaGiorno(GiornoCalendario("01/03/2000") - 1), "29/02/2000");
    EXPECT_EQ(TestoDaGiorno(GiornoCalendario("01/01/2000") - 1), "31/12/1999");
    EXPECT_EQ(NumeroGuasto([] { TestoDaGiorno(3000000); }), 6);
}
} // namespace
