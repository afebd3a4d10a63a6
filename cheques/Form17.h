#pragma once
// Assegni annullati: the cancelled cheques, filled by ElencaAnnullati.
#include "screen/Schermo.h"

struct Form17 {
    Schermo S{"Form17", "Assegni annullati"};

    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "ELENCO ASSEGNI ANNULLATI"};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2", "N.Car"};
    Controllo Label3{S, TipoControllo::Etichetta, "Label3", "Data"};
    Controllo Label4{S, TipoControllo::Etichetta, "Label4", "Nr. Assegno"};
    Controllo List1{S, TipoControllo::Lista, "List1"};
    Controllo PulStampe{S, TipoControllo::Pulsante, "PulStampe", "Stampa"};
    Controllo Command3D1{S, TipoControllo::Pulsante, "Command3D1", "Chiusura maschera"};

    Form17();
};
