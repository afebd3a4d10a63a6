#include "reports/Stampe.h"

#include "ledger/ElencoMovimenti.h"
#include "reports/Pagina.h"
#include "shell/Applicazione.h"
#include "store/Date.h"
#include "store/Formato.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

namespace {
// The selection of the list on screen while Form11 asks, otherwise that of Form21.
struct Selezione {
    std::string dal, al, causale;
};

Selezione SelezioneCorrente() {
    if (Stato.FlagOperazione == 1) {
        const Form11& f = App().Form11;
        return {f.DataOper.Text(), f.DataFinale.Text(), f.Combo1.Text()};
    }
    const Form21& f = App().Form21;
    return {f.dal.Text(), f.al.Text(), f.Combo1.Text()};
}

std::string RigaMovimento(const RecMovimento& m, double saldo) {
    return m.DataOper.Testo() + " " + m.DataValuta.Testo() + (m.Sospeso == "N" ? "*" : " ") +
           ColonneImporto(m) + ImportoColonna(saldo, 15) + " " + DescrizioneCausale(m.Causale) +
           " " + Trim(m.NrDoc) + " " + Left(m.DescMovim, 20);
}
} // namespace

void StampaMovimenti() {
    ConClessidra([] {
        const Selezione sel = SelezioneCorrente();
        Testata testata = TestataElenco(
            Space(37) + "Elenco Movimenti ",
            "    dal " + sel.dal + " al " + sel.al + "  Causali selezionate: " + sel.causale +
                "  * movimenti non sospesi",
            "    Data       Valuta        Mov. Dare  Mov. Avere       Saldo    Descr. Movimento");
        testata.conValuta = true;
        Stampa s{testata, PaginaElenco(53, true, 48)};
        IniziaStampa(s);

        const double riporto = Stato.Riporto[1].ImportoRiporto;
        RigaLibera(" " + Stato.Riporto[1].DataRiporto.Testo() + Space(12) +
                   ImportoRiportato(riporto) + ImportoColonna(riporto, 15) +
                   " Riporto Chiusura precedente");
        LeggiOrdinati();
        const bool tutte = sel.causale == " TUTTE";
        const std::string codice = CodiceDaDescrizione(sel.causale);
        double saldo = riporto, nonElencati = 0;
        int elencati = 0;
        long inizio = 0, fine = 0;
        for (long i = 1; i <= Stato.NumMovimenti; ++i) {
            const RecMovimento& m = Stato.Movimenti[i];
            if (i == 1) {
                inizio = GiornoCalendario(sel.dal);
                fine = GiornoCalendario(sel.al);
            }
            if (!InElenco(m, inizio, fine, codice, tutte)) {
                nonElencati += ImportoConSegno(m);
                continue;
            }
            saldo += ImportoConSegno(m);
            ++elencati;
            RigaCorpo(s, RigaMovimento(m, saldo));
            // The payee's line counts without a look at the page limit.
            if (Trim(m.Causale) == "AS") {
                for (const std::string& beneficiario : BeneficiariAssegno(m)) {
                    ++s.righe;
                    RigaLibera(Space(68) + beneficiario);
                }
            }
        }

        const double totale = nonElencati + saldo;
        RigaLibera(Riga94());
        RigaLibera("    Importo dei movimenti non elencati" + Space(12) +
                   ImportoColonna(nonElencati, 15) + "  = Euro " +
                   Format(nonElencati, FormatoEuroNonElencati));
        RigaLibera(Riga94());
        RigaLibera(" Saldo Contabile       " + Space(27) + ImportoColonna(totale, 15) +
                   "   Nr. Movimenti: " + std::to_string(elencati));
        RigaLibera(Space(46) + "  = Euro " + Format(totale, FormatoEuroTotale));
        FineStampa(s);
    });
}
