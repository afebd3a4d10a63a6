#pragma once
// Altre opzioni: what the free charge named by FlagOperazione (1 Descr3, 2 Descr4) applies to.
// The choice stays in memory; Conferma of Form26 writes it.
#include "screen/Schermo.h"

struct Form28 {
    Schermo S{"Form28", "Altre opzioni"};
    Controllo Frame1{S, TipoControllo::Cornice, "Frame1", "Applicabile a:"};
    MatriceControlli Option1{S, TipoControllo::Opzione, "Option1", 0, 5};
    Controllo OK{S, TipoControllo::Pulsante, "OK", "OK"};
    Controllo Esc{S, TipoControllo::Pulsante, "Esc", "Uscita"};

    Form28();
};
