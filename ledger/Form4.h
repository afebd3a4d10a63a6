#pragma once
// Allineamento Conto: the suspended movements against the bank's statement. A movement brought
// into the fields leaves the balances; confirmed with the statement's dates and amount it turns
// aligned, and a cheque's sheet is cleared with it. Only SaldoAllineamento takes the new figure
// at once: the other balances get it at the next rebuild.
#include "screen/Schermo.h"

struct Form4 {
    Schermo S{"Form4", "Allineamento Conto"};

    Controllo Label13{S, TipoControllo::Etichetta, "Label13", "Data Op."};
    Controllo Label14{S, TipoControllo::Etichetta, "Label14", "Data val."};
    Controllo Label18{S, TipoControllo::Etichetta, "Label18", "Nr.op."};
    Controllo Label15{S, TipoControllo::Etichetta, "Label15", "Causale"};
    Controllo Label20{S, TipoControllo::Etichetta, "Label20", "E/U"};
    Controllo Label21{S, TipoControllo::Etichetta, "Label21", "Nr. Doc."};
    Controllo Label22{S, TipoControllo::Etichetta, "Label22", "Importo"};
    Controllo ElencoMovim{S, TipoControllo::Lista, "ElencoMovim"};

    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "Num.Op."};
    Controllo NrOper{S, TipoControllo::Etichetta, "NrOper"};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2", "Data oper."};
    Controllo DataOper{S, TipoControllo::Data, "DataOper"};
    Controllo Label3{S, TipoControllo::Etichetta, "Label3", "data Valuta"};
    Controllo DataValuta{S, TipoControllo::Data, "DataValuta"};
    Controllo Label4{S, TipoControllo::Etichetta, "Label4", "Caus."};
    Controllo Causale{S, TipoControllo::Campo, "Causale"};
    Controllo Label5{S, TipoControllo::Etichetta, "Label5", "Descrizione causale"};
    Controllo DescrCausale{S, TipoControllo::Etichetta, "DescrCausale"};
    Controllo Label7{S, TipoControllo::Etichetta, "Label7", "E/U"};
    Controllo D_A{S, TipoControllo::Etichetta, "D_A"};
    Controllo Label8{S, TipoControllo::Etichetta, "Label8", "Importo"};
    Controllo IMPORTO{S, TipoControllo::Campo, "IMPORTO"};
    Controllo Label9{S, TipoControllo::Etichetta, "Label9", "Nr. Doc."};
    Controllo NrDoc{S, TipoControllo::Campo, "NrDoc"};
    Controllo Label11{S, TipoControllo::Etichetta, "Label11", "Causale"};
    Controllo DescMovim{S, TipoControllo::Campo, "DescMovim"};

    Controllo OK{S, TipoControllo::Pulsante, "OK", "Conferma"};
    Controllo pulisci{S, TipoControllo::Pulsante, "pulisci", "Cancella Immissione"};
    Controllo Command3D1{S, TipoControllo::Pulsante, "Command3D1", "Seleziona causale"};
    Controllo Esc{S, TipoControllo::Pulsante, "Esc", "Uscita"};

    Form4();
};

// ElencoMovim refilled with every suspended movement, whatever its date.
void ElencaSospesi();
// The movement of the selected line into the fields, and out of the balances.
void CaricaSospeso();
// The fields stored over the movement MovimentoCorrente, now aligned; for a cheque its sheet and
// its book follow.
void SalvaAllineamento();
// The list filled and the screen shown: the main window's AllConto and Files.
void MostraAllineamento();
