#include "tests/Ambiente.h"

#include "ledger/Form4.h"

// Today is 05/07/2001; the open account is "123", the other one "456". The flows that book are
// the script allineamento_giroconto; here the refusals, which must leave every file as it was.
using AllineamentoGirocontoTest = AmbienteConto;

TEST_F(AllineamentoGirocontoTest, IRifiutiNonScrivonoNulla) {
    ScriviMovimenti({Mov(1, "01/03/2001", "01/03/2001", 100, "U", "S", "AS", "1000")});
    Stato.NumConti = 2;
    Stato.Conti[2].CodConto = "456";
    Form9& f9 = app->Form9;
    f9.S.Show();
    auto prima = Cartella(radice);
    prima.erase("123.TOT"); // written by every redraw of the balances

    // A transfer to the open account itself, then one left with Uscita.
    for (bool esci : {false, true}) {
        porta.cicloModale = [this, esci](Schermo&) {
            app->Giroconto.Combo1.SetListIndex(esci ? 1 : 0);
            (esci ? app->Giroconto.Command3D1 : app->Giroconto.OK).Clicca();
        };
        f9.DataOper.SetText("03/03/2001");
        f9.DataValuta.SetText("04/03/2001");
        f9.Causale.SetText("GC");
        f9.IMPORTO.SetText("50");
        f9.OK.Clicca();
    }
    // An alignment with no value date, then one with a date the calendar refuses, then pulisci.
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
