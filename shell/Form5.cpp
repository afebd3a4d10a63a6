#include "shell/Form5.h"

#include "shell/Colori.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"

namespace {
// The dialog starts from the colour in use. A cancelled dialog leaves it as it was, and the
// mode turns to the user's all the same.
void ScegliColoreElenchi(Form5& f, double& colore) {
    Piattaforma().ScegliColore(colore);
    f.esempio.BackColor = Stato.Colori.ColoreSfondo;
    f.esempio.ForeColor = Stato.Colori.ColoreCarattere;
    Stato.Colori.Predefiniti = "N";
}

void Conferma(Form5& f, const char* modo) {
    Stato.Colori.Predefiniti = modo;
    ScriviColori();
    f.S.UnloadMe();
}
} // namespace

Form5::Form5() {
    esempio.AddItem("01/01/2024  ESEMPIO DI RIGA           1.234,56");
    esempio.AddItem("02/01/2024  ALTRA RIGA                  567,89");

    S.Load = [this] {
        esempio.BackColor = Stato.Colori.ColoreSfondo;
        esempio.ForeColor = Stato.Colori.ColoreCarattere;
    };
    sfondo.Click = [this] { ScegliColoreElenchi(*this, Stato.Colori.ColoreSfondo); };
    carattere.Click = [this] { ScegliColoreElenchi(*this, Stato.Colori.ColoreCarattere); };
    OK.Click = [this] { Conferma(*this, "N"); };
    predef.Click = [this] { Conferma(*this, "S"); };
    Command2.Click = [this] { S.UnloadMe(); };
}
