#pragma once
// Manutenzione causali: prunes the table. The causali to keep are moved into List1 and written
// back in its order; the program then ends, since the table in memory no longer matches.
#include "screen/Schermo.h"

struct ManutCaus {
    Schermo S{"ManutCaus", "Manutenzione causali"};

    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "Causali presenti in archivio"};
    Controllo ElencoCausali{S, TipoControllo::Lista, "ElencoCausali"};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2", "Causali da registrare"};
    Controllo List1{S, TipoControllo::Lista, "List1"};
    Controllo Saldi{S, TipoControllo::Pulsante, "Saldi", "Conferma"};
    Controllo esci{S, TipoControllo::Pulsante, "esci", "Uscita"};
    Controllo SSCommand1{S, TipoControllo::Pulsante, "SSCommand1", "Aiuto"};

    ManutCaus();
};

// Saldi: after the question, writes the causali of List1 as the new table and ends the program.
void RegistraCausaliScelte();
