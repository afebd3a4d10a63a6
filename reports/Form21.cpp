#include "reports/Form21.h"

#include "refdata/Causali.h"
#include "reports/Stampe.h"
#include "shell/Applicazione.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

namespace {
void TutteLeDate(Form21& f) {
    f.dal.SetText(Stato.PrimaDataOperazione);
    f.al.SetText(Stato.UltimaDataOperazione);
}
} // namespace

Form21::Form21() {
    // The leading blank keeps " TUTTE" above the descriptions.
    Combo1.Sorted = true;

    S.Load = [this] {
        TutteLeDate(*this);
        Combo1.AddItem(" TUTTE");
        for (long j = 1; j <= Stato.NumCausali; ++j)
            Combo1.AddItem(Mid(RigaCausale(Stato.Causali[j]), 10));
    };
    S.Activate = [this] {
        TutteLeDate(*this);
        Combo1.SetListIndex(0);
    };
    dal.KeyPress = [this](int& tasto) {
        if (tasto == TastoInvio) al.SetFocus();
    };
    al.KeyPress = [this](int& tasto) {
        if (tasto == TastoInvio) Combo1.SetFocus();
    };
    Command3D4.Click = [this] { TutteLeDate(*this); };

    Saldi.Click = StampaMovimenti;
    Command3D3.Click = StampaAssegni;
    Command3D2.Click = StampaCarnet;
    Command3D1.Click = StampaSituazione;
    AssAnn.Click = StampaAnnullati;
    conti.Click = StampaConti;
    Command3D5.Click = StampaCausali;
    PulStampe.Click = [] { Piattaforma().ImpostaStampante(); };
    Esc.Click = [this] { S.UnloadMe(); };
}

void CollegaMenuStampe(MDIForm1& f) {
    f.movimenti.Click = [] { App().Form21.S.Show(); };
    f.PulStampe.Click = [] { App().Form21.S.Show(); };
    f.CausaliIns.Click = StampaCausali;
    f.ElencoConti.Click = StampaConti;
    f.ImpStamp.Click = [] { Piattaforma().ImpostaStampante(); };
}
