#include "refdata/ManutCaus.h"

#include "refdata/Causali.h"
#include "shell/Applicazione.h"
#include "shell/Colori.h"
#include "store/FileRecord.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

namespace {
// Here the code stands in its 5 characters, with no blank before " - ".
std::string RigaManutenzione(const RecCausale& causale) {
    return causale.CodCausale.Testo() + " - " + causale.DescCausale.Testo();
}

void Sposta(Controllo& da, Controllo& a) {
    const int i = da.ListIndex();
    if (i < 0) return;
    const std::string riga = da.List(i);
    da.RemoveItem(i);
    a.AddItem(riga);
}
} // namespace

ManutCaus::ManutCaus() {
    ElencoCausali.Sorted = true;
    List1.Sorted = true;
    S.Load = [this] {
        ColoriElenchi({&ElencoCausali, &List1});
        LeggiCausali();
        for (short i = 1; i <= Stato.NumCausali; ++i)
            ElencoCausali.AddItem(RigaManutenzione(Stato.Causali[i]));
    };
    ElencoCausali.DblClick = [this] { Sposta(ElencoCausali, List1); };
    List1.DblClick = [this] { Sposta(List1, ElencoCausali); };
    Saldi.Click = RegistraCausaliScelte;
    esci.Click = [this] { S.UnloadMe(); };
    // The help on the causali is a screen of the shell, found by its name.
    SSCommand1.Click = [] {
        if (Schermo* aiuto = TrovaSchermo("Help1")) aiuto->Show();
    };
}

void RegistraCausaliScelte() {
    if (Piattaforma().MsgBox("L'operazione modificherà l'archivio delle causali. Vuoi continuare?",
                             "ATTENZIONE!", Icona::Esclamazione, Pulsanti::OKAnnulla,
                             1) != Risposta::OK)
        return;
    const Controllo& scelte = App().ManutCaus.List1;
    // Each line picks the slots of its code, so the file follows the sorted order of the lines;
    // records past the new count stay on disk, uncounted.
    ApriRecord(NomeFileProgramma("Causali.DAT"), RecCausale::Lunghezza, 1);
    for (int i = 0; i < scelte.ListCount(); ++i) {
        const std::string codice = Left(scelte.List(i), 5);
        for (short j = 1; j <= Stato.NumCausali; ++j)
            if (Stato.Causali[j].CodCausale == codice) ScriviRecord(Stato.Causali[j], i + 1, 1);
    }
    ChiudiRecord(1);
    Stato.NumCausali = static_cast<short>(scelte.ListCount());
    ScriviContatore(NomeFileProgramma("RecCausa.dat"), Stato.NumCausali);
    Piattaforma().MsgBox("CHIUSURA PROGRAMMA", "", Icona::Nessuna, Pulsanti::OK, 0);
    Piattaforma().Termina();
}
