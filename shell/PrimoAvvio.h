#pragma once
// The first start of an installation.
//
// It is recognised by none of the shared files of the program directory being there (the
// causali, their counter, the currencies, the preferences, the colours), looked at before the
// start reads, and so leaves behind, the colours and the preferences. One file lost later reads
// as a missing file does, and the causali of the user stay.
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
