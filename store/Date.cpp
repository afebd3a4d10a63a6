#include "store/Date.h"

#include "store/Formato.h"
#include "store/Guasto.h"
#include "store/Piattaforma.h"
#include "store/Testo.h"

#include <cctype>
#include <chrono>
#include <cmath>
#include <limits>

namespace {
struct Pezzi {
    double giorno, mese, anno;
};

// The split that NumeroData and the date checks of the screens share.
Pezzi PezziData(const std::string& testo) {
    double mese = Mid(testo, 3, 1) == "/" ? Val(Mid(testo, 4, 2)) : Val(Mid(testo, 3, 2));
    return {Val(Left(testo, 2)), mese, Val(Right(testo, 4))};
}

// The offset of a month from 1 to 12; a leap year adds its day from March on.
int OffsetMese(int mese, bool bisestile) {
    static const int comune[] = {0, 31, 59, 90, 120, 159, 181, 212, 243, 273, 304, 334};
    return comune[mese - 1] + (mese >= 3 && bisestile ? 1 : 0);
}

// Any other month has the offset 0.
int OffsetMese(double mese, double anno) {
    if (mese != std::floor(mese) || mese < 1 || mese > 12) return 0;
    int m = static_cast<int>(mese);
    return OffsetMese(m, m >= 3 && Bisestile(Intero32(anno)));
}

void MessaggioErrore(const std::string& formato) {
    Piattaforma().MsgBox(" Data Errata; Inserire la data nel formato " + formato +
                             " immettendo lo zero davanti ai numeri con una sola cifra.",
                         "Errore", Icona::Esclamazione, Pulsanti::OK, 0);
}

// 30/12/1899 counts 0, as in the classic date serials.
constexpr long kGiorno1970 = 25569;

// The pieces of a well-formed "DD/MM/YYYY", the text of every stored date, read straight:
// both readings of a date agree on them, and the general one is many times slower.
bool DataSemplice(std::string_view testo, int& giorno, int& mese, int& anno) {
    if (testo.size() != 10 || testo[2] != '/' || testo[5] != '/') return false;
    auto cifra = [&testo](std::size_t i) { return static_cast<unsigned>(testo[i] - '0'); };
    const unsigned g1 = cifra(0), g2 = cifra(1), m1 = cifra(3), m2 = cifra(4), a1 = cifra(6),
                   a2 = cifra(7), a3 = cifra(8), a4 = cifra(9);
    // Unsigned: a character below "0" wraps past 9 as well.
    if (g1 > 9 || g2 > 9 || m1 > 9 || m2 > 9 || a1 > 9 || a2 > 9 || a3 > 9 || a4 > 9)
        return false;
    giorno = static_cast<int>(g1 * 10 + g2);
    mese = static_cast<int>(m1 * 10 + m2);
    anno = static_cast<int>(((a1 * 10 + a2) * 10 + a3) * 10 + a4);
    return true;
}

bool SoloCifre(const std::string& testo, size_t minimo, size_t massimo) {
    if (testo.size() < minimo || testo.size() > massimo) return false;
    for (char c : testo)
        if (!std::isdigit(static_cast<unsigned char>(c))) return false;
    return true;
}
} // namespace

float NumeroData(std::string_view testo) {
    int giorno, mese, anno;
    // Within the float's whole numbers: 366 * 9999 + 334 + 99 is below 2^24.
    if (DataSemplice(testo, giorno, mese, anno)) {
        int offset = mese >= 1 && mese <= 12 ? OffsetMese(mese, Bisestile(anno)) : 0;
        return static_cast<float>(366 * anno + offset + giorno);
    }
    return NumeroDataGenerale(std::string(testo));
}

float NumeroDataGenerale(const std::string& testo) {
    Pezzi p = PezziData(testo);
    double numero = 366 * p.anno + OffsetMese(p.mese, p.anno) + p.giorno;
    if (std::fabs(numero) > std::numeric_limits<float>::max()) Errore(6);
    return static_cast<float>(numero);
}

bool Bisestile(int anno) {
    if (anno % 4 != 0) return false;
    return !(anno % 100 == 0 && anno % 400 != 0);
}

PartiData DividiData(const std::string& testo) {
    Pezzi p = PezziData(testo);
    return {Intero16(p.giorno), Intero16(p.mese), Intero16(p.anno)};
}

void VerificaData(int giorno, int mese, int anno, bool& esito) {
    bool buona = mese >= 1 && mese <= 12 &&
                 !((mese == 4 || mese == 6 || mese == 9 || mese == 11) && giorno > 30) &&
                 anno >= 1000 && !(mese == 2 && giorno > (Bisestile(anno) ? 29 : 28)) &&
                 giorno <= 31;
    if (buona) return;
    MessaggioErrore("GGMMAAAA");
    esito = false;
}

void MessaggioDataBreve() { MessaggioErrore("GGMMAA"); }

std::string TestoData(int giorno, int mese, int anno) {
    return Format(giorno, "00") + "/" + Format(mese, "00") + "/" + Format(anno, "0000");
}

std::string Oggi(const std::string& modello) {
    DataCivile oggi = Piattaforma().Oggi();
    std::string risultato;
    for (size_t i = 0; i < modello.size();) {
        std::string pezzo = LCase(modello.substr(i, 4));
        if (pezzo == "yyyy") {
            risultato += Format(oggi.anno, "0000");
            i += 4;
        } else if (pezzo.compare(0, 2, "yy") == 0) {
            risultato += Format(oggi.anno % 100, "00");
            i += 2;
        } else if (pezzo.compare(0, 2, "dd") == 0) {
            risultato += Format(oggi.giorno, "00");
            i += 2;
        } else if (pezzo.compare(0, 2, "mm") == 0) {
            risultato += Format(oggi.mese, "00");
            i += 2;
        } else {
            risultato += modello[i++];
        }
    }
    return risultato;
}

bool DataVuota(const std::string& testo) { return testo == "__/__/____"; }

long GiornoCalendario(std::string_view testo) {
    int giorno, mese, anno;
    if (DataSemplice(testo, giorno, mese, anno) && anno >= 100) {
        using namespace std::chrono;
        year_month_day data{year{anno}, month{static_cast<unsigned>(mese)},
                            day{static_cast<unsigned>(giorno)}};
        if (data.ok()) return sys_days{data}.time_since_epoch().count() + kGiorno1970;
    }
    // Anything else, failures included, as the general reading has it.
    return GiornoCalendarioGenerale(std::string(testo));
}

long GiornoCalendarioGenerale(const std::string& testo) {
    std::string t = Trim(testo);
    size_t primo = t.find_first_of("/-.");
    size_t secondo = primo == std::string::npos ? primo : t.find_first_of("/-.", primo + 1);
    if (secondo == std::string::npos) Errore(13);
    std::string g = t.substr(0, primo), m = t.substr(primo + 1, secondo - primo - 1);
    std::string a = t.substr(secondo + 1);
    if (!SoloCifre(g, 1, 2) || !SoloCifre(m, 1, 2) || !SoloCifre(a, 1, 4)) Errore(13);
    int anno = std::stoi(a);
    if (a.size() <= 2) anno += anno < 30 ? 2000 : 1900;
    if (anno < 100) Errore(13);
    using namespace std::chrono;
    year_month_day data{year{anno}, month{static_cast<unsigned>(std::stoi(m))},
                        day{static_cast<unsigned>(std::stoi(g))}};
    if (!data.ok()) Errore(13);
    return sys_days{data}.time_since_epoch().count() + kGiorno1970;
}

std::string TestoDaGiorno(long giorno) {
    using namespace std::chrono;
    if (giorno < -657434 || giorno > 2958465) Errore(6);    // 01/01/100 to 31/12/9999
    year_month_day data{sys_days{days{giorno - kGiorno1970}}};
    return TestoData(static_cast<int>(unsigned{data.day()}),
                     static_cast<int>(unsigned{data.month()}), int{data.year()});
}

long DifferenzaGiorni(const std::string& a, const std::string& b) {
    return GiornoCalendario(b) - GiornoCalendario(a);
}
