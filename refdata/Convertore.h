#pragma once
// Conversione valute: one amount from a currency to another, through the Euro.
#include "screen/Schermo.h"

struct Convertore {
    Schermo S{"Convertore", "Conversione valute"};

    Controllo Label1{S, TipoControllo::Etichetta, "Label1",
                     "Utilità per la conversione delle valute "};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2", "Importo"};
    Controllo ImDa{S, TipoControllo::Campo, "ImDa"};
    Controllo Label3{S, TipoControllo::Etichetta, "Label3", "Valuta 1"};
    Controllo Combo1{S, TipoControllo::Combo, "Combo1"};
    Controllo Label4{S, TipoControllo::Etichetta, "Label4", "Valuta 2"};
    Controllo Combo2{S, TipoControllo::Combo, "Combo2"};
    Controllo SSCommand1{S, TipoControllo::Pulsante, "SSCommand1", "Calcola"};
    Controllo Label5{S, TipoControllo::Etichetta, "Label5", "Euro"};
    Controllo Euros{S, TipoControllo::Campo, "Euros"};
    Controllo ImA{S, TipoControllo::Campo, "ImA"};

    Convertore();
};

// Calcola: ImDa in the currency of Combo1 into Euro, shown in Euros, and into the currency of
// Combo2, shown in ImA. No step rounds.
void ConvertiImporto();
