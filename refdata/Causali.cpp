#include "refdata/Causali.h"

#include "refdata/FORM12.h"
#include "refdata/Form6.h"
#include "shell/Applicazione.h"
#include "store/FileRecord.h"
#include "store/Stato.h"
#include "store/Testo.h"

std::string RigaCausale(const RecCausale& causale) {
    return Giustifica(causale.CodCausale, 6) + " - " + causale.DescCausale.Testo();
}

short CercaCausale(const std::string& codice) {
    const std::string cercato = RTrim(codice);
    for (Stato.IndiceCausale = 1; Stato.IndiceCausale <= Stato.NumCausali; ++Stato.IndiceCausale)
        if (RTrim(Stato.Causali[Stato.IndiceCausale].CodCausale) == cercato) break;
    return Stato.IndiceCausale;
}

// The count is taken once its records are in: a spoiled counter leaves none counted unloaded.
void LeggiCausali() {
    short causali = LeggiContatore(NomeFileProgramma("RecCausa.dat"));
    ApriRecord(NomeFileProgramma("Causali.DAT"), RecCausale::Lunghezza, 1);
    LeggiRecords(Stato.Causali.righe, 1, causali, 1);
    ChiudiRecord(1);
    Stato.NumCausali = causali;
}

void ScriviCausale(short n, long record) {
    const RecCausale& causale = Stato.Causali[n];
    ApriRecord(NomeFileProgramma("Causali.DAT"), RecCausale::Lunghezza, 1);
    ScriviRecord(causale, record, 1);
    ChiudiRecord(1);
}

void RiempiElencoCausali(Controllo& lista) {
    while (lista.ListCount() > 0)
        lista.RemoveItem(0);
    for (short i = 1; i <= Stato.NumCausali; ++i)
        lista.AddItem(RigaCausale(Stato.Causali[i]));
}

void ElencaCausali() {
    if (App().Form6.S.Caricato()) RiempiElencoCausali(App().Form6.ElencoCausali);
    if (App().FORM12.S.Caricato()) RiempiElencoCausali(App().FORM12.List1);
}
