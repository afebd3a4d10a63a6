#pragma once
// The welcome screen of the first start: the advice on what to set up before the first movement.
#include "screen/Schermo.h"

struct Form1 {
    Schermo S{"Form1", "Informazioni"};

    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "MARENDOLA VERSIONE 1.00"};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2", "INFORMAZIONI PRELIMINARI "};
    Controllo Text1{S, TipoControllo::Etichetta, "Text1"};
    Controllo Text2{S, TipoControllo::Etichetta, "Text2"};
    Controllo Label3{S, TipoControllo::Etichetta, "Label3",
                     "Attenzione ! Questo messaggio non verrà più mostrato in seguito"};
    Controllo Command1{S, TipoControllo::Pulsante, "Command1", "Chiudi"};

    Form1();
};
