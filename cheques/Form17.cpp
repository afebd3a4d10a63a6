#include "cheques/Form17.h"

#include "cheques/ElenchiAssegni.h"

Form17::Form17() {
    S.Figlio = false;
    S.Load = ElencaAnnullati;
    PulStampe.Click = StampaAssegniAnnullati;
    Command3D1.Click = [this] { S.Hide(); };
}

void StampaAssegniAnnullati() {}
