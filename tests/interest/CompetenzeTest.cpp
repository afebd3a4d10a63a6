// Interest, commissions and charges worked out by hand. Divisor 1 throughout, so numeri are
// balance * days and the interest factor is 0.01.
#include "tests/Ambiente.h"

#include "interest/Competenze.h"
#include "store/Formato.h"

#include <algorithm>

namespace {
bool HaRiga(const Competenze& c, const std::string& riga) {
    return std::find(c.Righe.begin(), c.Righe.end(), riga) != c.Righe.end();
}
std::string C(const std::string& s, std::size_t n = 16) {
    return std::string(n - s.size(), ' ') + s;
}
} // namespace

struct CompetenzeTest : AmbienteConto {
    void SetUp() override {
        AmbienteConto::SetUp();
        auto& o = Stato.OpzioniCalcolo;
        o.Divisore = 1;
        o.GiorniCreditori = "2";
        o.GiorniDebitori = "2";
        auto& tc = Stato.TassiCreditori;
        tc.DataC1 = "01/01/2000";
        tc.PerC1 = 2.5f;
        tc.DataC2 = tc.DataC3 = tc.DataC4 = tc.DataC5 = "__/__/____";
        auto& td = Stato.TassiDebitori;
        td.DATAD1 = "01/01/2000";
        td.PerD1 = 10;
        td.PerD6 = 20;
        td.DATAD2 = td.DATAD3 = td.DATAD4 = td.DATAD5 = "__/__/____";
        Stato.OneriPassivi.Per3 = 27;
    }
    // Fido 1000; 500 out on 01/04, 1000 more on 11/04, 1500 back on 21/04; commissions 2% on
    // the excess, 1% on the line, 0.5% and 0.25% beyond it.
    void ScopertoDiAprile() {
        Stato.Conti[1].Fido = 1000;
        auto& o = Stato.OneriPassivi;
        o.Per1 = 2;
        o.Per2 = 1;
        o.Per6 = 0.5f;
        o.Per7 = 0.25f;
        Movimenti({Mov(1, "01/04/2001", "01/04/2001", 500, "U", "N"),
                   Mov(2, "11/04/2001", "11/04/2001", 1000, "U", "N"),
                   Mov(3, "21/04/2001", "21/04/2001", 1500, "E", "N")});
    }
    void Movimenti(const std::vector<RecMovimento>& m) {
        Stato.NumMovimenti = static_cast<short>(m.size());
        for (std::size_t i = 0; i < m.size(); ++i)
            Stato.Movimenti[i + 1] = m[i];
    }
};

TEST_F(CompetenzeTest, CreditoAUnTassoECambioDiTasso) {
    // 10000 in on 01/01, 5000 more on 01/03. Rows 31/12 (1 day on 0), 01/01 (59 days on 10000:
    // 590000), 01/03 (30 days on 15000: 450000), 31/03.
    Movimenti({Mov(1, "01/01/2001", "01/01/2001", 10000, "E", "N"),
               Mov(2, "01/03/2001", "01/03/2001", 5000, "E", "N")});
    // One rate: 2.5 * 1040000 / 365 * 0.01 = 71.2329; tax 27% = 19.2329; net 52.00.
    Competenze c = CalcolaInteressi("01/01/2001", "31/03/2001", false);
    EXPECT_DOUBLE_EQ(c.TotaleNumeriCreditori, 1040000);
    EXPECT_NEAR(c.InteressiLordi, 26000.0 / 365, 1e-9);
    EXPECT_NEAR(c.Ritenuta, 0.27 * 26000.0 / 365, 1e-6);
    EXPECT_TRUE(
        HaRiga(c, "    31/12/2000      02,500  " + C("1.040.000,00") + "     " + C("71,23")));
    EXPECT_TRUE(
        HaRiga(c, "   RIT. FISCALE 27% Imponibile:" + C("0,00", 13) + "  Totale" + C("19,23", 13)));
    EXPECT_TRUE(HaRiga(c, "                               Totale Netto       " + C("52,00", 15)));

    // From 15/02 at 5%: the row of 01/01 stays whole at 2.5 (14750 / 365 = 40.4110), the row of
    // 01/03 goes at 5 (22500 / 365 = 61.6438): gross 102.05 shows as the base; tax 27.55.
    Stato.TassiCreditori.DataC2 = "15/02/2001";
    Stato.TassiCreditori.PerC2 = 5;
    c = CalcolaInteressi("01/01/2001", "31/03/2001", false);
    EXPECT_NEAR(c.InteressiLordi, 37250.0 / 365, 1e-9);
    EXPECT_TRUE(HaRiga(c, "    15/02/2001      05,000  " + C("450.000,00") + "     " + C("61,64")));
    EXPECT_TRUE(HaRiga(c, "   RIT. FISCALE 27% Imponibile:" + C("102,05", 13) + "  Totale" +
                              C("27,55", 13)));

    // A year of 360 days: the same numeri over 360.
    Stato.OpzioniCalcolo.GiorniCreditori = "1";
    c = CalcolaInteressi("01/01/2001", "31/03/2001", false);
    EXPECT_NEAR(c.InteressiLordi, 37250.0 / 360, 1e-9);
    // Divisor 100: numeri a hundredth, factor 1: the same interest.
    Stato.OpzioniCalcolo.Divisore = 3;
    c = CalcolaInteressi("01/01/2001", "31/03/2001", false);
    EXPECT_NEAR(c.TotaleNumeriCreditori, 10400, 1e-6);
    EXPECT_NEAR(c.InteressiLordi, 37250.0 / 360, 1e-9);
}

TEST_F(CompetenzeTest, DebitoEntroEOltreIlFido) {
    // Fido 1000. 500 out on 01/04 (10 days at -500), 1000 more on 11/04 (10 days at -1500: -1000
    // within, -500 beyond), 1500 back on 21/04. EF numeri 5000 + 10000 = 15000 at 10%:
    // 1500 / 365 = 4.1096; FF 5000 at 20%: 1000 / 365 = 2.7397; total 6.85.
    ScopertoDiAprile();
    Competenze c = CalcolaInteressi("01/04/2001", "30/04/2001", false);
    EXPECT_DOUBLE_EQ(c.TotaleNumeriDebitori, -20000);
    EXPECT_DOUBLE_EQ(c.TotaleNumeriFuoriFido, -5000);
    EXPECT_NEAR(c.InteressiDebitori, 2500.0 / 365, 1e-9);
    // Commission on the largest position: EF on the line, 1000 * 1% = 10; FF Int(500 * 0.5%) =
    // 2; FFGG Int(500 * 0.25%) = 1: 13. Debit 13 + 6.85 = 19.85 against no credit; with the
    // excess commission Int(500 * 2%) = 10: Int(29.85) = 29 due.
    CalcolaCosti(c);
    EXPECT_DOUBLE_EQ(c.VociCosto[1], 13);
    EXPECT_TRUE(HaRiga(c, "SBILANCIO COMPETENZE" + std::string(15, ' ') + C("19,85", 15)));
    EXPECT_TRUE(HaRiga(c, "     SBILANCIO COMPETENZE A DEBITO" + C("29,00")));

    // Within the line only (Fido 2000): Int(1500 * 1%) = 15 shown, 15 summed; FF rows blank.
    Stato.Conti[1].Fido = 2000;
    c = CalcolaInteressi("01/04/2001", "30/04/2001", false);
    CalcolaCosti(c);
    EXPECT_DOUBLE_EQ(c.TotaleNumeriFuoriFido, 0);
    EXPECT_TRUE(HaRiga(c, " FF                 00,500  " + std::string(16, ' ') + "     " +
                              std::string(16, ' ')));
    EXPECT_DOUBLE_EQ(c.VociCosto[1], 15);
}

TEST_F(CompetenzeTest, SpeseFisseEScritture) {
    // VS costs, PR doesn't: three VS and one PR in the quarter count 3.
    Stato.Causali[1].SoggettoCosto = "1";
    Stato.Causali[2].SoggettoCosto = "0";
    Movimenti({Mov(1, "01/10/2001", "01/10/2001", 100, "E", "N", "VS"),
               Mov(2, "02/10/2001", "02/10/2001", 100, "E", "N", "VS"),
               Mov(3, "03/10/2001", "03/10/2001", 100, "E", "N", "VS"),
               Mov(4, "04/10/2001", "04/10/2001", 50, "U", "N", "PR")});
    auto& s = Stato.SpeseVarie;
    s.IMPORTO1 = 5; // closing, yearly
    s.Frequenza1 = "0";
    s.IMPORTO2 = 3; // keeping, quarterly
    s.Frequenza2 = "1";
    s.IMPORTO3 = 0.5; // a movement, quarterly
    s.Frequenza3 = "1";
    s.IMPORTO5 = 4; // flat refund, quarterly
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
        double spese = 0;
        for (int i = 4; i <= 10; ++i)
            spese += c.VociCosto[static_cast<std::size_t>(i)];
        EXPECT_DOUBLE_EQ(spese, k.spese);
    }
}

TEST_F(CompetenzeTest, CaricoLiberoSuOgniBase) {
    // P = 2 on: gross credit interest 200, debit interest 50, excess 300, credit numeri 36500,
    // debit numeri -7300, line 1000; year 365, factor 0.01.
    Stato.Conti[1].Fido = 1000;
    auto& o = Stato.OneriPassivi;
    o.Descr3 = "Uno";
    o.Descr4 = "Due";
    o.Per4 = o.Per5 = 2;
    struct Caso {
        const char* applica;
        double base1, importo1, importo2;
    };
    const Caso casi[] = {
        {"1", 200, 4, 4},          {"2", 50, 1, 1},
        {"3", 300, 6, 6},          {"4", 36500, 2, 2}, // 2 * 36500 / 365 * 0.01
        {"5", -7301, -40.01, 0.4},                     // 2 * -7300 / 365 - 0.01; (-40) * -1 * 0.01
        {"6", 1300, 26, 26},                           // (300 + 1000) * 2%
    };
    for (const Caso& k : casi) {
        SCOPED_TRACE(k.applica);
        Competenze c;
        c.FattoreInteresse = 0.01;
        c.InteressiLordi = 200;
        c.InteressiDebitori = 50;
        c.MassimaEccedenza = -300;
        c.TotaleNumeriCreditori = 36500;
        c.TotaleNumeriDebitori = -7300;
        o.ApplicaDescr3 = o.ApplicaDescr4 = k.applica;
        CalcolaCosti(c);
        EXPECT_NEAR(c.VociCosto[2], k.importo1, 1e-9);
        EXPECT_NEAR(c.VociCosto[3], k.importo2, 1e-9);
        EXPECT_TRUE(HaRiga(c, std::string(21, ' ') + "02,000     " +
                                  C(Format(k.base1, Stato.FormatoImporti), 13) + "    " +
                                  C(Format(k.importo1, Stato.FormatoImporti))));
    }
}

TEST_F(CompetenzeTest, LaStampaRifaIContiASuoModo) {
    // A movement on dal: the same interest as on the screen, the rows spaced for paper.
    Movimenti({Mov(1, "01/01/2001", "01/01/2001", 10000, "E", "N"),
               Mov(2, "01/03/2001", "01/03/2001", 5000, "E", "N")});
    Competenze c = CalcolaInteressi("01/01/2001", "31/03/2001", false, true);
    EXPECT_NEAR(c.InteressiLordi, 26000.0 / 365, 1e-9);
    EXPECT_TRUE(
        HaRiga(c, "      31/12/2000     02,500  " + C("1.040.000,00") + "    " + C("71,23")));
    EXPECT_TRUE(HaRiga(c, std::string(33, ' ') + "Totale Lordo    " + C("71,23")));

    // None on 01/02: rows 01/02 (28 days on 10000), 01/03 (30 on 15000), 31/03 (31/01 - 31/03 =
    // -59 days on 15000), 31/01 last: 280000 + 450000 - 885000; the screen has 740000.
    c = CalcolaInteressi("01/02/2001", "31/03/2001", false, true);
    EXPECT_DOUBLE_EQ(c.TotaleNumeriCreditori, -155000);
    EXPECT_TRUE(
        HaRiga(c, "      31/01/2001     02,500  " + C("-155.000,00") + "    " + C("-10,62")));

    // Debit within and beyond a line of 1000: the numeri of the screen, the excess commission
    // 500 * 2% and the final 19.85 + 10 not cut.
    auto& o = Stato.OneriPassivi;
    ScopertoDiAprile();
    c = CalcolaInteressi("01/04/2001", "30/04/2001", false, true);
    CalcolaCosti(c);
    EXPECT_TRUE(HaRiga(c, " EF   31/03/2001     10,000  " + C("15.000,00") + "    " + C("4,11")));
    EXPECT_TRUE(HaRiga(c, " FF                  20,000  " + C("5.000,00") + "    " + C("2,74")));
    EXPECT_TRUE(HaRiga(c, "     02,000    " + C("500,00") + "   " + C("10,00")));
    EXPECT_TRUE(HaRiga(c, "     SBILANCIO COMPETENZE A DEBITO" + C("29,85")));

    // The first free charge on the debit numeri goes as the second: -(2 * -7300 / 365) * 0.01.
    o.Descr3 = "Uno";
    o.Per4 = 2;
    o.ApplicaDescr3 = "5";
    c = Competenze{};
    c.Carta = true;
    c.FattoreInteresse = 0.01;
    c.TotaleNumeriDebitori = -7300;
    CalcolaCosti(c);
    EXPECT_NEAR(c.VociCosto[2], 0.4, 1e-9);
}
