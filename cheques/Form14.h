#pragma once
// Elenco Carnet: the list of the books, which is also the picker of a book for Form3 (a change)
// and for Form15 (its sheets). Stato.ChiamanteCarnet tells who opened it.
#include "screen/Schermo.h"

struct Form14 {
    Schermo S{"Form14", "Elenco Carnet"};

    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "Nr.Car."};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2", "Data Ritiro"};
    Controllo Label3{S, TipoControllo::Etichetta, "Label3", "Nr. Iniziale"};
    Controllo Label4{S, TipoControllo::Etichetta, "Label4", "Nr. Finale"};
    Controllo Label5{S, TipoControllo::Etichetta, "Label5", "Ass.F."};
    Controllo List1{S, TipoControllo::Lista, "List1"};
    Controllo Command3D2{S, TipoControllo::Pulsante, "Command3D2", "Conferma"};
    Controllo Command3D1{S, TipoControllo::Pulsante, "Command3D1", "Uscita"};

    Form14();
};

// The book of the selected line of Form14 into Form3 (for a change) or into Form15 (its sheets,
// the first free one in work).
void CaricaCarnet();
