#include "store/Formato.h"

#include "store/Guasto.h"
#include "store/Testo.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <system_error>
#include <vector>

namespace {
enum class Segno { Zero, Cancelletto, Punto, Letterale };

struct Pezzo {
    Segno segno;
    std::string testo;    // the text of a literal
};

// One section of a pattern, read into its pieces.
struct Sezione {
    std::vector<Pezzo> pezzi;
    bool migliaia = false;    // a "," that groups the thousands
    int scala = 0;            // the "," that divide by 1000 each
    int postiInteri = 0;
    int postiDecimali = 0;
    int primoZero = -1;       // the integer place of the leftmost "0": digits shown from there
    size_t letterali = 0;     // the characters of all the literals
    bool punto = false;
    int ultimoZeroDecimale = -1;    // the decimal place of the rightmost "0"
    // Digit places and the point only, as the amounts have: the digits in a row.
    bool semplice = false;
};

// The sections of a pattern split at ";", outside quotes and escapes.
std::vector<std::string> Sezioni(const std::string& modello) {
    std::vector<std::string> sezioni(1);
    for (size_t i = 0; i < modello.size(); ++i) {
        char c = modello[i];
        if (c == ';') {
            sezioni.emplace_back();
            continue;
        }
        sezioni.back() += c;
        if (c == '\\' && i + 1 < modello.size()) {
            sezioni.back() += modello[++i];
        } else if (c == '"') {
            for (++i; i < modello.size(); ++i) {
                sezioni.back() += modello[i];
                if (modello[i] == '"') break;
            }
        }
    }
    return sezioni;
}

bool PostoCifra(Segno s) { return s == Segno::Zero || s == Segno::Cancelletto; }

// A "," right before the decimal point, or after the last digit place of the integer part when
// there is no point, divides the number by 1000; any other "," asks for the grouping. So the
// interest's "##,00" is not a decimal pattern: its "," stands between digit places and only
// groups, and with no "." the pattern shows a whole number of at least two digits (27 gives
// "27", 5.5 gives "06").
Sezione LeggiSezione(const std::string& testo) {
    Sezione sezione;
    bool decimali = false;
    int virgoleInAttesa = 0;    // "," met after the last digit place so far
    auto aggiungi = [&](Segno segno, std::string letterale = {}) {
        if (PostoCifra(segno) && !decimali) {
            if (virgoleInAttesa > 0) sezione.migliaia = true;
            virgoleInAttesa = 0;
        }
        if (segno == Segno::Punto) {
            sezione.scala += virgoleInAttesa;
            virgoleInAttesa = 0;
        }
        sezione.letterali += letterale.size();
        if (!sezione.pezzi.empty() && segno == Segno::Letterale &&
            sezione.pezzi.back().segno == Segno::Letterale) {
            sezione.pezzi.back().testo += letterale;
        } else {
            sezione.pezzi.push_back({segno, std::move(letterale)});
        }
    };
    for (size_t i = 0; i < testo.size(); ++i) {
        char c = testo[i];
        if (c == '0' || c == '#') {
            Segno segno = c == '0' ? Segno::Zero : Segno::Cancelletto;
            if (decimali) {
                ++sezione.postiDecimali;
            } else {
                if (segno == Segno::Zero && sezione.primoZero < 0)
                    sezione.primoZero = sezione.postiInteri;
                ++sezione.postiInteri;
            }
            aggiungi(segno);
        } else if (c == '.' && !decimali) {
            aggiungi(Segno::Punto);
            decimali = true;
        } else if (c == ',') {
            if (!decimali) ++virgoleInAttesa;
        } else if (c == '\\') {
            if (i + 1 < testo.size()) aggiungi(Segno::Letterale, std::string(1, testo[++i]));
        } else if (c == '"') {
            size_t fine = testo.find('"', i + 1);
            if (fine == std::string::npos) fine = testo.size();
            aggiungi(Segno::Letterale, testo.substr(i + 1, fine - i - 1));
            i = fine;
        } else {
            aggiungi(Segno::Letterale, std::string(1, c));
        }
    }
    if (!decimali) sezione.scala += virgoleInAttesa;
    sezione.punto = decimali;
    int k = 0;
    bool letterale = false, dopoPunto = false;
    for (const Pezzo& p : sezione.pezzi) {
        letterale = letterale || p.segno == Segno::Letterale;
        if (p.segno == Segno::Punto) dopoPunto = true;
        if (!dopoPunto || !PostoCifra(p.segno)) continue;
        if (p.segno == Segno::Zero) sezione.ultimoZeroDecimale = k;
        ++k;
    }
    sezione.semplice = !letterale && (sezione.postiInteri > 0 || sezione.punto);
    return sezione;
}

// |valore| / 1000^scala * 10^decimali, rounded half away from zero, as a string of digits.
std::string CifreArrotondate(double valore, int scala, int decimali) {
    // A whole number below 10^15, unscaled, is its digits and the zeros of the decimals: so
    // the steps below make it too, save a leading zero.
    const double assoluto = std::fabs(valore);
    const auto intero = assoluto < 1e15 ? static_cast<std::uint64_t>(assoluto) : 0;
    if (scala == 0 && assoluto < 1e15 && static_cast<double>(intero) == assoluto) {
        char buffer[24];
        auto [fine, ec] = std::to_chars(buffer, buffer + sizeof buffer, intero);
        std::string cifre(buffer, fine);
        cifre.append(static_cast<size_t>(decimali), '0');
        return cifre;
    }
    Cifre15 c = Arrotonda15(valore);
    int spostamento = c.esponente - 3 * scala - 14 + decimali;
    if (spostamento >= 0) return c.cifre + std::string(static_cast<size_t>(spostamento), '0');
    int tenute = 15 + spostamento;
    if (tenute < 0) return "0";
    std::string cifre = "0";    // room for the carry
    cifre.append(c.cifre, 0, static_cast<size_t>(tenute));
    if (c.cifre[static_cast<size_t>(tenute)] >= '5') {
        size_t i = cifre.size() - 1;
        while (cifre[i] == '9') cifre[i--] = '0';
        ++cifre[i];
    }
    return cifre;
}

// The integer digits of a number, `zeri` zeros ahead of the first `n - zeri` of `cifre`.
struct Interi {
    const char* cifre;
    int n, zeri;
    bool migliaia;

    // Those from place `da` down to place `a`, counted from the right from 0, each followed by
    // the "." of the thousands where one falls.
    char* Scrivi(char* uscita, int da, int a) const {
        // Copies the compiler can keep in registers: the stores below may touch any char.
        const char* sorgente = cifre;
        const int ultimo = n - 1, primaCifra = zeri;
        const bool punti = migliaia;
        for (int r = da; r >= a; --r) {
            const int i = ultimo - r;
            *uscita++ = i < primaCifra ? '0' : sorgente[i - primaCifra];
            if (punti && r > 0 && r % 3 == 0) *uscita++ = '.';
        }
        return uscita;
    }
};

std::string Applica(const Sezione& sezione, double valore) {
    std::string cifre = CifreArrotondate(valore, sezione.scala, sezione.postiDecimali);
    const size_t d = static_cast<size_t>(sezione.postiDecimali);
    if (cifre.size() < d) cifre.insert(0, d - cifre.size(), '0');
    // The integer digits: those before the decimals from the first that isn't zero, behind the
    // zeros that the "0" places ask for.
    const size_t fineInteri = cifre.size() - d;
    size_t primo = 0;
    while (primo < fineInteri && cifre[primo] == '0') ++primo;
    size_t minimo = sezione.primoZero < 0 ? 0 : size_t(sezione.postiInteri - sezione.primoZero);
    const size_t zeri = minimo > fineInteri - primo ? minimo - (fineInteri - primo) : 0;
    const int n = static_cast<int>(zeri + fineInteri - primo);
    const char* decimali = cifre.data() + fineInteri;

    // Written in place: each digit once, a "." at most for every third, the "," and the
    // literals.
    std::string risultato;
    risultato.resize(static_cast<size_t>(n + n / 3) + d + 1 + sezione.letterali);
    char* uscita = risultato.data();
    const Interi interi{cifre.data() + primo, n, static_cast<int>(zeri), sezione.migliaia};
    // The decimals up to the last "0" place or the last digit that isn't zero are shown.
    int ultimoDecimale = sezione.ultimoZeroDecimale;
    for (int k = static_cast<int>(d) - 1; k > ultimoDecimale; --k) {
        if (decimali[k] != '0') {
            ultimoDecimale = k;
            break;
        }
    }
    if (sezione.semplice) {
        // What the places below give when no literal stands between them.
        uscita = interi.Scrivi(uscita, n - 1, 0);
        if (sezione.punto) {
            *uscita++ = ',';
            uscita = std::copy(decimali, decimali + ultimoDecimale + 1, uscita);
        }
        risultato.resize(static_cast<size_t>(uscita - risultato.data()));
        return risultato;
    }
    int posto = 0;    // integer places met so far
    int k = 0;
    bool dopoPunto = false;
    for (const Pezzo& p : sezione.pezzi) {
        if (p.segno == Segno::Letterale) {
            uscita = std::copy(p.testo.begin(), p.testo.end(), uscita);
        } else if (p.segno == Segno::Punto) {
            if (sezione.postiInteri == 0) uscita = interi.Scrivi(uscita, n - 1, 0);
            *uscita++ = ',';
            dopoPunto = true;
        } else if (dopoPunto) {
            if (k <= ultimoDecimale) *uscita++ = decimali[k];
            ++k;
        } else {
            // The first place takes every digit beyond the places of the pattern.
            int r = sezione.postiInteri - 1 - posto;
            uscita = interi.Scrivi(uscita, std::min(posto == 0 ? n - 1 : r, n - 1), r);
            ++posto;
        }
    }
    risultato.resize(static_cast<size_t>(uscita - risultato.data()));
    return risultato;
}

struct SezioneLetta {
    bool vuota;
    Sezione sezione;
};

// The sections of a pattern, read once: a list shows thousands of amounts through the same
// few patterns. The program has one thread; each thread has its own patterns, without a lock.
const std::vector<SezioneLetta>& ModelloLetto(const std::string& modello) {
    struct Letto {
        std::string modello;
        std::vector<SezioneLetta> sezioni;
    };
    // Far more than the program's patterns; a stranger one only starts the cache anew.
    constexpr std::size_t Massimo = 32;
    thread_local std::vector<Letto> letti;
    for (const Letto& l : letti)
        if (l.modello == modello) return l.sezioni;
    if (letti.size() == Massimo) letti.clear();
    Letto nuovo{modello, {}};
    for (const std::string& testo : Sezioni(modello))
        nuovo.sezioni.push_back({testo.empty(), LeggiSezione(testo)});
    letti.push_back(std::move(nuovo));
    return letti.back().sezioni;
}

// The pattern of a family for 0 to 4 decimals.
std::string ConDecimali(std::string interi, int decimali) {
    if (decimali < 0 || decimali > 4) return "";
    if (decimali > 0) interi.append(1, '.').append(static_cast<size_t>(decimali), '0');
    return interi;
}
} // namespace

std::string Format(double valore, const std::string& modello) {
    if (modello.empty()) {
        std::string testo = Str(valore);
        if (testo[0] == ' ') testo.erase(0, 1);
        size_t punto = testo.find('.');
        if (punto != std::string::npos) testo[punto] = ',';
        return testo;
    }
    if (!std::isfinite(valore)) Errore(6);
    const std::vector<SezioneLetta>& sezioni = ModelloLetto(modello);
    if (valore < 0 && sezioni.size() > 1 && !sezioni[1].vuota)
        return Applica(sezioni[1].sezione, valore);
    if (valore == 0 && sezioni.size() > 2 && !sezioni[2].vuota)
        return Applica(sezioni[2].sezione, valore);
    // The sign goes by the value before rounding, so a small negative shows as "-0,00".
    std::string testo = Applica(sezioni[0].sezione, valore);
    if (valore < 0) testo.insert(0, 1, '-');
    return testo;
}

std::string FormatoImportiPerDecimali(int decimali) {
    return ConDecimali("#,###,###,##0", decimali);
}

std::string FormatoBrevePerDecimali(int decimali) { return ConDecimali("##,##0", decimali); }

double ImportoDaTesto(const std::string& testo) {
    std::string t = Trim(testo);
    bool parentesi = t.size() >= 2 && t.front() == '(' && t.back() == ')';
    if (parentesi) t = Trim(t.substr(1, t.size() - 2));
    std::string numero;
    size_t i = 0;
    if (!parentesi && i < t.size() && (t[i] == '+' || t[i] == '-')) {
        if (t[i] == '-') numero += '-';
        i = t.find_first_not_of(' ', i + 1);
        if (i == std::string::npos) Errore(13);
    }
    if (parentesi) numero += '-';
    auto cifra = [&](size_t k) { return k < t.size() && t[k] >= '0' && t[k] <= '9'; };
    bool cifre = false;
    // The "." groups the thousands: it may stand after any digit of the integer part.
    for (; i < t.size() && (cifra(i) || (t[i] == '.' && cifre)); ++i) {
        if (t[i] != '.') numero += t[i];
        cifre = true;
    }
    if (i < t.size() && t[i] == ',') {
        numero += '.';
        for (++i; cifra(i); ++i) {
            numero += t[i];
            cifre = true;
        }
    }
    if (!cifre) Errore(13);
    if (i < t.size() && (t[i] == 'E' || t[i] == 'e')) {
        numero += 'e';
        ++i;
        if (i < t.size() && (t[i] == '+' || t[i] == '-')) {
            if (t[i] == '-') numero += '-';
            ++i;
        }
        if (!cifra(i)) Errore(13);
        for (; cifra(i); ++i) numero += t[i];
    }
    if (i != t.size()) Errore(13);
    double valore = 0;
    auto [fine, ec] = std::from_chars(numero.data(), numero.data() + numero.size(), valore);
    // Out of range: Val tells overflow (failure 6) from a value too small, which is 0.
    if (ec == std::errc::result_out_of_range) return Val(numero);
    return valore == 0 ? 0 : valore;
}
