#pragma once
// The accounts of the data directory: the table `Conti` with its count in RecConti.dat, the two
// pick lists Form2.ListaConti and Form7.List1, and the closing of the open account.
#include "store/RecordAnagrafe.h"

#include <string>

// The line of an account as a whole read of the table writes it: the number in its 12
// characters, " - ", the bank in its 45.
std::string RigaConto(const RecConto& conto);

// Empties both pick lists line by line and fills them again from the table. A screen that isn't
// loaded is left alone: it reads the accounts when it comes to the front.
void ElencaConti();

// RecConti.dat into NumConti and records 1 to NumConti of Conti.dat into the table, then both
// lists. Visiting a directory leaves the two files behind, empty when they were missing. A
// failure goes through ErroreDisco.
void LeggiConti();
// Records 1 to NumConti of Conti.dat into the table.
void LeggiTabellaConti();

// The number that a list line carries, untrimmed: its first 12 characters. A line added by
// Conferma pads the number only to 10, so its " - " starts at the 11th: that line gives its
// first 10, which keeps it selectable like the others.
std::string NumeroContoDaRiga(const std::string& riga);

// The first slot from 1 whose trimmed number equals `numero` (trimmed by the caller, as each
// screen does in its own way); 0 when none.
short CercaConto(const std::string& numero);

// Writes slot NumConti at its record of Conti.dat and the count, and adds to each list the
// line of a new account: the trimmed number padded to 10, " - ", the bank as typed on Form2.
void SalvaNuovoConto();

// Writes the fields of Form2 into the selected slot IndiceConto and its record, rebuilds both
// lists in the layout of LeggiConti and clears the selection.
void AggiornaConto();

// Form2's change mode: the slot of the list line becomes the selection and fills the fields.
void SelezionaConto(const std::string& riga);

// "Cancella conto": asks, refuses the account in use, compacts Conti.dat and deletes every
// file of the data directory whose name starts with the number.
void CancellaConto();

// Takes the open account down: the screens that work on it, the main window's panel and
// commands, the stem, the selection. The data directory follows Form7's chooser when that
// screen is loaded.
void ChiudiConto();

struct MDIForm1;

// The main window's commands of the accounts: "Gestione conto", "Apri conto esitente", the
// button that opens as well, and "Chiudi".
void CollegaMenuConti(MDIForm1& f);
