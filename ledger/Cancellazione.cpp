#include "ledger/Cancellazione.h"

#include "ledger/Immissione.h"
#include "ledger/Registro.h"
#include "shell/Applicazione.h"
#include "store/FileRecord.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"

#include <cstdint>

namespace {
// Every survivor takes the next number and goes to that record: the old last record stays
// behind the new count.
void Compatta() {
    ConRecord(NomeFileConto(".MOV"), RecMovimento::Lunghezza, 1, [] {
        std::int16_t j = 1;
        for (long i = 1; i <= Stato.NumMovimenti; ++i) {
            RecMovimento& m = Stato.Movimenti[i];
            if (m.NrOper == Stato.MovimentoCorrente) continue;
            m.NrOper = j;
            ScriviRecord(m, j, 1);
            ++j;
        }
    });
    Stato.NumMovimenti -= 1;
    ScriviContatore(NomeFileConto(".MOR"), Stato.NumMovimenti);
    ConRecord(NomeFileConto(".MOV"), RecMovimento::Lunghezza, 1,
              [] { LeggiRecords(Stato.Movimenti.righe, 1, Stato.NumMovimenti, 1); });
}
} // namespace

void CancellaMovimento() {
    Form9& f = App().Form9;
    Risposta r = Piattaforma().MsgBox(
        "Attenzione il movimento selezionato verrà cancellato, ...Vuoi Continuare?",
        "AVVERTIMENTO!", Icona::Esclamazione, Pulsanti::OKAnnulla, 1);
    if (r == Risposta::OK) Compatta();

    f.Del.Enabled = false;
    if (!f.Command1.Enabled) ElencaPerOperazione();
    else ElencaPerValuta();

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
