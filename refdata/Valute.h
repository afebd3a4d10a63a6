#pragma once
// The currencies: fifteen slots of Valute.DAT beside the program, one a country at a fixed record
// number, each holding how much of the currency makes one Euro. Amounts are stored in Euro.
#include "store/RecordAnagrafe.h"

#include <string>

// What record n holds once written: ValuteFisse[n - 1]. The Euro's is written at the first
// start; the others when the user confirms their rate on Form25.
struct ValutaFissa {
    const char* Nome;
    const char* Paese;
};
inline constexpr ValutaFissa ValuteFisse[15] = {
    {"Scellino", "Austria"},  {"Franco", "Belgio"},          {"Marco", "Finlandia"},
    {"Sterlina", "Irlanda"},  {"Franco", "Francia"},         {"Marco", "Germania"},
    {"Lira", "Italia"},       {"Peseta", "Spagna"},          {"Franco", "Lussemburgo"},
    {"Escudo", "Portogallo"}, {"Fiorino", "Olanada"},        {"Dollaro", "USA"},
    {"Yen", "Giappone"},      {"Sterlina", "Gran Bretagna"}, {"Euro", "Unione Europea"},
};

// The text of a currency in the combos: trimmed name, " - ", trimmed country. A record never
// written gives " - ".
std::string TestoValuta(const RecValuta& valuta);

// The first slot from 1 to 15 whose text equals `testo`; 0 when none does, as for the trimmed
// line "-" of a record never written.
short CercaValuta(const std::string& testo);

// Records 1 to 15 of Valute.DAT into Valute.
void LeggiTabellaValute();

// Slot n of Valute written at its record; the other records are left as they are.
void ScriviValuta(short n);

// A typed amount as it is stored: divided by the rate in use, Cambio. A rate of 0, that of a
// currency whose rate was never entered, is failure 11.
double ImportoInEuro(double digitato);
