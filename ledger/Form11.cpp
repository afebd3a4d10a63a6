#include "ledger/Form11.h"

#include "ledger/ElencoMovimenti.h"
#include "ledger/Form20.h"
#include "ledger/Form4.h"
#include "refdata/Causali.h"
#include "reports/Stampe.h"
#include "shell/Applicazione.h"
#include "shell/Colori.h"
#include "store/Stato.h"
#include "store/Testo.h"

Form11::Form11() {
    DataOper.ToolTipText = "data iniziale dei movimenti da elencare";
    DataFinale.ToolTipText = "Data finale dei movimenti da elencare";
    Combo1.ToolTipText = "Seleziona la causale da filtrare";
    // The leading blank keeps " TUTTE" above the descriptions.
    Combo1.Sorted = true;
    Tutti.ToolTipText = "Seleziona l'inervallo tra tutte le date";

    S.Load = [this] {
        ColoriElenchi({&List1});
        Stato.ElencoAperto = 1;
        const Form9& e = App().Form9;
        DataOper.SetText(e.DataInizSel.Text());
        DataFinale.SetText(e.DataFineSel.Text());
        Combo1.AddItem(" TUTTE");
        for (long j = 1; j <= Stato.NumCausali; ++j)
            Combo1.AddItem(Mid(RigaCausale(Stato.Causali[j]), 10));
        Combo1.SetListIndex(0);
        CostruisciElenco();
    };
    S.Activate = [] { Stato.ElencoAperto = 1; };

    OK.Click = CostruisciElenco;
    Tutti.Click = [this] {
        DataOper.SetText(Stato.Totali.PrimaDataOperazione);
        DataFinale.SetText(Stato.Totali.UltimaDataOperazione);
        CostruisciElenco();
    };
    // The report takes its selection from this screen while the flag is up.
    PulStampe.Click = [] {
        Stato.FlagOperazione = 1;
        StampaMovimenti();
        Stato.FlagOperazione = 0;
    };
    Esc.Click = [this] {
        Stato.ElencoAperto = 0;
        S.UnloadMe();
    };
    List1.DblClick = ApriCorrezione;
}

void CollegaMenuMovimenti(MDIForm1& f) {
    f.VisMovimenti.Click = [] { App().Form11.S.Show(); };
    f.Vista.Click = [] { App().Form11.S.Show(); };
    f.TotConti.Click = [] { App().Form22.S.Show(); };
    f.AllConto.Click = MostraAllineamento;
    f.Files.Click = MostraAllineamento;
}
