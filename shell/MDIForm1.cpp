#include "shell/MDIForm1.h"

#include <initializer_list>

MDIForm1::MDIForm1() {
    S.Figlio = false;
    Command3D2.ToolTipText = " Apri ";
    PulsMovimenti.ToolTipText = " Movimenti ";
    Vista.ToolTipText = " Lista Movimenti ";
    BottCarnet.ToolTipText = " Carnet ";
    Files.ToolTipText = " Allinea ";
    PulStampe.ToolTipText = " Stampe ";
    Command3D4.ToolTipText = " Causali ";
    SSCommand1.ToolTipText = "Gestione Valute";
    browse.ToolTipText = "Internet";

    Codice.ToolTipText = "Percorso dove sono archiviati i dati e nr. di conto";
    DescConto.ToolTipText = "Intestazione del conto";
    Saldi(0).ToolTipText = "Saldo ottenuto dall'allineamento con l'estratto conto";
    Saldi(1).ToolTipText = "Saldo per data operazione";
    Saldi(2).ToolTipText = "Fido";
    Saldi(3).ToolTipText = "Saldo per data valuta";
    UltimaData.ToolTipText = "ultima data delle operazioni postergate";
    Saldi(4).ToolTipText = "Saldo all'ultima data delle operazioni postergate";
    Saldi(5).ToolTipText = "Disponibilità comprensiva di fido per data operazione";
    AssFuori.ToolTipText = "nr di assegni emessi e non ancora pervenuti in banca";
    AssMano.ToolTipText = "nr. di assegni non emessi";

    // The menu tree: an entry of a disabled menu can't be chosen.
    auto entrate = [](Controllo& menu, std::initializer_list<Controllo*> voci) {
        for (Controllo* v : voci) v->MenuPadre = &menu;
    };
    entrate(File, {&NuovoConto, &ApriConto, &GestCaus, &gestval, &close, &color, &ImpStamp,
                   &pref, &Stampe, &A, &esci});
    entrate(Stampe, {&movimenti, &CausaliIns, &ElencoConti, &TotConti});
    entrate(Immissioni, {&MenMovimenti, &Assegni, &Carnet});
    entrate(Visualizza, {&VisMovimenti, &VisAssFuori, &AssAnn});
    entrate(chiusure, {&stf, &AnnualeSimulata, &IntCost});
    entrate(Manut, {&AllConto, &RiprChiu, &tt, &Sicur, &RipCopie, &CancMov});
    entrate(UT, {&RioArch, &CVV, &calco});
    entrate(Finestre, {&Sovra, &AffOriz, &AffVert, &DispIcon});
    entrate(Guida, {&sommario});

    AbilitaComandiConto(*this, false);
}

void AbilitaComandiConto(MDIForm1& f, bool aperto) {
    for (Controllo* c : {&f.Files, &f.Stampe, &f.Visualizza, &f.Immissioni, &f.PulStampe,
                         &f.PulsMovimenti, &f.Manut, &f.BottCarnet, &f.Vista, &f.chiusure})
        c->Enabled = aperto;
}
