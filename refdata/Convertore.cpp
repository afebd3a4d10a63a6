#include "refdata/Convertore.h"

#include "refdata/Valute.h"
#include "shell/Applicazione.h"
#include "store/Formato.h"
#include "store/Guasto.h"
#include "store/Stato.h"
#include "store/Testo.h"

namespace {
// The rate of the currency named by a combo's text; a line that matches no slot, as that of a
// record never written, gives 0.
double CambioDi(const Controllo& combo) {
    const short n = CercaValuta(Trim(combo.Text()));
    return n == 0 ? 0 : Stato.Valute[n].Cambio;
}
} // namespace

Convertore::Convertore() {
    Combo1.Sorted = true;
    Combo2.Sorted = true;
    S.Load = [this] {
        LeggiTabellaValute();
        for (short n = 1; n <= 15; ++n) {
            Combo1.AddItem(TestoValuta(Stato.Valute[n]));
            Combo2.AddItem(TestoValuta(Stato.Valute[n]));
        }
        Combo1.SetListIndex(0);
        Combo2.SetListIndex(0);
    };
    SSCommand1.Click = ConvertiImporto;
}

void ConvertiImporto() {
    Convertore& f = App().Convertore;
    if (f.ImDa.Text().empty()) return;
    const double cambio1 = CambioDi(f.Combo1);
    const double cambio2 = CambioDi(f.Combo2);
    const double euro = Dividi(ImportoDaTesto(f.ImDa.Text()), cambio1);
    f.Euros.SetText(Format(euro, ""));
    f.ImA.SetText(Format(euro * cambio2, ""));
}
