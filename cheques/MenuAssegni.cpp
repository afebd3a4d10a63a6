#include "cheques/MenuAssegni.h"

#include "shell/Applicazione.h"

void CollegaMenuAssegni(MDIForm1& f) {
    // A cheque is booked through the entry screen, which comes up first.
    f.Assegni.Click = [] {
        App().Form9.S.Show();
        App().Form15.S.Show();
    };
    f.Carnet.Click = [] { App().Form3.S.Show(); };
    f.BottCarnet.Click = [] { App().Form3.S.Show(); };
    f.VisAssFuori.Click = [] { App().Form13.S.Show(true); };
    // The list as it stands: it was filled at the last load or refill.
    f.AssAnn.Click = [] { App().Form17.S.Show(true); };
}
