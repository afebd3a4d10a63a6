// The amounts of the conditions in the currency in use: Form26 shows them multiplied by Cambio,
// keeps them divided, and prints them multiplied again. Everything else of the screen is shown by
// the script of the conditions, at rate 1.
#include "tests/Ambiente.h"

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
    const auto& carta = porta.carta;
    EXPECT_NE(std::find(carta.begin(), carta.end(),
                        "|  Tenuta conto               Lire 7,00  Addebito Annuale|"),
              carta.end());
}
