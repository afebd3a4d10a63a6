#include "tests/Ambiente.h"

#include "store/Testo.h"

// Today is 05/07/2001; amounts with two decimals at the rate 1.

namespace {
// Entered in date order, so that each is line n - 1 of the list by operation date. All of them
// come to 1000 - 200 + 300 - 50 + 25.50 = 1075.50; without the third, 775.50.
std::vector<RecMovimento> Cinque() {
    return {
        Mov(1, "10/01/2001", "10/01/2001", 1000, "E", "N", "VS"),
        Mov(2, "15/02/2001", "16/02/2001", 200, "U", "S", "PR"),
        Mov(3, "20/03/2001", "20/03/2001", 300, "E", "S", "VS"),
        Mov(4, "10/04/2001", "10/04/2001", 50, "U", "N", "PR"),
        Mov(5, "05/05/2001", "05/05/2001", 25.5, "E", "S", "VS"),
    };
}
} // namespace

class CancellazioneTest : public AmbienteConto {
protected:
    Form9& f() { return app->Form9; }

    // The movement of that line of the list into the entry line, then Del with that answer.
    void Cancella(int riga, Risposta risposta) {
        f().ElencoMovim.SetListIndex(riga);
        f().ElencoMovim.DoppioClic();
        ASSERT_TRUE(f().Del.Enabled);
        porta.risposte.push_back(risposta);
        f().Del.Clicca();
    }

    void RigaVuota() {
        EXPECT_EQ(f().DataOper.Text(), "__/__/____");
        EXPECT_EQ(f().Causale.Text(), "");
        EXPECT_EQ(f().IMPORTO.Text(), "");
        EXPECT_TRUE(f().DataOper.HaFuoco());
        EXPECT_FALSE(f().Del.Enabled);
        EXPECT_EQ(f().Del.Text(), "Del");
        EXPECT_EQ(Stato.MovimentoCorrente, 0);
    }
};

TEST_F(CancellazioneTest, UnicoMovimentoLasciaIlRecordOltreIlConteggio) {
    ScriviMovimenti({Mov(1, "01/03/2001", "01/03/2001", 100, "E", "N")});
    f().S.Show();
    Cancella(0, Risposta::OK);

    EXPECT_EQ(Stato.NumMovimenti, 0);
    EXPECT_EQ(LeggiContatore(File(".MOR")), 0);
    EXPECT_EQ(f().ElencoMovim.ListCount(), 0);
    std::vector<RecMovimento> mov = Leggi(".MOV");
    ASSERT_EQ(mov.size(), 1u);
    EXPECT_EQ(mov[0].NrOper, 1);
    EXPECT_EQ(mov[0].IMPORTO, 100);
    EXPECT_EQ(Numeri(Leggi(".Ord")).at(0), 0);
    EXPECT_EQ(Stato.SaldoUltimaData, 0);
    EXPECT_EQ(app->MDIForm1.Saldi(0).Text(), "0,00");
    RigaVuota();
}

TEST_F(CancellazioneTest, PerValutaRiempieLaListaPerValuta) {
    ScriviMovimenti(Cinque());
    f().S.Show();
    f().Command2.Clicca();
    f().elencoValuta.SetListIndex(1);
    f().elencoValuta.DoppioClic();
    porta.risposte.push_back(Risposta::OK);
    f().Del.Clicca();
    // 16/02/2001 was movement 2: the others, renumbered, by value date.
    EXPECT_EQ(NumeriInLista(f().elencoValuta), (std::vector<int>{1, 2, 3, 4}));
    EXPECT_EQ(f().Label25.Text(), "Elenco Movimenti per data valuta");
    EXPECT_EQ(RTrim(Stato.Movimenti[2].DescMovim), "movimento 3");
}
