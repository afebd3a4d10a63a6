#include "interest/Form28.h"

#include "store/Stato.h"
#include "store/Testo.h"

namespace {
// The applied-to field of the charge that Form26 named.
Fisso<1>* CampoScelto() {
    auto& p = Stato.OneriPassivi;
    if (Stato.FlagOperazione == 1) return &p.ApplicaDescr3;
    if (Stato.FlagOperazione == 2) return &p.ApplicaDescr4;
    return nullptr;
}
} // namespace

Form28::Form28() {
    S.Figlio = false;
    const char* voci[] = {"Interessi creditori", "Interessi debitori", "Eccedenza fido",
                          "Numeri creditori",    "Numeri debitori",    "Massimo scoperto"};
    for (int i = 0; i <= 5; ++i)
        Option1(i).SetText(voci[i]);
    Option1(0).SetValue(true);

    S.Activate = [this] {
        Fisso<1>* campo = CampoScelto();
        int n = campo ? static_cast<int>(Val(*campo)) : 0;
        if (n >= 1 && n <= 6) Option1(n - 1).SetValue(true);
    };
    OK.Click = [this] {
        int scelta = 0;
        for (int i = 0; i <= 5; ++i)
            if (Option1(i).Value()) scelta = i;
        if (Fisso<1>* campo = CampoScelto()) *campo = std::to_string(scelta + 1);
        Stato.FlagOperazione = 0;
        S.UnloadMe();
    };
    Esc.Click = [this] { S.UnloadMe(); };
}
