#include "ledger/Cancellazione.h"

#include "ledger/Immissione.h"
#include "ledger/Registro.h"
#include "shell/Applicazione.h"
#include "store/FileRecord.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"

short CompattaMovimenti(const std::function<bool(const RecMovimento&)>& scarta) {
    short w = 1;
    ConRecord(NomeFileConto(".MOV"), RecMovimento::Lunghezza, 1, [&] {
        for (long i = 1; i <= Stato.NumMovimenti; ++i) {
            RecMovimento& m = Stato.Movimenti[i];
            if (scarta(m)) continue;
            m.NrOper = w;
            ScriviRecord(m, w, 1);
            ++w;
        }
    });
    return w;
}

void RileggiMovimenti() {
    ScriviContatore(NomeFileConto(".MOR"), Stato.NumMovimenti);
    ConRecord(NomeFileConto(".MOV"), RecMovimento::Lunghezza, 1,
              [] { LeggiRecords(Stato.Movimenti.righe, 1, Stato.NumMovimenti, 1); });
}

void CancellaMovimento() {
    Form9& f = App().Form9;
    Risposta r = Piattaforma().MsgBox(
        "Attenzione il movimento selezionato verrà cancellato, ...Vuoi Continuare?",
        "AVVERTIMENTO!", Icona::Esclamazione, Pulsanti::OKAnnulla, 1);
    // Every survivor takes the next number and record: the old last record stays behind the
    // new count.
    if (r == Risposta::OK) {
        CompattaMovimenti(
            [](const RecMovimento& m) { return m.NrOper == Stato.MovimentoCorrente; });
        Stato.NumMovimenti -= 1;
        RileggiMovimenti();
    }

    f.Del.Enabled = false;
    if (!f.Command1.Enabled)
        ElencaPerOperazione();
    else
        ElencaPerValuta();

    SvuotaRiga();
    f.DataOper.SetFocus();
    Stato.MovimentoCorrente = 0;
    f.Del.SetText("Del");
    f.Del.Enabled = false;

    // The blank element changes no balance: the panel is redrawn and .TOT written.
    const RecMovimento& vuoto = Stato.Movimenti[0];
    ApplicaMovimento(vuoto.DataValuta, vuoto.DataOper, vuoto.IMPORTO, vuoto.D_A, vuoto.Sospeso);
    ScriviOrd();
}
