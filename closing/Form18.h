#pragma once
// Backup dati / Ripristina Dati: the files of the open account, or of all accounts, copied to a
// chosen folder and back. FlagOperazione, set by the menu entry, gives the direction: 0 backup,
// 1 restore.
#include "refdata/ErroreDisco.h"
#include "screen/Schermo.h"

struct Form18 {
    Schermo S{"Form18", "Backup dati"};

    Controllo Panel3D1{S, TipoControllo::Etichetta, "Panel3D1", "Copie di sicurezza"};
    Controllo Drive1{S, TipoControllo::Combo, "Drive1"};
    Controllo Dir1{S, TipoControllo::Lista, "Dir1"};
    Controllo NomeFile{S, TipoControllo::Etichetta, "NomeFile", "Percorso: "};
    Controllo Frame3D1{S, TipoControllo::Cornice, "Frame3D1", "Opzioni"};
    Controllo ContoAttivo{S, TipoControllo::Opzione, "ContoAttivo", "conto attivo"};
    Controllo TuttiConti{S, TipoControllo::Opzione, "TuttiConti", "tutti i conti"};
    Controllo Salva{S, TipoControllo::Pulsante, "Salva", "Conferma"};
    Controllo esci{S, TipoControllo::Pulsante, "esci", "Uscita"};

    SceltaDirectory Scelta{Drive1, Dir1, {}, {}, {}};

    Form18();
};

// Salva: the copy in the direction of FlagOperazione, with the option and the folder of Form18.
// Without "conto attivo" it is all the accounts.
void CopiaSicurezza();
