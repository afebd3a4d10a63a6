#pragma once
// Dati calcolo interessi: the conditions of the open account on five tabs. The tabs belong to
// the view; every field is reachable whichever tab is in front. Enter moves along each row and
// down each column, which is the order the fields are declared in.
#include "screen/Schermo.h"

struct Form26 {
    Schermo S{"Form26", "Dati calcolo interessi"};
    Controllo banca{S, TipoControllo::Etichetta, "banca"};

    // "Interessi Creditori": a start date and a rate a row.
    Controllo DataC1{S, TipoControllo::Data, "DataC1"};
    Controllo PerC1{S, TipoControllo::Campo, "PerC1"};
    Controllo DataC2{S, TipoControllo::Data, "DataC2"};
    Controllo PerC2{S, TipoControllo::Campo, "PerC2"};
    Controllo DataC3{S, TipoControllo::Data, "DataC3"};
    Controllo PerC3{S, TipoControllo::Campo, "PerC3"};
    Controllo DataC4{S, TipoControllo::Data, "DataC4"};
    Controllo PerC4{S, TipoControllo::Campo, "PerC4"};
    Controllo DataC5{S, TipoControllo::Data, "DataC5"};
    Controllo PerC5{S, TipoControllo::Campo, "PerC5"};

    // "Interessi Debitori": a start date, the rate within the credit line and the one beyond.
    Controllo DATAD1{S, TipoControllo::Data, "DATAD1"};
    Controllo PerD1{S, TipoControllo::Campo, "PerD1"};
    Controllo PerD6{S, TipoControllo::Campo, "PerD6"};
    Controllo DATAD2{S, TipoControllo::Data, "DATAD2"};
    Controllo PerD2{S, TipoControllo::Campo, "PerD2"};
    Controllo PerD7{S, TipoControllo::Campo, "PerD7"};
    Controllo DATAD3{S, TipoControllo::Data, "DATAD3"};
    Controllo PerD3{S, TipoControllo::Campo, "PerD3"};
    Controllo PerD8{S, TipoControllo::Campo, "PerD8"};
    Controllo DATAD4{S, TipoControllo::Data, "DATAD4"};
    Controllo PerD4{S, TipoControllo::Campo, "PerD4"};
    Controllo PerD9{S, TipoControllo::Campo, "PerD9"};
    Controllo DATAD5{S, TipoControllo::Data, "DATAD5"};
    Controllo PerD5{S, TipoControllo::Campo, "PerD5"};
    Controllo PerD10{S, TipoControllo::Campo, "PerD10"};

    // "Spese varie": an amount and its frequency a row, quarterly or yearly.
    Controllo IMPORTO1{S, TipoControllo::Campo, "IMPORTO1"};
    Controllo Option1{S, TipoControllo::Opzione, "Option1"};
    Controllo Option2{S, TipoControllo::Opzione, "Option2"};
    Controllo IMPORTO2{S, TipoControllo::Campo, "IMPORTO2"};
    Controllo Option3{S, TipoControllo::Opzione, "Option3"};
    Controllo Option4{S, TipoControllo::Opzione, "Option4"};
    Controllo IMPORTO3{S, TipoControllo::Campo, "IMPORTO3"};
    Controllo Option5{S, TipoControllo::Opzione, "Option5"};
    Controllo Option6{S, TipoControllo::Opzione, "Option6"};
    Controllo IMPORTO4{S, TipoControllo::Campo, "IMPORTO4"};
    Controllo Option7{S, TipoControllo::Opzione, "Option7"};
    Controllo Option8{S, TipoControllo::Opzione, "Option8"};
    Controllo IMPORTO5{S, TipoControllo::Campo, "IMPORTO5"};
    Controllo Option9{S, TipoControllo::Opzione, "Option9"};
    Controllo Option10{S, TipoControllo::Opzione, "Option10"};
    Controllo Descr1{S, TipoControllo::Campo, "Descr1"};
    Controllo IMPORTO6{S, TipoControllo::Campo, "IMPORTO6"};
    Controllo Option11{S, TipoControllo::Opzione, "Option11"};
    Controllo Option12{S, TipoControllo::Opzione, "Option12"};
    Controllo Descr2{S, TipoControllo::Campo, "Descr2"};
    Controllo IMPORTO7{S, TipoControllo::Campo, "IMPORTO7"};
    Controllo Option13{S, TipoControllo::Opzione, "Option13"};
    Controllo Option14{S, TipoControllo::Opzione, "Option14"};

    // "Oneri passivi": the commissions, the withholding tax and the two free charges, whose
    // base a double click on their description chooses (Form28).
    Controllo Per1{S, TipoControllo::Campo, "Per1"};
    Controllo Per2{S, TipoControllo::Campo, "Per2"};
    Controllo Per6{S, TipoControllo::Campo, "Per6"};
    Controllo Per7{S, TipoControllo::Campo, "Per7"};
    Controllo Per3{S, TipoControllo::Campo, "Per3"};
    Controllo Descr3{S, TipoControllo::Campo, "Descr3"};
    Controllo Per4{S, TipoControllo::Campo, "Per4"};
    Controllo Descr4{S, TipoControllo::Campo, "Descr4"};
    Controllo Per5{S, TipoControllo::Campo, "Per5"};

    // "Opzioni".
    Controllo Tri{S, TipoControllo::Opzione, "Tri", "Trimestrale"};
    Controllo Seme{S, TipoControllo::Opzione, "Seme", "Semestrale"};
    Controllo Ann{S, TipoControllo::Opzione, "Ann", "Annuale"};
    Controllo NrScritt{S, TipoControllo::Campo, "NrScritt"};
    Controllo IndInter{S, TipoControllo::Campo, "IndInter"};
    MatriceControlli giorni{S, TipoControllo::Opzione, "giorni", 0, 3};
    MatriceControlli divisore{S, TipoControllo::Opzione, "divisore", 0, 3};

    Controllo OKi{S, TipoControllo::Pulsante, "OKi", "Conferma"};
    Controllo Esc{S, TipoControllo::Pulsante, "Esc", "Uscita "};
    Controllo PulStampe{S, TipoControllo::Pulsante, "PulStampe", "Stampa"};

    Form26();
};

// Fills every field from the conditions in the state.
void MostraCondizioni(Form26& f);
// "Conferma": the dates checked in their fixed order, the first bad one stopping everything with
// nothing stored; then the fields into the state and the five files.
void ConfermaCondizioni(Form26& f);

struct MDIForm1;
// The main window's ways to the conditions (IntCost) and to the ladder (stf).
void CollegaMenuInteressi(MDIForm1& f);
