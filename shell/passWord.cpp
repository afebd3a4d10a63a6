#include "shell/passWord.h"

#include "shell/Applicazione.h"
#include "shell/Invio.h"
#include "store/FileRecord.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

namespace {
// One more failure: the fourth ends the program. True when it did.
bool Fallito(passWord& f, const char* messaggio) {
    Piattaforma().MsgBox(messaggio, "Accesso", Icona::Nessuna, Pulsanti::OK, 0);
    f.txtPassword.SetFocus();
    if (++f.Tentativi < 4) return false;
    Piattaforma().MsgBox("Tentativo di aprire il programma fallito!!!", "Errore", Icona::Nessuna,
                         Pulsanti::OK, 0);
    Piattaforma().Termina();
    return true;
}

// The typed texts are taken as they stand, the stored ones trimmed, case counting.
void Verifica(passWord& f) {
    if (f.txtUserName.Text() != Trim(Stato.Imposta.NomeUt)) {
        if (Fallito(f, "Nome utente non valido. Riprovare")) return;
        f.txtUserName.SetText("");
        f.txtUserName.SetFocus();
        return;
    }
    if (f.txtPassword.Text() != Trim(Stato.Imposta.PassW)) {
        Fallito(f, "Password non valida. Riprovare");
        return;
    }
    f.Riuscito = true;
    f.S.Hide();
}
} // namespace

passWord::passWord() {
    S.Figlio = false;
    SuInvio(txtUserName, [this] { txtPassword.SetFocus(); });
    SuInvio(txtPassword, [this] { cmdOK.SetFocus(); });
    SuInvio(cmdOK, [this] { Verifica(*this); });

    // Torrelba is read and has no say in the check; opening it makes it when missing.
    S.Load = [this] {
        Tentativi = 0;
        ConRecord(NomeFileProgramma("Torrelba"), RecAccesso::Lunghezza, 1,
                  [] { LeggiRecord(Stato.Accesso, 1, 1); });
    };
    cmdOK.Click = [this] { Verifica(*this); };
    cmdCancel.Click = [this] {
        Riuscito = false;
        Piattaforma().Termina();
    };
}

bool ControllaAccesso() {
    passWord& f = App().passWord;
    f.S.Show(true);
    return f.Riuscito;
}
