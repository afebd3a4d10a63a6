#pragma once
// Stampe: the dates and the causale of the printed lists, and one command a list report. The
// dates open on the whole account; "Imposta stampante" chooses the printer of every later run.
#include "screen/Schermo.h"

struct Form21 {
    Schermo S{"Form21", "Stampe"};

    Controllo Frame1{S, TipoControllo::Cornice, "Frame1", "Intervallo di stampa"};
    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "Dal"};
    Controllo dal{S, TipoControllo::Data, "dal"};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2", "Al"};
    Controllo al{S, TipoControllo::Data, "al"};
    Controllo Command3D4{S, TipoControllo::Pulsante, "Command3D4", "Tutte le date"};
    Controllo Label3{S, TipoControllo::Etichetta, "Label3", "Selezione causali da stampare"};
    Controllo Combo1{S, TipoControllo::Combo, "Combo1"};

    Controllo Frame2{S, TipoControllo::Cornice, "Frame2", "Stampa Movimenti"};
    Controllo Saldi{S, TipoControllo::Pulsante, "Saldi", "Conferma"};
    Controllo Command3D3{S, TipoControllo::Pulsante, "Command3D3", "Stampa assegni "};
    Controllo Command3D2{S, TipoControllo::Pulsante, "Command3D2", " Stampa carnet "};
    Controllo Command3D1{S, TipoControllo::Pulsante, "Command3D1", " Stampa lista assegni "};
    Controllo AssAnn{S, TipoControllo::Pulsante, "AssAnn", "Stampa assegni annullati "};

    Controllo Frame3{S, TipoControllo::Cornice, "Frame3", "Stampa archivi"};
    Controllo conti{S, TipoControllo::Pulsante, "conti", "Stampa Elenco Conti"};
    Controllo Command3D5{S, TipoControllo::Pulsante, "Command3D5", " Stampa causali "};

    Controllo PulStampe{S, TipoControllo::Pulsante, "PulStampe", "Imposta stampante"};
    Controllo Esc{S, TipoControllo::Pulsante, "Esc", "Uscita"};

    Form21();
};

struct MDIForm1;

// The main window's entries of printing: the screen Stampe, the two lists printed straight
// from the menu and the choice of the printer.
void CollegaMenuStampe(MDIForm1& f);
