#include "shell/Applicazione.h"

#include "cheques/MenuAssegni.h"
#include "closing/Form19.h"
#include "interest/Form26.h"
#include "refdata/CausaliValute.h"
#include "refdata/Conti.h"
#include "shell/Avvio.h"
#include "shell/Servizi.h"

#include <cassert>

namespace {
Applicazione* corrente = nullptr;
}

Applicazione::Applicazione() {
    assert(!corrente && "one application at a time");
    corrente = this;
    CollegaMenuAnagrafe(MDIForm1);
    CollegaMenuConti(MDIForm1);
    CollegaMenuMovimenti(MDIForm1);
    CollegaMenuStampe(MDIForm1);
    CollegaMenuAssegni(MDIForm1);
    CollegaFinestraPrincipale(MDIForm1);
    CollegaMenuChiusure(MDIForm1);
    CollegaMenuInteressi(MDIForm1);
    CollegaMenuServizi(MDIForm1);
}

Applicazione::~Applicazione() { corrente = nullptr; }

Applicazione& App() {
    assert(corrente && "no application made");
    return *corrente;
}
