#pragma once
// The entries of the main window that lead to the cheque screens.
struct MDIForm1;

void CollegaMenuAssegni(MDIForm1& f);
