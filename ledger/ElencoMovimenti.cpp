#include "ledger/ElencoMovimenti.h"

#include "shell/Applicazione.h"
#include "store/Date.h"
#include "store/FileRecord.h"
#include "store/Formato.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include <vector>

namespace {
// Index 0: the balance carried by the last close, always there, blank date and all when the
// account was never closed.
std::string RigaRiporto(double riporto) {
    return Stato.Riporto[1].DataRiporto.Testo() + Space(12) + ImportoRiportato(riporto) +
           ImportoColonna(riporto, 15) + "  Riporto Chiusura precedente";
}

std::string RigaMovimento(const RecMovimento& m, double saldo) {
    std::string riga = m.DataOper.Testo() + "  " + m.DataValuta.Testo();
    riga += ColonneImporto(m) + ImportoColonna(saldo, 15);
    riga += "  " + DescrizioneCausale(m.Causale) + "  ";
    return riga + Trim(m.NrDoc) + " " + m.DescMovim.Testo();
}

// The leading blanks mark the line as no movement of its own.
void RigheAssegno(const RecMovimento& m, std::vector<std::string>& righe) {
    for (const std::string& beneficiario : BeneficiariAssegno(m))
        righe.push_back(Space(66) + beneficiario);
}
} // namespace

std::string ImportoColonna(double euro, int larghezza) {
    return AllineaDestra(Format(euro * Stato.Cambio, Stato.FormatoImporti), larghezza);
}

std::string DescrizioneCausale(const Fisso<5>& codice) {
    for (long j = 1; j <= Stato.NumCausali; ++j) {
        const RecCausale& causale = Stato.Causali[j];
        if (causale.CodCausale == codice) return Trim(Left(causale.DescCausale, 20));
    }
    return "";
}

std::string ColonneImporto(const RecMovimento& m) {
    if (m.D_A == "E") return Space(12) + ImportoColonna(m.IMPORTO, 15);
    return " " + ImportoColonna(m.IMPORTO, 15) + Space(11);
}

std::string ImportoRiportato(double riporto) {
    if (riporto <= 0) return " " + ImportoColonna(riporto, 15) + Space(11);
    return Space(10) + ImportoColonna(riporto, 15);
}

std::vector<std::string> BeneficiariAssegno(const RecMovimento& m) {
    std::vector<std::string> beneficiari;
    const double numero = Val(m.NrDoc);
    for (long j = 1; j <= Stato.NumAssegni; ++j) {
        const RecAssegno& assegno = Stato.Assegni[j];
        if (assegno.NrAssegno == numero) beneficiari.push_back(Trim(assegno.NoteAss));
    }
    return beneficiari;
}

void LeggiOrdinati() {
    const short quanti = Stato.NumMovimenti;
    Stato.Movimenti.Ridimensiona(quanti);
    ConRecord(NomeFileConto(".Ord"), RecMovimento::Lunghezza, 1,
              [&] { LeggiRecords(Stato.Movimenti.righe, 1, quanti, 1); });
}

std::string CodiceDaDescrizione(const std::string& testo) {
    const std::string cercata = RTrim(testo);
    for (long j = 1; j <= Stato.NumCausali; ++j) {
        const RecCausale& causale = Stato.Causali[j];
        if (Trim(causale.DescCausale) == cercata) return Trim(causale.CodCausale);
    }
    return "";
}

bool InElenco(const RecMovimento& m, long dal, long al, const std::string& codice, bool tutte) {
    const long giorno = GiornoCalendario(m.DataOper);
    return giorno >= dal && giorno <= al && (tutte || Trim(m.Causale) == codice);
}

double ImportoConSegno(const RecMovimento& m) { return m.D_A == "E" ? m.IMPORTO : -m.IMPORTO; }

void CostruisciElenco() {
    Form11& f = App().Form11;
    Piattaforma().Clessidra(true);
    const std::string dal = f.DataOper.Text();
    const std::string al = f.DataFinale.Text();
    f.List1.Clear();

    const double riporto = Stato.Riporto[1].ImportoRiporto;
    std::vector<std::string> righe{RigaRiporto(riporto)};
    // Lines reach the list at the end, or as far as they got when a date can't be read.
    auto consegna = [&] {
        f.List1.AggiungiRighe(std::move(righe));
        righe.clear();
    };
    double saldo = riporto;
    double nonElencati = 0;
    try {
        LeggiOrdinati();
        const bool tutte = f.Combo1.Text() == " TUTTE";
        const std::string codice = CodiceDaDescrizione(f.Combo1.Text());
        long inizio = 0, fine = 0;
        for (long i = 1; i <= Stato.NumMovimenti; ++i) {
            const RecMovimento& m = Stato.Movimenti[i];
            // The selection is read as dates only when there is a movement to test.
            if (i == 1) {
                inizio = GiornoCalendario(dal);
                fine = GiornoCalendario(al);
            }
            if (!InElenco(m, inizio, fine, codice, tutte)) {
                nonElencati += ImportoConSegno(m);
                continue;
            }
            saldo += ImportoConSegno(m);
            righe.push_back(RigaMovimento(m, saldo));
            if (Trim(m.Causale) == "AS") RigheAssegno(m, righe);
        }
    } catch (...) {
        consegna();
        Piattaforma().Clessidra(false);
        throw;
    }

    const double totale = nonElencati + saldo;
    const std::string riga(86, '-');
    righe.push_back(riga);
    righe.push_back("Riporto saldo movimenti non elencati " + Space(12) +
                    ImportoColonna(nonElencati, 15) + "  = Euro " +
                    Format(nonElencati, FormatoEuroNonElencati));
    righe.push_back(riga);
    // The carried line and the three lines above are no movements.
    const int movimenti = static_cast<int>(righe.size()) - 4;
    righe.push_back("Saldo Contabile         " + Space(27) + ImportoColonna(totale, 13) +
                    "  = Euro " + Format(totale, FormatoEuroTotale));
    righe.push_back(Space(68) + "nr. movimenti: " + std::to_string(movimenti));
    righe.push_back("  ");
    consegna();
    Piattaforma().Clessidra(false);
}
