#pragma once
// The first start of an installation.
//
// It is recognised by Valute.DAT missing from the program directory: the first start itself
// writes that file (the Euro at record 15), no screen ever deletes it, and pruning the causali
// doesn't touch it, so no later start takes this path again.
#include <string>

bool PrimoAvvio();

// Records 1 to 3 of Causali.DAT, "AS" "ASSEGNO", "CA" "CARNET", "GC" "GIROCONTO", each
// suspended, an expense and subject to cost; RecCausa.dat says 3.
void SeminaCausali();

// The directory "dati" under the program's, the three causali, the Euro, the files the program
// ships (when missing from the program directory), and the welcome screen.
void EseguiPrimoAvvio();

// Where the shipped files are: the folder "shipped" beside the executable, or beside the folder
// that holds it, as in the build tree; "" when neither exists.
std::string CartellaForniti();
