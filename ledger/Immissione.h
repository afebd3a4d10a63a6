#pragma once
// The entry line of Form9: the causale checked before the amount, the confirm with its two paths
// (a new movement, or the change of the movement loaded from a list), the load of a movement into
// the line, and its clearing. While a movement sits in the line for a change (MovimentoCorrente)
// the working balances leave it out; a save or pulisci puts it back.
#include "screen/Schermo.h"

// IMPORTO taking the focus: the typed causale looked up in the table. A known code fills the
// description, Sospeso (unless it reads "N") and D_A (unless the code is "GC"); an unknown one
// sends the focus back to Causale with a message; an empty one passes.
void ControllaCausale();

// A required date left empty: the message, and the focus there. True when it was empty.
bool DataMancante(Controllo& campo, const char* messaggio);
// A date that isn't one has been emptied and takes the focus. True when it was bad.
bool DataErrata(Controllo& campo);
// The selection dates of Form9 widen the working dates, never narrow them.
void AllargaDaSelezione();

// OK: the dates and the amount checked, then the line stored as a new movement, or over the
// loaded one.
void ConfermaMovimento();

// The line stored over Movimenti[MovimentoCorrente]: .MOV, .Ord, the refilled list, the line
// emptied, and the movement back in the balances.
void ModificaMovimento();

// The selected line of the list on view into the entry line; the movement leaves the balances.
void CaricaMovimentoInMaschera();

// pulisci: the line emptied, the lists unselected, and the loaded movement back in the balances.
void PulisciImmissione();

// Every field of the entry line emptied, NrOper aside.
void SvuotaRiga();
