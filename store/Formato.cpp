#include "store/Formato.h"

#include "store/Guasto.h"
#include "store/Testo.h"

#include <charconv>
#include <cmath>
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
    return sezione;
}

// |valore| / 1000^scala * 10^decimali, rounded half away from zero, as a string of digits.
std::string CifreArrotondate(double valore, int scala, int decimali) {
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

std::string Applica(const Sezione& sezione, double valore) {
    std::string cifre = CifreArrotondate(valore, sezione.scala, sezione.postiDecimali);
    size_t d = static_cast<size_t>(sezione.postiDecimali);
    if (cifre.size() < d) cifre.insert(0, d - cifre.size(), '0');
    std::string interi = cifre.substr(0, cifre.size() - d);
    std::string decimali = cifre.substr(cifre.size() - d);
    interi.erase(0, interi.find_first_not_of('0'));
    size_t minimo = sezione.primoZero < 0 ? 0 : size_t(sezione.postiInteri - sezione.primoZero);
    if (interi.size() < minimo) interi.insert(0, minimo - interi.size(), '0');

    // The decimals up to the last "0" place or the last digit that isn't zero are shown.
    int ultimoDecimale = -1, k = 0;
    bool dopoPunto = false;
    for (const Pezzo& p : sezione.pezzi) {
        if (p.segno == Segno::Punto) dopoPunto = true;
        if (!dopoPunto || !PostoCifra(p.segno)) continue;
        if (p.segno == Segno::Zero || decimali[static_cast<size_t>(k)] != '0') ultimoDecimale = k;
        ++k;
    }

    const int n = static_cast<int>(interi.size());
    std::string risultato;
    auto cifraIntera = [&](int r) {    // r counts from the right, from 0
        risultato += interi[static_cast<size_t>(n - 1 - r)];
        if (sezione.migliaia && r > 0 && r % 3 == 0) risultato += '.';
    };
    int posto = 0;    // integer places met so far
    k = 0;
    dopoPunto = false;
    for (const Pezzo& p : sezione.pezzi) {
        if (p.segno == Segno::Letterale) {
            risultato += p.testo;
        } else if (p.segno == Segno::Punto) {
            if (sezione.postiInteri == 0)
                for (int r = n - 1; r >= 0; --r) cifraIntera(r);
            risultato += ',';
            dopoPunto = true;
        } else if (dopoPunto) {
            if (k <= ultimoDecimale) risultato += decimali[static_cast<size_t>(k)];
            ++k;
        } else {
            // The first place takes every digit beyond the places of the pattern.
            int r = sezione.postiInteri - 1 - posto;
            int da = posto == 0 ? n - 1 : r;
            for (int q = da; q >= r; --q)
                if (q < n) cifraIntera(q);
            ++posto;
        }
    }
    return risultato;
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
    std::vector<std::string> sezioni = Sezioni(modello);
    if (valore < 0 && sezioni.size() > 1 && !sezioni[1].empty())
        return Applica(LeggiSezione(sezioni[1]), valore);
    if (valore == 0 && sezioni.size() > 2 && !sezioni[2].empty())
        return Applica(LeggiSezione(sezioni[2]), valore);
    // The sign goes by the value before rounding, so a small negative shows as "-0,00".
    std::string testo = Applica(LeggiSezione(sezioni[0]), valore);
    return valore < 0 ? testo.insert(0, 1, '-') : testo;
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
