#pragma once
// Numbers shown and typed. The patterns follow the classic Format: "0" and "#" are digit
// places, "." the decimal point and "," the thousands grouping; a quoted text, an escaped
// character and any other character (the "*" of the rate pattern too) are copied as they stand.
// The output always uses the Italian separators, "." for thousands and "," for decimals
// ("1.234,56"), whatever the locale of the machine.
#include <string>

// `valore` through `modello`. Rounding is half away from zero, on the value first taken to 15
// significant digits (2.675 with two decimals gives "2,68"). A negative value gets "-" in front,
// unless the pattern has a second section after ";", which then shows it without sign. An empty
// pattern gives the plain number: as Str, without its blank and with "," as decimal point.
std::string Format(double valore, const std::string& modello);

// The pattern of the amounts by number of decimals: "#,###,###,##0" to "#,###,###,##0.0000";
// "" outside 0 to 4.
std::string FormatoImportiPerDecimali(int decimali);
// The short pattern of the same family: "##,##0" to "##,##0.0000"; "" outside 0 to 4.
std::string FormatoBrevePerDecimali(int decimali);

// A typed amount with the Italian separators: "1.234,56" is 1234.56, "1.234" is 1234, "-12,3"
// and "(12,3)" are negative, blanks around are dropped. A text that is no number, "" included,
// is failure 13; a number too large for a double is failure 6.
double ImportoDaTesto(const std::string& testo);
