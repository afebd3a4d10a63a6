#pragma once
// Cambia colori: the background and text colours of the lists, chosen in the desktop's colour
// dialog and seen on the sample. They reach the screens at the next start.
#include "screen/Schermo.h"

struct Form5 {
    Schermo S{"Form5", "Cambia colori"};

    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "Modifica colori delle maschere"};
    Controllo VediColori{S, TipoControllo::Cornice, "VediColori", "Esempio"};
    Controllo esempio{S, TipoControllo::Lista, "esempio"};
    Controllo sfondo{S, TipoControllo::Pulsante, "sfondo", "colore sfondo"};
    Controllo carattere{S, TipoControllo::Pulsante, "carattere", "Colore carattere"};
    Controllo predef{S, TipoControllo::Pulsante, "predef", "colori predefiniti"};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2",
                     "Le modifiche saranno disponibili al prossimo avvio del programma"};
    Controllo OK{S, TipoControllo::Pulsante, "OK", "Conferma"};
    Controllo Command2{S, TipoControllo::Pulsante, "Command2", "Uscita"};

    Form5();
};
