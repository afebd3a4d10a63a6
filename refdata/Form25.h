#pragma once
// Valute: the rate of each currency against the Euro. Each command stores the rate of the field
// beside it into its own record of Valute.DAT and touches no other.
#include "screen/Schermo.h"

#include <array>

struct Form25 {
    Schermo S{"Form25", "Valute"};

    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "  Gestione valute"};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2",
                     "Il valore delle valute deve essere rapportato a quello dell'euro."};
    Controllo Label3{S, TipoControllo::Etichetta, "Label3",
                     "dopo aver modificato il valore nella casella occorre cliccare sullo "
                     "stesso pulsante per la memorizzazione dei dati"};
    // One row a currency in record order: Box(n - 1), the rate of record n, and its command.
    Controllo Box0{S, TipoControllo::Campo, "Box", "", 0};
    Controllo SSCommand9{S, TipoControllo::Pulsante, "SSCommand9", "Scellino - Austria"};
    Controllo Box1{S, TipoControllo::Campo, "Box", "", 1};
    Controllo SSCommand4{S, TipoControllo::Pulsante, "SSCommand4", "Franco - Belgio"};
    Controllo Box2{S, TipoControllo::Campo, "Box", "", 2};
    Controllo SSCommand7{S, TipoControllo::Pulsante, "SSCommand7", "Marco - Finlandia"};
    Controllo Box3{S, TipoControllo::Campo, "Box", "", 3};
    Controllo SSCommand5{S, TipoControllo::Pulsante, "SSCommand5", "Sterlina - Irlanda"};
    Controllo Box4{S, TipoControllo::Campo, "Box", "", 4};
    Controllo SSCommand3{S, TipoControllo::Pulsante, "SSCommand3", "Franco - Francia"};
    Controllo Box5{S, TipoControllo::Campo, "Box", "", 5};
    Controllo SSCommand2{S, TipoControllo::Pulsante, "SSCommand2", "Marco - Germania"};
    Controllo Box6{S, TipoControllo::Campo, "Box", "", 6};
    Controllo SSCommand1{S, TipoControllo::Pulsante, "SSCommand1", "Lira - Italia"};
    Controllo Box7{S, TipoControllo::Campo, "Box", "", 7};
    Controllo SSCommand8{S, TipoControllo::Pulsante, "SSCommand8", "Peseta - Spagna"};
    Controllo Box8{S, TipoControllo::Campo, "Box", "", 8};
    Controllo SSCommand12{S, TipoControllo::Pulsante, "SSCommand12", "Franco-Lussemburgo"};
    Controllo Box9{S, TipoControllo::Campo, "Box", "", 9};
    Controllo SSCommand6{S, TipoControllo::Pulsante, "SSCommand6", "Escudo - Portogallo"};
    Controllo Box10{S, TipoControllo::Campo, "Box", "", 10};
    Controllo SSCommand10{S, TipoControllo::Pulsante, "SSCommand10", "Fiorino - Olanda"};
    Controllo Box11{S, TipoControllo::Campo, "Box", "", 11};
    Controllo SSCommand11{S, TipoControllo::Pulsante, "SSCommand11", "Dollaro - USA"};
    Controllo Box12{S, TipoControllo::Campo, "Box", "", 12};
    Controllo SSCommand14{S, TipoControllo::Pulsante, "SSCommand14", "Yen - Giappone"};
    Controllo Box13{S, TipoControllo::Campo, "Box", "", 13};
    Controllo SSCommand15{S, TipoControllo::Pulsante, "SSCommand15", "Sterlina - U.K."};
    Controllo Check1{S, TipoControllo::Casella, "Check1", "blocca i dati"};
    Controllo Command3D8{S, TipoControllo::Pulsante, "Command3D8", "Uscita"};

    Form25();
    // The control array Box(0) to Box(13); failure 9 outside it.
    Controllo& Box(int i);

  private:
    std::array<Controllo*, 14> box_;
};

// The rate typed in Box(n - 1) stored as record n, with its fixed name and country.
void ConfermaValuta(short n);
