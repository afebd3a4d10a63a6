#include "tests/Ambiente.h"

#include "ledger/Form4.h"

// Today is 05/07/2001; the open account is "123", the other one "456".

class AllineamentoGirocontoTest : public AmbienteConto {
  protected:
    // A "GC" line confirmed in Form9; on the transfer screen line `riga` is chosen and
    // confirmed, or Uscita pressed.
    void Giroconto(int riga, bool esci = false) {
        Stato.NumConti = 2;
        Stato.Conti[2].CodConto = "456";
        porta.cicloModale = [this, riga, esci](Schermo&) {
            app->Giroconto.Combo1.SetListIndex(riga);
            (esci ? app->Giroconto.Command3D1 : app->Giroconto.OK).Clicca();
        };
        Form9& f = app->Form9;
        f.DataOper.SetText("03/03/2001");
        f.DataValuta.SetText("04/03/2001");
        f.Causale.SetText("GC");
        f.IMPORTO.SetText("50");
        f.DescMovim.SetText("  Affitto di marzo per la casa al mare");
        f.OK.Clicca();
    }
};

TEST_F(AllineamentoGirocontoTest, IlMovimentoSpecchioNelLAltroConto) {
    ScriviMovimenti({Mov(1, "01/03/2001", "01/03/2001", 100, "E", "S")});
    app->Form9.S.Show();
    Giroconto(1);

    // Its count 0 + 1, "E", the description cut to 30; built in slot 1 of the open account's
    // table, which .Ord of the open account shows until the next load.
    EXPECT_EQ(LeggiContatore((radice / "456.MOR").string()), 1);
    RecMovimento altro;
    ConRecord((radice / "456.MOV").string(), RecMovimento::Lunghezza, 1,
              [&] { LeggiRecord(altro, 1, 1); });
    EXPECT_EQ(altro.DescMovim, "da: 123 Affitto di marzo per l");
    EXPECT_EQ(altro.D_A, "E");
    EXPECT_EQ(Leggi(".Ord")[0].DescMovim, altro.DescMovim);
    EXPECT_EQ(Leggi(".MOV")[1].DescMovim, "> 456 Affitto di marzo per la ");
    EXPECT_EQ(Leggi(".MOV")[1].D_A, "U");
}

TEST_F(AllineamentoGirocontoTest, IRifiutiNonScrivonoNulla) {
    ScriviMovimenti({Mov(1, "01/03/2001", "01/03/2001", 100, "U", "S", "AS", "1000")});
    app->Form9.S.Show();
    auto prima = Cartella(radice);
    prima.erase("123.TOT"); // written by every redraw of the balances

    Giroconto(0); // the open account itself
    Giroconto(1, true);
    Form4& f = app->Form4;
    MostraAllineamento();
    f.ElencoMovim.SetListIndex(0);
    f.ElencoMovim.DoppioClic();
    f.DataValuta.SetText(DataVuotaMaschera);
    f.OK.Clicca();
    f.DataValuta.SetText("04/03/2001");
    f.DataOper.SetText("31/02/2001");
    f.OK.Clicca();
    f.pulisci.Clicca();
    auto dopo = Cartella(radice);
    dopo.erase("123.TOT");
    EXPECT_EQ(dopo, prima);
}
