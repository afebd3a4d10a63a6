#include "interest/Competenze.h"

#include "interest/Staffa.h"
#include "store/Date.h"
#include "store/Formato.h"
#include "store/Guasto.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include <algorithm>
#include <utility>

namespace {
// A date test that can't be made, a blank date in it, counts as met.
bool Dopo(const std::string& a, const std::string& b) {
    try {
        return GiornoCalendario(a) > GiornoCalendario(b);
    } catch (const ErroreEsecuzione&) {
        return true;
    }
}
bool NonPrima(const std::string& a, const std::string& b) {
    try {
        return GiornoCalendario(a) >= GiornoCalendario(b);
    } catch (const ErroreEsecuzione&) {
        return true;
    }
}

bool Vuota(const std::string& data) {
    return DataVuota(data) || Trim(data).empty();
}

// One bracket of a rate: rows dated from `inizio` up to `fine` (excluded; none when blank).
struct Scaglione {
    std::string inizio, fine;
    int numero; // 1 to 5
};

// The brackets that run for the date slots of a rate table, in order. The first starts on the
// first row's date; one that ended on or before `dal` is passed over.
std::vector<Scaglione> Scaglioni(const std::array<std::string, 5>& date, const Competenze& c) {
    std::vector<Scaglione> s;
    for (int k = 0; k < 5; ++k) {
        const std::string inizio = k == 0 ? c.GiornoPrima : Trim(date[k]);
        if (k > 0 && Vuota(date[k])) continue;
        if (k == 4) {
            s.push_back({inizio, "", 5});
            continue;
        }
        const std::string fine = Trim(date[k + 1]);
        if (Vuota(fine) || Dopo(fine, c.dal)) s.push_back({inizio, Vuota(fine) ? "" : fine, k + 1});
    }
    return s;
}

// The sum of a table of numeri over the rows of a bracket; the first bracket without an end
// takes every row.
double Somma(const std::array<float, RigheScala + 1>& numeri, const Scaglione& b,
             const Competenze& c) {
    double somma = 0;
    for (int r = 1; r <= c.Scala.n; ++r) {
        const std::string& data = c.Scala.DateScala[r];
        bool dentro = (b.numero == 1 && b.fine.empty()) ||
                      (NonPrima(data, b.inizio) && (b.fine.empty() || Dopo(b.fine, data)));
        if (dentro) somma += numeri[static_cast<std::size_t>(r)];
    }
    return somma;
}

// The ladder's rows into numeri: the limited balance below 1 goes to the debit table, the
// excess beyond the line to its own.
void Numeri(Competenze& c) {
    const double limite = -(Stato.Cambio * Stato.Conti[Stato.IndiceConto].Fido);
    const ScalaValute& s = c.Scala;
    for (int r = 1; r <= s.n; ++r) {
        double saldo = Stato.Cambio * s.SaldiScala[r];
        if (saldo < c.MassimoScoperto) {
            c.MassimoScoperto = saldo;
            c.DataMassimoScoperto = r == 1 ? DataVuotaMaschera : s.DateScala[r];
        }
        bool oltre = saldo < limite;
        if (oltre) {
            c.UltimaEccedenza = saldo - limite;
            saldo = limite;
        }
        long gg = GiorniRiga(s, r, c.al);
        double n = c.DivisoreNumeri == 0 ? 0 : saldo * gg / c.DivisoreNumeri;
        if (saldo < 1.0) {
            c.TotaleNumeriDebitori += n;
            c.NumeriDebitoriData[r] = static_cast<float>(n);
        } else {
            c.TotaleNumeriCreditori += n;
            c.NumeriCreditoriData[r] = static_cast<float>(n);
        }
        if (oltre) {
            double ne = c.DivisoreNumeri == 0 ? 0 : c.UltimaEccedenza * gg / c.DivisoreNumeri;
            c.TotaleNumeriFuoriFido += ne;
            c.TotaleNumeriDebitori += ne;
            c.NumeriFuoriFidoData[r] += static_cast<float>(ne);
            c.MassimaEccedenza = std::min(c.MassimaEccedenza, c.UltimaEccedenza);
        }
    }
}

void Creditori(Competenze& c) {
    const auto& t = Stato.TassiCreditori;
    const float tassi[] = {t.PerC1, t.PerC2, t.PerC3, t.PerC4, t.PerC5};
    auto& r = c.Righe;
    r.insert(r.end(),
             {"ELEMENTI PER IL CONTEGGIO DELLE COMPETENZE", "    ", "    INTERESSI CREDITORI",
              "    ", "       DECORRENZA    TASSO   NUMERI CREDITORI  INTERESSI CREDITORI",
              "    "});
    for (const Scaglione& b : Scaglioni({t.DataC1, t.DataC2, t.DataC3, t.DataC4, t.DataC5}, c)) {
        float tasso = tassi[b.numero - 1];
        double somma = Somma(c.NumeriCreditoriData, b, c);
        double interesse = (tasso * somma) / c.AnnoCreditori * c.FattoreInteresse;
        c.InteressiLordi += interesse;
        r.push_back((c.Carta ? Space(6) : Space(4)) + b.inizio + (c.Carta ? "     " : "      ") +
                    TestoAliquota(tasso) + "  " + ImportoInColonna(somma, 16) +
                    (c.Carta ? "    " : "     ") + ImportoInColonna(interesse, 16));
    }
    r.push_back("                                               ___________________");
    r.push_back((c.Carta ? Space(33) + "Totale Lordo    " : Space(31) + "Totale Lordo      ") +
                ImportoInColonna(c.InteressiLordi, 16));
    r.push_back(" ");

    const float per3 = Stato.OneriPassivi.Per3;
    c.Ritenuta = per3 * c.InteressiLordi / 100;
    if (c.Ritenuta < 1) c.Ritenuta = 0;
    c.InteressiNetti = c.InteressiLordi - c.Ritenuta;
    double imponibile = c.InteressiLordi < 100 ? 0 : c.InteressiLordi;
    r.push_back("   RIT. FISCALE " + Format(per3, "##,00") + "% Imponibile:" +
                ImportoInColonna(imponibile, 13) + "  Totale" + ImportoInColonna(c.Ritenuta, 13));
    r.push_back("                                               ___________________");
    r.push_back("                               Totale Netto       " +
                ImportoInColonna(c.InteressiNetti, 15));
    r.push_back(std::string(66, '_'));
}

void Debitori(Competenze& c) {
    const auto& t = Stato.TassiDebitori;
    const float entro[] = {t.PerD1, t.PerD2, t.PerD3, t.PerD4, t.PerD5};
    const float fuori[] = {t.PerD6, t.PerD7, t.PerD8, t.PerD9, t.PerD10};
    auto& r = c.Righe;
    r.insert(r.end(),
             {"    INTERESSI DEBITORI", "    ",
              "       DECORRENZA    TASSO    NUMERI DEBITORI   INTERESSI DEBITORI", "    "});
    for (const Scaglione& b : Scaglioni({t.DATAD1, t.DATAD2, t.DATAD3, t.DATAD4, t.DATAD5}, c)) {
        double sommaE = -Somma(c.NumeriDebitoriData, b, c);
        double sommaF = -Somma(c.NumeriFuoriFidoData, b, c);
        float tassoE = entro[b.numero - 1], tassoF = fuori[b.numero - 1];
        double interesseE = (tassoE * sommaE) / c.AnnoDebitori * c.FattoreInteresse;
        double interesseF = (tassoF * sommaF) / c.AnnoDebitori * c.FattoreInteresse;
        c.InteressiDebitori += interesseE + interesseF;
        const std::string tra = c.Carta ? "    " : "     ";
        r.push_back((c.Carta ? " EF   " : " EF  ") + b.inizio + "     " + TestoAliquota(tassoE) +
                    "  " + ImportoInColonna(sommaE, 16) + tra + ImportoInColonna(interesseE, 16));
        r.push_back((c.Carta ? " FF                  " : " FF                 ") +
                    TestoAliquota(tassoF) + "  " + ImportoInColonna(sommaF, 16) + tra +
                    ImportoInColonna(interesseF, 16));
    }
    r.insert(r.end(), {"                                               ___________________",
                       "                                      Totale        " +
                           ImportoInColonna(c.InteressiDebitori, 13),
                       " ", "EF = Entro Fido - FF = Fuori Fido", std::string(66, '_')});
}

// Today's calendar year bounds the date search of the ladder.
int Ricerca() {
    return Bisestile(Piattaforma().Oggi().anno) ? 366 : 365;
}

void Avviso(const char* tabella) {
    Piattaforma().MsgBox(std::string("La prima data decorrenza dei tassi interessi ") + tabella +
                             " è successiva alla data inizio movimenti; correggi i dati e ripeti "
                             "la procedura.",
                         "Attenzione", Icona::Nessuna, Pulsanti::OK, 0);
}
} // namespace

std::string TestoAliquota(float tasso) {
    return Format(tasso, "00.000");
}

Competenze CalcolaInteressi(const std::string& dal, const std::string& al, bool soloNonSospesi,
                            bool carta) {
    Competenze c;
    c.Carta = carta;
    c.dal = dal;
    c.al = al;
    c.DivisoreNumeri = DivisoreNumeri();
    c.FattoreInteresse = c.DivisoreNumeri / 100;
    c.AnnoCreditori = Stato.OpzioniCalcolo.GiorniCreditori == "1" ? 360 : 365;
    c.AnnoDebitori = Stato.OpzioniCalcolo.GiorniDebitori == "1" ? 360 : 365;
    c.FineAnno = Left(al, 6) == "31/12/";
    c.Scala = CostruisciScala(dal, al, soloNonSospesi, GiornoPrima::SecoloDiDal, Ricerca(), carta);
    c.GiornoPrima = TestoGiornoPrima(dal, carta ? GiornoPrima::Vero : GiornoPrima::SecoloDiDal);
    Numeri(c);
    Creditori(c);
    Debitori(c);
    return c;
}

void CalcolaCompetenze(Staffa& f) {
    if (Dopo(Stato.TassiCreditori.DataC1, f.dal.Text())) return Avviso("creditori");
    if (Dopo(Stato.TassiDebitori.DATAD1, f.dal.Text())) return Avviso("debitori");
    if (!ControllaPeriodo(f)) return;
    f.List3.Clear();
    f.List1.Clear();
    IgnoraErrori({[&f] {
        Competenze c = CalcolaInteressi(f.dal.Text(), f.al.Text(), f.NSospesi.Value());
        CalcolaCosti(c);
        f.List3.AggiungiRighe(std::move(c.Righe));
    }});
    f.List1.Visible = false;
    f.List3.Visible = true;
    f.mostra.Visible = true;
    f.SSPanel1.SetText("COSTI ED INTERESSI");
}
