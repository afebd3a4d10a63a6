#pragma once
// The colours of the lists: colori.col in the program directory, read at the start into
// `Colori`, written by Form5, taken by each screen with a list at its load.
#include <initializer_list>

struct Controllo;

// `Colori` into record 1 of colori.col.
void ScriviColori();

// The user's colours on the lists, when the mode is "N"; with "S" the lists keep the desktop's.
void ColoriElenchi(std::initializer_list<Controllo*> liste);
