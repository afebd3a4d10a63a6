#pragma once
// Elenco Movimenti: the movements of the open account between two operation dates, optionally of
// one causale, with a running balance and, beneath, what the movements left out add up to. A
// double click on a line opens its correction, Form20.
#include "screen/Schermo.h"

struct Form11 {
    Schermo S{"Form11", "Elenco Movimenti"};

    // The selection.
    Controllo Label7{S, TipoControllo::Etichetta, "Label7", "Dal"};
    Controllo DataOper{S, TipoControllo::Data, "DataOper"};
    Controllo Label8{S, TipoControllo::Etichetta, "Label8", "Al"};
    Controllo DataFinale{S, TipoControllo::Data, "DataFinale"};
    Controllo Label9{S, TipoControllo::Etichetta, "Label9", "Causale:"};
    Controllo Combo1{S, TipoControllo::Combo, "Combo1"};
    Controllo OK{S, TipoControllo::Pulsante, "OK", "Conferma"};
    Controllo Tutti{S, TipoControllo::Pulsante, "Tutti", "Tutti"};
    Controllo PulStampe{S, TipoControllo::Pulsante, "PulStampe", "Stampa"};
    Controllo Esc{S, TipoControllo::Pulsante, "Esc", "Uscita"};

    // The column heads and the list.
    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "Data"};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2", "Valuta"};
    Controllo Label3{S, TipoControllo::Etichetta, "Label3", "Mov. Dare"};
    Controllo Label4{S, TipoControllo::Etichetta, "Label4", "Mov. Avere"};
    Controllo Label5{S, TipoControllo::Etichetta, "Label5", "Saldo"};
    Controllo Label6{S, TipoControllo::Etichetta, "Label6", "Descr. Operazione"};
    Controllo List1{S, TipoControllo::Lista, "List1"};

    Form11();
};

struct MDIForm1;

// The main window's commands of the movement list and of the summary of accounts: VisMovimenti
// and Vista show Form11, TotConti shows Form22.
void CollegaMenuMovimenti(MDIForm1& f);
