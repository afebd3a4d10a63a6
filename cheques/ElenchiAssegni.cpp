#include "cheques/ElenchiAssegni.h"

#include "ledger/Registro.h"
#include "shell/Applicazione.h"
#include "store/FileRecord.h"
#include "store/Formato.h"
#include "store/Guasto.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include <string>

std::string RigaCarnet(const RecCarnet& c) {
    return Format(c.NrCarnet, "0000") + " " + std::string(c.DataCarnet) + " " +
           AllineaDestra(std::to_string(c.NrInf), 11) + " " +
           AllineaDestra(std::to_string(c.NrFinale), 11) + " " + Format(c.FogliFuori, "##");
}

void ElencaCarnet() {
    Controllo& lista = App().Form14.List1;
    AvvisaErrori({
        [] { Stato.NumCarnet = LeggiContatore(NomeFileConto(".NRC")); },
        [] {
            ConRecord(NomeFileConto(".CAR"), RecCarnet::Lunghezza, 1,
                      [] { LeggiRecords(Stato.Carnet.righe, 1, Stato.NumCarnet, 1); });
        },
        // Naming a control of a screen not yet loaded loads it, as the classic forms do.
        [&] {
            App().Form14.S.Carica();
            lista.Clear();
        },
    });
    for (long i = 1; i <= Stato.NumCarnet; ++i)
        AvvisaErrori({[&] { lista.AddItem(RigaCarnet(Stato.Carnet[i])); }});
}

void ElencaSituazione() {
    Form13& f = App().Form13;
    f.S.Carica();
    f.List1.Clear();
    f.List2.Clear();
    for (long k = 1; k <= Stato.NumAssegni; ++k) {
        IgnoraErrori({[&] {
            const RecAssegno& a = Stato.Assegni[k];
            if (a.Allineato != "N") return;
            // The amount alone says out or in hand: a cancelled cheque has 0 and is in hand.
            if (a.IMPORTO > 0)
                f.List1.AddItem(
                    Format(a.NrCarnet, "0000") + " " + std::string(a.DataAssegno) +
                    AllineaDestra(std::to_string(a.NrAssegno), 11) + "  " +
                    AllineaDestra(Format(Stato.Cambio * a.IMPORTO, Stato.FormatoImporti), 12));
            else if (a.IMPORTO == 0)
                f.List2.AddItem(Format(a.NrCarnet, "0000") + " " +
                                AllineaDestra(std::to_string(a.NrAssegno), 10) + " ");
        }});
    }
    App().MDIForm1.AssFuori.SetText(std::to_string(f.List1.ListCount()));
    App().MDIForm1.AssMano.SetText(std::to_string(f.List2.ListCount()));
}

void ElencaAnnullati() {
    Form17& f = App().Form17;
    f.S.Carica();
    f.List1.Clear();
    for (long k = 1; k <= Stato.NumAssegni; ++k) {
        IgnoraErrori({[&] {
            const RecAssegno& a = Stato.Assegni[k];
            if (a.AssegnoAnnullato == "S")
                f.List1.AddItem(Format(a.NrCarnet, "0000") + " " + std::string(a.DataAssegno) +
                                AllineaDestra(std::to_string(a.NrAssegno), 11));
        }});
    }
}

void RidisegnaElencoForm9() {
    if (!App().Form9.Command1.Enabled)
        ElencaPerOperazione();
    else
        ElencaPerValuta();
}
