#pragma once
// Riepilogo Conti: every account of the data directory with its balance by operation or by
// value date, its credit line and what remains available, and the totals. A double click shows
// the card of an account, for reading only.
#include "screen/Schermo.h"

struct Form22 {
    Schermo S{"Form22", "Riepilogo Conti"};

    Controllo Label1{S, TipoControllo::Etichetta, "Label1",
                     "Riepilogo Conti presenti           al"};
    Controllo DataVis{S, TipoControllo::Etichetta, "DataVis"};
    MatriceControlli Dataop{S, TipoControllo::Opzione, "Dataop", 0, 1};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2", "Nr. Conto"};
    Controllo Label3{S, TipoControllo::Etichetta, "Label3", "Descrizione"};
    Controllo Label4{S, TipoControllo::Etichetta, "Label4", "Saldo"};
    Controllo Label5{S, TipoControllo::Etichetta, "Label5", "Fido"};
    Controllo Label6{S, TipoControllo::Etichetta, "Label6", "Disponibilità"};
    Controllo List1{S, TipoControllo::Lista, "List1"};
    Controllo Totali{S, TipoControllo::Etichetta, "Totali"};
    Controllo PulStampe{S, TipoControllo::Pulsante, "PulStampe", "Stampa"};
    Controllo Command3D8{S, TipoControllo::Pulsante, "Command3D8", " Uscita "};

    Form22();
};
