#pragma once
// Selezione conto: the accounts of the chosen directory, one of which is picked to be opened
// through Form10.
#include "refdata/ErroreDisco.h"
#include "screen/Schermo.h"

#include <string>

struct Form7 {
    Schermo S{"Form7", "Selezione conto"};

    Controllo List1{S, TipoControllo::Lista, "List1"};
    Controllo OK{S, TipoControllo::Pulsante, "OK", "Conferma"};
    Controllo Command2{S, TipoControllo::Pulsante, "Command2", "Uscita"};
    Controllo Drive1{S, TipoControllo::Combo, "Drive1"};
    Controllo Dir1{S, TipoControllo::Lista, "Dir1"};
    Controllo NomeFile{S, TipoControllo::Etichetta, "NomeFile", "Percorso: "};

    SceltaDirectory Scelta{Drive1, Dir1, {}, {}, {}};

    Form7();
};
