#include "closing/Riordino.h"

#include "cheques/ElenchiAssegni.h"
#include "closing/Chiusura.h"
#include "closing/CopieBak.h"
#include "ledger/CaricaConto.h"
#include "ledger/Registro.h"
#include "shell/Applicazione.h"
#include "store/FileRecord.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

void RiordinaArchivi() {
    ConPercorsoGuasto([] {
        Piattaforma().Clessidra(true);
        CopieBak();
        FogliAiCarnet();
        FogliAiMovimenti();
        RicostruisciConto();
        Piattaforma().Clessidra(false);
    });
}

void CancellaMovimentiConto() {
    auto chiedi = [](const std::string& testo) {
        return Piattaforma().MsgBox(testo, "AVVERTIMENTO!", Icona::Esclamazione,
                                    Pulsanti::OKAnnulla, 1) == Risposta::OK;
    };
    if (!chiedi("Questa azione elimina tutti i movimenti senza \n"
                "eliminare il conto, si raccomanda, pertanto \n"
                "di eseguire prima la copia di Backup al fine \n"
                "di evitare la perdita di dati importanti.\n\n"
                "...ESEGUI PRIMA IL BACKUP DEI DATI...") ||
        !chiedi("SEI PROPRIO SICURO DI VOLER CONTINUARE?"))
        return;
    for (const std::string& file :
         FileCheIniziano(Stato.PercorsoDati, Trim(Stato.CodContoAperto) + "."))
        CancellaFile(file);
    App().Form15.List1.Clear();
    CaricaConto();
    ElencaPerOperazione();
    ScriviOrd();
    ElencaSituazione();
    ElencaCarnet();
}
