#pragma once
// The list of movements of Form11 and what its printed twin shares with it: the reading of .Ord,
// the selection by operation date and causale, and the sign of a movement in its sums.
#include "store/RecordRegistro.h"

#include <string>
#include <vector>

// The two totals beneath the list and its printed twin keep these patterns whatever the
// decimals of the amounts.
constexpr const char* FormatoEuroNonElencati = "#,###,###,##0.00";
constexpr const char* FormatoEuroTotale = "#,###,###,###.##";

// An amount in Euro in the currency on show, with the amount format, filled on the left to
// `larghezza` and never cut.
std::string ImportoColonna(double euro, int larghezza);
// The description of a movement's causale, cut to 20 and trimmed: its width varies, and what
// follows it in a line doesn't align.
std::string DescrizioneCausale(const Fisso<5>& codice);
// The amount of a movement in the two columns side by side: outgoings first, then incomes.
std::string ColonneImporto(const RecMovimento& m);
// The carried amount as the carried line shows it: a positive amount stands two columns left
// of the incomes, zero and below one column right of the outgoings.
std::string ImportoRiportato(double riporto);
// The payees, trimmed, of the cheques whose number is the movement's document.
std::vector<std::string> BeneficiariAssegno(const RecMovimento& m);

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
