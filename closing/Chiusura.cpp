#include "closing/Chiusura.h"

#include "cheques/ElenchiAssegni.h"
#include "closing/CopieBak.h"
#include "ledger/Registro.h"
#include "refdata/Causali.h"
#include "refdata/ErroreDisco.h"
#include "shell/Applicazione.h"
#include "store/Date.h"
#include "store/FileRecord.h"
#include "store/Formato.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

namespace {
const std::string Riga = " " + std::string(95, '-');
constexpr int RighePagina = 58;

// The list of the eliminated movements as it is being printed.
struct ListaEliminati {
    std::string dataChiusura;
    int pagina = 1;
    int righe = 0;
    double eliminato = 0;       // ImportoEliminato, in base units
    std::string descrizione;    // of the last causale found
};

void TestataEliminati(const ListaEliminati& l) {
    PortaPiattaforma& p = Piattaforma();
    p.StampanteFont("Arial");
    p.StampanteCorpo(18);
    p.StampaRiga("");
    p.StampaRiga("                                  Elenco Movimenti Eliminati");
    p.StampaRiga("");
    p.StampanteCorpo(12);
    p.StampaRiga(App().MDIForm1.DescConto.Text() + "  " + "                       Stampato il " +
                 Oggi("DD-MM-YYYY"));
    p.StampaRiga("");
    p.StampanteFont("Courier New");
    p.StampanteCorpo(9.75);
    p.StampanteGrassetto(true);
    p.StampaRiga("  al " + l.dataChiusura + Space(15) + "Getione conto corrente");
    p.StampanteGrassetto(false);
    p.StampaRiga(Riga);
    p.StampaRiga("     Data      Valuta      Mov. Dare  Mov. Avere     Saldo   Descr. Movimento");
    p.StampaRiga(Riga);
    p.StampaRiga("");
}

std::string Importo(double base) {
    return AllineaDestra(Format(base * Stato.Cambio, Stato.FormatoImporti), 15);
}

void PiedePagina(const ListaEliminati& l, const std::string& coda) {
    Piattaforma().StampaRiga(Riga);
    Piattaforma().StampaRiga("");
    Piattaforma().StampaRiga("                                          Pagina " +
                             std::to_string(l.pagina) + coda);
}

// One removed movement, already summed into `eliminato`.
void StampaEliminato(ListaEliminati& l, const RecMovimento& m) {
    if (++l.righe == RighePagina) {
        PiedePagina(l, "");
        Piattaforma().StampanteNuovaPagina();
        TestataEliminati(l);
        l.righe = 1;
        ++l.pagina;
    }
    short c = CercaCausale(Trim(m.Causale));
    if (c <= Stato.NumCausali) l.descrizione = Trim(Left(Stato.Causali[c].DescCausale, 20));
    std::string riga = " " + m.DataOper.Testo() + " " + m.DataValuta.Testo();
    riga += m.D_A == "E" ? Space(12) + Importo(m.IMPORTO) : " " + Importo(m.IMPORTO) + Space(11);
    riga += Importo(l.eliminato) + " " + l.descrizione + " " + Trim(m.NrDoc) + " " +
            m.DescMovim.Testo();
    Piattaforma().StampaRiga(riga);
}

void FineStampa(ListaEliminati& l) {
    while (l.righe < RighePagina) {
        ++l.righe;
        Piattaforma().StampaRiga("");
    }
    PiedePagina(l, "                 ....fine stampa");
    Piattaforma().StampanteFine();
}

long Intero(const std::string& data) { return static_cast<long>(NumeroData(data)); }

bool NelCarnet(const RecAssegno& a, const RecCarnet& c) {
    return a.NrAssegno >= c.NrInf && a.NrAssegno <= c.NrFinale;
}

} // namespace

void FogliAiCarnet() {
    ConRecord(NomeFileConto(".FOG"), RecAssegno::Lunghezza, 1, [] {
        for (long c = 1; c <= Stato.NumCarnet; ++c)
            for (long k = 1; k <= Stato.NumAssegni; ++k)
                if (NelCarnet(Stato.Assegni[k], Stato.Carnet[c])) {
                    Stato.Assegni[k].NrCarnet = Stato.Carnet[c].NrCarnet;
                    ScriviRecord(Stato.Assegni[k], k, 1);
                }
        LeggiRecords(Stato.Assegni.righe, 1, Stato.NumAssegni, 1);
    });
}

void FogliAiMovimenti() {
    ConRecord(NomeFileConto(".FOG"), RecAssegno::Lunghezza, 1, [] {
        for (long m = 1; m <= Stato.NumMovimenti; ++m)
            for (long k = 1; k <= Stato.NumAssegni; ++k)
                if (Val(Stato.Movimenti[m].NrDoc) == Stato.Assegni[k].NrAssegno) {
                    Stato.Assegni[k].NrMovimento = Stato.Movimenti[m].NrOper;
                    ScriviRecord(Stato.Assegni[k], k, 1);
                }
        LeggiRecords(Stato.Assegni.righe, 1, Stato.NumAssegni, 1);
    });
}

void RicostruisciConto() {
    EstremiOperazione();
    ElencaPerValuta();
    RicalcolaTotali();
    ScriviOrd();
    ElencaCarnet();
    ElencaSituazione();
    ElencaPerOperazione();
}

void ChiudiAssegni(long d) {
    for (long i = 1; i <= Stato.NumCarnet; ++i) {
        RecCarnet& c = Stato.Carnet[i];
        if (c.FogliFuori != 0 || Intero(c.DataCarnet) > d) continue;
        int conta = 0;
        // The value after the last sheet decides.
        for (long k = 1; k <= Stato.NumAssegni; ++k) {
            const RecAssegno& a = Stato.Assegni[k];
            if (a.NrCarnet == c.NrCarnet && Intero(a.DataAssegno) <= d) ++conta;
            c.Chiuso = conta == 10 ? "S" : "N";
        }
    }
    for (long i = 1; i <= Stato.NumCarnet; ++i) {
        const RecCarnet& c = Stato.Carnet[i];
        if (c.Chiuso != "S") continue;
        Stato.Movimenti[c.MovCosto].Annullato = "S";
        for (long k = 1; k <= Stato.NumAssegni; ++k)
            if (Stato.Assegni[k].NrCarnet == c.NrCarnet)
                Stato.Movimenti[Stato.Assegni[k].NrMovimento].Annullato = "S";
    }
    short n = 0;
    ConRecord(NomeFileConto(".FOG"), RecAssegno::Lunghezza, 1, [&n] {
        for (long i = 1; i <= Stato.NumCarnet; ++i) {
            if (Stato.Carnet[i].Chiuso != "N") continue;
            for (long k = 1; k <= Stato.NumAssegni; ++k) {
                RecAssegno& a = Stato.Assegni[k];
                if (!NelCarnet(a, Stato.Carnet[i])) continue;
                // Every matching movement writes the sheet once more.
                for (long m = 1; m <= Stato.NumMovimenti; ++m)
                    if (Val(Stato.Movimenti[m].NrDoc) == a.NrAssegno) {
                        a.NrMovimento = Stato.Movimenti[m].NrOper;
                        ScriviRecord(a, ++n, 1);
                    }
                if (a.NrMovimento == 0) ScriviRecord(a, ++n, 1);
            }
        }
        LeggiRecords(Stato.Assegni.righe, 1, Stato.NumAssegni, 1);
    });
    Stato.NumAssegni = n;
    ScriviContatore(NomeFileConto(".NRF"), n);
}

void ChiudiCarnet() {
    short n = 0;
    ConRecord(NomeFileConto(".CAR"), RecCarnet::Lunghezza, 1, [&n] {
        for (long i = 1; i <= Stato.NumCarnet; ++i) {
            RecCarnet& c = Stato.Carnet[i];
            if (c.Chiuso != "N") continue;
            for (long m = 1; m <= Stato.NumMovimenti; ++m)
                if (Val(Stato.Movimenti[m].NrDoc) == c.NrCarnet)
                    c.MovCosto = Stato.Movimenti[m].NrOper;
            ScriviRecord(c, ++n, 1);
        }
        LeggiRecords(Stato.Carnet.righe, 1, n, 1);
    });
    Stato.NumCarnet = n;
    ScriviContatore(NomeFileConto(".NRC"), n);
}

void ConPercorsoGuasto(const std::function<void()>& lavoro) {
    try {
        lavoro();
    } catch (const ErroreEsecuzione& e) {
        ChiudiTutti();
        const char* testo = nullptr;
        switch (ErroreDisco(e.numero)) {
        case 0: return;
        case 1: testo = "Errore interno"; break;
        case 2: testo = "Errore irrecuperabile"; break;
        default: testo = "Erore non riconosciuto"; break;
        }
        Piattaforma().MsgBox(testo, "", Icona::Nessuna, Pulsanti::OK, 0);
        Piattaforma().Clessidra(false);
    }
}

void ChiusuraPeriodica(const std::string& dataChiusura) {
    if (Piattaforma().MsgBox("L'azione appena intrapresa eliminerà tutti i\n"
                             "movimenti registrati prima della data che avete\n"
                             "indicato, essi non potranno essere più recupe-\n"
                             "rati, pertanto, verrà eseguita una stampa per\n"
                             "l'archiviazione.\n\nse vuoi continuare accendi la stampante.",
                             "AVVERTIMENTO!", Icona::Esclamazione, Pulsanti::OKAnnulla,
                             1) != Risposta::OK)
        return;
    ConPercorsoGuasto([&dataChiusura] {
        Piattaforma().Clessidra(true);
        CopieBak();
        ListaEliminati lista;
        lista.dataChiusura = dataChiusura;
        TestataEliminati(lista);
        long d = Intero(dataChiusura);
        ChiudiAssegni(d);
        ChiudiCarnet();
        FogliAiCarnet();
        for (long m = 1; m <= Stato.NumMovimenti; ++m) {
            RecMovimento& mov = Stato.Movimenti[m];
            std::string causale = Trim(mov.Causale);
            if (mov.Sospeso == "N" && causale != "AS" && causale != "CA" &&
                Intero(mov.DataOper) <= d)
                mov.Annullato = "S";
        }
        lista.pagina = 1;
        short w = 0;
        ConRecord(NomeFileConto(".MOV"), RecMovimento::Lunghezza, 1, [&] {
            for (long m = 1; m <= Stato.NumMovimenti; ++m) {
                RecMovimento& mov = Stato.Movimenti[m];
                if (mov.Annullato != "S") {
                    mov.NrOper = ++w;
                    ScriviRecord(mov, w, 1);
                    continue;
                }
                lista.eliminato += mov.D_A == "E" ? mov.IMPORTO : -mov.IMPORTO;
                StampaEliminato(lista, mov);
            }
            // As many records as there are sheets: the rest of the table stays as it was until
            // the rebuild reads the file.
            LeggiRecords(Stato.Movimenti.righe, 1, Stato.NumAssegni, 1);
        });
        FineStampa(lista);
        Stato.NumMovimenti = w;
        ScriviContatore(NomeFileConto(".MOR"), w);
        FogliAiMovimenti();

        RecChiusura chi;
        chi.DataRiporto = Stato.Riporto[1].DataRiporto;
        chi.ImportoRiporto = Stato.Riporto[1].ImportoRiporto;
        chi.CodConto = Trim(Stato.CodContoAperto);
        ConRecord(NomeFileConto(".chi"), RecChiusura::Lunghezza, 1,
                  [&chi] { ScriviRecord(chi, 1, 1); });
        Stato.Riporto[1].DataRiporto = dataChiusura;
        Stato.Riporto[1].ImportoRiporto += lista.eliminato;
        ConRecord(NomeFileConto(".RIP"), RecRiporto::Lunghezza, 1,
                  [] { ScriviRecord(Stato.Riporto[1], 1, 1); });
        RicostruisciConto();
        Piattaforma().Clessidra(false);
    });
}
