#include "shell/Invio.h"

#include "screen/Schermo.h"

#include <utility>

void SuInvio(Controllo& controllo, std::function<void()> azione) {
    controllo.KeyPress = [azione = std::move(azione)](int& tasto) {
        if (tasto != TastoInvio) return;
        tasto = 0;
        azione();
    };
}
