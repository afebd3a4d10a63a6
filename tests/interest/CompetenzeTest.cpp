// Interest, commissions and charges worked out by hand. Divisor 1 and years of 365 days unless a
// case says otherwise, so numeri are balance * days and the interest factor is 0.01.
#include "tests/interest/Conto.h"

#include "interest/Competenze.h"
#include "interest/Staffa.h"
#include "store/Formato.h"

#include <numeric>

struct CompetenzeTest : AmbienteConto {
    void SetUp() override {
        AmbienteConto::SetUp();
        Stato.OpzioniCalcolo.Divisore = 1;
        Stato.TassiCreditori.DataC1 = Stato.TassiDebitori.DATAD1 = "01/01/2000";
        Stato.TassiCreditori.PerC1 = 2.5f;
        Stato.TassiDebitori.PerD1 = 10;
        Stato.TassiDebitori.PerD6 = 20;
        Stato.OneriPassivi.Per3 = 27;
    }
    // 10000 in on 01/01, 5000 more on 01/03. To 31/03, rows 31/12 (1 day on 0), 01/01 (59 days on
    // 10000: 590000), 01/03 (30 days on 15000: 450000), 31/03: 1040000.
    void CreditoDelTrimestre() {
        Movimenti({M("01/01/2001", 10000, "E"), M("01/03/2001", 5000, "E")});
    }
    // 500 out on 01/04 (10 days at -500), 1000 more on 11/04 (10 days at -1500), 1500 back on
    // 21/04; commissions 2% on the excess, 1.5% on the line, 0.5% and 0.25% beyond it.
    void ScopertoDiAprile(double fido) {
        Stato.Conti[1].Fido = fido;
        auto& o = Stato.OneriPassivi;
        o.Per1 = 2;
        o.Per2 = 1.5f;
        o.Per6 = 0.5f;
        o.Per7 = 0.25f;
        Movimenti(
            {M("01/04/2001", 500, "U"), M("11/04/2001", 1000, "U"), M("21/04/2001", 1500, "E")});
    }
};

TEST_F(CompetenzeTest, Creditori) {
    CreditoDelTrimestre();
    struct Caso {
        const char* dataC2;
        short divisore;
        const char* giorni;
        double numeri, lordi, netti;
        std::string riga, ritenuta; // the last rate's row; base and tax of the withholding
    };
    const Caso casi[] = {
        // 2.5 * 1040000 / 365 * 0.01 = 71.2329; tax 27% 19.2329, no base shown below 100; 52.
        {"", 1, "2", 1040000, 26000.0 / 365, 52,
         "    31/12/2000      02,500  " + C("1.040.000,00") + "     " + C("71,23"),
         C("0,00", 13) + "  Totale" + C("19,23", 13)},
        // 5% from 01/03, a row's date: 01/01's row at 2.5 (590000 / 365 * 0.025 = 40.41), 01/03's
        // at 5 (450000: 61.64); gross 102.05 is the base, tax 27.55, net 73% = 74.50.
        {"01/03/2001", 1, "2", 1040000, 37250.0 / 365, 74.5,
         "    01/03/2001      05,000  " + C("450.000,00") + "     " + C("61,64"),
         C("102,05", 13) + "  Totale" + C("27,55", 13)},
        // A year of 360 days: 22500 / 360 = 62.50; 37250 / 360 = 103.47, tax 27.94, net 75.53.
        // Divisor 100: numeri a hundredth, factor 1: the same interest.
        {"01/03/2001", 3, "1", 10400, 37250.0 / 360, 27192.5 / 360,
         "    01/03/2001      05,000  " + C("4.500,00") + "     " + C("62,50"),
         C("103,47", 13) + "  Totale" + C("27,94", 13)},
    };
    for (const Caso& k : casi) {
        SCOPED_TRACE(k.riga);
        Stato.TassiCreditori.DataC2 = k.dataC2;
        Stato.TassiCreditori.PerC2 = 5;
        Stato.OpzioniCalcolo.Divisore = k.divisore;
        Stato.OpzioniCalcolo.GiorniCreditori = k.giorni;
        Competenze c = CalcolaInteressi("01/01/2001", "31/03/2001", false);
        EXPECT_NEAR(c.TotaleNumeriCreditori, k.numeri, 1e-6);
        EXPECT_NEAR(c.InteressiLordi, k.lordi, 1e-9);
        EXPECT_NEAR(c.InteressiNetti, k.netti, 1e-6);
        EXPECT_TRUE(Ha(c.Righe, k.riga));
        EXPECT_TRUE(Ha(c.Righe, "   RIT. FISCALE 27% Imponibile:" + k.ritenuta));
    }
}

TEST_F(CompetenzeTest, DebitoEntroEOltreIlFido) {
    struct Caso {
        double fido, fuoriFido, interessi, commissione;
        std::vector<std::string> righe;
    };
    const Caso casi[] = {
        // Fido 1000: EF numeri 5000 + 10000 at 10% = 1500 / 365, FF 5000 at 20% = 1000 / 365:
        // 6.85. Commission on the largest position: 1000 * 1.5% = 15, Int(500 * 0.5%) = 2,
        // Int(500 * 0.25%) = 1: 18. With Int(500 * 2%) = 10 on the excess: Int(34.85) = 34.
        {1000, -5000, 2500.0 / 365, 18, {"     SBILANCIO COMPETENZE A DEBITO" + C("34,00")}},
        // Fido 2000: all 20000 within at 10%, 2000 / 365 = 5.48; 1500 * 1.5% = 22.5, shown cut
        // on the row of 11/04, the largest; 27.98.
        {2000,
         0,
         2000.0 / 365,
         22.5,
         {" EF   11/04/2001    01,500  " + C("1.500,00") + "     " + C("22,00"),
          "SBILANCIO COMPETENZE" + std::string(15, ' ') + C("27,98", 15)}},
    };
    for (const Caso& k : casi) {
        SCOPED_TRACE(k.fido);
        ScopertoDiAprile(k.fido);
        Competenze c = CalcolaInteressi("01/04/2001", "30/04/2001", false);
        CalcolaCosti(c);
        EXPECT_DOUBLE_EQ(c.TotaleNumeriDebitori, -20000);
        EXPECT_DOUBLE_EQ(c.TotaleNumeriFuoriFido, k.fuoriFido);
        EXPECT_NEAR(c.InteressiDebitori, k.interessi, 1e-9);
        EXPECT_DOUBLE_EQ(c.VociCosto[1], k.commissione);
        for (const std::string& riga : k.righe)
            EXPECT_TRUE(Ha(c.Righe, riga)) << riga;
    }
}

TEST_F(CompetenzeTest, SpeseFisseEScritture) {
    // VS costs, PR doesn't: three VS and one PR in the quarter count 3. Closing 5 yearly, keeping
    // 3 quarterly, 0.5 a movement quarterly, a flat refund of 4 quarterly.
    Stato.Causali[1].SoggettoCosto = "1";
    Movimenti({M("01/10/2001", 100, "E"), M("02/10/2001", 100, "E"), M("03/10/2001", 100, "E"),
               M("04/10/2001", 50, "U", "N", "PR")});
    auto& s = Stato.SpeseVarie;
    s.IMPORTO1 = 5;
    s.Frequenza1 = "0";
    s.IMPORTO2 = 3;
    s.Frequenza2 = "1";
    s.IMPORTO3 = 0.5;
    s.Frequenza3 = "1";
    s.IMPORTO5 = 4;
    s.Frequenza5 = "1";
    struct Caso {
        const char* al;
        short nrScritt;
        double spese; // slots 4 to 10
    };
    // To 31/12: 3 * 0.5 + 5 + 3 = 9.5; the threshold 4 zeroes the count: 5 + 3 + 4 = 12.
    // To 30/11 the yearly closing drops: 1.5 + 3 = 4.5.
    for (const Caso& k :
         {Caso{"31/12/2001", 3, 9.5}, Caso{"31/12/2001", 4, 12}, Caso{"30/11/2001", 3, 4.5}}) {
        SCOPED_TRACE(std::string(k.al) + " " + std::to_string(k.nrScritt));
        Stato.OpzioniCalcolo.NrScritt = k.nrScritt;
        Competenze c = CalcolaInteressi("01/10/2001", k.al, false);
        CalcolaCosti(c);
        EXPECT_DOUBLE_EQ(std::accumulate(&c.VociCosto[4], &c.VociCosto[11], 0.0), k.spese);
    }
}

TEST_F(CompetenzeTest, CaricoLiberoSuOgniBase) {
    // P = 2 on: gross credit interest 200, debit interest 50, excess 300, credit numeri 36500,
    // debit numeri -7300, line 1000; credit year 360, debit year 365, factor 0.01.
    Stato.Conti[1].Fido = 1000;
    auto& o = Stato.OneriPassivi;
    o.Descr3 = "Uno";
    o.Descr4 = "Due";
    o.Per4 = o.Per5 = 2;
    struct Caso {
        const char* applica;
        bool carta;
        double base1, importo1, importo2;
    };
    // Numeri creditori at 2 * 36500 / 360 (the credit year) * 0.01; (300 + 1000) * 2% on the
    // largest overdraft. On the debit numeri the first takes 2 * -7300 / 365 - 0.01 and shows
    // the base less 1, the second (-40) * -1 * 0.01; paper takes the second's way for both.
    const Caso casi[] = {
        {"1", false, 200, 4, 4},     {"2", false, 50, 1, 1},
        {"3", false, 300, 6, 6},     {"4", false, 36500, 730.0 / 360, 730.0 / 360},
        {"6", false, 1300, 26, 26},  {"5", false, -7301, -40.01, 0.4},
        {"5", true, 7300, 0.4, 0.4},
    };
    for (const Caso& k : casi) {
        SCOPED_TRACE(k.applica);
        Competenze c;
        c.Carta = k.carta;
        c.FattoreInteresse = 0.01;
        c.AnnoCreditori = 360;
        c.InteressiLordi = 200;
        c.InteressiDebitori = 50;
        c.MassimaEccedenza = -300;
        c.TotaleNumeriCreditori = 36500;
        c.TotaleNumeriDebitori = -7300;
        o.ApplicaDescr3 = o.ApplicaDescr4 = k.applica;
        CalcolaCosti(c);
        EXPECT_NEAR(c.VociCosto[2], k.importo1, 1e-9);
        EXPECT_NEAR(c.VociCosto[3], k.importo2, 1e-9);
        EXPECT_TRUE(Ha(c.Righe, std::string(21, ' ') + "02,000     " +
                                    C(Format(k.base1, Stato.FormatoImporti), 13) + "    " +
                                    C(Format(k.importo1, Stato.FormatoImporti))));
    }
}

TEST_F(CompetenzeTest, LaStampaRifaIContiASuoModo) {
    // None on dal 01/02: rows 01/02 (28 days on 10000), 01/03 (30 on 15000), 31/03 (31/01 -
    // 31/03 = -59 days on 15000), 31/01 last: 280000 + 450000 - 885000; the screen has 740000.
    CreditoDelTrimestre();
    Competenze c = CalcolaInteressi("01/02/2001", "31/03/2001", false, true);
    EXPECT_DOUBLE_EQ(c.TotaleNumeriCreditori, -155000);
    EXPECT_TRUE(
        Ha(c.Righe, "      31/01/2001     02,500  " + C("-155.000,00") + "    " + C("-10,62")));

    // Debit within and beyond the line, printed: the numeri of the screen, its own spacing, the
    // excess commission 500 * 2% and the final 24.85 + 10 not cut, bold.
    ScopertoDiAprile(1000);
    app->Staffa.dal.SetText("01/04/2001");
    app->Staffa.al.SetText("30/04/2001");
    app->Staffa.List1.Visible = false; // the competences shown: Stampa prints them
    app->Staffa.Stampa.Clicca();
    auto stampata = [this](const std::string& riga) { return Ha(porta.carta, "|" + riga + "|"); };
    EXPECT_TRUE(stampata(" EF   31/03/2001     10,000  " + C("15.000,00") + "    " + C("4,11")));
    EXPECT_TRUE(stampata(" FF                  20,000  " + C("5.000,00") + "    " + C("2,74")));
    EXPECT_TRUE(stampata("     02,000    " + C("500,00") + "   " + C("10,00")));
    const std::vector<std::string> fine = {
        "{bold on}", "|     SBILANCIO COMPETENZE A DEBITO" + C("34,85") + "|", "{bold off}"};
    EXPECT_NE(std::search(porta.carta.begin(), porta.carta.end(), fine.begin(), fine.end()),
              porta.carta.end());
}
