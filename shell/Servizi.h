#pragma once
// The small services of the main window: preferences, colours, the about screen, the help, the
// calculator and the bank's site, all opened from the menus and the button bar.
#include <string>

struct MDIForm1;

void CollegaMenuServizi(MDIForm1& f);

// The bank's address as a browser takes it: "https://" put before a bare host name such as
// "www.banca.it"; "" for an empty address or one that isn't a web address (blanks inside, no
// host, another scheme).
std::string IndirizzoWeb(const std::string& indirizzo);

// The address of the open account's conditions (.Opz; with no account, the file of the blank
// stem) opened in the desktop's browser; an empty or malformed one gets a message instead.
void ApriSitoBanca();

// The first of the desktop calculators that is installed, started without waiting.
void ApriCalcolatrice();
