#include "ledger/Form4.h"

#include "cheques/ElenchiAssegni.h"
#include "ledger/Form9.h"
#include "ledger/Immissione.h"
#include "ledger/Registro.h"
#include "refdata/Valute.h"
#include "shell/Applicazione.h"
#include "store/Date.h"
#include "store/FileRecord.h"
#include "store/Formato.h"
#include "store/Guasto.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include <string>

namespace {
void Svuota(Form4& f) {
    f.DataOper.SetText(DataVuotaMaschera);
    f.DataValuta.SetText(DataVuotaMaschera);
    for (Controllo* c :
         {&f.Causale, &f.DescrCausale, &f.IMPORTO, &f.NrDoc, &f.DescMovim, &f.NrOper})
        c->SetText("");
}

// The loaded movement back into the balances, as it stands in the table.
void Rimetti() {
    const RecMovimento& m = Stato.Movimenti[Stato.MovimentoCorrente];
    ApplicaMovimento(m.DataValuta, m.DataOper, m.IMPORTO, m.D_A, m.Sospeso);
}

// A date of 6 or 10 characters that is a date, written back as "DD/MM/YYYY"; otherwise emptied.
bool DataBuona(Controllo& campo) {
    const int n = Len(campo.Text());
    if (n != 6 && n != 10) {
        MessaggioDataBreve();
        campo.SetText("");
        campo.SetFocus();
        return false;
    }
    if (ControllaCampoData(campo)) return true;
    campo.SetFocus();
    return false;
}

// The sheet tied to the movement is cleared with the statement's amount; its book counts the
// sheets still out. The book number is taken as a position in the table of the books.
void AllineaAssegno(double importo) {
    const short corrente = Stato.MovimentoCorrente;
    short b = 0;
    IgnoraErrori({
        [&] {
            ConRecord(NomeFileConto(".FOG"), RecAssegno::Lunghezza, 3, [&] {
                for (long k = 1; k <= Stato.NumAssegni; ++k) {
                    RecAssegno& a = Stato.Assegni[k];
                    if (a.NrMovimento != corrente) continue;
                    a.Allineato = "S";
                    a.IMPORTO = importo;
                    ScriviRecord(a, k, 3);
                    b = a.NrCarnet;
                    return;
                }
            });
        },
        [&] {
            int c = 0;
            for (long k = 1; k <= Stato.NumAssegni; ++k)
                if (Stato.Assegni[k].NrCarnet == b && Stato.Assegni[k].Allineato == "S") ++c;
            RecCarnet& carnet = Stato.Carnet[b];
            carnet.FogliFuori = static_cast<std::int16_t>(10 - c);
            if (c == 0) carnet.CostoAllineato = "S";
            // With no sheet found b is 0, and record 0 fails and is skipped.
            ConRecord(NomeFileConto(".CAR"), RecCarnet::Lunghezza, 1,
                      [&] { ScriviRecord(carnet, b, 1); });
        },
    });
}
} // namespace

Form4::Form4() {
    pulisci.Enabled = false;
    S.Load = [this] { IMPORTO.SetText(""); };

    ElencoMovim.DblClick = [this] {
        CaricaSospeso();
        pulisci.Enabled = true;
        ElencoMovim.Enabled = false;
    };
    for (Controllo* data : {&DataOper, &DataValuta})
        data->KeyPress = [](int& tasto) {
            if ((tasto >= '0' && tasto <= '9') || tasto == TastoBackspace || tasto == '/') return;
            Piattaforma().Beep();
            tasto = 0;
        };
    Causale.KeyPress = [this](int& tasto) {
        if (tasto != TastoInvio) return;
        tasto = 0;
        IMPORTO.SetFocus();
    };

    OK.Click = [this] {
        if (DataOper.Text() == DataVuotaMaschera) {
            DataOper.SetFocus();
            return;
        }
        // Put back before the checks, on every press: a refused press and a second one apply
        // the movement twice until the next rebuild.
        Rimetti();
        if (DataMancante(DataOper, "Campo data operazione obbligatorio")) return;
        if (DataMancante(DataValuta, "Campo data Valuta obbligatorio")) return;
        if (!DataBuona(DataOper) || !DataBuona(DataValuta)) return;
        if (IMPORTO.Text().empty()) {
            Piattaforma().MsgBox("Campo Importo obbligatorio", "", Icona::Nessuna, Pulsanti::OK, 0);
            IMPORTO.SetFocus();
            return;
        }
        IgnoraErrori({SalvaAllineamento, ElencaSituazione});
        ElencoMovim.Enabled = true;
        ElencoMovim.SetFocus();
    };
    pulisci.Click = [this] {
        Rimetti();
        Svuota(*this);
        ElencoMovim.SetListIndex(-1);
        ElencoMovim.Enabled = true;
        ElencoMovim.SetFocus();
        Stato.MovimentoCorrente = 0;
    };
    // A movement still loaded stays out of the balances until the next rebuild.
    Esc.Click = [this] {
        Piattaforma().Clessidra(true);
        if (App().Form9.Command2.Enabled)
            ElencaPerValuta();
        else
            ElencaPerOperazione();
        Piattaforma().Clessidra(false);
        S.Hide();
    };
    Command3D1.Click = [] {
        Stato.ChiamanteCausale = 1;
        App().FORM12.S.Show(true);
    };
}

void ElencaSospesi() {
    Form4& f = App().Form4;
    f.S.Carica();
    f.ElencoMovim.Clear();
    std::string descrizione;
    for (long i = 1; i <= Stato.NumMovimenti; ++i) {
        const RecMovimento& m = Stato.Movimenti[i];
        if (m.Sospeso != "S") continue;
        // An unknown causale keeps the description of the line before.
        for (long j = 1; j <= Stato.NumCausali; ++j)
            if (RTrim(Stato.Causali[j].CodCausale) == RTrim(m.Causale)) {
                descrizione = Stato.Causali[j].DescCausale;
                break;
            }
        f.ElencoMovim.AddItem(
            std::string(m.DataOper) + " " + std::string(m.DataValuta) + " " +
            Format(m.NrOper, "0000") + " " + Left(descrizione, 20) + "   " + std::string(m.D_A) +
            "  " + std::string(m.NrDoc) + " " +
            AllineaDestra(Format(m.IMPORTO * Stato.Cambio, Stato.FormatoImporti), 16));
    }
}

void CaricaSospeso() {
    Form4& f = App().Form4;
    const double numero = Val(Mid(f.ElencoMovim.List(f.ElencoMovim.ListIndex()), 22, 5));
    short& i = Stato.MovimentoCorrente;
    for (i = 1; Stato.Movimenti[i].NrOper != numero; ++i) {
    }
    const RecMovimento& m = Stato.Movimenti[i];
    f.NrOper.SetText(std::to_string(m.NrOper));
    f.DataOper.SetText(m.DataOper);
    f.DataValuta.SetText(m.DataValuta);
    f.Causale.SetText(RTrim(m.Causale));
    for (long j = 1; j <= Stato.NumCausali; ++j)
        if (RTrim(Stato.Causali[j].CodCausale) == RTrim(m.Causale))
            f.DescrCausale.SetText(RTrim(Stato.Causali[j].DescCausale));
    f.D_A.SetText(m.D_A);
    f.IMPORTO.SetText(Format(Stato.Cambio * m.IMPORTO, Stato.FormatoImporti));
    f.NrDoc.SetText(RTrim(m.NrDoc));
    f.DescMovim.SetText(RTrim(m.DescMovim));
    StornaMovimento(m.DataValuta, m.DataOper, m.IMPORTO, m.D_A, m.Sospeso);
}

void SalvaAllineamento() {
    Form4& f = App().Form4;
    const short n = Stato.MovimentoCorrente;
    RecMovimento& m = Stato.Movimenti[n];
    m.NrOper = n;
    m.DataOper = f.DataOper.Text();
    m.DataValuta = f.DataValuta.Text();
    m.Causale = f.Causale.Text();
    m.NrDoc = f.NrDoc.Text();
    m.DescMovim = f.DescMovim.Text();
    m.IMPORTO = ImportoInEuro(ImportoDaTesto(f.IMPORTO.Text()));
    m.D_A = f.D_A.Text();
    m.Sospeso = "N";
    m.Annullato = "N";
    ConRecord(NomeFileConto(".MOV"), RecMovimento::Lunghezza, 1, [&] { ScriviRecord(m, n, 1); });
    if (f.Causale.Text() == "AS") AllineaAssegno(m.IMPORTO);
    ElencaSospesi();
    ElencaCarnet();
    Stato.SaldoAllineamento += m.D_A == "U" ? -m.IMPORTO : m.IMPORTO;
    Svuota(f);
    App().MDIForm1.Saldi(0).SetText(
        Format(Stato.SaldoAllineamento * Stato.Cambio, Stato.FormatoImporti));
    Stato.MovimentoCorrente = 0;
}

void MostraAllineamento() {
    ElencaSospesi();
    App().Form4.S.Show();
}
