// Amounts in the currency in use: Form26 shows them by Cambio, keeps them divided, prints them
// by Cambio again; the rest of the screen has its script, at rate 1.
#include "tests/interest/Conto.h"

#include "interest/Form26.h"
#include "interest/StampaCondizioni.h"

struct CondizioniTest : AmbienteConto {};

TEST_F(CondizioniTest, ImportiAlCambio) {
    Stato.Cambio = 2;
    RecSpeseVarie spese;
    spese.IMPORTO1 = 5;
    ScriviIn(File(".spe"), spese, 1);
    Form26& f = app->Form26;
    f.S.Show();
    EXPECT_EQ(f.IMPORTO1.Text(), "10,00");
    f.IMPORTO2.SetText("7");
    f.DataC1.SetText("01/01/2001");
    f.DATAD1.SetText("01/01/2001");
    f.OKi.Clicca();
    // 10 / 2 back to 5, 7 / 2 = 3.5, on disk.
    RecSpeseVarie scritte = LeggiDa<RecSpeseVarie>(File(".spe"), 1);
    EXPECT_DOUBLE_EQ(scritte.IMPORTO1, 5);
    EXPECT_DOUBLE_EQ(scritte.IMPORTO2, 3.5);
    StampaCondizioni();
    EXPECT_TRUE(Ha(porta.carta, "|  Tenuta conto               Lire 7,00  Addebito Annuale|"));
}
