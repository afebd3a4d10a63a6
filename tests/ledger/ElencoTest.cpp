#include "tests/Ambiente.h"

#include "ledger/ElencoMovimenti.h"

// Today is 05/07/2001; amounts with two decimals at the rate 1. Causale VS reads "Versamento
// contanti" in the list (its first 20 characters, trimmed), PR "Prelievo". The flow through the
// list is the script elenco_movimenti; here the columns' edge cases.

namespace {
std::string Sp(int n) { return std::string(static_cast<std::size_t>(n), ' '); }
} // namespace

class ElencoTest : public AmbienteConto {
protected:
    Form11& l() { return app->Form11; }

    // The account loaded by the entry screen, which writes .Ord, then the list on top of it.
    void Apri(const std::vector<RecMovimento>& movimenti, double riporto = 0) {
        ScriviMovimenti(movimenti);
        ScriviRiporto(riporto);
        app->Form9.S.Show();
        l().S.Show();
    }

    const std::vector<std::string>& Righe() { return l().List1.Righe(); }
};

// Zero and below: one blank, the amount, eleven blanks; above zero ten blanks ahead of it. The
// running balance starts from the carried amount, here with a first movement of 40 in.
TEST_F(ElencoTest, RigaDelRiportoEPrimoSaldo) {
    Apri({Mov(1, "01/03/2001", "01/03/2001", 40, "E", "S")});
    const std::string coda = "  Riporto Chiusura precedente";
    const struct {
        double importo;
        std::string riga, primoSaldo;
    } casi[] = {
        {1000, Sp(17) + "1.000,00" + Sp(7) + "1.000,00" + coda, Sp(7) + "1.040,00"},
        {-250.5, Sp(9) + "-250,50" + Sp(19) + "-250,50" + coda, Sp(8) + "-210,50"},
        {0, Sp(12) + "0,00" + Sp(22) + "0,00" + coda, Sp(10) + "40,00"},
    };
    for (const auto& c : casi) {
        SCOPED_TRACE(c.importo);
        Stato.Riporto[1].ImportoRiporto = c.importo;
        l().OK.Clicca();
        EXPECT_EQ(Righe()[0], "31/12/2000" + Sp(12) + c.riga);
        EXPECT_EQ(Righe()[1].substr(49, 15), c.primoSaldo);
    }
}

// The list adds "E" and subtracts anything else: a blank D_A, which the balances add, subtracts
// here. Two causali with one description: either line of the combo selects the first.
TEST_F(ElencoTest, SegnoECausaliConLaStessaDescrizione) {
    Causale(3, "P2", "Prelievo");
    Stato.NumCausali = 3;
    Apri({Mov(1, "01/03/2001", "01/03/2001", 10, "U", "S", "P2"),
          Mov(2, "02/03/2001", "02/03/2001", 20, " ", "S", "PR")});
    EXPECT_EQ(Righe()[2].substr(22, 42), Sp(11) + "20,00" + Sp(11) + Sp(9) + "-30,00");
    for (int riga : {1, 2}) {
        SCOPED_TRACE(riga);
        l().Combo1.SetListIndex(riga);
        l().OK.Clicca();
        ASSERT_EQ(l().List1.ListCount(), 8);
        EXPECT_EQ(Righe()[1].substr(0, 10), "02/03/2001");
        EXPECT_TRUE(Righe()[3].ends_with(Sp(9) + "-10,00  = Euro -10,00"));
    }
}

// Entered out of date order: the list follows .Ord, and the table of the account now holds
// .Ord's records, dimensioned for the movements alone. A cheque adds its detail line, which
// counts among the movements but not in the place that gives a line's record to correct.
TEST_F(ElencoTest, LaListaLeggeOrdConIlDettaglioDegliAssegni) {
    ScriviAssegno(123456, "Affitto marzo");
    Apri({Mov(1, "20/03/2001", "20/03/2001", 30, "E", "S", "VS"),
          Mov(2, "01/03/2001", "01/03/2001", 500, "U", "S", "AS", "123456"),
          Mov(3, "10/03/2001", "10/03/2001", 20, "E", "S", "AS", "999")});
    ASSERT_EQ(l().List1.ListCount(), 11);
    // The causale AS isn't in the table: no description between the two pairs of blanks.
    EXPECT_EQ(Righe()[1].substr(64), "    123456 movimento 2" + Sp(19));
    EXPECT_EQ(Righe()[2], Sp(66) + "Affitto marzo");
    EXPECT_EQ(Righe()[3].substr(0, 10), "10/03/2001");
    EXPECT_EQ(Righe()[9], Sp(68) + "nr. movimenti: 4");
    EXPECT_EQ(Stato.Movimenti.Limite(), 3);
    EXPECT_EQ(Stato.Movimenti[1].NrOper, 2);
    l().List1.SetListIndex(2);
    l().List1.DoppioClic();
    EXPECT_FALSE(app->Form20.S.Caricato());
    l().List1.SetListIndex(3);
    l().List1.DoppioClic();
    EXPECT_EQ(app->Form20.NrOper.Text(), "3");
}

// The print takes its selection from the list while the flag is up.
TEST_F(ElencoTest, StampaConLaSelezioneDellaLista) {
    Apri({Mov(1, "01/03/2001", "01/03/2001", 40, "E", "S")});
    l().DataOper.SetText("02/01/2001");
    l().DataFinale.SetText("03/04/2001");
    l().PulStampe.Clicca();
    EXPECT_EQ(Stato.FlagOperazione, 0);
    bool stampata = false;
    for (const std::string& r : porta.carta)
        stampata |= r.find("dal 02/01/2001 al 03/04/2001  Causali selezionate:  TUTTE") != r.npos;
    EXPECT_TRUE(stampata);
}
