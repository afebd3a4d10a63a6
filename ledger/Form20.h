#pragma once
// Modifica Movimenti: every field of one movement as plain text, the flags included, opened
// from a line of Form11. Its confirm writes the movement but doesn't keep the balances in step:
// they come right at the next load of the account.
#include "screen/Schermo.h"

struct Form20 {
    Schermo S{"Form20", "Modifica Movimenti"};

    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "Num.Op."};
    Controllo NrOper{S, TipoControllo::Etichetta, "NrOper"};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2", "Data oper."};
    Controllo DataOper{S, TipoControllo::Data, "DataOper"};
    Controllo Label3{S, TipoControllo::Etichetta, "Label3", "Data Valuta"};
    Controllo DataValuta{S, TipoControllo::Data, "DataValuta"};
    Controllo Label4{S, TipoControllo::Etichetta, "Label4", "Caus."};
    Controllo Causale{S, TipoControllo::Campo, "Causale"};
    Controllo Label5{S, TipoControllo::Etichetta, "Label5", "Descrizione causale"};
    Controllo DescrCausale{S, TipoControllo::Etichetta, "DescrCausale"};
    Controllo Label6{S, TipoControllo::Etichetta, "Label6", "Sos."};
    Controllo Sospeso{S, TipoControllo::Campo, "Sospeso"};
    Controllo Label7{S, TipoControllo::Etichetta, "Label7", "E/U"};
    Controllo D_A{S, TipoControllo::Campo, "D_A"};
    Controllo Label8{S, TipoControllo::Etichetta, "Label8", "Ann."};
    Controllo Annullato{S, TipoControllo::Campo, "Annullato"};
    Controllo Label9{S, TipoControllo::Etichetta, "Label9", "Importo"};
    Controllo IMPORTO{S, TipoControllo::Campo, "IMPORTO"};
    Controllo Label10{S, TipoControllo::Etichetta, "Label10", "Nr. Doc."};
    Controllo NrDoc{S, TipoControllo::Campo, "NrDoc"};
    Controllo Label11{S, TipoControllo::Etichetta, "Label11", "Descrizione"};
    Controllo DescMovim{S, TipoControllo::Campo, "DescMovim"};

    Controllo OK{S, TipoControllo::Pulsante, "OK", "Conferma"};
    Controllo Esc{S, TipoControllo::Pulsante, "Esc", "Uscita"};
    Controllo Command3D1{S, TipoControllo::Pulsante, "Command3D1", "Causali"};

    Form20();
};

// The double click on Form11.List1: the movement of the line, found through its place in .Ord,
// fills Form20, which comes up. Refused on a list that doesn't hold all the movements.
void ApriCorrezione();

// Form20's confirm: the fields over the movement in the table and in .MOV, .Ord rewritten, the
// entry screen's list refilled, and the new values taken out of the working balances.
void ConfermaCorrezione();
