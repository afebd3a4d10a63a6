#pragma once
// Chiusura periodica: the closing date of the periodic close.
#include "screen/Schermo.h"

struct MDIForm1;

struct Form19 {
    Schermo S{"Form19", "Chiusura periodica"};

    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "data chiusura precedente:"};
    Controllo ChiusPrec{S, TipoControllo::Etichetta, "ChiusPrec"};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2", "Nuova chiusura al:"};
    Controllo DataChiusura{S, TipoControllo::Data, "DataChiusura"};
    Controllo OK{S, TipoControllo::Pulsante, "OK", "Conferma"};
    Controllo esci{S, TipoControllo::Pulsante, "esci", "Uscita"};

    Form19();
};

// The entries of the main window for the close, its undo, the backup and restore, the
// reorganisation and the deletion of all movements.
void CollegaMenuChiusure(MDIForm1& f);
