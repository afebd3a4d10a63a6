#pragma once
// The list of movements of Form11 and what its printed twin shares with it: the reading of .Ord,
// the selection by operation date and causale, and the sign of a movement in its sums.
#include "store/RecordRegistro.h"

#include <string>

// Movimenti dimensioned for NumMovimenti and filled with records 1 to NumMovimenti of .Ord, in
// the order of the list by operation date. The table no longer mirrors .MOV until the account
// is loaded again.
void LeggiOrdinati();

// The causale chosen by the text of a combo of descriptions: the trimmed code of the first
// causale whose trimmed description equals the right-trimmed text; "" when none does.
std::string CodiceDaDescrizione(const std::string& testo);

// Whether a movement is listed: its operation date, by the calendar, from `dal` to `al` (days as
// GiornoCalendario counts them), and its causale the chosen one unless `tutte`.
bool InElenco(const RecMovimento& m, long dal, long al, const std::string& codice, bool tutte);

// The amount as the list sums it: "E" adds, anything else subtracts.
double ImportoConSegno(const RecMovimento& m);

// Builds Form11.List1 from .Ord: the carried line, one line a listed movement with the running
// balance (and the payee of a cheque beneath), then the closing lines with the movements left
// out and the balance of the whole account.
void CostruisciElenco();
