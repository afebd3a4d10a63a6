#pragma once
// The access check at the start, when the preferences ask for it: the user name and password
// typed are compared with those of Imposta. Four failures of either kind end the program. It
// locks the user interface only: the files stay readable by whoever can read the disk.
#include "screen/Schermo.h"

struct passWord {
    Schermo S{"passWord", "Marendola - PassWord"};

    Controllo lblLabels0{S, TipoControllo::Etichetta, "lblLabels", "&Nome utente:", 0};
    Controllo txtUserName{S, TipoControllo::Campo, "txtUserName"};
    Controllo lblLabels1{S, TipoControllo::Etichetta, "lblLabels", "&Password:", 1};
    Controllo txtPassword{S, TipoControllo::Campo, "txtPassword"};
    Controllo cmdOK{S, TipoControllo::Pulsante, "cmdOK", "OK"};
    Controllo cmdCancel{S, TipoControllo::Pulsante, "cmdCancel", "Annulla"};

    bool Riuscito = false; // the user got in
    int Tentativi = 0;     // failures since the screen loaded

    passWord();
};

// Shows passWord modally at the start; false when the program is to end.
bool ControllaAccesso();
