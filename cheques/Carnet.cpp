#include "cheques/Carnet.h"

#include "cheques/ElenchiAssegni.h"
#include "cheques/Form15.h"
#include "ledger/Cancellazione.h"
#include "ledger/Registro.h"
#include "shell/Applicazione.h"
#include "store/FileRecord.h"
#include "store/Formato.h"
#include "store/Guasto.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include <string>

void ScriviNuovoCarnet() {
    AvvisaErrori({
        [] {
            ConRecord(NomeFileConto(".CAR"), RecCarnet::Lunghezza, 1,
                      [] { ScriviRecord(Stato.Carnet[Stato.NumCarnet], Stato.NumCarnet, 1); });
        },
        [] { ScriviContatore(NomeFileConto(".NRC"), Stato.NumCarnet); },
        CreaFogli,
        ElencaCarnet,
        [] { App().Form3.DataCarnet.SetFocus(); },
    });
}

void CreaFogli() {
    const Form3& f = App().Form3;
    ConRecord(NomeFileConto(".FOG"), RecAssegno::Lunghezza, 3, [&] {
        // Ten sheets whatever NrFogli shows.
        for (int c = 0; c < 10; ++c) {
            RecAssegno& a = Stato.Assegni[Stato.NumAssegni + 1];
            a.NrCarnet = static_cast<std::int16_t>(Val(f.NrCarnet.Text()));
            a.NrAssegno = Intero32(Val(f.NrInf.Text()) + c);
            a.DataAssegno = "00/00/0000";
            a.IMPORTO = 0;
            a.Allineato = "N";
            a.Disponibile = "S";
            a.AssegnoAnnullato = "N";
            a.traente = "";
            a.NoteAss = "";
            ++Stato.NumAssegni;
            a.NrFoglio = Stato.NumAssegni;
            a.NrMovimento = 0;
            ScriviRecord(a, Stato.NumAssegni, 3);
        }
    });
    ScriviContatore(NomeFileConto(".NRF"), Stato.NumAssegni);
    ElencaSituazione();
}

void ModificaCarnet(const long (&vecchiNumeri)[11]) {
    const Form3& f = App().Form3;
    const short n = Stato.CarnetCorrente;
    IgnoraErrori({
        [&] {
            RecCarnet& c = Stato.Carnet[n];
            c.MovCosto = Stato.MovimentoCorrente;
            c.NrCarnet = static_cast<std::int16_t>(Val(f.NrCarnet.Text()));
            c.DataCarnet = f.DataCarnet.Text();
            // The typed figure as it stands: unlike a new book, a change isn't divided by the
            // rate in use.
            c.CostoCarnet = ImportoDaTesto(f.CostoCarnet.Text());
            c.NrInf = Intero32(Val(f.NrInf.Text()));
            c.NrFinale = Intero32(Val(f.NrFinale.Text()));
            ConRecord(NomeFileConto(".CAR"), RecCarnet::Lunghezza, 1,
                      [&] { ScriviRecord(c, n, 1); });
        },
        [&] {
            // The sheets of the book in file order: only the number changes.
            const RecCarnet& c = Stato.Carnet[n];
            ConRecord(NomeFileConto(".FOG"), RecAssegno::Lunghezza, 3, [&] {
                int k = 0;
                for (long i = 1; i <= Stato.NumAssegni; ++i) {
                    RecAssegno& a = Stato.Assegni[i];
                    LeggiRecord(a, i, 3);
                    if (a.NrCarnet != c.NrCarnet) continue;
                    a.NrAssegno = c.NrInf + k;
                    ScriviRecord(a, i, 3);
                    ++k;
                }
            });
        },
        [&] {
            // By NrDoc alone, whatever the causale; a movement renumbered for an earlier sheet
            // can match again for a later one.
            const long inf = Stato.Carnet[n].NrInf;
            ConRecord(NomeFileConto(".MOV"), RecMovimento::Lunghezza, 1, [&] {
                for (int j = 0; j <= 9; ++j)
                    for (long m = 1; m <= Stato.NumMovimenti; ++m) {
                        RecMovimento& mov = Stato.Movimenti[m];
                        if (Val(mov.NrDoc) != vecchiNumeri[j + 1]) continue;
                        mov.NrDoc = std::to_string(inf + j);
                        ScriviRecord(mov, m, 1);
                    }
            });
        },
        ElencaCarnet,
        ElencaSituazione,
        ElencaFogli,
    });
}

namespace {
// The movements of the sheets of the book, then its cost movement, leave .MOV. Dropping the cost
// movement takes one off the count however many went.
void TogliMovimentiCarnet(const RecCarnet& c) {
    Stato.NumMovimenti = static_cast<short>(CompattaMovimenti([&](const RecMovimento& m) {
                                                const double doc = Val(m.NrDoc);
                                                return doc >= c.NrInf && doc <= c.NrFinale;
                                            }) -
                                            1);
    RileggiMovimenti();
    CompattaMovimenti([&](const RecMovimento& m) { return Val(m.NrDoc) == c.NrCarnet; });
    Stato.NumMovimenti -= 1;
    RileggiMovimenti();
}

void TogliFogli(std::int16_t nrCarnet) {
    short w = 1;
    ConRecord(NomeFileConto(".FOG"), RecAssegno::Lunghezza, 3, [&] {
        for (long k = 1; k <= Stato.NumAssegni; ++k) {
            RecAssegno& a = Stato.Assegni[k];
            if (a.NrCarnet == nrCarnet) continue;
            a.NrFoglio = w;
            ScriviRecord(a, w, 3);
            ++w;
        }
    });
    Stato.NumAssegni = static_cast<short>(w - 1);
    ScriviContatore(NomeFileConto(".NRF"), Stato.NumAssegni);
    ConRecord(NomeFileConto(".FOG"), RecAssegno::Lunghezza, 3,
              [] { LeggiRecords(Stato.Assegni.righe, 1, Stato.NumAssegni, 3); });
}

// The books after it take the numbers that close up; their sheets and cost movements keep the
// old ones until the reorganisation.
void TogliCarnet(std::int16_t nrCarnet) {
    short w = 1;
    ConRecord(NomeFileConto(".CAR"), RecCarnet::Lunghezza, 1, [&] {
        for (long j = 1; j <= Stato.NumCarnet; ++j) {
            RecCarnet& c = Stato.Carnet[j];
            if (c.NrCarnet == nrCarnet) continue;
            c.NrCarnet = w;
            ScriviRecord(c, w, 1);
            ++w;
        }
    });
    Stato.NumCarnet -= 1;
    ScriviContatore(NomeFileConto(".NRC"), Stato.NumCarnet);
    ConRecord(NomeFileConto(".CAR"), RecCarnet::Lunghezza, 1,
              [] { LeggiRecords(Stato.Carnet.righe, 1, Stato.NumCarnet, 1); });
}
} // namespace

void CancellaCarnet() {
    Risposta r = Piattaforma().MsgBox("Verranno eliminati anche movimenti relativi agli assegni "
                                      "emessi da questo carnet...Vuoi Continuare?",
                                      "AVVERTIMENTO!", Icona::Esclamazione, Pulsanti::OKAnnulla, 1);
    if (r != Risposta::OK) return;
    // With nothing picked this is the blank book 0.
    const RecCarnet c = Stato.Carnet[Stato.CarnetCorrente];
    IgnoraErrori({
        [&] { TogliMovimentiCarnet(c); },
        [&] { TogliFogli(c.NrCarnet); },
        [&] { TogliCarnet(c.NrCarnet); },
        ElencaAnnullati,
        ElencaCarnet,
        ElencaSituazione,
        RicalcolaTotali,
        ScriviOrd,
        RidisegnaElencoForm9,
        [] { Stato.MovimentoCorrente = 0; },
    });
}
