#pragma once
// Impostazioni: the preferences of the installation in Imposta.DAT, one record beside the
// program. The data path, the start account and the currency act at the next start; the
// decimals at once on the amounts shown from then on.
#include "screen/Schermo.h"

struct Form23 {
    Schermo S{"Form23", "Impostazioni"};

    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "percorso dati avvio"};
    Controllo PerAvv{S, TipoControllo::Campo, "PerAvv"};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2", "Conto da aprire in avvio"};
    Controllo contAvv{S, TipoControllo::Campo, "contAvv"};
    Controllo Label3{S, TipoControllo::Etichetta, "Label3", "Valuta predefinita"};
    Controllo Combo1{S, TipoControllo::Combo, "Combo1"};
    Controllo Label4{S, TipoControllo::Etichetta, "Label4", "nr. decimali"};
    Controllo decimali{S, TipoControllo::Campo, "decimali"};
    Controllo Label5{S, TipoControllo::Etichetta, "Label5", "Nome Utente"};
    Controllo NomeUt{S, TipoControllo::Campo, "NomeUt"};
    Controllo Label6{S, TipoControllo::Etichetta, "Label6", "Password"};
    Controllo PassW{S, TipoControllo::Campo, "PassW"};
    Controllo accesso{S, TipoControllo::Casella, "accesso", "Accesso con password"};
    Controllo Salva{S, TipoControllo::Pulsante, "Salva", "Conferma"};
    Controllo Command3D8{S, TipoControllo::Pulsante, "Command3D8", " Uscita "};

    Form23();
};

// The fields into Imposta, record 1 of Imposta.DAT, and the format of the amounts by the
// decimals; with an account open its balances are rebuilt in the new format.
void SalvaImpostazioni();
