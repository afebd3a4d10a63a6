#pragma once
// Elenco Causali: the picker of a causale for the entry fields of Form9, Form4 and Form20. The
// caller sets Stato.ChiamanteCausale (1 Form4, 2 Form20, anything else Form9) and shows it
// modally; the pick fills the caller's fields and gives it the focus back.
#include "screen/Schermo.h"

struct FORM12 {
    Schermo S{"FORM12", "Elenco Causali"};

    Controllo List1{S, TipoControllo::Lista, "List1"};
    Controllo OK{S, TipoControllo::Pulsante, "OK", "Conferma"};
    Controllo Command2{S, TipoControllo::Pulsante, "Command2", "Uscita"};

    FORM12();
};

// The causale of List1's current line into the caller's fields.
void ScegliCausale();
