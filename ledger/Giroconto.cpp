#include "ledger/Giroconto.h"

#include "refdata/Valute.h"
#include "shell/Applicazione.h"
#include "store/FileRecord.h"
#include "store/Formato.h"
#include "store/Guasto.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include <string>

Giroconto::Giroconto() {
    S.Figlio = false;
    S.Load = [this] {
        contoAperto.SetText(App().MDIForm1.DescConto.Text());
        Combo1.Clear();
        for (long i = 1; i <= Stato.NumConti; ++i) {
            const RecConto& c = Stato.Conti[i];
            Combo1.AddItem(std::string(c.CodConto) + " - " + std::string(c.NomeBanca));
        }
        Combo1.SetListIndex(0);
    };
    OK.Click = ConfermaGiroconto;
    Command3D1.Click = [this] {
        Stato.FlagOperazione = 1;
        S.UnloadMe();
    };
}

void ConfermaGiroconto() {
    Giroconto& g = App().Giroconto;
    const Form9& f = App().Form9;
    const std::string altro = Trim(Left(g.Combo1.Text(), 12));
    if (altro == Trim(Stato.CodContoAperto)) {
        Piattaforma().MsgBox("il conto selezionato è lo stesso conto attualmente aperto", "ERRORE",
                             Icona::Nessuna, Pulsanti::OK, 0);
        g.Combo1.SetListIndex(0);
        g.Combo1.SetFocus();
        // The movement under entry is dropped as if cancelled.
        Stato.FlagOperazione = 1;
        g.S.UnloadMe();
        return;
    }
    const std::string aperto = Trim(Stato.CodContoAperto);
    const short numero = Stato.NumMovimenti;
    const std::string descrizione = Trim(f.DescMovim.Text());
    // From here the file names are those of the other account. The incoming movement is built
    // in the slot of the open account's table that has the other account's next number: it
    // isn't saved first nor restored after, and the next load of the open account mends it.
    Stato.CodContoAperto = altro;
    IgnoraErrori({
        [] { Stato.NumMovimenti = LeggiContatore(NomeFileConto(".MOR")); },
        [] { Stato.NumMovimenti = Intero16(Stato.NumMovimenti + 1.0); },
        [&] {
            RecMovimento& m = Stato.Movimenti[Stato.NumMovimenti];
            m.NrOper = Stato.NumMovimenti;
            m.DataOper = f.DataOper.Text();
            m.DataValuta = f.DataValuta.Text();
            m.Causale = f.Causale.Text();
            m.IMPORTO = ImportoInEuro(ImportoDaTesto(f.IMPORTO.Text()));
            m.NrDoc = f.NrDoc.Text();
            m.DescMovim = "da: " + aperto + " " + descrizione;
            m.Sospeso = f.Sospeso.Text();
            m.D_A = "E";
            if (m.Annullato != "S") m.Annullato = "N";
        },
        [] {
            ConRecord(NomeFileConto(".MOV"), RecMovimento::Lunghezza, 1, [] {
                ScriviRecord(Stato.Movimenti[Stato.NumMovimenti], Stato.NumMovimenti, 1);
            });
        },
        [] { ScriviContatore(NomeFileConto(".MOR"), Stato.NumMovimenti); },
        [&] { Stato.NumMovimenti = numero; },
        [&] {
            RecMovimento& m = Stato.Movimenti[numero];
            m.DescMovim = "> " + altro + " " + descrizione;
            m.D_A = "U";
        },
        [&] { Stato.CodContoAperto = aperto; },
        [&] { g.S.UnloadMe(); },
    });
}
