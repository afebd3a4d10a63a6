#pragma once
// Giroconto: the other account of a transfer. Its Conferma books the incoming movement straight
// into the other account's .MOV and .MOR and turns the movement under entry in Form9 into the
// outgoing one; FlagOperazione = 1 on return says that nothing is to be stored.
#include "screen/Schermo.h"

struct Giroconto {
    Schermo S{"Giroconto", "Giroconto"};

    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "giroconto da:"};
    Controllo contoAperto{S, TipoControllo::Etichetta, "contoAperto"};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2", "a:"};
    Controllo Combo1{S, TipoControllo::Combo, "Combo1"};
    Controllo OK{S, TipoControllo::Pulsante, "OK", "Conferma"};
    Controllo Command3D1{S, TipoControllo::Pulsante, "Command3D1", "Uscita"};

    Giroconto();
};

// Conferma: the transfer to the account chosen in Combo1.
void ConfermaGiroconto();
