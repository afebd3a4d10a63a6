#include "store/Testo.h"

#include "store/Guasto.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <system_error>

namespace {
bool Continuazione(const std::string& testo, size_t i) {
    return i < testo.size() && (static_cast<unsigned char>(testo[i]) & 0xC0) == 0x80;
}

// Bytes of the character that starts at `i`: a whole well-formed UTF-8 sequence (no overlong
// form, no surrogate, nothing above U+10FFFF), or 1 for a stray byte, as the file codec reads it.
size_t LunghezzaCarattere(const std::string& testo, size_t i) {
    unsigned char b = static_cast<unsigned char>(testo[i]);
    size_t seguito = b >= 0xC2 && b <= 0xDF ? 1 : b >= 0xE0 && b <= 0xEF ? 2
                   : b >= 0xF0 && b <= 0xF4 ? 3 : 0;
    if (seguito == 0) return 1;
    // The second byte carries the limits of the lead bytes E0, ED, F0 and F4.
    unsigned char minimo = b == 0xE0 ? 0xA0 : b == 0xF0 ? 0x90 : 0x80;
    unsigned char massimo = b == 0xED ? 0x9F : b == 0xF4 ? 0x8F : 0xBF;
    unsigned char secondo = i + 1 < testo.size() ? static_cast<unsigned char>(testo[i + 1]) : 0;
    if (secondo < minimo || secondo > massimo) return 1;
    for (size_t k = 2; k <= seguito; ++k)
        if (!Continuazione(testo, i + k)) return 1;
    return seguito + 1;
}

// Byte offset of the character number `n` (from 0); the size of the text past the end.
size_t PosizioneByte(const std::string& testo, int n) {
    size_t i = 0;
    for (; n > 0 && i < testo.size(); --n)
        i += LunghezzaCarattere(testo, i);
    return i;
}

void VerificaNonNegativo(int n) {
    if (n < 0) Errore(5);
}

// Val skips these wherever they stand, also inside the number.
bool SpazioVal(char c) { return c == ' ' || c == '\t' || c == '\n'; }

bool Cifra(char c) { return c >= '0' && c <= '9'; }

// A number too large or too small for a double: the order of magnitude of its first digit says
// which. `numero` is the plain text built by Val: sign, digits, point, "e" and exponent.
bool TroppoGrande(const std::string& numero) {
    size_t e = numero.find('e');
    std::string mantissa = numero.substr(0, e);
    long esponente = 0;
    if (e != std::string::npos) {
        const char* inizio = numero.data() + e + 1;
        if (*inizio == '+') ++inizio;
        auto [fine, ec] = std::from_chars(inizio, numero.data() + numero.size(), esponente);
        if (ec == std::errc::result_out_of_range) return numero[e + 1] != '-';
    }
    size_t punto = mantissa.find('.');
    if (punto == std::string::npos) punto = mantissa.size();
    size_t primo = mantissa.find_first_of("123456789");
    if (primo == std::string::npos) return false;
    long ordine = primo < punto ? static_cast<long>(punto - primo)
                                : -static_cast<long>(primo - punto - 1);
    return ordine + esponente > 0;
}

// The two-byte letters of Windows-1252 whose case changes, as UTF-8 (upper, lower).
struct CoppiaLettere {
    const char* maiuscola;
    const char* minuscola;
};
constexpr CoppiaLettere kLettereSpeciali[] = {
    {"\xC5\xA0", "\xC5\xA1"}, // Š š
    {"\xC5\x92", "\xC5\x93"}, // Œ œ
    {"\xC5\xBD", "\xC5\xBE"}, // Ž ž
    {"\xC5\xB8", "\xC3\xBF"}, // Ÿ ÿ
};

std::string CambiaCaso(const std::string& testo, bool maiuscole) {
    std::string risultato;
    risultato.reserve(testo.size());
    for (size_t i = 0; i < testo.size();) {
        size_t n = LunghezzaCarattere(testo, i);
        std::string carattere = testo.substr(i, n);
        i += n;
        char c = carattere[0];
        if (n == 1) {
            if (maiuscole && c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
            if (!maiuscole && c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
            risultato += c;
            continue;
        }
        if (n == 2 && carattere[0] == '\xC3') {
            // U+00C0..U+00DE and U+00E0..U+00FE differ by 0x20, save × ÷ and ß.
            unsigned char b = static_cast<unsigned char>(carattere[1]);
            if (maiuscole && b >= 0xA0 && b <= 0xBE && b != 0xB7) b -= 0x20;
            if (!maiuscole && b >= 0x80 && b <= 0x9E && b != 0x97) b += 0x20;
            carattere[1] = static_cast<char>(b);
        }
        for (const auto& coppia : kLettereSpeciali) {
            if (maiuscole && carattere == coppia.minuscola) carattere = coppia.maiuscola;
            else if (!maiuscole && carattere == coppia.maiuscola) carattere = coppia.minuscola;
        }
        risultato += carattere;
    }
    return risultato;
}

// 10^0 to 10^22, each exact in a double.
constexpr double PotenzeDieci[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                   1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                   1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// Arrotonda15's digits without the conversion to text that always works but is slow, for the
// values that lists show by the thousand: the digits of `intero`, padded to 15; false when the
// value isn't of the kind.
//
// A whole number below 10^15 is its own digits: counters, numbers of movements, dates.
bool CifreIntere(double assoluto, std::uint64_t& intero) {
    if (!(assoluto < 1e15)) return false;
    intero = static_cast<std::uint64_t>(assoluto);
    return static_cast<double>(intero) == assoluto;
}

// From 1e-5 to 1e15, amounts and rates: the product by the power of ten that brings the first
// digit, of power `esponente`, to the 15th place, taken exactly as a sum of two doubles and
// rounded to a whole number. Within a billionth of a half the rounding is left to the
// conversion, which rounds a true half to even.
bool CifreFrazione(double assoluto, std::uint64_t& intero, int& esponente) {
    if (assoluto < 1e-5 || assoluto >= 1e15) return false;
    // The decade of the first digit, from the binary exponent: that one or the next. 78913
    // / 2^18 is log10(2) close enough for the floor of its multiples up to a thousand.
    int binario = static_cast<int>(std::bit_cast<std::uint64_t>(assoluto) >> 52) - 1023;
    int e = (binario * 78913) >> 18;
    double alto = assoluto * PotenzeDieci[14 - e];
    if (alto >= 1e15) alto = assoluto * PotenzeDieci[14 - ++e];
    double basso = std::fma(assoluto, PotenzeDieci[14 - e], -alto);
    auto n = static_cast<std::uint64_t>(alto);
    double frazione = (alto - static_cast<double>(n)) + basso;
    if (std::fabs(frazione - 0.5) < 1e-9) return false;
    if (frazione > 0.5) ++n;
    if (n < 100000000000000u) return false;
    // 999999999999999.5 and up round to the next power of ten.
    if (n == 1000000000000000u) {
        n /= 10;
        ++e;
    }
    intero = n;
    esponente = e;
    return true;
}
} // namespace

Cifre15 Arrotonda15(double valore) {
    if (!std::isfinite(valore)) Errore(6);
    const double assoluto = std::fabs(valore);
    char buffer[32];
    Cifre15 risultato;
    std::uint64_t intero = 0;
    int esponente = 0;
    const bool perIntero = CifreIntere(assoluto, intero);
    if (perIntero || CifreFrazione(assoluto, intero, esponente)) {
        auto [fine, ec] = std::to_chars(buffer, buffer + sizeof buffer, intero);
        risultato.cifre.assign(buffer, fine);
        risultato.cifre.resize(15, '0');
        // A whole number's first digit stands as many places up as it has digits after it.
        risultato.esponente = perIntero && intero > 0 ? static_cast<int>(fine - buffer) - 1
                                                     : esponente;
        return risultato;
    }
    auto [fine, ec] = std::to_chars(buffer, buffer + sizeof buffer, assoluto,
                                    std::chars_format::scientific, 14);
    std::string testo(buffer, fine);    // d.dddddddddddddde±XX
    risultato.cifre = testo.substr(0, 1) + testo.substr(2, 14);
    risultato.esponente = std::atoi(testo.c_str() + 17);
    if (risultato.cifre.find_first_not_of('0') == std::string::npos) risultato.esponente = 0;
    return risultato;
}

double Val(const std::string& testo) {
    const size_t n = testo.size();
    size_t i = 0;
    auto salta = [&](size_t& k) {
        while (k < n && SpazioVal(testo[k])) ++k;
    };
    std::string numero;
    salta(i);
    if (i < n && (testo[i] == '+' || testo[i] == '-')) {
        if (testo[i] == '-') numero += '-';
        ++i;
    }
    bool cifre = false, punto = false;
    for (salta(i); i < n; salta(i)) {
        if (Cifra(testo[i])) {
            cifre = true;
        } else if (testo[i] == '.' && !punto) {
            punto = true;
        } else {
            break;
        }
        numero += testo[i++];
    }
    if (!cifre) return 0;
    if (i < n && std::string("EeDd").find(testo[i]) != std::string::npos) {
        size_t k = i + 1;
        std::string esponente = "e";
        salta(k);
        if (k < n && (testo[k] == '+' || testo[k] == '-')) esponente += testo[k++];
        bool cifreEsponente = false;
        for (salta(k); k < n && Cifra(testo[k]); salta(k)) {
            esponente += testo[k++];
            cifreEsponente = true;
        }
        if (cifreEsponente) numero += esponente;
    }
    double valore = 0;
    auto [fine, ec] = std::from_chars(numero.data(), numero.data() + numero.size(), valore);
    if (ec == std::errc::result_out_of_range) {
        if (TroppoGrande(numero)) Errore(6);
        return 0;
    }
    if (!std::isfinite(valore)) Errore(6);
    return valore == 0 ? 0 : valore;
}

std::string Str(double valore) {
    std::uint64_t intero = 0;
    // A whole number: its digits behind the sign, as the steps below would give them.
    if (CifreIntere(std::fabs(valore), intero)) {
        char testo[24] = {valore < 0 ? '-' : ' '};
        auto [fine, ec] = std::to_chars(testo + 1, testo + sizeof testo, intero);
        return std::string(testo, fine);
    }
    Cifre15 c = Arrotonda15(valore);
    std::string segno = valore < 0 ? "-" : " ";
    std::string cifre = c.cifre.substr(0, c.cifre.find_last_not_of('0') + 1);
    if (cifre.empty()) return " 0";
    int e = c.esponente;
    if (e >= 15 || e < -4) {
        std::string mantissa = cifre.substr(0, 1);
        if (cifre.size() > 1) mantissa.append(1, '.').append(cifre, 1);
        std::string potenza = std::to_string(std::abs(e));
        if (potenza.size() < 2) potenza = "0" + potenza;
        return segno + mantissa + "E" + (e < 0 ? "-" : "+") + potenza;
    }
    if (e < 0) return segno + "." + std::string(-e - 1, '0') + cifre;
    size_t interi = static_cast<size_t>(e) + 1;
    if (cifre.size() <= interi) return segno + cifre + std::string(interi - cifre.size(), '0');
    return segno + cifre.substr(0, interi) + "." + cifre.substr(interi);
}

std::string LTrim(const std::string& testo) {
    size_t inizio = testo.find_first_not_of(' ');
    return inizio == std::string::npos ? "" : testo.substr(inizio);
}

std::string RTrim(const std::string& testo) {
    size_t fine = testo.find_last_not_of(' ');
    return fine == std::string::npos ? "" : testo.substr(0, fine + 1);
}

std::string Trim(const std::string& testo) {
    size_t inizio = testo.find_first_not_of(' ');
    if (inizio == std::string::npos) return "";
    return testo.substr(inizio, testo.find_last_not_of(' ') - inizio + 1);
}

std::string Left(const std::string& testo, int n) {
    VerificaNonNegativo(n);
    return testo.substr(0, PosizioneByte(testo, n));
}

std::string Right(const std::string& testo, int n) {
    VerificaNonNegativo(n);
    int lunghezza = Len(testo);
    return n >= lunghezza ? testo : testo.substr(PosizioneByte(testo, lunghezza - n));
}

std::string Mid(const std::string& testo, int inizio) {
    if (inizio < 1) Errore(5);
    return testo.substr(PosizioneByte(testo, inizio - 1));
}

std::string Mid(const std::string& testo, int inizio, int lunghezza) {
    VerificaNonNegativo(lunghezza);
    return Left(Mid(testo, inizio), lunghezza);
}

int Len(const std::string& testo) {
    // Plain ASCII, the text of most fields, has a character a byte.
    unsigned char bitAlti = 0;
    for (char c : testo) bitAlti |= static_cast<unsigned char>(c);
    if (bitAlti < 0x80) return static_cast<int>(testo.size());
    int n = 0;
    for (size_t i = 0; i < testo.size(); i += LunghezzaCarattere(testo, i))
        ++n;
    return n;
}

std::string UCase(const std::string& testo) { return CambiaCaso(testo, true); }

std::string LCase(const std::string& testo) { return CambiaCaso(testo, false); }

std::string Space(int n) {
    VerificaNonNegativo(n);
    return std::string(static_cast<size_t>(n), ' ');
}

std::string Giustifica(const std::string& testo, int n) {
    std::string campo = Left(testo, n);
    return campo + Space(n - Len(campo));
}

std::string AllineaDestra(const std::string& testo, int n) {
    int lunghezza = Len(testo);
    if (lunghezza >= n) return testo;
    std::string colonna;
    colonna.reserve(static_cast<size_t>(n - lunghezza) + testo.size());
    colonna.append(static_cast<size_t>(n - lunghezza), ' ').append(testo);
    return colonna;
}
