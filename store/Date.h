#pragma once
// Dates. A date is the text "DD/MM/YYYY"; "__/__/____" is the empty masked field. Dates are
// ordered by their date number, which is not a day count; days between dates come from the
// calendar conversion.
#include <string>
#include <string_view>

// 366 * year + offset of the month + day. The offset of June is 159 (160 in a leap year), not
// the cumulative 151: stored orders rest on it, so 24 to 30 June number above early July. The
// pieces are the leading numbers of characters 1-2, 4-5 (3-4 when character 3 isn't "/") and the
// last four. Failure 6 when the number doesn't fit a float.
float NumeroData(std::string_view testo);
// The same reading for any text, step by step; NumeroData goes straight to the numbers of a
// plain "DD/MM/YYYY" and comes here for the rest.
float NumeroDataGenerale(const std::string& testo);

bool Bisestile(int anno);

struct PartiData {
    short giorno = 0, mese = 0, anno = 0;
};
// The pieces of NumeroData as 16-bit integers (failure 6 when one doesn't fit).
PartiData DividiData(const std::string& testo);

// On a bad date shows the message and sets esito to false; on a good one leaves esito alone.
// Day 0 passes: only the month, the day limits and a year from 1000 are checked.
void VerificaData(int giorno, int mese, int anno, bool& esito);
// The message for a selection date that isn't 10 characters long.
void MessaggioDataBreve();

// "DD/MM/YYYY", each piece zero-padded.
std::string TestoData(int giorno, int mese, int anno);
// Today by the platform, through a pattern of "dd", "mm", "yyyy" (either case) and separators.
std::string Oggi(const std::string& modello = "DD/MM/YYYY");

bool DataVuota(const std::string& testo);    // exactly "__/__/____"

// Days since 30/12/1899 of a date "D/M/YYYY" (one or two digits for day and month; a year of
// two digits is 1930 to 2029). A date that doesn't exist, or a text that is no date, is
// failure 13.
long GiornoCalendario(std::string_view testo);
// The same for any text; GiornoCalendario takes a plain "DD/MM/YYYY" straight, and the rest
// here.
long GiornoCalendarioGenerale(const std::string& testo);
// The date "DD/MM/YYYY" of a day of that count; failure 6 outside the years 100 to 9999.
std::string TestoDaGiorno(long giorno);
// Days from a to b: GiornoCalendario(b) - GiornoCalendario(a).
long DifferenzaGiorni(const std::string& a, const std::string& b);
