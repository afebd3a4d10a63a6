#include "cheques/Form17.h"

#include "cheques/ElenchiAssegni.h"
#include "reports/Stampe.h"

Form17::Form17() {
    S.Figlio = false;
    S.Load = ElencaAnnullati;
    PulStampe.Click = StampaAnnullati;
    Command3D1.Click = [this] { S.Hide(); };
}
