#include "shell/Uscita.h"

#include "store/Piattaforma.h"

void Esci() {
    Risposta r = Piattaforma().MsgBox("Sei Sicuro di Voler Uscire?", "AVVERTIMENTO!",
                                      Icona::Esclamazione, Pulsanti::OKAnnulla, 1);
    if (r == Risposta::OK) Piattaforma().Termina();
}
