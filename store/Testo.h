#pragma once
// The classic text functions. Text in memory is UTF-8; every position and length counts
// characters (code points), so an accented letter is one character as it is in the files. A byte
// that isn't part of a valid sequence counts as one character of its own.
#include <string>

// The value of |valore| taken to 15 significant digits, as the classic conversions see a double:
// `cifre` holds the 15 digits of the mantissa d.dddddddddddddd, `esponente` the power of ten of
// its first digit. Zero gives fifteen zeros and 0. Failure 6 for infinity and NaN.
struct Cifre15 {
    std::string cifre;
    int esponente = 0;
};
Cifre15 Arrotonda15(double valore);

// The leading number of a text: blanks, tabs and line feeds are skipped anywhere, then an
// optional sign, digits with one ".", and an exponent E or D when digits follow it. 0 when the
// text doesn't start with a number; failure 6 when the number is too large for a double.
double Val(const std::string& testo);

// A number as text: a blank in front of a number that isn't negative, "." as decimal point, up
// to 15 significant digits without trailing zeros, no "0" before the point (" .5"), and the
// exponent form ("1E+15", "1E-05") only outside 1E-5 to 1E+15.
std::string Str(double valore);

std::string Trim(const std::string& testo);     // blanks only, both sides
std::string LTrim(const std::string& testo);
std::string RTrim(const std::string& testo);

// Left and Right give the whole text when n exceeds it; Mid counts from 1 and gives "" past the
// end. A negative n or len, or a start below 1, is failure 5.
std::string Left(const std::string& testo, int n);
std::string Right(const std::string& testo, int n);
std::string Mid(const std::string& testo, int inizio);
std::string Mid(const std::string& testo, int inizio, int lunghezza);
int Len(const std::string& testo);

// Case of the ASCII letters and of the accented letters of Windows-1252 (À-Þ, Š, Œ, Ž, Ÿ).
std::string UCase(const std::string& testo);
std::string LCase(const std::string& testo);

std::string Space(int n);    // failure 5 when negative

// A fixed-width field: the text left-justified in n characters, cut or padded with blanks.
std::string Giustifica(const std::string& testo, int n);
// A column of a list: blanks on the left up to n characters; a longer text stays whole.
std::string AllineaDestra(const std::string& testo, int n);
