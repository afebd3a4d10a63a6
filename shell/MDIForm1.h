#pragma once
// The main window: menus, the button bar, the panel of balances and the currency combo.
#include "screen/Schermo.h"

struct MDIForm1 {
    Schermo S{"MDIForm1", "Marendola"};

    // The button bar, in its order.
    Controllo Command3D2{S, TipoControllo::Pulsante, "Command3D2"};
    Controllo PulsMovimenti{S, TipoControllo::Pulsante, "PulsMovimenti"};
    Controllo Vista{S, TipoControllo::Pulsante, "Vista"};
    Controllo BottCarnet{S, TipoControllo::Pulsante, "BottCarnet"};
    Controllo Files{S, TipoControllo::Pulsante, "Files"};
    Controllo PulStampe{S, TipoControllo::Pulsante, "PulStampe"};
    Controllo Command3D4{S, TipoControllo::Pulsante, "Command3D4"};
    Controllo SSCommand1{S, TipoControllo::Pulsante, "SSCommand1"};
    Controllo browse{S, TipoControllo::Pulsante, "browse"};
    Controllo SSCommand2{S, TipoControllo::Pulsante, "SSCommand2"};

    // The panel.
    Controllo Label5{S, TipoControllo::Etichetta, "Label5", " conto"};
    Controllo Codice{S, TipoControllo::Etichetta, "Codice"};
    Controllo Label12{S, TipoControllo::Etichetta, "Label12", "descrizione"};
    Controllo DescConto{S, TipoControllo::Etichetta, "DescConto"};
    Controllo Label6{S, TipoControllo::Etichetta, "Label6", "Valuta"};
    Controllo Combo1{S, TipoControllo::Combo, "Combo1"};
    Controllo Image1{S, TipoControllo::Immagine, "Image1"};
    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "Saldo Allin.:"};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2", "Saldo data:"};
    Controllo Label8{S, TipoControllo::Etichetta, "Label8", "Fido:"};
    Controllo Label3{S, TipoControllo::Etichetta, "Label3", "Saldo Val.:"};
    Controllo Label4{S, TipoControllo::Etichetta, "Label4", "Saldo al: "};
    Controllo UltimaData{S, TipoControllo::Etichetta, "UltimaData"};
    Controllo Label9{S, TipoControllo::Etichetta, "Label9", "Disponibilità:"};
    MatriceControlli Saldi{S, TipoControllo::Etichetta, "Saldi", 0, 5};
    Controllo Label10{S, TipoControllo::Etichetta, "Label10", "Ass.Fuori:"};
    Controllo AssFuori{S, TipoControllo::Etichetta, "AssFuori"};
    Controllo Label11{S, TipoControllo::Etichetta, "Label11", "Ass. in mano:"};
    Controllo AssMano{S, TipoControllo::Etichetta, "AssMano"};

    // The menus, in their order.
    Controllo File{S, TipoControllo::Menu, "File", "&File"};
    Controllo NuovoConto{S, TipoControllo::Menu, "NuovoConto", "&Gestione conto"};
    Controllo ApriConto{S, TipoControllo::Menu, "ApriConto", "&Apri conto esitente"};
    Controllo GestCaus{S, TipoControllo::Menu, "GestCaus", "Gestione causali"};
    Controllo gestval{S, TipoControllo::Menu, "gestval", "Gestione valute"};
    Controllo close{S, TipoControllo::Menu, "close", "Chiudi"};
    Controllo color{S, TipoControllo::Menu, "color", "Imposta colori"};
    Controllo ImpStamp{S, TipoControllo::Menu, "ImpStamp", "Imposta stampante"};
    Controllo pref{S, TipoControllo::Menu, "pref", "Preferenze"};
    Controllo Stampe{S, TipoControllo::Menu, "Stampe", "&Stampe"};
    Controllo movimenti{S, TipoControllo::Menu, "movimenti", "&Movimenti"};
    Controllo CausaliIns{S, TipoControllo::Menu, "CausaliIns", "&Causali"};
    Controllo ElencoConti{S, TipoControllo::Menu, "ElencoConti", "&Elenco conti"};
    Controllo TotConti{S, TipoControllo::Menu, "TotConti", "Totale conti"};
    Controllo A{S, TipoControllo::Menu, "A", "-"};
    Controllo esci{S, TipoControllo::Menu, "esci", "Esci"};
    Controllo Immissioni{S, TipoControllo::Menu, "Immissioni", "Immissioni"};
    Controllo MenMovimenti{S, TipoControllo::Menu, "MenMovimenti", "&Movimenti"};
    Controllo Assegni{S, TipoControllo::Menu, "Assegni", "&Assegni"};
    Controllo Carnet{S, TipoControllo::Menu, "Carnet", "&Carnet"};
    Controllo Visualizza{S, TipoControllo::Menu, "Visualizza", "&Visualizza"};
    Controllo VisMovimenti{S, TipoControllo::Menu, "VisMovimenti", "&Movimenti"};
    Controllo VisAssFuori{S, TipoControllo::Menu, "VisAssFuori", "Assegni fuori"};
    Controllo AssAnn{S, TipoControllo::Menu, "AssAnn", "Assegni annullati"};
    Controllo chiusure{S, TipoControllo::Menu, "chiusure", "Servizi"};
    Controllo stf{S, TipoControllo::Menu, "stf", "Staffa/Interessi"};
    Controllo AnnualeSimulata{S, TipoControllo::Menu, "AnnualeSimulata", "Elimina periodi"};
    Controllo IntCost{S, TipoControllo::Menu, "IntCost", "Interessi e costi"};
    Controllo Manut{S, TipoControllo::Menu, "Manut", "&Manutenzioni"};
    Controllo AllConto{S, TipoControllo::Menu, "AllConto", "Allineamento conto"};
    Controllo RiprChiu{S, TipoControllo::Menu, "RiprChiu", "Ripristina chiusura prec."};
    Controllo tt{S, TipoControllo::Menu, "tt", "-"};
    Controllo Sicur{S, TipoControllo::Menu, "Sicur", "Esegui copie di sicurezza"};
    Controllo RipCopie{S, TipoControllo::Menu, "RipCopie", "Ripristina copie"};
    Controllo CancMov{S, TipoControllo::Menu, "CancMov", "Cancella Movimenti"};
    Controllo UT{S, TipoControllo::Menu, "UT", "Utilità"};
    Controllo RioArch{S, TipoControllo::Menu, "RioArch", "Riordina archivi"};
    Controllo CVV{S, TipoControllo::Menu, "CVV", "Conversione valute"};
    Controllo calco{S, TipoControllo::Menu, "calco", "Calcolatrice"};
    Controllo Informazioni{S, TipoControllo::Menu, "Informazioni", "Informazioni"};
    Controllo Finestre{S, TipoControllo::Menu, "Finestre", "Finestra"};
    Controllo Sovra{S, TipoControllo::Menu, "Sovra", "Sovrapponi"};
    Controllo AffOriz{S, TipoControllo::Menu, "AffOriz", "Affianca orizzontalmente"};
    Controllo AffVert{S, TipoControllo::Menu, "AffVert", "Affianca verticalmente"};
    Controllo DispIcon{S, TipoControllo::Menu, "DispIcon", "Disponi icone"};
    Controllo Guida{S, TipoControllo::Menu, "Guida", "?"};
    Controllo sommario{S, TipoControllo::Menu, "sommario", "Sommario"};

    MDIForm1();
};

// Enables or disables the commands that need an open account.
void AbilitaComandiConto(MDIForm1& f, bool aperto);
