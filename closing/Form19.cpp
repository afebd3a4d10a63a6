#include "closing/Form19.h"

#include "closing/AnnullaChiusura.h"
#include "closing/Chiusura.h"
#include "closing/Riordino.h"
#include "ledger/Form9.h"
#include "shell/Applicazione.h"
#include "store/Date.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"

Form19::Form19() {
    S.Activate = [this] {
        ChiusPrec.SetText(Stato.Riporto[1].DataRiporto);
        DataChiusura.SetFocus();
    };
    DataChiusura.KeyPress = [this](int& tasto) {
        if (tasto == TastoInvio && !DataVuota(DataChiusura.Text())) {
            tasto = 0;
            OK.SetFocus();
        }
    };
    OK.Click = [this] {
        if (DataVuota(DataChiusura.Text())) {
            Piattaforma().Beep();
            Piattaforma().MsgBox("Campo data obbligatorio", "ERRORE", Icona::Nessuna,
                                 Pulsanti::OK, 0);
            DataChiusura.SetFocus();
            return;
        }
        // An earlier date than the last close is accepted.
        if (!ControllaCampoData(DataChiusura)) {
            DataChiusura.SetFocus();
            return;
        }
        ChiusuraPeriodica(DataChiusura.Text());
        S.Hide();
    };
    esci.Click = [this] { S.Hide(); };
}

void CollegaMenuChiusure(MDIForm1& f) {
    f.AnnualeSimulata.Click = [] { App().Form19.S.Show(); };
    f.RiprChiu.Click = AnnullaChiusura;
    f.Sicur.Click = [] {
        Stato.FlagOperazione = 0;
        App().Form18.S.Show(true);
    };
    f.RipCopie.Click = [] {
        Stato.FlagOperazione = 1;
        App().Form18.S.Show(true);
    };
    f.CancMov.Click = CancellaMovimentiConto;
    f.RioArch.Click = RiordinaArchivi;
}
