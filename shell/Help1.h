#pragma once
// The short help on the causali: the text shipped with the program, Help01.txt in the program
// directory, shown whole.
#include "screen/Schermo.h"

struct Help1 {
    Schermo S{"Help1", "help"};

    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "GESTIONE CAUSALI"};
    Controllo Text1{S, TipoControllo::Etichetta, "Text1"};

    Help1();
};
