#pragma once
// Gestione Causali: a new causale, or the change of one picked from the list; the three codes
// that features depend on keep their values whatever is typed.
#include "screen/Schermo.h"

struct Form6 {
    Schermo S{"Form6", "Gestione Causali"};

    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "codice"};
    Controllo CodCausale{S, TipoControllo::Campo, "CodCausale"};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2", "descrizione"};
    Controllo DescCausale{S, TipoControllo::Campo, "DescCausale"};
    // DarAver(0) and (1) stand in the frame DareAvere, (2) and (3) in Frame1.
    Controllo DareAvere{S, TipoControllo::Cornice, "DareAvere", "Entrate / Uscite"};
    Controllo Frame1{S, TipoControllo::Cornice, "Frame1", "Soggetto a costo"};
    MatriceControlli DarAver{S, TipoControllo::Opzione, "DarAver", 0, 3};
    Controllo sospesp{S, TipoControllo::Cornice, "sospesp", "Sospeso"};
    MatriceControlli SospesoSiNo{S, TipoControllo::Opzione, "SospesoSiNo", 0, 1};
    Controllo Label3{S, TipoControllo::Etichetta, "Label3", "Elenco causali presenti"};
    Controllo ElencoCausali{S, TipoControllo::Lista, "ElencoCausali"};
    Controllo OK{S, TipoControllo::Pulsante, "OK", "Conferma"};
    Controllo pulisci{S, TipoControllo::Pulsante, "pulisci", "Cancella immissione"};
    Controllo esci{S, TipoControllo::Pulsante, "esci", "Uscita"};
    Controllo SSCommand1{S, TipoControllo::Pulsante, "SSCommand1", "Manutenzione"};

    Form6();
};

// OK: forces the protected codes, checks the two fields, then stores a new causale or the
// change of the selected one.
void ConfermaCausale();
// A new causale at the end of the table, refused when its code is already there.
void SalvaCausale();
// The selected causale rewritten in place, with no test of its code.
void AggiornaCausale();
// The selected line of ElencoCausali into the fields; the screen turns to change mode.
void CausaleAlForm();
