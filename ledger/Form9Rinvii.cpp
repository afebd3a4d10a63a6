#include "ledger/Form9Rinvii.h"

#include "cheques/ElenchiAssegni.h"
#include "shell/Applicazione.h"
#include "store/Stato.h"

void MostraGiroconto() {
    App().Giroconto.S.Show(true);
}

void ApriAssegno() {
    App().Form15.S.Show();
}

void ApriCarnet() {
    App().Form3.S.Show();
}

void GestioneAssegni() {
    Form15& f = App().Form15;
    f.S.Carica();
    f.DataAssegno.SetText(DataVuotaMaschera);
    f.traente.SetText("");
    f.S.Show();
}

void GestioneCarnet() {
    Form3& f = App().Form3;
    f.S.Carica();
    f.DataCarnet.SetText(DataVuotaMaschera);
    f.NrFogli.SetText("10");
    f.S.Show();
}

void ArchivioCarnet() {
    Stato.ChiamanteCarnet = 4;
    App().Form14.S.Show(true);
}

void AssegniAnnullati() {
    ElencaAnnullati();
    App().Form17.S.Show(true);
}
