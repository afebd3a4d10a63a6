#include "shell/Applicazione.h"

#include "cheques/MenuAssegni.h"
#include "refdata/CausaliValute.h"
#include "refdata/Conti.h"
#include "shell/Avvio.h"

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
    CollegaMenuAssegni(MDIForm1);
    CollegaFinestraPrincipale(MDIForm1);
}

Applicazione::~Applicazione() { corrente = nullptr; }

Applicazione& App() {
    assert(corrente && "no application made");
    return *corrente;
}
