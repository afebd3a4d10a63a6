#include "cheques/Form14.h"

#include "cheques/Form15.h"
#include "cheques/Form3.h"
#include "shell/Applicazione.h"
#include "shell/Colori.h"
#include "store/Date.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include <string>

Form14::Form14() {
    S.Figlio = false;
    List1.Sorted = true;
    S.Load = [this] { ColoriElenchi({&List1}); };
    Command3D2.Enabled = false;
    // Opened from Form9 the list only shows: a pick does nothing but close it.
    auto scegli = [this] {
        if (Stato.ChiamanteCarnet != 4) CaricaCarnet();
        S.Hide();
    };
    List1.Click = [this] { Command3D2.Enabled = true; };
    List1.DblClick = scegli;
    Command3D2.Click = scegli;
    Command3D1.Click = [this] { S.Hide(); };
}

namespace {
void InForm3(const RecCarnet& c) {
    Form3& f = App().Form3;
    PartiData p = DividiData(c.DataCarnet);
    f.DataCarnet.SetText(TestoData(p.giorno, p.mese, p.anno));
    // The stored figure as it stands, without the rate.
    f.CostoCarnet.SetText(CostoFormattato(c.CostoCarnet));
    f.NrInf.SetText(std::to_string(c.NrInf));
    f.NrCarnet.SetText(std::to_string(c.NrCarnet));
    f.NrFinale.SetText(std::to_string(c.NrFinale));
    f.NrFogli.SetText("10");
    Stato.FlagOperazione = 1;
}

void InForm15(const RecCarnet& c) {
    Form15& f = App().Form15;
    f.NrCarnet.SetText(std::to_string(c.NrCarnet));
    f.NrFogliCarnet.SetText(std::to_string(c.NrFinale - c.NrInf + 1));
    ElencaFogli();
    PrimoFoglioLibero();
    Stato.CarnetScelto = 1;
    Stato.ChiamanteCarnet = 0;
    Stato.CarnetCorrente = 0;
}
} // namespace

void CaricaCarnet() {
    const Controllo& lista = App().Form14.List1;
    const double numero = Val(Left(lista.List(lista.ListIndex()), 4));
    short& i = Stato.CarnetCorrente;
    for (i = 1; i <= Stato.NumCarnet; ++i)
        if (Stato.Carnet[i].NrCarnet == numero) break;
    const RecCarnet& c = Stato.Carnet[i];
    if (Stato.ChiamanteCarnet != 1)
        InForm3(c);
    else
        InForm15(c);
}
