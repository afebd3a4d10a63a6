#pragma once
// Enter in a field or on a button, as the shell's screens take it.
#include <functional>

struct Controllo;

// Enter in `controllo` runs `azione` and is swallowed; other keys go on as typed.
void SuInvio(Controllo& controllo, std::function<void()> azione);
