#include "cheques/Form17.h"

#include "cheques/ElenchiAssegni.h"
#include "reports/Stampe.h"
#include "shell/Colori.h"

Form17::Form17() {
    S.Figlio = false;
    S.Load = [this] {
        ColoriElenchi({&List1});
        ElencaAnnullati();
    };
    PulStampe.Click = StampaAnnullati;
    Command3D1.Click = [this] { S.Hide(); };
}
