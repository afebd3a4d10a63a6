#pragma once
// Situazione Assegni emessi: the cheques out and the sheets in hand, filled by ElencaSituazione
// whenever the sheets change, so that the lists are up to date before the screen shows.
#include "screen/Schermo.h"

struct Form13 {
    Schermo S{"Form13", "Situazione Assegni emessi"};

    Controllo Frame1{S, TipoControllo::Cornice, "Frame1", "Assegni fuori"};
    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "N.Car."};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2", "Data"};
    Controllo Label3{S, TipoControllo::Etichetta, "Label3", "Nr. Assegno"};
    Controllo Label4{S, TipoControllo::Etichetta, "Label4", "Importo"};
    Controllo List1{S, TipoControllo::Lista, "List1"};
    Controllo Frame2{S, TipoControllo::Cornice, "Frame2", "Assegni in mano"};
    Controllo Label5{S, TipoControllo::Etichetta, "Label5", "Nr.Car"};
    Controllo Label6{S, TipoControllo::Etichetta, "Label6", "Nr. Assegno"};
    Controllo List2{S, TipoControllo::Lista, "List2"};
    Controllo Command3D4{S, TipoControllo::Pulsante, "Command3D4", "Conferma/Uscita"};

    Form13();
};
