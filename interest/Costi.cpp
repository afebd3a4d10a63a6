#include "interest/Competenze.h"

#include "store/Formato.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include <cmath>
#include <numeric>

namespace {
const std::string Tratto = "                                               ___________________";
const std::string Regola(66, '_');

// "1" quarterly: at every computation; "0" yearly: only for a period ending on 31/12.
bool Applica(const Fisso<1>& frequenza, const Competenze& c) {
    return frequenza == "1" || (frequenza == "0" && c.FineAnno);
}

// The commission on the single largest overdraft of the period, and on its excess.
void MassimoScoperto(Competenze& c) {
    const auto& o = Stato.OneriPassivi;
    const double a = -c.MassimoScoperto, x = -c.MassimaEccedenza;
    const double baseFido = x > 0 ? Stato.Cambio * Stato.Conti[Stato.IndiceConto].Fido : 0;
    std::string baseEF = AllineaDestra("0", 16), commissioneEF = baseEF;
    std::string baseFF(16, ' '), commissioneFF(16, ' '), commissioneFFGG(16, ' ');
    if (x > 0) {
        baseEF = ImportoInColonna(std::floor(baseFido), 16);
        commissioneEF = ImportoInColonna(baseFido * o.Per2 / 100, 16);
        baseFF = ImportoInColonna(std::floor(x), 16);
        commissioneFF = ImportoInColonna(std::floor(x * o.Per6 / 100), 16);
        commissioneFFGG = ImportoInColonna(std::floor(x * o.Per7 / 100), 16);
        c.VociCosto[1] =
            baseFido * o.Per2 / 100 + std::floor(x * o.Per6 / 100) + std::floor(x * o.Per7 / 100);
    } else if (a > 0) {
        baseEF = ImportoInColonna(std::floor(a), 16);
        commissioneEF = ImportoInColonna(std::floor(a * o.Per2 / 100), 16);
        c.VociCosto[1] = a * o.Per2 / 100;
    }
    const std::string tra = c.Carta ? "    " : "     ";
    c.Righe.insert(c.Righe.end(),
                   {"    COMMISSIONE MASSIMO SCOPERTO", "    ",
                    "          DATA      ALIQUOTA  BASE DI CALCOLO  IMPORTO COMMISSIONE", "    ",
                    " EF   " + c.DataMassimoScoperto + (c.Carta ? "     " : "    ") +
                        TestoAliquota(o.Per2) + "  " + baseEF + tra + commissioneEF,
                    (c.Carta ? " FF                  " : " FF                 ") +
                        TestoAliquota(o.Per6) + "  " + baseFF + tra + commissioneFF,
                    (c.Carta ? " FFGG                " : " FFGG               ") +
                        TestoAliquota(o.Per7) + "  " + baseFF + tra + commissioneFFGG,
                    Tratto, Space(49) + ImportoInColonna(c.VociCosto[1], 16)});
}

// A free percentage charge, `quale` 1 or 2, on the base its applied-to value names.
void CaricoLibero(Competenze& c, int quale) {
    const auto& o = Stato.OneriPassivi;
    const std::string descrizione = Trim(quale == 1 ? o.Descr3 : o.Descr4);
    if (descrizione.empty()) return;
    const double p = quale == 1 ? o.Per4 : o.Per5;
    const double x = -c.MassimaEccedenza, d = c.TotaleNumeriDebitori;
    double base = 0, importo = 0;
    std::string nota;
    switch (static_cast<int>(Val(quale == 1 ? o.ApplicaDescr3 : o.ApplicaDescr4))) {
    case 1:
        base = c.InteressiLordi;
        importo = p * base / 100;
        nota = " applicato sugli Interessi creditori";
        break;
    case 2:
        base = c.InteressiDebitori;
        importo = p * base / 100;
        nota = " applicato sugli interessi debitori";
        break;
    case 3:
        base = x;
        importo = x == 0 ? 0 : p * x / 100;
        nota = " applicato sull'eccedenza fido";
        break;
    case 4:
        base = c.TotaleNumeriCreditori;
        importo = p * base / c.AnnoCreditori * c.FattoreInteresse;
        nota = " applicato sui numeri creditori";
        break;
    case 5:
        // The two charges differ here on the screen, and the first comes out negative: kept as
        // it is. Paper writes both as the second.
        base = quale == 2 || c.Carta ? -d : d - 1;
        importo = quale == 2 || c.Carta ? (p * d / c.AnnoDebitori) * -1 * c.FattoreInteresse
                                        : p * d / c.AnnoDebitori - 1 * c.FattoreInteresse;
        nota = " applicato sui numeri debitori";
        break;
    case 6:
        base = x == 0 ? 0 : x + Stato.Cambio * Stato.Conti[Stato.IndiceConto].Fido;
        importo = x == 0 ? 0 : p * base / 100;
        nota = c.Carta ? " applicato alla massima scopertura" : " applicato al massima scopertura";
        break;
    default:
        break;
    }
    c.VociCosto[static_cast<std::size_t>(quale) + 1] = importo;
    c.Righe.insert(c.Righe.end(),
                   {"    " + descrizione + nota, "    ",
                    "                    ALIQUOTA  BASE DI CALCOLO              IMPORTO", "    ",
                    Space(21) + TestoAliquota(static_cast<float>(p)) + "     " +
                        ImportoInColonna(base, 13) + "    " + ImportoInColonna(importo, 16),
                    "             "});
}

// The cost of the movements subject to it; below `NrScritt` of them, none are counted.
void CostoMovimenti(Competenze& c) {
    const auto& s = Stato.SpeseVarie;
    for (const RecMovimento& m : c.Scala.Selezione)
        for (short k = 1; k <= Stato.NumCausali; ++k)
            if (Trim(m.Causale) == Trim(Stato.Causali[k].CodCausale) &&
                Stato.Causali[k].SoggettoCosto == "1")
                ++c.ContaScritture;
    if (c.ContaScritture < Stato.OpzioniCalcolo.NrScritt) c.ContaScritture = 0;
    const double unitario = s.IMPORTO3 * Stato.Cambio;
    c.VociCosto[4] = unitario * c.ContaScritture;
    c.Righe.insert(c.Righe.end(),
                   {"                              QUANTITA'      A LIRE        IMPORTO", "    ",
                    "        OPERAZIONI  " + AllineaDestra(Format(c.ContaScritture, "###0"), 16) +
                        "       " + ImportoInColonna(unitario, 7) + "        " +
                        ImportoInColonna(c.VociCosto[4], 7)});
}

void Spese(Competenze& c) {
    const auto& s = Stato.SpeseVarie;
    c.Righe.insert(c.Righe.end(), {Regola, "    SPESE"});
    if (Applica(s.Frequenza3, c)) CostoMovimenti(c);
    auto fissa = [&c](const std::string& voce, double importo, std::size_t slot) {
        c.VociCosto[slot] = importo * Stato.Cambio;
        c.Righe.push_back("        " + voce + ImportoInColonna(c.VociCosto[slot], 16));
    };
    if (Applica(s.Frequenza1, c)) fissa("SPESE FISSE DI CHIUSURA                  ", s.IMPORTO1, 5);
    if (Applica(s.Frequenza2, c)) fissa("SPESE TENUTA CONTO                       ", s.IMPORTO2, 6);
    if (Applica(s.Frequenza4, c)) fissa("COSTO TENUTA FIDO                        ", s.IMPORTO4, 7);
    // The flat refund of an account with few movements.
    if (c.ContaScritture < Stato.OpzioniCalcolo.NrScritt && Applica(s.Frequenza5, c))
        fissa("RIMBORSO FORFETTARIO                     ", s.IMPORTO5, 8);
    if (!Trim(s.Descr1).empty() && Applica(s.Frequenza6, c))
        fissa(s.Descr1.Testo() + Space(16), s.IMPORTO6, 9);
    if (!Trim(s.Descr2).empty() && Applica(s.Frequenza7, c))
        fissa(s.Descr2.Testo() + Space(16), s.IMPORTO7, 10);
}

double Somma(const Competenze& c, std::size_t da, std::size_t a) {
    return std::accumulate(c.VociCosto.begin() + static_cast<long>(da),
                           c.VociCosto.begin() + static_cast<long>(a) + 1, 0.0);
}

void Chiusura(std::vector<std::string>& r) {
    r.push_back(std::string(66, '='));
    r.insert(r.end(), 5, " ");
}

void Riepilogo(Competenze& c) {
    const auto& o = Stato.OneriPassivi;
    const double spese = Somma(c, 4, 10), netti = c.InteressiNetti;
    auto& r = c.Righe;
    r.insert(r.end(),
             {Tratto,
              "                               Totale Spese      " + ImportoInColonna(spese, 16),
              "         ", Regola,
              "RIEPILOGO COMPETENZE                      A DEBITO      A CREDITO", "         ",
              "  INTERESSI NETTI A CREDITO       " + Space(15) + ImportoInColonna(netti, 16),
              "  INTERESSI NETTI A DEBITO        " + ImportoInColonna(c.InteressiDebitori, 16),
              "  COMMISSIONE DI MASSIMO SCOPERTO " + ImportoInColonna(c.VociCosto[1], 16)});
    if (c.VociCosto[2] != 0)
        r.push_back("  " + o.Descr3.Testo() + "       " + ImportoInColonna(c.VociCosto[2], 16));
    if (c.VociCosto[3] != 0)
        r.push_back("  " + o.Descr4.Testo() + "       " + ImportoInColonna(c.VociCosto[3], 16));
    r.push_back("  SPESE                           " + ImportoInColonna(spese, 16));
    r.push_back("                                    ______________  ______________");
    double t = Somma(c, 1, 10) + c.InteressiDebitori;
    r.push_back("                            TOTALI" + ImportoInColonna(t, 15) +
                ImportoInColonna(netti, 16));
    std::string voce = t <= netti ? "COMPETENZE A CREDITO" : "SBILANCIO COMPETENZE";
    t = t <= netti ? netti - t : t - netti;
    // The column is chosen on the difference, not on the side: kept as it is.
    r.push_back(voce + Space(t <= netti ? 30 : 15) + ImportoInColonna(t, 15));

    const double x = -c.MassimaEccedenza;
    if (x == 0) return Chiusura(r);
    // Paper cuts none of these amounts to an integer.
    auto taglia = [&c](double v) { return c.Carta ? v : std::floor(v); };
    const double commissione = taglia(o.Per1 * x / 100);
    r.insert(r.end(), {c.Carta ? Space(27) : " ", Regola, " - COMMISSIONE ECCEDENZA O EXTRAFIDO ",
                       " ", "   ALIQUOTA    BASE DI CALCOLO  IMPORTO COMMISSIONE", " ",
                       (c.Carta ? Space(5) : Space(4)) + TestoAliquota(o.Per1) + "    " +
                           ImportoInColonna(taglia(x), 16) + (c.Carta ? "   " : "    ") +
                           ImportoInColonna(commissione, 16)});
    // Compared with the credit interest whichever side the difference stands on.
    voce = t < netti ? "COMPETENZE FINALI A CREDITO  " : "SBILANCIO COMPETENZE A DEBITO";
    t = t < netti ? taglia(netti - t - commissione) : taglia(t + commissione);
    r.insert(r.end(), {c.Carta ? Space(8) : " ", "     " + voce + ImportoInColonna(t, 16)});
    Chiusura(r);
    if (!c.Carta) Chiusura(r);
}
} // namespace

void CalcolaCosti(Competenze& c) {
    MassimoScoperto(c);
    CaricoLibero(c, 1);
    CaricoLibero(c, 2);
    Spese(c);
    Riepilogo(c);
}
