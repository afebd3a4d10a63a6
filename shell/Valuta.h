#pragma once
// The currency in use: the main window's combo, the flag beside it and the rate `Cambio`.

// Reads the 15 records of Valute.DAT into `Valute` and gives the combo one line each: the
// trimmed name, " - ", the trimmed country.
void LeggiValute();

// A line chosen in the combo: the flag of the line's place + 1, the rate of the currency whose
// line it is, and with an account open the list and the balances shown again at that rate.
void SceltaValuta();

// The currency at the start: the stored default's line, and then the rate of the first
// currency with the default's name, whatever its country.
void ValutaIniziale();
