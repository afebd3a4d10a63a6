#include "interest/Form26.h"

#include "interest/Condizioni.h"
#include "interest/Staffa.h"
#include "interest/StampaCondizioni.h"
#include "ledger/Form9.h"
#include "shell/Applicazione.h"
#include "store/Date.h"
#include "store/Formato.h"
#include "store/Guasto.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include <utility>
#include <vector>

namespace {
// The frequency pairs of the fixed charges, in the order of IMPORTO1 to IMPORTO7.
std::vector<std::pair<Controllo*, Controllo*>> Frequenze(Form26& f) {
    return {{&f.Option1, &f.Option2},  {&f.Option3, &f.Option4},  {&f.Option5, &f.Option6},
            {&f.Option7, &f.Option8},  {&f.Option9, &f.Option10}, {&f.Option11, &f.Option12},
            {&f.Option13, &f.Option14}};
}

std::vector<Fisso<1>*> CampiFrequenza(RecSpeseVarie& s) {
    return {&s.Frequenza1, &s.Frequenza2, &s.Frequenza3, &s.Frequenza4,
            &s.Frequenza5, &s.Frequenza6, &s.Frequenza7};
}

std::vector<std::pair<Controllo*, double*>> Importi(Form26& f, RecSpeseVarie& s) {
    return {{&f.IMPORTO1, &s.IMPORTO1}, {&f.IMPORTO2, &s.IMPORTO2}, {&f.IMPORTO3, &s.IMPORTO3},
            {&f.IMPORTO4, &s.IMPORTO4}, {&f.IMPORTO5, &s.IMPORTO5}, {&f.IMPORTO6, &s.IMPORTO6},
            {&f.IMPORTO7, &s.IMPORTO7}};
}

// Every rate field with its place in the records.
std::vector<std::pair<Controllo*, float*>> Tassi(Form26& f) {
    auto& c = Stato.TassiCreditori;
    auto& d = Stato.TassiDebitori;
    auto& o = Stato.OneriPassivi;
    return {
        {&f.Per1, &o.Per1},     {&f.Per2, &o.Per2},   {&f.Per3, &o.Per3},   {&f.Per4, &o.Per4},
        {&f.Per5, &o.Per5},     {&f.Per6, &o.Per6},   {&f.Per7, &o.Per7},   {&f.PerD1, &d.PerD1},
        {&f.PerD2, &d.PerD2},   {&f.PerD3, &d.PerD3}, {&f.PerD4, &d.PerD4}, {&f.PerD5, &d.PerD5},
        {&f.PerD6, &d.PerD6},   {&f.PerD7, &d.PerD7}, {&f.PerD8, &d.PerD8}, {&f.PerD9, &d.PerD9},
        {&f.PerD10, &d.PerD10}, {&f.PerC1, &c.PerC1}, {&f.PerC2, &c.PerC2}, {&f.PerC3, &c.PerC3},
        {&f.PerC4, &c.PerC4},   {&f.PerC5, &c.PerC5}};
}

// The date fields in the order Conferma checks them: the debit tab first.
std::vector<std::pair<Controllo*, Fisso<10>*>> Date(Form26& f) {
    auto& c = Stato.TassiCreditori;
    auto& d = Stato.TassiDebitori;
    return {{&f.DATAD1, &d.DATAD1}, {&f.DATAD2, &d.DATAD2}, {&f.DATAD3, &d.DATAD3},
            {&f.DATAD4, &d.DATAD4}, {&f.DATAD5, &d.DATAD5}, {&f.DataC1, &c.DataC1},
            {&f.DataC2, &c.DataC2}, {&f.DataC3, &c.DataC3}, {&f.DataC4, &c.DataC4},
            {&f.DataC5, &c.DataC5}};
}

// A typed number that is no number leaves the stored value as it was. Amounts are typed in the
// currency in use and kept in Euro.
void AssegnaNumero(float& campo, const std::string& testo) {
    IgnoraErrori({[&] { campo = static_cast<float>(ImportoDaTesto(testo)); }});
}
void AssegnaNumero(double& campo, const std::string& testo, double cambio) {
    IgnoraErrori({[&] { campo = Dividi(ImportoDaTesto(testo), cambio); }});
}

void ApriForm28(short quale) {
    Stato.FlagOperazione = quale;
    App().Form28.S.Show(true);
}
} // namespace

Form26::Form26() {
    // Enter goes on along the row and down the column; the last field of the tab stays.
    for (Controllo* c : S.Controlli()) {
        if (c->tipo != TipoControllo::Campo && c->tipo != TipoControllo::Data) continue;
        c->KeyPress = [this, c](int& tasto) {
            if (tasto != TastoInvio) return;
            tasto = 0;
            for (Controllo* p = S.Successivo(c); p && p != c; p = S.Successivo(p))
                if (p->tipo == TipoControllo::Campo || p->tipo == TipoControllo::Data) {
                    p->SetFocus();
                    return;
                }
        };
    }
    for (auto [primo, secondo] : Frequenze(*this)) {
        primo->Gruppo = secondo->Gruppo = primo->nome;
        primo->ToolTipText = "Trimestrale";
        secondo->ToolTipText = "Annuale";
    }
    for (Controllo* c : {&Tri, &Seme, &Ann})
        c->Gruppo = "chiusura";
    const char* anni[] = {"Anno finanziario (360 gg)", "Anno civile (365 gg)"};
    for (int i = 0; i <= 3; ++i) {
        giorni(i).SetText(anni[i % 2]);
        giorni(i).Gruppo = i < 2 ? "debitori" : "creditori";
        divisore(i).SetText("dividi x " +
                            std::string("1000").substr(0, static_cast<std::size_t>(i + 1)));
        divisore(i).Gruppo = "divisore";
    }
    for (Controllo* c : {&Descr1, &Descr2, &Descr3, &Descr4})
        c->MaxLength = 25;
    IndInter.MaxLength = 100;
    Descr3.ToolTipText = Descr4.ToolTipText = "Doppio clic per opzioni";
    Descr3.DblClick = [] { ApriForm28(1); };
    Descr4.DblClick = [] { ApriForm28(2); };

    OKi.Click = [this] { ConfermaCondizioni(*this); };
    Esc.Click = [this] {
        S.UnloadMe();
        Stato.FlagOperazione = 0;
    };
    PulStampe.Click = StampaCondizioni;
    S.Load = [this] {
        CaricaCondizioni();
        banca.SetText(RTrim(Stato.Conti[Stato.IndiceConto].NomeBanca));
        MostraCondizioni(*this);
    };
}

void MostraCondizioni(Form26& f) {
    auto& o = Stato.OpzioniCalcolo;
    auto& p = Stato.OneriPassivi;
    auto& s = Stato.SpeseVarie;
    // A field that can't be filled is left as it is and the others go on.
    std::vector<std::function<void()>> passi;
    for (auto [campo, data] : Date(f))
        passi.push_back([campo = campo, data = data] { campo->SetText(Trim(*data)); });
    for (auto [campo, tasso] : Tassi(f))
        passi.push_back([campo = campo, tasso = tasso] { campo->SetText(TestoTasso(*tasso)); });
    for (auto [campo, importo] : Importi(f, s))
        passi.push_back([campo = campo, importo = importo] {
            campo->SetText(Format(*importo * Stato.Cambio, Stato.FormatoImporti));
        });
    auto frequenze = Frequenze(f);
    auto campi = CampiFrequenza(s);
    for (std::size_t k = 0; k < frequenze.size(); ++k)
        passi.push_back([&frequenze, &campi, k] {
            bool trimestrale = Val(*campi[k]) == 1;
            (trimestrale ? frequenze[k].first : frequenze[k].second)->SetValue(true);
        });
    passi.push_back([&] {
        f.Descr1.SetText(RTrim(s.Descr1));
        f.Descr2.SetText(RTrim(s.Descr2));
        f.Descr3.SetText(RTrim(p.Descr3));
        f.Descr4.SetText(RTrim(p.Descr4));
        f.NrScritt.SetText(Trim(Str(o.NrScritt)));
        f.IndInter.SetText(RTrim(o.IndInter));
        f.giorni(o.GiorniDebitori == "1" ? 0 : 1).SetValue(true);
        f.giorni(o.GiorniCreditori == "1" ? 2 : 3).SetValue(true);
    });
    passi.push_back([&] { f.divisore(o.Divisore - 1).SetValue(true); });
    for (auto& passo : passi)
        IgnoraErrori({passo});
}

void ConfermaCondizioni(Form26& f) {
    auto date = Date(f);
    for (std::size_t k = 0; k < date.size(); ++k) {
        Controllo& campo = *date[k].first;
        // The first date of each table is required; the others only when filled.
        bool prima = k == 0 || k == 5;
        if (!prima && DataVuota(campo.Text())) continue;
        if (!ControllaCampoData(campo)) {
            campo.SetFocus();
            return;
        }
    }

    auto& o = Stato.OpzioniCalcolo;
    auto& p = Stato.OneriPassivi;
    auto& s = Stato.SpeseVarie;
    o.FrequenzaChiusura = f.Tri.Value() ? "1" : f.Seme.Value() ? "2" : f.Ann.Value() ? "3" : " ";
    IgnoraErrori({[&] { o.NrScritt = Intero16(ImportoDaTesto(f.NrScritt.Text())); }});
    o.IndInter = f.IndInter.Text();
    o.GiorniDebitori = f.giorni(0).Value() ? "1" : "2";
    o.GiorniCreditori = f.giorni(2).Value() ? "1" : "2";
    for (int i = 3; i >= 0; --i)
        if (f.divisore(i).Value()) o.Divisore = static_cast<std::int16_t>(i + 1);
    p.Descr3 = f.Descr3.Text();
    p.Descr4 = f.Descr4.Text();
    for (auto [campo, importo] : Importi(f, s))
        AssegnaNumero(*importo, campo->Text(), Stato.Cambio);
    auto frequenze = Frequenze(f);
    auto campi = CampiFrequenza(s);
    for (std::size_t k = 0; k < frequenze.size(); ++k)
        *campi[k] = frequenze[k].first->Value() ? "1" : "0";
    s.Descr1 = f.Descr1.Text();
    s.Descr2 = f.Descr2.Text();
    for (auto [campo, data] : date)
        *data = campo->Text();
    for (auto [campo, tasso] : Tassi(f))
        AssegnaNumero(*tasso, campo->Text());
    SalvaCondizioni();

    Form28& opzioni = App().Form28;
    if (opzioni.S.Caricato()) opzioni.S.UnloadMe();
    f.S.UnloadMe();
    Stato.FlagOperazione = 0;
}

void CollegaMenuInteressi(MDIForm1& f) {
    f.IntCost.Click = [] { App().Form26.S.Show(); };
    f.stf.Click = [] { App().Staffa.S.Show(); };
}
