#include "refdata/Form25.h"

#include "refdata/Valute.h"
#include "shell/Applicazione.h"
#include "store/Formato.h"
#include "store/Guasto.h"
#include "store/Stato.h"

namespace {
// "blocca i dati": while ticked the rates can't be typed over.
void BloccaDati(Form25& f) {
    for (int i = 0; i < 14; ++i)
        f.Box(i).Enabled = !f.Check1.Value();
}
} // namespace

Form25::Form25()
    : box_{&Box0, &Box1, &Box2, &Box3,  &Box4,  &Box5,  &Box6,
           &Box7, &Box8, &Box9, &Box10, &Box11, &Box12, &Box13} {
    struct Comando {
        Controllo* pulsante;
        short record;
    };
    const Comando comandi[] = {
        {&SSCommand9, 1},   {&SSCommand4, 2},   {&SSCommand7, 3},   {&SSCommand5, 4},
        {&SSCommand3, 5},   {&SSCommand2, 6},   {&SSCommand1, 7},   {&SSCommand8, 8},
        {&SSCommand12, 9},  {&SSCommand6, 10},  {&SSCommand10, 11}, {&SSCommand11, 12},
        {&SSCommand14, 13}, {&SSCommand15, 14},
    };
    for (const Comando& c : comandi) {
        const short record = c.record;
        c.pulsante->Click = [record] { ConfermaValuta(record); };
    }
    for (Controllo* b : box_)
        b->ToolTipText = "Rapporto di parità con l'Euro";
    // The rates start locked, so that opening the screen can't change one by mistake.
    Check1.SetValue(true);

    S.Load = [this] {
        LeggiTabellaValute();
        for (short n = 1; n <= 14; ++n)
            Box(n - 1).SetText(Format(Stato.Valute[n].Cambio, ""));
        BloccaDati(*this);
    };
    Check1.Click = [this] { BloccaDati(*this); };
    Command3D8.Click = [this] { S.UnloadMe(); };
}

Controllo& Form25::Box(int i) {
    if (i < 0 || i >= static_cast<int>(box_.size())) Errore(9);
    return *box_[static_cast<std::size_t>(i)];
}

void ConfermaValuta(short n) {
    RecValuta& valuta = Stato.Valute[n];
    valuta.Numero = n;
    valuta.Cambio = ImportoDaTesto(App().Form25.Box(n - 1).Text());
    valuta.Nome = ValuteFisse[n - 1].Nome;
    valuta.Paese = ValuteFisse[n - 1].Paese;
    ScriviValuta(n);
}
