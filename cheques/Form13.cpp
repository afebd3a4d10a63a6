#include "cheques/Form13.h"

Form13::Form13() {
    S.Figlio = false;
    // The cheques in hand in text order; the cheques out in the order of the table.
    List2.Sorted = true;
    Command3D4.Click = [this] { S.Hide(); };
}
