#include "reports/Stampe.h"

#include "ledger/ElencoMovimenti.h"
#include "reports/Pagina.h"
#include "shell/Applicazione.h"
#include "store/Date.h"
#include "store/FileRecord.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include <vector>

namespace {
std::string DalAl() {
    const Form21& f = App().Form21;
    return "    dal " + f.dal.Text() + " al " + f.al.Text();
}

std::string DalAlValuta() {
    return DalAl() + Space(21) + "Valuta: " + App().MDIForm1.Combo1.Text();
}

// A date of a record against Form21's dates, both ends included.
struct Periodo {
    long dal = GiornoCalendario(App().Form21.dal.Text());
    long al = GiornoCalendario(App().Form21.al.Text());
    bool Contiene(const std::string& data) const {
        const long giorno = GiornoCalendario(data);
        return giorno >= dal && giorno <= al;
    }
};

// Records 1 to `quanti` of an account's file, read whole.
template <class R> std::vector<R> LeggiTutti(const std::string& estensione, short quanti) {
    std::vector<R> righe(static_cast<std::size_t>(quanti < 0 ? 1 : quanti + 1));
    ConRecord(NomeFileConto(estensione), R::Lunghezza, 1,
              [&] { LeggiRecords(righe, 1, quanti, 1); });
    return righe;
}

// The book of the first cheque numbered as the movement's document; 0 when there is none.
short CarnetDelDocumento(const RecMovimento& m) {
    const double numero = Val(m.NrDoc);
    for (long j = 1; j <= Stato.NumAssegni; ++j)
        if (Stato.Assegni[j].NrAssegno == numero) return Stato.Assegni[j].NrCarnet;
    return 0;
}
} // namespace

void StampaAssegni() {
    ConClessidra([] {
        Stampa s{TestataElenco(Space(37) + "Elenco Assegni ", DalAlValuta(),
                               "     Data    Valuta         Importo      Nr. Ass.  Traente"
                               "                  Nr. Carnet    Sosp."),
                 PaginaElenco(57, false, 52)};
        IniziaStampa(s);
        LeggiOrdinati();
        const Periodo periodo;
        for (long i = 1; i <= Stato.NumMovimenti; ++i) {
            const RecMovimento& m = Stato.Movimenti[i];
            if (!periodo.Contiene(m.DataOper) || Trim(m.Causale) != "AS") continue;
            RigaCorpo(s, m.DataOper.Testo() + " " + m.DataValuta.Testo() +
                             ImportoColonna(m.IMPORTO, 15) + AllineaDestra(Trim(m.NrDoc), 13) +
                             "  " + Left(m.DescMovim, 22) + " " + Space(7) +
                             std::to_string(CarnetDelDocumento(m)) + Space(8) +
                             (m.Sospeso == "N" ? "N" : "S"));
        }
        FineStampa(s);
    });
}

void StampaAnnullati() {
    ConClessidra([] {
        Stampa s{TestataElenco(Space(32) + "Elenco assegni annullati", Space(65),
                               "    Data                 Importo      Nr. Ass.            "
                               "                Nr. Carnet    Scaric."),
                 PaginaElenco(57, false, 52)};
        IniziaStampa(s);
        LeggiOrdinati();
        for (long j = 1; j <= Stato.NumAssegni; ++j) {
            const RecAssegno& a = Stato.Assegni[j];
            if (a.AssegnoAnnullato != "S") continue;
            RigaCorpo(s, a.DataAssegno.Testo() + Space(9) + "            0" +
                             NumeroStampa(a.NrAssegno, 13) + "  " + Left(a.NoteAss, 22) + " " +
                             Space(7) + std::to_string(a.NrCarnet) + Space(11) +
                             a.Allineato.Testo());
        }
        FineStampa(s);
    });
}

void StampaCarnet() {
    ConClessidra([] {
        Stampa s{TestataElenco(Space(41) + "Elenco Carnet ", DalAl(),
                               "    Data ritiro       Nr. Iniziale       Nr. Fogli    Nr. Finale"
                               "        Nr.Ass.Fuori      Sosp."),
                 PaginaElenco(57, false, 52)};
        IniziaStampa(s);
        const std::vector<RecCarnet> carnet = LeggiTutti<RecCarnet>(".CAR", Stato.NumCarnet);
        const Periodo periodo;
        for (long j = 1; j <= Stato.NumCarnet; ++j) {
            const RecCarnet& c = carnet[static_cast<std::size_t>(j)];
            if (!periodo.Contiene(c.DataCarnet)) continue;
            const std::string fuori = std::to_string(c.FogliFuori);
            // Every book prints ten sheets, whatever it holds.
            RigaCorpo(s, Space(4) + c.DataCarnet.Testo() + Space(6) + NumeroStampa(c.NrInf, 13) +
                             "           10    " + NumeroStampa(c.NrFinale, 13) + "  " +
                             (fuori.size() == 1 ? " " + fuori : fuori) + Space(10) + Space(13) +
                             c.Chiuso.Testo());
        }
        FineStampa(s);
    });
}

void StampaSituazione() {
    ConClessidra([] {
        Stampa s{TestataElenco(Space(37) + "Situazione assegni ", DalAlValuta(),
                               "   Data         Importo        Nr. Ass. Traente            "
                               "        Nr. Carnet    "),
                 PaginaElenco(57, false, 56)};
        IniziaStampa(s);
        const std::vector<RecAssegno> fogli = LeggiTutti<RecAssegno>(".FOG", Stato.NumAssegni);
        const Periodo periodo;
        for (long j = 1; j <= Stato.NumAssegni; ++j) {
            const RecAssegno& a = fogli[static_cast<std::size_t>(j)];
            if (!periodo.Contiene(a.DataAssegno) || a.Allineato != "N") continue;
            std::string traente = Left(a.traente, 25);
            if (Trim(traente).empty()) traente = "Assegno non Emesso       ";
            RigaCorpo(s, a.DataAssegno.Testo() + ImportoColonna(a.IMPORTO, 15) +
                             NumeroStampa(a.NrAssegno, 13) + "  " + traente + " " + Space(7) +
                             NumeroStampa(a.NrCarnet, 3) + Space(8));
        }
        FineStampa(s);
    });
}
