#include "refdata/Form7.h"

#include "refdata/Conti.h"
#include "refdata/Form10.h"
#include "shell/Applicazione.h"
#include "shell/Colori.h"
#include "store/Stato.h"
#include "store/Testo.h"

Form7::Form7() {
    OK.Enabled = false;
    List1.Sorted = true;
    List1.Click = [this] {
        if (!List1.List(List1.ListIndex()).empty()) OK.Enabled = true;
    };
    // The double click trims the number on both sides, OK on the right only.
    List1.DblClick = [this] {
        MostraSchedaConto(Trim(NumeroContoDaRiga(List1.List(List1.ListIndex()))));
    };
    OK.Click = [this] {
        MostraSchedaConto(RTrim(NumeroContoDaRiga(List1.List(List1.ListIndex()))));
    };
    Command2.Click = [this] {
        S.UnloadMe();
        App().Form10.S.UnloadMe();
    };

    Drive1.ToolTipText = "Seleziona il driver dove archiviare i dati";
    Dir1.ToolTipText = "Seleziona la directory dove archiviare i dati";
    NomeFile.ToolTipText = "percorso dati attualmente selezionato";
    CollegaScelta(Scelta);
    Scelta.Change = [this] { DirectoryScelta(Scelta, NomeFile); };
    S.Load = [this] {
        PreparaScelta(Scelta, Stato.PercorsoDati);
        ColoriElenchi({&List1});
    };
    S.Activate = [this] { DirectoryScelta(Scelta, NomeFile); };
}
