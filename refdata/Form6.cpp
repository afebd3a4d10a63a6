#include "refdata/Form6.h"

#include "refdata/Causali.h"
#include "shell/Applicazione.h"
#include "shell/Colori.h"
#include "store/FileRecord.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

namespace {
// The codes that the entry screen gives a meaning to: typed on their own, they always get
// these values.
struct CausaleProtetta {
    const char* codice;
    const char* descrizione;
};
constexpr CausaleProtetta Protette[] = {
    {"AS", "ASSEGNO"},
    {"CA", "CARNET"},
    {"GC", "GIROCONTO"},
};

void ForzaProtette(Form6& f) {
    for (const CausaleProtetta& p : Protette) {
        if (f.CodCausale.Text() != p.codice) continue;
        f.CodCausale.SetText(p.codice);
        f.DescCausale.SetText(p.descrizione);
        f.DarAver(1).SetValue(true);
        f.SospesoSiNo(0).SetValue(true);
        f.DarAver(2).SetValue(true);
    }
}

// Number, code, description and the three flags of the options into a slot.
void CausaleDaSchermo(Form6& f, RecCausale& causale, short numero) {
    causale.Numero = numero;
    causale.CodCausale = f.CodCausale.Text();
    causale.DescCausale = f.DescCausale.Text();
    causale.Sospeso = f.SospesoSiNo(0).Value() ? "S" : "N";
    causale.DareAvere = f.DarAver(0).Value() ? "E" : "U";
    causale.SoggettoCosto = f.DarAver(2).Value() ? "1" : "0";
}

void SvuotaCampi(Form6& f) {
    f.CodCausale.SetText("");
    f.DescCausale.SetText("");
}
} // namespace

Form6::Form6() {
    DarAver(0).SetText("Entrate");
    DarAver(1).SetText("Uscite");
    DarAver(2).SetText("si");
    DarAver(3).SetText("no");
    SospesoSiNo(0).SetText("si");
    SospesoSiNo(1).SetText("no");
    DarAver(0).Gruppo = DarAver(1).Gruppo = "DareAvere";
    DarAver(2).Gruppo = DarAver(3).Gruppo = "Frame1";
    SospesoSiNo(0).Gruppo = SospesoSiNo(1).Gruppo = "sospesp";
    // A new causale is subject to cost unless the user says otherwise, as the seeded ones are.
    DarAver(2).SetValue(true);
    ElencoCausali.Sorted = true;

    S.Load = [this] {
        DarAver(0).SetValue(true);
        SospesoSiNo(0).SetValue(true);
        RiempiElencoCausali(ElencoCausali);
        ColoriElenchi({&ElencoCausali});
    };
    S.Activate = [this] {
        Stato.IndiceCausale = 0;
        CodCausale.SetFocus();
    };
    CodCausale.Change = [this] {
        if (Len(CodCausale.Text()) >= 5) DescCausale.SetFocus();
    };
    DescCausale.Change = [this] {
        if (Len(DescCausale.Text()) >= 25) OK.SetFocus();
    };
    ElencoCausali.Click = [this] {
        if (ElencoCausali.ListIndex() >= 0) CausaleAlForm();
    };
    OK.Click = ConfermaCausale;
    pulisci.Click = [this] {
        ElencoCausali.SetListIndex(-1);
        SvuotaCampi(*this);
        CodCausale.SetFocus();
        Stato.IndiceCausale = 0;
    };
    esci.Click = [this] { S.UnloadMe(); };
    SSCommand1.Click = [] { App().ManutCaus.S.Show(); };
}

void ConfermaCausale() {
    Form6& f = App().Form6;
    ForzaProtette(f);
    if (f.CodCausale.Text().empty() || f.DescCausale.Text().empty()) {
        Piattaforma().Beep();
        Piattaforma().MsgBox("Campo codice e descrizione obbligatori", "ERRORE",
                             Icona::Esclamazione, Pulsanti::OK, 0);
        f.CodCausale.SetText("");
        f.CodCausale.SetFocus();
        return;
    }
    // The new slot is filled even for a change: past the end it is only a scratch place.
    ++Stato.NumCausali;
    CausaleDaSchermo(f, Stato.Causali[Stato.NumCausali], Stato.NumCausali);
    if (Stato.IndiceCausale >= 1 && Stato.IndiceCausale < Stato.NumCausali) {
        --Stato.NumCausali;
        AggiornaCausale();
    } else {
        SalvaCausale();
    }
}

void SalvaCausale() {
    Form6& f = App().Form6;
    // The typed text as it stands against the trimmed codes; the new slot itself, the last,
    // doesn't count.
    for (short j = 1; j <= Stato.NumCausali; ++j) {
        if (f.CodCausale.Text() == RTrim(Stato.Causali[j].CodCausale) && j < Stato.NumCausali) {
            Piattaforma().MsgBox("Nr di causale già presente", "ERRORE", Icona::Esclamazione,
                                 Pulsanti::OK, 0);
            --Stato.NumCausali;
            SvuotaCampi(f);
            f.CodCausale.SetFocus();
            return;
        }
    }
    ScriviCausale(Stato.NumCausali, Stato.NumCausali);
    ScriviContatore(NomeFileProgramma("RecCausa.dat"), Stato.NumCausali);
    const std::string riga = RigaCausale(Stato.Causali[Stato.NumCausali]);
    f.ElencoCausali.AddItem(riga);
    if (App().FORM12.S.Caricato()) App().FORM12.List1.AddItem(riga);
    SvuotaCampi(f);
}

void AggiornaCausale() {
    Form6& f = App().Form6;
    CausaleDaSchermo(f, Stato.Causali[Stato.IndiceCausale], Stato.IndiceCausale);
    ScriviCausale(Stato.IndiceCausale, Stato.IndiceCausale);
    ElencaCausali();
}

void CausaleAlForm() {
    Form6& f = App().Form6;
    const std::string riga = f.ElencoCausali.List(f.ElencoCausali.ListIndex());
    const RecCausale& causale = Stato.Causali[CercaCausale(Left(riga, 5))];
    f.CodCausale.SetText(RTrim(causale.CodCausale));
    f.DescCausale.SetText(RTrim(causale.DescCausale));
    if (causale.Sospeso == "S") f.SospesoSiNo(0).SetValue(true);
    if (causale.Sospeso == "N") f.SospesoSiNo(1).SetValue(true);
    if (causale.DareAvere == "E") f.DarAver(0).SetValue(true);
    if (causale.DareAvere == "U") f.DarAver(1).SetValue(true);
    if (causale.SoggettoCosto == "1") f.DarAver(2).SetValue(true);
    if (causale.SoggettoCosto == "0") f.DarAver(3).SetValue(true);
}
