#include "cheques/Form13.h"

#include "shell/Colori.h"

Form13::Form13() {
    S.Figlio = false;
    // The cheques in hand in text order; the cheques out in the order of the table.
    List2.Sorted = true;
    S.Load = [this] { ColoriElenchi({&List1, &List2}); };
    Command3D4.Click = [this] { S.Hide(); };
}
