#include "ledger/Immissione.h"

#include "ledger/Form9Rinvii.h"
#include "ledger/Registro.h"
#include "refdata/Causali.h"
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
// The amount of the line as it is stored: the typed figure divided by the rate in use.
double ImportoDigitato() { return ImportoInEuro(ImportoDaTesto(App().Form9.IMPORTO.Text())); }

// The fields of the line into a movement; Annullato is the caller's.
void RiempiMovimento(RecMovimento& m, short numero, double importo) {
    const Form9& f = App().Form9;
    m.NrOper = numero;
    m.DataOper = f.DataOper.Text();
    m.DataValuta = f.DataValuta.Text();
    m.Causale = f.Causale.Text();
    m.IMPORTO = importo;
    m.NrDoc = f.NrDoc.Text();
    m.DescMovim = f.DescMovim.Text();
    m.Sospeso = f.Sospeso.Text();
    m.D_A = f.D_A.Text();
}

// After a save or a cancelled transfer: an empty line for the next movement.
void RigaPronta() {
    Form9& f = App().Form9;
    SvuotaRiga();
    f.Del.Enabled = false;
    f.DataOper.SetFocus();
}

void NuovoMovimento() {
    Form9& f = App().Form9;
    if (Stato.NumConti > 1 && f.Causale.Text() == "GC") {
        MostraGiroconto();
        if (Stato.FlagOperazione == 1) {
            Stato.FlagOperazione = 0;
            // The scratch place is given up before DataOper takes the focus and counts the
            // movements of .MOR again.
            --Stato.NumMovimenti;
            RigaPronta();
            Piattaforma().Clessidra(false);
            return;
        }
    }
    AggiungiMovimento();
    RigaPronta();
    EstremiOperazione();
    ScriviOrd();
    Piattaforma().Clessidra(false);
}

void CambioDelMovimento() {
    if (App().Form9.Causale.Text() == "GC")
        Piattaforma().MsgBox("Attenzione! si sta modificando una operazione di giroconto. Il "
                             "movimento effettuato sul conto di destinazione dovrà essere "
                             "corretto manualmente.",
                             "AVVERTIMENTO", Icona::Esclamazione, Pulsanti::OK, 0);
    --Stato.NumMovimenti;
    ModificaMovimento();
    Piattaforma().Clessidra(false);
}
} // namespace

void ControllaCausale() {
    Form9& f = App().Form9;
    short i = CercaCausale(f.Causale.Text());
    if (i > Stato.NumCausali) {
        // No causale at all is allowed: the movement then has none.
        if (f.Causale.Text().empty()) return;
        Piattaforma().MsgBox("CODICE CAUSALE NON PRESENTE!", "ERRORE", Icona::Nessuna,
                             Pulsanti::OK, 0);
        f.Causale.SetFocus();
        return;
    }
    const RecCausale& causale = Stato.Causali[i];
    f.Causale.SetText(RTrim(causale.CodCausale));
    f.DescrCausale.SetText(RTrim(causale.DescCausale));
    if (f.Sospeso.Text() != "N") f.Sospeso.SetText(causale.Sospeso);
    // A transfer keeps the direction given to it by the picker or by the user.
    if (RTrim(causale.CodCausale) != "GC") f.D_A.SetText(causale.DareAvere);
}

// A required date of the line left empty: refused, with the focus there.
bool DataMancante(Controllo& campo, const char* messaggio) {
    if (!DataVuota(campo.Text())) return false;
    Piattaforma().Beep();
    Piattaforma().MsgBox(messaggio, "ERRORE", Icona::Nessuna, Pulsanti::OK, 0);
    campo.SetFocus();
    return true;
}

// A date of the line that isn't one has been emptied, and takes the focus.
bool DataErrata(Controllo& campo) {
    if (ControllaCampoData(campo)) return false;
    campo.SetFocus();
    return true;
}

void AllargaDaSelezione() {
    // The selection may reach beyond the working dates: they widen, never narrow.
    Form9& f = App().Form9;
    if (NumeroData(f.DataInizSel.Text()) < NumeroData(Stato.PrimaDataOperazione)) {
        Stato.PrimaDataOperazione = f.DataInizSel.Text();
        f.DataInizSel.SetText(Stato.PrimaDataOperazione);
    }
    if (NumeroData(f.DataFineSel.Text()) > NumeroData(Stato.UltimaDataOperazione)) {
        Stato.UltimaDataOperazione = f.DataFineSel.Text();
        f.DataFineSel.SetText(Stato.UltimaDataOperazione);
        App().MDIForm1.UltimaData.SetText(Stato.UltimaDataOperazione);
    }
}

void ConfermaMovimento() {
    Form9& f = App().Form9;
    if (DataMancante(f.DataOper, "Campo data operazione obbligatorio")) return;
    if (DataMancante(f.DataValuta, "Campo data Valuta obbligatorio")) return;
    if (DataErrata(f.DataOper) || DataErrata(f.DataValuta)) return;
    Piattaforma().Clessidra(true);

    AllargaDaSelezione();

    if (f.IMPORTO.Text().empty()) {
        Piattaforma().MsgBox("Campo Importo obbligatorio", "", Icona::Nessuna, Pulsanti::OK, 0);
        f.IMPORTO.SetFocus();
        return;
    }

    // The amount is converted before the count moves, so that a failure of the conversion (a
    // rate of 0, a text that is no number) leaves the count as in .MOR.
    const double importo = ImportoDigitato();
    Stato.NumMovimenti = Intero16(Stato.NumMovimenti + 1.0);
    // Filled also for a change, as a scratch place past the end; a mark "S" already there stays.
    RecMovimento& m = Stato.Movimenti[Stato.NumMovimenti];
    RiempiMovimento(m, Stato.NumMovimenti, importo);
    if (m.Annullato != "S") m.Annullato = "N";

    // Against the count already raised: a change of the last movement is still a change.
    if (Stato.MovimentoCorrente < 1 || Stato.MovimentoCorrente >= Stato.NumMovimenti)
        NuovoMovimento();
    else
        CambioDelMovimento();
}

void ModificaMovimento() {
    Form9& f = App().Form9;
    f.Del.Enabled = true;
    const short n = Stato.MovimentoCorrente;
    RecMovimento& m = Stato.Movimenti[n];
    RiempiMovimento(m, n, ImportoDigitato());
    m.Annullato = "N";
    ConRecord(NomeFileConto(".MOV"), RecMovimento::Lunghezza, 1, [&] { ScriviRecord(m, n, 1); });

    // .Ord follows the list as it stands, before the refill.
    ScriviOrd();
    if (!f.Command1.Enabled) ElencaPerOperazione();
    else ElencaPerValuta();
    // The buttons claim the order by operation date whatever list is on view.
    f.Command2.Enabled = true;
    f.Command1.Enabled = false;

    f.Del.Enabled = false;
    f.Del.SetText("Del");
    SvuotaRiga();
    f.DataOper.SetFocus();
    ApplicaMovimento(m.DataValuta, m.DataOper, m.IMPORTO, m.D_A, m.Sospeso);
    Stato.MovimentoCorrente = 0;
}

void CaricaMovimentoInMaschera() {
    Form9& f = App().Form9;
    const Controllo& lista = f.ElencoMovim.Visible ? f.ElencoMovim : f.elencoValuta;
    const int numero = NumeroDaRiga(lista.List(lista.ListIndex()));
    long i = 1;
    while (Stato.Movimenti[i].NrOper != numero) ++i;
    Stato.MovimentoCorrente = Intero16(i);
    const RecMovimento& m = Stato.Movimenti[i];

    f.NrOper.SetText(std::to_string(m.NrOper));
    f.DataOper.SetText(RTrim(m.DataOper));
    f.DataValuta.SetText(RTrim(m.DataValuta));
    f.Causale.SetText(RTrim(m.Causale));
    // Every slot of the table is looked at: with a code in use twice the last one tells.
    for (long j = 1; j <= Stato.Causali.Limite(); ++j)
        if (Stato.Causali[j].CodCausale == m.Causale)
            f.DescrCausale.SetText(RTrim(Stato.Causali[j].DescCausale));
    f.Sospeso.SetText(RTrim(m.Sospeso));
    f.D_A.SetText(RTrim(m.D_A));
    f.IMPORTO.SetText(Format(m.IMPORTO * Stato.Cambio, Stato.FormatoImporti));
    f.NrDoc.SetText(RTrim(m.NrDoc));
    f.DescMovim.SetText(RTrim(m.DescMovim));

    StornaMovimento(m.DataValuta, m.DataOper, m.IMPORTO, m.D_A, m.Sospeso);
    // A movement marked for elimination can be recovered.
    if (m.Annullato == "S") f.Del.SetText("Rec");
}

void PulisciImmissione() {
    Form9& f = App().Form9;
    SvuotaRiga();
    f.NrOper.SetText(std::to_string(Stato.NumMovimenti));
    f.ElencoMovim.SetListIndex(-1);
    f.elencoValuta.SetListIndex(-1);
    f.Del.SetText("Del");
    f.Del.Enabled = false;
    f.DataOper.SetFocus();
    // With nothing loaded this is the blank element 0: the balances are only redrawn and saved.
    const RecMovimento& m = Stato.Movimenti[Stato.MovimentoCorrente];
    ApplicaMovimento(m.DataValuta, m.DataOper, m.IMPORTO, m.D_A, m.Sospeso);
    Stato.MovimentoCorrente = 0;
}

void SvuotaRiga() {
    Form9& f = App().Form9;
    f.DataOper.SetText(DataVuotaMaschera);
    f.DataValuta.SetText(DataVuotaMaschera);
    for (Controllo* c : {&f.Causale, &f.DescrCausale, &f.IMPORTO, &f.NrDoc, &f.DescMovim,
                         &f.Sospeso, &f.D_A})
        c->SetText("");
}
