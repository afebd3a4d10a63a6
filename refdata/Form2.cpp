#include "refdata/Form2.h"

#include "refdata/Conti.h"
#include "shell/Applicazione.h"
#include "shell/Colori.h"
#include "store/Formato.h"
#include "store/Guasto.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

namespace {
bool Cifra(int tasto) { return tasto >= '0' && tasto <= '9'; }

// A field that moves the focus on when `misurato` reaches `larghezza` characters (the field
// itself but for Cab and id, which look at abi) and on Enter, which is swallowed.
void Avanza(Controllo& campo, int larghezza, Controllo& prossimo, const Controllo& misurato) {
    campo.MaxLength = larghezza;
    campo.Change = [&misurato, larghezza, &prossimo] {
        if (Len(misurato.Text()) == larghezza) prossimo.SetFocus();
    };
    campo.KeyPress = [&prossimo](int& tasto) {
        if (tasto != TastoInvio) return;
        tasto = 0;
        prossimo.SetFocus();
    };
}
} // namespace

void FiltroNumeroConto(int& tasto) {
    if (tasto == '.' || tasto == '/' || tasto == '\\') {
        Piattaforma().Beep();
        tasto = 0;
    }
}

void FiltroCifre(int& tasto) {
    if (!Cifra(tasto) && tasto != TastoBackspace) {
        Piattaforma().Beep();
        tasto = 0;
    }
}

Form2::Form2() {
    Avanza(CodConto, 12, TipoConto, CodConto);
    Avanza(TipoConto, 30, NomeBanca, TipoConto);
    Avanza(NomeBanca, 45, IndBanca, NomeBanca);
    Avanza(IndBanca, 45, CapBanca, IndBanca);
    Avanza(CapBanca, 5, LocBanca, CapBanca);
    Avanza(LocBanca, 25, ProvBanca, LocBanca);
    Avanza(ProvBanca, 2, abi, ProvBanca);
    Avanza(abi, 10, Cab, abi);
    Avanza(Cab, 10, id, abi);
    Avanza(id, 10, Fido, abi);
    Avanza(Fido, 15, AddAnItem, Fido);

    // Enter on an empty number stays; Tab leaving it empty is refused.
    CodConto.KeyPress = [this](int& tasto) {
        FiltroNumeroConto(tasto);
        if (tasto != TastoInvio) return;
        tasto = 0;
        if (!CodConto.Text().empty()) TipoConto.SetFocus();
    };
    CodConto.LostFocus = [this] {
        if (!CodConto.Text().empty() || S.Fuoco() != &TipoConto) return;
        Piattaforma().MsgBox("Campo obbligatorio", "ERRORE", Icona::Esclamazione, Pulsanti::OK, 0);
        CodConto.SetText("");
        CodConto.SetFocus();
    };
    // The postal code takes digits only, Enter included among the refused keys.
    CapBanca.KeyPress = FiltroCifre;
    LocBanca.GotFocus = [this] {
        if (CapBanca.Text().empty()) CapBanca.SetText("0");
    };
    ProvBanca.LostFocus = [this] { ProvBanca.SetText(UCase(ProvBanca.Text())); };
    Fido.KeyPress = [this](int& tasto) {
        if (tasto == TastoInvio) {
            tasto = 0;
            AddAnItem.SetFocus();
            return;
        }
        FiltroCifre(tasto);
    };

    AddAnItem.Click = ConfermaConto;
    CLR.Click = AnnullaImmissione;
    Del.Click = [] {
        CancellaConto();
        AnnullaImmissione();
    };
    esci.Click = [this] {
        CodConto.Enabled = CodConto.Text().empty();
        S.UnloadMe();
    };

    Drive1.ToolTipText = "Seleziona il driver dove archiviare i dati";
    Dir1.ToolTipText = "Seleziona la directory dove archiviare i dati";
    NomeFile.ToolTipText = "percorso dati attualmente selezionato";
    ListaConti.ToolTipText = "Elenco dei conti presenti nel percorso selezionato";
    ListaConti.Sorted = true;
    // A double click puts the screen in change mode, in which the number is frozen.
    ListaConti.DblClick = [this] {
        CodConto.Enabled = false;
        Del.Enabled = true;
        SelezionaConto(ListaConti.List(ListaConti.ListIndex()));
    };

    CollegaScelta(Scelta);
    Scelta.Change = [this] { DirectoryScelta(Scelta, NomeFile); };
    S.Load = [this] {
        CodConto.Enabled = true;
        Del.Enabled = false;
        PreparaScelta(Scelta, Stato.PercorsoDati);
        ColoriElenchi({&ListaConti});
    };
    S.Activate = [this] { DirectoryScelta(Scelta, NomeFile); };
}

void CampiInConto(const Form2& f, RecConto& conto) {
    conto.CodConto = f.CodConto.Text();
    conto.TipoConto = f.TipoConto.Text();
    conto.NomeBanca = f.NomeBanca.Text();
    conto.IndBanca = f.IndBanca.Text();
    conto.CapBanca = f.CapBanca.Text();
    conto.LocBanca = f.LocBanca.Text();
    conto.ProvBanca = f.ProvBanca.Text();
    conto.abi = f.abi.Text();
    conto.Cab = f.Cab.Text();
    conto.id = f.id.Text();
    conto.Fido = f.Fido.Text().empty() ? 0 : Dividi(ImportoDaTesto(f.Fido.Text()), Stato.Cambio);
}

void SvuotaCampiConto(Form2& f, bool ancheCabId) {
    for (Controllo* c : {&f.CodConto, &f.TipoConto, &f.NomeBanca, &f.IndBanca, &f.CapBanca,
                         &f.LocBanca, &f.ProvBanca, &f.abi, &f.Cab, &f.id, &f.Fido})
        if (ancheCabId || (c != &f.Cab && c != &f.id)) c->SetText("");
}

void ConfermaConto() {
    Form2& f = App().Form2;
    // Blanks alone are no number: trimmed, they would name every file of the directory.
    if (Trim(f.CodConto.Text()).empty()) {
        Piattaforma().Beep();
        Piattaforma().MsgBox("Nr. di conto obbligatorio", "ERRORE", Icona::Nessuna, Pulsanti::OK,
                             0);
        f.CodConto.SetFocus();
        return;
    }
    // A frozen number is the account's own: only a new one is tested.
    if (f.CodConto.Enabled) {
        const std::string numero = RTrim(f.CodConto.Text());
        for (short i = 1; i <= Stato.NumConti; ++i) {
            if (RTrim(Stato.Conti[i].CodConto) != numero) continue;
            Piattaforma().MsgBox("Si è inserito un numero di conto già esistente, i dati "
                                 "inseriti non possono essere salvati. Cambiare il nr. di "
                                 "conto e riprovare.",
                                 "ERRORE", Icona::Nessuna, Pulsanti::OK, 0);
            f.CodConto.SetText("");
            f.CodConto.SetFocus();
            return;
        }
    }

    ++Stato.NumConti;
    RecConto& nuovo = Stato.Conti[Stato.NumConti];
    nuovo.Numero = Stato.NumConti;
    CampiInConto(f, nuovo);
    if (Stato.IndiceConto > 0 && Stato.IndiceConto < Stato.NumConti) {
        --Stato.NumConti;
        AggiornaConto();
        SvuotaCampiConto(f, true);
    } else {
        SalvaNuovoConto();
        SvuotaCampiConto(f, false);
    }
    f.CodConto.Enabled = true;
    f.CodConto.SetFocus();
}

void AnnullaImmissione() {
    Form2& f = App().Form2;
    SvuotaCampiConto(f, false);
    f.CodConto.Enabled = true;
    Stato.IndiceConto = 0;
}
