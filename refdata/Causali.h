#pragma once
// The table of the causali: one for all accounts, kept beside the program in Causali.DAT with
// its count in RecCausa.dat. The table keeps record order; the lists show it by code.
#include "screen/Schermo.h"
#include "store/RecordAnagrafe.h"

#include <string>

// The line of a causale in Form6.ElencoCausali and FORM12.List1: the code in 6 characters,
// " - ", the description as stored. The first five characters are the code.
std::string RigaCausale(const RecCausale& causale);

// Walks the table from slot 1 for the code, both sides right-trimmed. IndiceCausale is the
// cursor of the walk: it stays at the match, or one past the count when there is none.
short CercaCausale(const std::string& codice);

// RecCausa.dat into NumCausali, then records 1 to NumCausali of Causali.DAT into Causali.
void LeggiCausali();

// Writes slot n of the table at record `record` of Causali.DAT.
void ScriviCausale(short n, long record);

// Empties a list of causali line by line and fills it again from the table.
void RiempiElencoCausali(Controllo& lista);

// Refills the lists of Form6 and FORM12 from the table. A screen that isn't loaded is left
// alone: it fills its list when it loads.
void ElencaCausali();
