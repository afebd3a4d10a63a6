#include "ledger/Form9.h"

#include "ledger/CaricaConto.h"
#include "ledger/Registro.h"
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
    PartiData p = DividiData(testo);
    bool esito = true;
    VerificaData(p.giorno, p.mese, p.anno, esito);
    campo.SetText(esito ? TestoData(p.giorno, p.mese, p.anno) : DataVuotaMaschera);
}

// A working date taken apart and written again as "DD/MM/YYYY".
std::string Riscritta(const std::string& data) {
    PartiData p = DividiData(data);
    return TestoData(p.giorno, p.mese, p.anno);
}
} // namespace

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
        IMPORTO.SetText("");
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

    DataInizSel.KeyPress = FiltroData;
    DataFineSel.KeyPress = FiltroData;
    DataInizSel.LostFocus = [this] { LasciaData(DataInizSel); };
    DataFineSel.LostFocus = [this] { LasciaData(DataFineSel); };
}
