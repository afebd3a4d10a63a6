#include "closing/AnnullaChiusura.h"

#include "closing/Chiusura.h"
#include "closing/CopieBak.h"
#include "ledger/CaricaConto.h"
#include "ledger/Registro.h"
#include "shell/Applicazione.h"
#include "store/FileRecord.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

void AnnullaChiusura() {
    if (Piattaforma().MsgBox("L'azione appena intrapresa eliminerà tutti i\n"
                             "movimenti registrati dopo l'ultima chiusura, \n"
                             "essi non potranno essere più recuperati.\n\nVuoi continuare ?",
                             "AVVERTIMENTO!", Icona::Esclamazione, Pulsanti::OKAnnulla,
                             1) != Risposta::OK)
        return;
    ConPercorsoGuasto([] {
        Piattaforma().Clessidra(true);
        RecChiusura chi;
        ConRecord(NomeFileConto(".RIP"), RecRiporto::Lunghezza, 1,
                  [] { LeggiRecord(Stato.Riporto[1], 1, 1); });
        ConRecord(NomeFileConto(".chi"), RecChiusura::Lunghezza, 1,
                  [&chi] { LeggiRecord(chi, 1, 1); });
        if (chi.CodConto.Testo() != Stato.PercorsoDati + Trim(Stato.CodContoAperto)) {
            Piattaforma().MsgBox(" I dati che si tenta di recuperare appartengono ad un altro "
                                 "conto, operazione annullata",
                                 "Errore", Icona::Nessuna, Pulsanti::OK, 0);
            Piattaforma().Clessidra(false);
            return;
        }
        std::string stelo = Trim(Stato.CodContoAperto);
        for (const std::string& file : FileCheIniziano(Stato.PercorsoDati, stelo + "."))
            CancellaFile(file);
        for (const char* estensione : EstensioniCopia)
            CopiaFile(NomeFileProgramma(std::string("Bak") + estensione),
                      NomeFileConto(estensione));
        Stato.Riporto[1].DataRiporto = chi.DataRiporto;
        Stato.Riporto[1].ImportoRiporto = chi.ImportoRiporto;
        ConRecord(NomeFileConto(".RIP"), RecRiporto::Lunghezza, 1,
                  [] { ScriviRecord(Stato.Riporto[1], 1, 1); });
        CaricaConto();
        if (App().Form9.Command2.Enabled)
            ElencaPerOperazione();
        else
            ElencaPerValuta();
        ScriviOrd();
        Piattaforma().Clessidra(false);
    });
}
