#include "interest/Staffa.h"

#include "interest/Competenze.h"
#include "interest/Condizioni.h"
#include "interest/Scala.h"
#include "ledger/Registro.h"
#include "store/Date.h"
#include "store/Guasto.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include <string>

namespace {
// A bad date takes `ripiego` and the focus, and stops the caller.
bool DataBuona(Controllo& campo, const std::string& ripiego) {
    PartiData p = DividiData(campo.Text());
    bool esito = true;
    VerificaData(p.giorno, p.mese, p.anno, esito);
    if (esito) {
        campo.SetText(TestoData(p.giorno, p.mese, p.anno));
        return true;
    }
    campo.SetText(ripiego);
    campo.SetFocus();
    return false;
}

void Trimestre(Staffa& f, const char* inizio, const char* fine) {
    std::string anno = Right(Oggi("dd/mm/yyyy"), 4);
    f.dal.SetText(inizio + anno);
    f.al.SetText(fine + anno);
}

// Without failures: a period that can't be read leaves the list empty.
void MostraLadder(Staffa& f) {
    IgnoraErrori({[&f] {
        ScalaValute s = CostruisciScala(f.dal.Text(), f.al.Text(), f.NSospesi.Value());
        f.List1.AggiungiRighe(MostraScala(s, f.al.Text()));
    }});
}
} // namespace

Staffa::Staffa() {
    Tutti.SetValue(true);
    for (Controllo* c : {&Command1, &Command3, &Command4, &Command5})
        c->ToolTipText = "Seleziona trimestre";
    Command3D4.ToolTipText = "Tutte le date";
    via.ToolTipText = "Staffa";
    Interessi.ToolTipText = "Calcolo interessi";
    Stampa.ToolTipText = "Stampa";
    Command2.ToolTipText = "Uscita";
    List3.Visible = false;
    mostra.Visible = false;

    dal.KeyPress = [this](int& tasto) {
        if (tasto != TastoInvio) return;
        tasto = 0;
        al.SetFocus();
    };
    al.KeyPress = [this](int& tasto) {
        if (tasto != TastoInvio) return;
        tasto = 0;
        via.SetFocus();
    };
    Command1.Click = [this] { Trimestre(*this, "01/01/", "31/03/"); };
    Command3.Click = [this] { Trimestre(*this, "01/04/", "30/06/"); };
    Command4.Click = [this] { Trimestre(*this, "01/07/", "30/09/"); };
    Command5.Click = [this] { Trimestre(*this, "01/10/", "31/12/"); };
    Command3D4.Click = [this] {
        dal.SetText(Stato.PrimaDataValuta);
        al.SetText(Stato.UltimaDataValuta);
    };
    via.Click = [this] { CalcolaStaffa(*this); };
    Interessi.Click = [this] { CalcolaCompetenze(*this); };
    Stampa.Click = [this] {
        if (List1.Visible)
            StampaStaffa();
        else
            StampaCompetenze();
    };
    Command2.Click = [this] { S.UnloadMe(); };

    S.Load = [this] {
        CaricaCondizioni();
        EstremiValuta();
        const RecRiporto& riporto = Stato.Riporto[1];
        bool conRiporto = NumeroData(Trim(riporto.DataRiporto)) != 0;
        dal.SetText(conRiporto ? riporto.DataRiporto.Testo() : Stato.PrimaDataValuta.Testo());
        al.SetText(Stato.UltimaDataValuta);
        MostraLadder(*this);
    };
}

bool ControllaPeriodo(Staffa& f) {
    return DataBuona(f.dal, Stato.PrimaDataOperazione) &&
           DataBuona(f.al, Stato.UltimaDataOperazione);
}

void CalcolaStaffa(Staffa& f) {
    if (!ControllaPeriodo(f)) return;
    f.List1.Clear();
    MostraLadder(f);
    f.List1.Visible = true;
    f.List3.Visible = false;
    f.mostra.Visible = false;
    f.SSPanel1.SetText("CALCOLO DELLA STAFFA");
}
