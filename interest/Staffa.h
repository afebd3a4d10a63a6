#pragma once
// CALCOLO DELLA STAFFA: the ladder of the open account by value date over a period (List1), and
// the competences of the same period (List3). Nothing is written and nothing is booked.
#include "screen/Schermo.h"

struct Staffa {
    Schermo S{"Staffa", "CALCOLO DELLA STAFFA"};

    // The period and what it takes.
    Controllo dal{S, TipoControllo::Data, "dal"};
    Controllo al{S, TipoControllo::Data, "al"};
    Controllo Frame1{S, TipoControllo::Cornice, "Frame1", "Applica a :"};
    Controllo Tutti{S, TipoControllo::Opzione, "Tutti", "Tutti"};
    Controllo NSospesi{S, TipoControllo::Opzione, "NSospesi", "Non sosopesi"};
    Controllo Command1{S, TipoControllo::Pulsante, "Command1", "I° Trim."};
    Controllo Command3{S, TipoControllo::Pulsante, "Command3", "II° Trim."};
    Controllo Command4{S, TipoControllo::Pulsante, "Command4", "III° Trim."};
    Controllo Command5{S, TipoControllo::Pulsante, "Command5", "IV° Trim."};
    Controllo Command3D4{S, TipoControllo::Pulsante, "Command3D4"};

    Controllo via{S, TipoControllo::Pulsante, "via", "Staffa"};
    Controllo Interessi{S, TipoControllo::Pulsante, "Interessi", "Interessi"};
    Controllo Stampa{S, TipoControllo::Pulsante, "Stampa", "Stampa"};
    Controllo Command2{S, TipoControllo::Pulsante, "Command2", "Uscita"};

    // The ladder under its headings, or the competences under `mostra`.
    Controllo SSPanel1{S, TipoControllo::Etichetta, "SSPanel1", "CALCOLO DELLA STAFFA"};
    Controllo mostra{S, TipoControllo::Etichetta, "mostra", "COSTI ED INTERESSI"};
    Controllo List1{S, TipoControllo::Lista, "List1"};
    Controllo List3{S, TipoControllo::Lista, "List3"};

    Staffa();
};

// "via": the dates checked, then the ladder of the period into List1.
void CalcolaStaffa(Staffa& f);
// `dal`, then `al`: a bad one takes the first, or last, operation date and the focus; false.
bool ControllaPeriodo(Staffa& f);

// The ladder printed from the dates as they stand, then "via" pressed to show it again.
void StampaStaffa();
// The statement of competences, computed again for paper, where it differs from the screen.
void StampaCompetenze();
