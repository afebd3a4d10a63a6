#include "refdata/FORM12.h"

#include "refdata/Causali.h"
#include "shell/Applicazione.h"
#include "shell/Colori.h"
#include "store/Guasto.h"
#include "store/Stato.h"
#include "store/Testo.h"

namespace {
// The callers belong to the ledger, which the picker doesn't depend on: their fields are found
// by the names they have on every caller.
Controllo& CampoDi(const std::string& schermo, const std::string& campo) {
    const std::string riferimento = schermo + "." + campo;
    Controllo* c = TrovaControllo(riferimento);
    if (!c) throw ErroreEsecuzione(5, "Controllo inesistente: " + riferimento);
    return *c;
}
} // namespace

FORM12::FORM12() {
    S.Figlio = false;
    List1.Sorted = true;
    S.Load = [this] {
        RiempiElencoCausali(List1);
        ColoriElenchi({&List1});
    };
    OK.Click = ScegliCausale;
    List1.DblClick = ScegliCausale;
    Command2.Click = [this] { S.Hide(); };
}

void ScegliCausale() {
    FORM12& f = App().FORM12;
    const RecCausale& causale =
        Stato.Causali[CercaCausale(Left(f.List1.List(f.List1.ListIndex()), 5))];
    const short chiamante = Stato.ChiamanteCausale;
    const std::string schermo = chiamante == 1 ? "Form4" : chiamante == 2 ? "Form20" : "Form9";
    CampoDi(schermo, "Causale").SetText(RTrim(causale.CodCausale));
    CampoDi(schermo, "DescrCausale").SetText(RTrim(causale.DescCausale));
    if (schermo == "Form9") CampoDi(schermo, "Sospeso").SetText(causale.Sospeso);
    CampoDi(schermo, "D_A").SetText(causale.DareAvere);
    // The picker goes down first: the caller's field can't take the focus under a modal screen.
    f.S.Hide();
    CampoDi(schermo, schermo == "Form20" ? "Sospeso" : "IMPORTO").SetFocus();
    if (chiamante == 1) Stato.ChiamanteCausale = 0;
    f.List1.SetListIndex(-1);
}
