#include "shell/Colori.h"

#include "screen/Schermo.h"
#include "store/FileRecord.h"
#include "store/Stato.h"

void ScriviColori() {
    ConRecord(NomeFileProgramma("colori.col"), RecColori::Lunghezza, 1,
              [] { ScriviRecord(Stato.Colori, 1, 1); });
}

void ColoriElenchi(std::initializer_list<Controllo*> liste) {
    if (Stato.Colori.Predefiniti != "N") return;
    for (Controllo* lista : liste) {
        lista->BackColor = Stato.Colori.ColoreSfondo;
        lista->ForeColor = Stato.Colori.ColoreCarattere;
    }
}
