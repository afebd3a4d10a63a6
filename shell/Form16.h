#pragma once
// Informazioni: the about screen, with the program's name and version.
#include "screen/Schermo.h"

struct Form16 {
    Schermo S{"Form16", "Informazioni"};

    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "MARENDOLA"};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2", "Gestione dei conti correnti bancari"};
    Controllo Label3{S, TipoControllo::Etichetta, "Label3", "Versione nr.:"};
    Controllo Versione{S, TipoControllo::Etichetta, "Versione", "1.00"};
    Controllo Command3D3{S, TipoControllo::Pulsante, "Command3D3", "Chiudi"};

    Form16();
};
