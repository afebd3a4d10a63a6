#pragma once
// The start of the program: the main window loads, filling the application state in its order,
// and comes up.
#include <string>

struct MDIForm1;

// Loads and shows the main window on the program directory `cartellaProgramma` (made when
// missing). The application must have been made.
void AvviaProgramma(const std::string& cartellaProgramma);

// The main window's own commands: the currency combo and the two ways out. The application
// sets them when it is made.
void CollegaFinestraPrincipale(MDIForm1& f);

// Opens the stored start account: its code is looked up among the accounts, the main window
// shows it and the entry screen, coming up, loads it.
void ApriContoIniziale();
