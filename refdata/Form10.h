#pragma once
// Selezione Conto: the card of the account picked on Form7, the last step before it is opened.
#include "screen/Schermo.h"

#include <string>

struct Form10 {
    Schermo S{"Form10", "Selezione Conto"};

    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "Nr. Conto"};
    Controllo CodConto{S, TipoControllo::Campo, "CodConto"};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2", "Tipo di conto"};
    Controllo TipoConto{S, TipoControllo::Campo, "TipoConto"};
    Controllo Label3{S, TipoControllo::Etichetta, "Label3", "Banca"};
    Controllo NomeBanca{S, TipoControllo::Campo, "NomeBanca"};
    Controllo Label4{S, TipoControllo::Etichetta, "Label4", "Indirizzo"};
    Controllo IndBanca{S, TipoControllo::Campo, "IndBanca"};
    Controllo Label5{S, TipoControllo::Etichetta, "Label5", "C.A.P:"};
    Controllo CapBanca{S, TipoControllo::Campo, "CapBanca"};
    Controllo Label6{S, TipoControllo::Etichetta, "Label6", "Località"};
    Controllo LocBanca{S, TipoControllo::Campo, "LocBanca"};
    Controllo Label7{S, TipoControllo::Etichetta, "Label7", "Prov."};
    Controllo ProvBanca{S, TipoControllo::Campo, "ProvBanca"};
    Controllo Label8{S, TipoControllo::Etichetta, "Label8", "Cod. A.B.I."};
    Controllo abi{S, TipoControllo::Campo, "abi"};
    Controllo Label9{S, TipoControllo::Etichetta, "Label9", "Fido"};
    Controllo Fido{S, TipoControllo::Campo, "Fido"};

    Controllo Saldi{S, TipoControllo::Pulsante, "Saldi", "Conferma"};
    Controllo selezione{S, TipoControllo::Pulsante, "selezione", "Archivio"};
    Controllo Command3{S, TipoControllo::Pulsante, "Command3", "Uscita"};

    Form10();
};

// The card filled from the account whose trimmed number is `numero`, which becomes the
// selection, then shown. An account open in the entry screen gets its entry line emptied.
void MostraSchedaConto(const std::string& numero);

// The card of the account in slot `indice` of the table, for reading: FlagOperazione is set,
// so that Conferma only closes it. The selection and the open account stay as they are.
void MostraSchedaSolaLettura(short indice);

// "Conferma" on the card: the account becomes the open one and the entry screen, coming up,
// loads it; Form7 and Form10 go away.
void ApriContoScelto();
