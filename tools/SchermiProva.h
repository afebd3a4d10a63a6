#pragma once
// Two screens that exist only for the scripts that try the screen framework itself: the script
// command `demo` makes them. No screen of the program refers to them.
#include "screen/Schermo.h"

// A screen with one control for each behaviour of the framework worth a script.
struct Prova {
    Schermo S{"Prova", "Prova dei controlli"};

    Controllo Primo{S, TipoControllo::Campo, "Primo"};
    Controllo Spento{S, TipoControllo::Campo, "Spento"};           // disabled
    Controllo Nascosto{S, TipoControllo::Campo, "Nascosto"};       // invisible
    Controllo Numero{S, TipoControllo::Campo, "Numero"};           // digits and Backspace only
    Controllo Codice{S, TipoControllo::Campo, "Codice"};           // 3 characters, then onwards
    Controllo Descrizione{S, TipoControllo::Campo, "Descrizione"}; // 5 characters
    Controllo Data{S, TipoControllo::Data, "Data"};
    Controllo Riga{S, TipoControllo::Campo, "Riga"};
    Controllo Aggiungi{S, TipoControllo::Pulsante, "Aggiungi", "Aggiungi"}; // Riga into Elenco
    Controllo Elenco{S, TipoControllo::Lista, "Elenco"};                    // sorted
    Controllo Chiedi{S, TipoControllo::Pulsante, "Chiedi", "Chiedi"};       // OK and Cancel box
    Controllo Modale{S, TipoControllo::Pulsante, "Modale", "Finestra"};     // shows ProvaModale
    Controllo Guasto{S, TipoControllo::Pulsante, "Guasto", "Guasto"};       // fails halfway
    Controllo Stampa{S, TipoControllo::Pulsante, "Stampa", "Stampa"};       // prints a page
    Controllo Fine{S, TipoControllo::Pulsante, "Fine", "Fine"};             // ends the program
    Controllo Esito{S, TipoControllo::Etichetta, "Esito"}; // what the last command did
    Controllo Eventi{S, TipoControllo::Lista, "Eventi"};   // focus events of Primo, Numero
};

// Shown modally by Prova.Modale; Chiudi hands its text back to Prova.Esito and unloads it.
struct ProvaModale {
    Schermo S{"ProvaModale", "Finestra modale"};

    Controllo Testo{S, TipoControllo::Campo, "Testo"};
    Controllo Chiudi{S, TipoControllo::Pulsante, "Chiudi", "Chiudi"};
};

struct SchermiProva {
    ::Prova Prova;
    ::ProvaModale ProvaModale;

    SchermiProva();
    SchermiProva(const SchermiProva&) = delete;
    SchermiProva& operator=(const SchermiProva&) = delete;
};
