#pragma once
// The commands of the main window that open the screens of the causali and of the currencies.
struct MDIForm1;

// GestCaus and Command3D4 show Form6; gestval and SSCommand1 show Form25; CVV shows Convertore.
void CollegaMenuAnagrafe(MDIForm1& f);
