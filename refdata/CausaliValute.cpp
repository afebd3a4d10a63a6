#include "refdata/CausaliValute.h"

#include "shell/Applicazione.h"

void CollegaMenuAnagrafe(MDIForm1& f) {
    f.GestCaus.Click = [] { App().Form6.S.Show(); };
    f.Command3D4.Click = [] { App().Form6.S.Show(); };
    f.gestval.Click = [] { App().Form25.S.Show(); };
    f.SSCommand1.Click = [] { App().Form25.S.Show(); };
    f.CVV.Click = [] { App().Convertore.S.Show(); };
}
