#include "closing/Form18.h"

#include "closing/CopieBak.h"
#include "ledger/CaricaConto.h"
#include "ledger/Registro.h"
#include "refdata/Conti.h"
#include "shell/Applicazione.h"
#include "store/FileRecord.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

namespace {
// One statement of the copy on its failure path. Riprova runs the whole copy again and then
// goes past the statement that failed, whose file that run has copied; Ignora skips it. False
// when the copy ends there.
bool Passo(const std::function<void()>& istruzione) {
    try {
        istruzione();
        return true;
    } catch (const ErroreEsecuzione& e) {
        ChiudiTutti();
        const char* testo = nullptr;
        switch (ErroreDisco(e.numero)) {
        case 0:
            CopiaSicurezza();
            ChiudiTutti();
            Piattaforma().Clessidra(false);
            return true;
        case 1: return true;
        case 2: testo = "Errore irrecuperabile"; break;
        default: testo = "Erore non riconosciuto"; break;
        }
        Piattaforma().MsgBox(testo, "", Icona::Nessuna, Pulsanti::OK, 0);
        Piattaforma().Clessidra(false);
        return false;
    }
}

// The nine files of the stem CodContoAperto, from one folder to the other, in their order.
bool CopiaConto(const std::string& da, const std::string& a) {
    std::string stelo = Trim(Stato.CodContoAperto);
    for (const char* estensione : EstensioniCopia)
        if (!Passo([&] { CopiaFile(da + stelo + estensione, a + stelo + estensione); }))
            return false;
    return true;
}

// Each account of the table in turn as CodContoAperto; the open one is put back however the
// walk ends, so that no later write lands in another account's files.
bool CopiaConti(const std::string& da, const std::string& a) {
    Fisso<12> aperto = Stato.CodContoAperto;
    bool avanti = true;
    for (long i = 1; i <= Stato.NumConti && avanti; ++i) {
        Stato.CodContoAperto = Trim(Stato.Conti[i].CodConto);
        avanti = CopiaConto(da, a);
    }
    Stato.CodContoAperto = aperto;
    return avanti;
}

bool Backup(const std::string& f, bool contoAttivo) {
    if (contoAttivo) return CopiaConto(Stato.PercorsoDati, f);
    return Passo([&f] { ScriviContatore(f + "RecConti.dat", Stato.NumConti); }) &&
           Passo([&f] {
               ConRecord(f + "CONTI.DAT", RecConto::Lunghezza, 1, [] {
                   for (long i = 1; i <= Stato.NumConti; ++i) ScriviRecord(Stato.Conti[i], i, 1);
               });
           }) &&
           CopiaConti(Stato.PercorsoDati, f);
}

bool Ripristino(const std::string& f, bool contoAttivo) {
    if (Piattaforma().MsgBox("I dati che si stanno ripristinando sostituiranno \n"
                             "quelli presenti nel disco rigido, eventuali \n"
                             "modifiche effettuate dopo la creazione delle \n"
                             "copie di Backup verranno perse.\n",
                             "AVVERTIMENTO!", Icona::Esclamazione, Pulsanti::OKAnnulla,
                             1) != Risposta::OK) {
        Piattaforma().Clessidra(false);
        return false;
    }
    bool avanti = contoAttivo ? CopiaConto(f, Stato.PercorsoDati)
                              : Passo([&f] {
                                    Stato.NumConti = LeggiContatore(f + "RecConti.dat");
                                }) &&
                                    Passo([&f] {
                                        ConRecord(f + "CONTI.DAT", RecConto::Lunghezza, 1, [] {
                                            LeggiRecords(Stato.Conti.righe, 1, Stato.NumConti,
                                                         1);
                                        });
                                    }) &&
                                    CopiaConti(f, Stato.PercorsoDati);
    if (!avanti) return false;
    Stato.FlagOperazione = 0;
    // The table of the accounts is that of the data directory, whatever the backup held.
    return Passo(LeggiConti) && Passo(CaricaConto) && Passo(EstremiOperazione) &&
           Passo(ElencaPerOperazione);
}
} // namespace

void CopiaSicurezza() {
    Form18& f = App().Form18;
    std::string cartella = ConBarra(f.Scelta.Percorso);
    Piattaforma().Clessidra(true);
    bool contoAttivo = f.ContoAttivo.Value();
    bool fatto = Stato.FlagOperazione == 0 ? Backup(cartella, contoAttivo)
                                           : Ripristino(cartella, contoAttivo);
    if (!fatto) return;
    Piattaforma().Clessidra(false);
    f.S.UnloadMe();
}

Form18::Form18() {
    S.Figlio = false;
    CollegaScelta(Scelta);
    Scelta.Change = [this] { NomeFile.SetText("Percorso: " + ConBarra(Scelta.Percorso)); };
    S.Load = [this] { PreparaScelta(Scelta, Stato.PercorsoDati); };
    S.Activate = [this] {
        if (Stato.FlagOperazione == 1) S.Caption = "Ripristina Dati";
        NomeFile.SetText("Percorso: " + ConBarra(Scelta.Percorso));
    };
    Salva.Click = CopiaSicurezza;
    esci.Click = [this] { S.UnloadMe(); };
}
