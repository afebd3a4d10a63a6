#include "refdata/Form10.h"

#include "refdata/Conti.h"
#include "refdata/Form2.h"
#include "shell/Applicazione.h"
#include "store/Formato.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

Form10::Form10() {
    CodConto.KeyPress = FiltroNumeroConto;
    CapBanca.KeyPress = FiltroCifre;
    Fido.KeyPress = FiltroCifre;

    // Only a card filled from an account can be confirmed.
    Saldi.Enabled = false;
    Saldi.Click = ApriContoScelto;
    selezione.Click = [] { App().Form7.S.Show(); };
    Command3.Click = [this] {
        Stato.FlagOperazione = 0;
        S.UnloadMe();
    };
    S.Activate = [this] { Saldi.SetFocus(); };
}

namespace {
void RiempiScheda(Form10& f, const RecConto& conto) {
    f.S.Carica();
    f.CodConto.SetText(Trim(conto.CodConto));
    f.TipoConto.SetText(Trim(conto.TipoConto));
    f.NomeBanca.SetText(Trim(conto.NomeBanca));
    f.IndBanca.SetText(Trim(conto.IndBanca));
    f.CapBanca.SetText(Trim(conto.CapBanca));
    f.LocBanca.SetText(Trim(conto.LocBanca));
    f.ProvBanca.SetText(Trim(conto.ProvBanca));
    f.abi.SetText(Trim(conto.abi));
    f.Fido.SetText(Format(conto.Fido * Stato.Cambio, Stato.FormatoImporti));
    f.Saldi.Enabled = true;
}
} // namespace

void MostraSchedaConto(const std::string& numero) {
    Stato.IndiceConto = CercaConto(numero);
    Form10& f = App().Form10;
    RiempiScheda(f, Stato.Conti[Stato.IndiceConto]);

    if (Stato.ContoAperto) {
        Form9& e = App().Form9;
        e.DataOper.SetText(DataVuotaMaschera);
        e.DataValuta.SetText(DataVuotaMaschera);
        for (Controllo* c : {&e.Causale, &e.DescrCausale, &e.IMPORTO, &e.NrDoc, &e.DescMovim,
                             &e.Sospeso, &e.D_A})
            c->SetText("");
        e.NrOper.SetText(std::to_string(Stato.NumMovimenti));
    }
    f.S.Show();
}

void MostraSchedaSolaLettura(short indice) {
    Form10& f = App().Form10;
    RiempiScheda(f, Stato.Conti[indice]);
    Stato.FlagOperazione = 1;
    f.S.Show();
}

void ApriContoScelto() {
    Form10& f = App().Form10;
    if (Stato.FlagOperazione) {
        Stato.FlagOperazione = 0;
        f.S.UnloadMe();
        return;
    }
    Piattaforma().Clessidra(true);
    Stato.CodContoAperto = Trim(f.CodConto.Text());
    MDIForm1& m = App().MDIForm1;
    m.Codice.SetText(Stato.PercorsoDati + RTrim(f.CodConto.Text()));
    m.DescConto.SetText(RTrim(f.NomeBanca.Text()));
    m.Saldi(2).SetText(
        Format(Stato.Conti[Stato.IndiceConto].Fido * Stato.Cambio, Stato.FormatoImporti));
    AbilitaComandiConto(m, true);
    // Shown again, the entry screen comes to the front and loads the account.
    if (Stato.ContoAperto) App().Form9.S.Hide();
    App().Form9.S.Show();
    Piattaforma().Clessidra(false);
    App().Form7.S.UnloadMe();
    f.S.UnloadMe();
    Stato.FlagOperazione = 0;
}
