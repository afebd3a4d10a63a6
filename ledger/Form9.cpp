#include "ledger/Form9.h"

#include "ledger/Cancellazione.h"
#include "ledger/CaricaConto.h"
#include "ledger/ElencoMovimenti.h"
#include "ledger/Form9Rinvii.h"
#include "ledger/Immissione.h"
#include "ledger/Registro.h"
#include "shell/Applicazione.h"
#include "shell/Colori.h"
#include "store/Date.h"
#include "store/FileRecord.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include <string>

namespace {
// The selection fields take digits, backspace and "/" only.
void FiltroData(int& tasto) {
    bool ammesso = (tasto >= '0' && tasto <= '9') || tasto == TastoBackspace || tasto == '/';
    if (!ammesso) {
        Piattaforma().Beep();
        tasto = 0;
    }
}

// Leaving a selection field: an empty one becomes today; a complete one is checked and written
// back, or emptied when it's no date.
void LasciaData(Controllo& campo) {
    const std::string testo = campo.Text();
    if (DataVuota(testo)) {
        campo.SetText(Oggi());
        return;
    }
    if (Len(testo) != 10) {
        MessaggioDataBreve();
        campo.SetText(DataVuotaMaschera);
        campo.SetFocus();
        return;
    }
    ControllaCampoData(campo);
}

// A working date taken apart and written again as "DD/MM/YYYY".
std::string Riscritta(const std::string& data) {
    PartiData p = DividiData(data);
    return TestoData(p.giorno, p.mese, p.anno);
}

// A date of the line taking the focus: movements may have been added from the cheque screens,
// so the count is read again from .MOR; the typing starts afresh.
void EntraInData(Form9& f, std::string& tasti) {
    Stato.NumMovimenti = LeggiContatore(NomeFileConto(".MOR"));
    f.NrOper.SetText(std::to_string(Stato.NumMovimenti + 1));
    tasti.clear();
}

// Every key but backspace and Enter counts towards the four that complete the year.
void ContaTasto(std::string& tasti, int tasto) {
    if (tasto != TastoBackspace && tasto != TastoInvio) tasti += static_cast<char>(tasto);
}

// Four keys typed give day and month: the year is today's, and the typing goes on in `prossimo`.
void CompletaAnno(Controllo& campo, std::string& tasti, Controllo& prossimo) {
    if (tasti.size() != 4) return;
    campo.SetText(Left(campo.Text(), 6) + Right(Oggi(), 4));
    tasti.clear();
    prossimo.SetFocus();
}

// Enter moves on through the line and types nothing itself.
bool Invio(int& tasto) {
    if (tasto != TastoInvio) return false;
    tasto = 0;
    return true;
}
} // namespace

bool ControllaCampoData(Controllo& campo) {
    PartiData p = DividiData(campo.Text());
    bool esito = true;
    VerificaData(p.giorno, p.mese, p.anno, esito);
    campo.SetText(esito ? TestoData(p.giorno, p.mese, p.anno) : DataVuotaMaschera);
    return esito;
}

Form9::Form9() {
    Causale.MaxLength = 5;
    NrDoc.MaxLength = 8;
    DescMovim.MaxLength = 30;

    OK.ToolTipText = "Conferma";
    pulisci.ToolTipText = " Cancella immissione ";
    Del.ToolTipText = " Cancella ";
    Del.Enabled = false;
    Esc.ToolTipText = " Uscita ";
    Command3D1.ToolTipText = "Seleziona causali";
    Assegno.ToolTipText = " Gestione assegni ";
    BottCarnet.ToolTipText = " Gestione carnet ";
    SSCommand1.ToolTipText = "Archivio carnet";
    AssAnnull.ToolTipText = "Visualizza Assegni annullati ";

    for (Controllo* lista : {&ElencoMovim, &elencoValuta}) {
        lista->Sorted = true;
        lista->ToolTipText = "il doppio clic con il pulsante sinistro del mouse su un movimento "
                             "lo richiama in maschera per la modifica";
    }
    elencoValuta.Visible = false;

    DataInizSel.ToolTipText = "Data iniziale dei movimenti da selezionare";
    DataFineSel.ToolTipText = "Data finale dei movimenti da selezionare";
    Ag.ToolTipText = "Filtra i movimenti per date selezionate";
    Command3.ToolTipText = "Seleziona i movimenti compresi tra tutte le date inserite";
    Command1.ToolTipText = "Ordina i movimenti per data operazione";
    Command2.ToolTipText = "Ordina i movimenti per data valuta";
    // The list starts by operation date: its button is the disabled one.
    Command1.Enabled = false;

    S.Load = [this] {
        ColoriElenchi({&ElencoMovim, &elencoValuta});
        IMPORTO.SetText("");
        IMPORTO.Formato = Stato.FormatoImporti;
        if (Val(Stato.PrimaDataOperazione) == 0) {
            DataFineSel.SetText(Oggi());
            DataInizSel.SetText(Oggi());
        }
        Stato.ContoAperto = 1;
    };

    // Each time the screen comes to the front the account is loaded afresh, which also makes
    // room for 500 more movements.
    S.Activate = [this] {
        CaricaConto();
        AllargaEstremi();
        ElencaPerOperazione();
        ScriviOrd();
        DataInizSel.SetText(Stato.PrimaDataOperazione);
        DataFineSel.SetText(Stato.UltimaDataOperazione);
        Stato.ContoAperto = 1;
        Stato.NumMovimenti = LeggiContatore(NomeFileConto(".MOR"));
        NrOper.SetText(std::to_string(Stato.NumMovimenti + 1));
        if (!Trim(Stato.PrimaDataOperazione).empty()) {
            DataInizSel.SetText(Riscritta(Stato.PrimaDataOperazione));
            DataFineSel.SetText(Riscritta(Stato.UltimaDataOperazione));
        }
        DataOper.SetFocus();
        IMPORTO.SetText("");
        // The movement list, when it is up, follows the account just loaded.
        if (Stato.ElencoAperto) CostruisciElenco();
    };

    // The filter: while Ag is disabled the refill keeps the typed dates.
    Ag.Click = [this] {
        Ag.Enabled = false;
        try {
            if (!Command1.Enabled) ElencaPerOperazione();
            else ElencaPerValuta();
        } catch (...) {
            Ag.Enabled = true;
            throw;
        }
        Ag.Enabled = true;
        DataOper.SetFocus();
    };

    Command3.Click = [this] {
        if (Val(NrOper.Text()) > 1) {
            AllargaEstremi();
            if (!Command1.Enabled) ElencaPerOperazione();
            else ElencaPerValuta();
        }
        DataOper.SetFocus();
    };

    Command1.Click = [this] {
        if (DataVuota(DataInizSel.Text())) return;
        Command2.Enabled = true;
        EstremiOperazione();
        ElencaPerOperazione();
        Command1.Enabled = false;
        Label25.SetText("Elenco Movimenti per data Operazione");
    };

    Command2.Click = [this] {
        if (DataVuota(DataInizSel.Text())) return;
        Command1.Enabled = true;
        EstremiValuta();
        ElencaPerValuta();
        Command2.Enabled = false;
        Label25.SetText("Elenco Movimenti per data Valuta");
    };

    // The entry line, in the order of typing.
    DataOper.GotFocus = [this] { EntraInData(*this, TastiDataOper); };
    DataOper.KeyPress = [this](int& tasto) {
        ContaTasto(TastiDataOper, tasto);
        // From a date Enter moves on only once an amount has been typed.
        if (Invio(tasto) && !IMPORTO.Text().empty()) DataValuta.SetFocus();
    };
    DataOper.KeyUp = [this](int) { CompletaAnno(DataOper, TastiDataOper, DataValuta); };

    DataValuta.GotFocus = [this] { EntraInData(*this, TastiDataValuta); };
    DataValuta.KeyPress = [this](int& tasto) {
        ContaTasto(TastiDataValuta, tasto);
        if (Invio(tasto) && !IMPORTO.Text().empty()) Causale.SetFocus();
    };
    DataValuta.KeyUp = [this](int) { CompletaAnno(DataValuta, TastiDataValuta, Causale); };

    Causale.KeyPress = [this](int& tasto) {
        if (Invio(tasto)) IMPORTO.SetFocus();
    };
    // The cheque codes lead to their screens, which book their movements themselves.
    Causale.LostFocus = [this] {
        if (Causale.Text() == "AS") ApriAssegno();
        else if (Causale.Text() == "CA") ApriCarnet();
    };

    IMPORTO.GotFocus = ControllaCausale;
    IMPORTO.KeyPress = [this](int& tasto) {
        if (Invio(tasto) && !IMPORTO.Text().empty()) NrDoc.SetFocus();
    };

    NrDoc.KeyPress = [this](int& tasto) {
        if (Invio(tasto)) DescMovim.SetFocus();
    };
    NrDoc.Change = [this] {
        if (Len(NrDoc.Text()) >= 8) DescMovim.SetFocus();
    };

    // Enter at the end of the line confirms it.
    DescMovim.KeyPress = [](int& tasto) {
        if (Invio(tasto)) ConfermaMovimento();
    };
    DescMovim.Change = [this] {
        if (Len(DescMovim.Text()) >= 30) OK.SetFocus();
    };

    OK.Click = ConfermaMovimento;
    pulisci.Click = PulisciImmissione;
    Del.Click = CancellaMovimento;
    Esc.Click = [this] {
        S.Hide();
        App().MDIForm1.S.Show();
    };
    Command3D1.Click = [] { App().FORM12.S.Show(true); };
    Assegno.Click = GestioneAssegni;
    BottCarnet.Click = GestioneCarnet;
    SSCommand1.Click = ArchivioCarnet;
    AssAnnull.Click = AssegniAnnullati;

    // A movement double-clicked in either list comes into the line for a change.
    auto richiama = [this] {
        Del.Enabled = true;
        CaricaMovimentoInMaschera();
        if (Causale.Text() == "CA") ApriCarnet();
        else if (Causale.Text() == "AS") ApriAssegno();
    };
    ElencoMovim.DblClick = richiama;
    elencoValuta.DblClick = richiama;

    DataInizSel.KeyPress = FiltroData;
    DataFineSel.KeyPress = FiltroData;
    DataInizSel.LostFocus = [this] { LasciaData(DataInizSel); };
    DataFineSel.LostFocus = [this] { LasciaData(DataFineSel); };
}
