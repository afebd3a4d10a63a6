#include "shell/Form23.h"

#include "ledger/Registro.h"
#include "refdata/Valute.h"
#include "shell/Applicazione.h"
#include "shell/Invio.h"
#include "store/FileRecord.h"
#include "store/Formato.h"
#include "store/Guasto.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include <utility>

namespace {
void CaricaImpostazioni(Form23& f) {
    ConRecord(NomeFileProgramma("Imposta.DAT"), RecImposta::Lunghezza, 1,
              [] { LeggiRecord(Stato.Imposta, 1, 1); });
    const RecImposta& i = Stato.Imposta;
    if (Trim(i.PerAvv) != "0") f.PerAvv.SetText(Trim(i.PerAvv));
    f.contAvv.SetText(Trim(i.contAvv));
    f.decimali.SetText(Trim(Str(i.decimali)));
    f.NomeUt.SetText(Trim(i.NomeUt));
    f.PassW.SetText(Trim(i.PassW));
    f.accesso.SetValue(i.accesso == -1);

    LeggiTabellaValute();
    for (long n = 1; n <= 15; ++n)
        f.Combo1.AddItem(TestoValuta(Stato.Valute[n]));
    std::string predefinita = Trim(i.Combo1);
    if (predefinita.empty()) return;
    for (int r = 0; r < f.Combo1.ListCount(); ++r)
        if (Trim(f.Combo1.List(r)) == predefinita) {
            f.Combo1.SetListIndex(r);
            return;
        }
}
} // namespace

Form23::Form23() {
    PerAvv.MaxLength = 35;
    contAvv.MaxLength = 12;
    NomeUt.MaxLength = 30;
    PassW.MaxLength = 10;
    // Enter walks the fields in the order of the classic screen, not in tab order.
    const std::pair<Controllo*, Controllo*> avanti[] = {
        {&NomeUt, &PassW}, {&PassW, &PerAvv}, {&PerAvv, &contAvv}, {&contAvv, &Salva}};
    for (auto [campo, prossimo] : avanti)
        SuInvio(*campo, [prossimo = prossimo] { prossimo->SetFocus(); });
    SuInvio(Salva, SalvaImpostazioni);
    decimali.KeyPress = [](int& tasto) {
        if ((tasto >= '0' && tasto <= '3') || tasto == TastoBackspace || tasto == TastoInvio)
            return;
        Piattaforma().Beep();
        tasto = 0;
    };

    S.Load = [this] { CaricaImpostazioni(*this); };
    Salva.Click = SalvaImpostazioni;
    Command3D8.Click = [this] { S.UnloadMe(); };
}

void SalvaImpostazioni() {
    Form23& f = App().Form23;
    RecImposta& i = Stato.Imposta;
    std::string percorso = Trim(f.PerAvv.Text());
    if (!percorso.empty() && percorso.back() != '/') {
        percorso += '/';
        f.PerAvv.SetText(percorso);
    }
    i.PerAvv = percorso.empty() ? "0" : percorso;
    i.contAvv = Trim(f.contAvv.Text());
    i.Combo1 = Trim(f.Combo1.Text());
    i.decimali = Intero16(Val(Trim(f.decimali.Text())));
    i.NomeUt = f.NomeUt.Text();
    i.PassW = f.PassW.Text();
    i.accesso = f.accesso.Value() ? -1 : 0;
    ConRecord(NomeFileProgramma("Imposta.DAT"), RecImposta::Lunghezza, 1,
              [] { ScriviRecord(Stato.Imposta, 1, 1); });

    Stato.FormatoImporti = FormatoImportiPerDecimali(i.decimali);
    if (Stato.ContoAperto == 1) {
        RicalcolaTotali();
        App().MDIForm1.Saldi(2).SetText(
            Format(Stato.Conti[Stato.IndiceConto].Fido * Stato.Cambio, Stato.FormatoImporti));
    }
    f.S.UnloadMe();
}
