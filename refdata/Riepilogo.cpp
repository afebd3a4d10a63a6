#include "refdata/Riepilogo.h"

#include "shell/Applicazione.h"
#include "store/Date.h"
#include "store/FileRecord.h"
#include "store/Formato.h"
#include "store/Stato.h"
#include "store/Testo.h"

namespace {
std::string Colonna(double euro) {
    return AllineaDestra(Format(euro * Stato.Cambio, Stato.FormatoImporti), 15);
}
} // namespace

std::vector<VoceRiepilogo> LeggiRiepilogo(bool perValuta) {
    ConRecord(NomeFileDati("Conti.dat"), RecConto::Lunghezza, 1,
              [] { LeggiRecords(Stato.Conti.righe, 1, Stato.NumConti, 1); });
    std::vector<VoceRiepilogo> voci;
    for (long i = 1; i <= Stato.NumConti; ++i) {
        const RecConto& conto = Stato.Conti[i];
        VoceRiepilogo v;
        v.codice = Trim(conto.CodConto);
        v.banca = conto.NomeBanca;
        RecTotali totali;
        ConRecord(NomeFileDati(v.codice + ".TOT"), RecTotali::Lunghezza, 1,
                  [&] { LeggiRecord(totali, 1, 1); });
        v.saldo = perValuta ? totali.SaldoValuta : totali.SaldoOperazione;
        v.fido = conto.Fido;
        v.disponibile = v.fido + v.saldo;
        voci.push_back(v);
    }
    return voci;
}

void ElencaRiepilogo() {
    Form22& f = App().Form22;
    const bool perValuta = f.Dataop(1).Value();
    f.DataVis.SetText(Oggi("DD-MM-YYYY"));
    f.List1.Clear();
    double saldi = 0, fidi = 0, disponibili = 0;
    for (const VoceRiepilogo& v : LeggiRiepilogo(perValuta)) {
        // The sorted list puts the lines in the order of the numbers, padded on the left.
        f.List1.AddItem(AllineaDestra(v.codice, 12) + " " + Left(v.banca, 28) + " " +
                        Colonna(v.saldo) + " " + Colonna(v.fido) + " " + Colonna(v.disponibile));
        saldi += v.saldo;
        fidi += v.fido;
        disponibili += v.disponibile;
    }
    f.Totali.SetText(Space(16) + "Totali " + Colonna(saldi) + " " + Colonna(fidi) + " " +
                     Colonna(disponibili) + " ");
}
