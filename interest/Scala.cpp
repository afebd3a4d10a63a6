#include "interest/Scala.h"

#include "store/Date.h"
#include "store/Formato.h"
#include "store/Guasto.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include <algorithm>

namespace {
std::string Chiave(const std::string& data) {
    return Str(NumeroData(data)) + " " + data;
}

// List2 keeps its keys as sorted text; keys are digits, blanks and slashes, so case plays no part.
void AggiungiChiave(std::vector<std::string>& chiavi, const std::string& data) {
    std::string chiave = Chiave(data);
    chiavi.insert(std::upper_bound(chiavi.begin(), chiavi.end(), chiave), chiave);
}

std::string DataChiave(const std::string& chiave) {
    return Trim(DataDiChiave(chiave));
}

const std::string Riga(87, '-');
} // namespace

std::string DataDiChiave(const std::string& chiave) {
    return Mid(chiave, 8, 11);
}

std::string ImportoInColonna(double importo, int larghezza) {
    return AllineaDestra(Format(importo, Stato.FormatoImporti), larghezza);
}

std::string TestoGiornoPrima(const std::string& dal, GiornoPrima modo) {
    std::string prima = TestoDaGiorno(GiornoCalendario(dal) - 1);
    if (modo == GiornoPrima::SecoloDiDal)
        prima = Left(prima, 6) + Mid(Trim(dal), 7, 2) + Right(prima, 2);
    return prima;
}

int DivisoreNumeri() {
    switch (Stato.OpzioniCalcolo.Divisore) {
    case 1:
        return 1;
    case 2:
        return 10;
    case 3:
        return 100;
    case 4:
        return 1000;
    default:
        return 0;
    }
}

ScalaValute CostruisciScala(const std::string& dal, const std::string& al, bool soloNonSospesi,
                            GiornoPrima giornoPrima, int ricerca, bool perStampa) {
    ScalaValute s;
    const long inizio = GiornoCalendario(dal), fine = GiornoCalendario(al);

    // Everything before `dal` makes the opening balance, pending or not; after `al`, nothing.
    double saldoIniziale = 0;
    for (long i = 1; i <= Stato.NumMovimenti; ++i) {
        const RecMovimento& m = Stato.Movimenti[i];
        long giorno;
        try {
            giorno = GiornoCalendario(m.DataValuta);
        } catch (const ErroreEsecuzione&) {
            continue;
        }
        if (giorno >= inizio && giorno <= fine && (!soloNonSospesi || m.Sospeso == "N")) {
            if (s.Selezione.size() < MovimentiScala) s.Selezione.push_back(m);
        } else if (giorno < inizio) {
            saldoIniziale += m.IMPORTO * Stato.Cambio * (m.D_A == "E" ? 1 : -1);
        }
    }
    if (s.Selezione.empty()) {
        RecMovimento vuoto;
        vuoto.DataValuta = dal;
        s.Selezione.push_back(vuoto);
    }

    // One row a value date, found by text.
    std::vector<std::string> date;
    for (const RecMovimento& m : s.Selezione) {
        std::string data = m.DataValuta;
        auto fino = date.begin() + std::min<long>(ricerca, static_cast<long>(date.size()));
        if (std::find(date.begin(), fino, data) != fino || date.size() >= RigheScala) continue;
        date.push_back(data);
        AggiungiChiave(s.Chiavi, data);
    }

    // The limits go by the first and last key, which is NumeroData order, not the calendar's.
    bool conPrima = false;
    if (GiornoCalendario(DataChiave(s.Chiavi.front())) > inizio) {
        if (perStampa) {
            // Its key has no leading blank, so it sorts last; found later by its date, it is
            // not added twice.
            const std::string prima = TestoGiornoPrima(dal, GiornoPrima::Vero);
            const std::string chiave = Trim(Chiave(prima));
            s.Chiavi.insert(std::upper_bound(s.Chiavi.begin(), s.Chiavi.end(), chiave), chiave);
            conPrima = true;
        }
        AggiungiChiave(s.Chiavi, dal);
    }
    if (fine > GiornoCalendario(DataChiave(s.Chiavi.back()))) AggiungiChiave(s.Chiavi, al);
    // The day before `dal` is looked for with its key's leading blank, so never found: it is
    // always added.
    if (!conPrima) AggiungiChiave(s.Chiavi, TestoGiornoPrima(dal, giornoPrima));
    if (s.Chiavi.size() > RigheScala) s.Chiavi.resize(RigheScala);

    s.n = static_cast<int>(s.Chiavi.size());
    for (int r = 1; r <= s.n; ++r)
        s.DateScala[r] = DataChiave(s.Chiavi[r - 1]);

    s.SaldiScala[1] += Stato.Riporto[1].ImportoRiporto;
    s.SaldiScala[1] += Dividi(saldoIniziale, Stato.Cambio);
    // Every row takes the movements of its date text; a date that has two rows takes them twice.
    for (int r = 1; r <= s.n; ++r)
        for (const RecMovimento& m : s.Selezione)
            if (m.DataValuta.Vista() == s.DateScala[r])
                s.SaldiScala[r] += m.D_A == "E" ? m.IMPORTO : -m.IMPORTO;
    for (int r = 2; r <= s.n; ++r)
        s.SaldiScala[r] += s.SaldiScala[r - 1];
    return s;
}

long GiorniRiga(const ScalaValute& s, int r, const std::string& al) {
    const std::string& prossima = s.DateScala[static_cast<std::size_t>(r) + 1];
    if (prossima.empty() || GiornoCalendario(prossima) > GiornoCalendario(al)) return 0;
    return DifferenzaGiorni(s.DateScala[r], prossima);
}

RigheLadder CorpoScala(const ScalaValute& s, const std::string& al) {
    RigheLadder l;
    const double divisore = DivisoreNumeri();
    const double limite = -(Stato.Cambio * Stato.Conti[Stato.IndiceConto].Fido) + 0.0;
    auto numeri = [divisore](long gg, double importo) {
        return divisore == 0 ? 0.0 : gg * importo / divisore;
    };

    for (int r = 1; r <= s.n; ++r) {
        const std::string data = DataDiChiave(s.Chiavi[static_cast<std::size_t>(r) - 1]);
        double saldo = Stato.Cambio * s.SaldiScala[r];
        double eccedenza = 0;
        bool oltre = saldo < limite;
        if (oltre) {
            eccedenza = saldo - limite;
            saldo = limite;
        }
        long gg = GiorniRiga(s, r, al);
        double n = numeri(gg, saldo);
        std::string inizio = "   " + data + "  " + ImportoInColonna(saldo) + " " +
                             AllineaDestra(Str(static_cast<double>(gg)), 4) + " ";
        if (saldo < 0) {
            l.debitori += -n;
            l.righe.push_back(inizio + ImportoInColonna(-n));
        } else {
            l.creditori += n;
            l.righe.push_back(inizio + Space(17) + ImportoInColonna(n));
        }
        if (oltre) {
            double ne = -numeri(gg, eccedenza);
            l.debitori += ne;
            l.righe.push_back("EC " + data + "  " + ImportoInColonna(eccedenza) + " " +
                              AllineaDestra(Str(static_cast<double>(gg)), 4) + " " +
                              ImportoInColonna(ne));
            l.MassimaEccedenza = std::min(l.MassimaEccedenza, eccedenza);
        }
        l.MassimoScoperto = std::min(l.MassimoScoperto, saldo);
    }
    return l;
}

std::vector<std::string> MostraScala(const ScalaValute& s, const std::string& al) {
    RigheLadder l = CorpoScala(s, al);
    std::vector<std::string>& righe = l.righe;
    righe.push_back(Riga);
    righe.push_back("Liq. finale     " + ImportoInColonna(Stato.Cambio * s.SaldiScala[s.n]));
    righe.push_back(Riga);
    righe.push_back("                             Totali   " + ImportoInColonna(l.debitori) + " " +
                    ImportoInColonna(l.creditori));
    righe.push_back(Riga);
    righe.push_back(" massima eccedenza/estrafido Lire     " +
                    ImportoInColonna(-l.MassimaEccedenza + 0.0));
    if (l.MassimoScoperto != 0) {
        righe.push_back(Riga);
        righe.push_back(" massimo scoperto            Lire     " +
                        ImportoInColonna(-(l.MassimaEccedenza + l.MassimoScoperto)));
    }
    return righe;
}
