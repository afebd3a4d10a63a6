#include "reports/Stampe.h"

#include "ledger/ElencoMovimenti.h"
#include "refdata/Causali.h"
#include "refdata/Conti.h"
#include "refdata/Riepilogo.h"
#include "reports/Pagina.h"
#include "shell/Applicazione.h"
#include "store/Stato.h"
#include "store/Testo.h"

namespace {
// The heads of the lists of all accounts have no account line.
Testata SenzaConto(Testata t) {
    t.conConto = false;
    return t;
}
} // namespace

void StampaCausali() {
    ConClessidra([] {
        const Form21& f = App().Form21;
        // The dates of Form21 stand in the head and select nothing.
        Stampa s{TestataElenco(Space(41) + "Elenco Causali",
                               "    dal " + f.dal.Text() + " al " + f.al.Text() +
                                   "     * = Movimenti non sospesi",
                               "  Cod. Causale  Descrizione                        E/U        "
                               "Mov. Sospeso"),
                 PaginaElenco(57, false, 52)};
        IniziaStampa(s);
        LeggiCausali();
        for (long j = 1; j <= Stato.NumCausali; ++j) {
            const RecCausale& c = Stato.Causali[j];
            RigaCorpo(s, Space(4) + c.CodCausale.Testo() + Space(6) + c.DescCausale.Testo() +
                             Space(7) + Space(10) + c.DareAvere.Testo() + Space(13) +
                             c.Sospeso.Testo());
        }
        FineStampa(s);
    });
}

void StampaConti() {
    ConClessidra([] {
        Testata testata = SenzaConto(TestataElenco(
            Space(41) + "Elenco Conti ", " Valuta: " + App().MDIForm1.Combo1.Text(),
            " N° conto     Tipo Conto       Banca                              Fido Codice "
            "ABI-CAB-ID"));
        testata.selezioneGrassetto = false;
        Stampa s{testata, PaginaElenco(57, false, 52)};
        IniziaStampa(s);
        LeggiTabellaConti();
        for (long j = 1; j <= Stato.NumConti; ++j) {
            const RecConto& c = Stato.Conti[j];
            RigaCorpo(s, c.CodConto.Testo() + " " + Left(c.TipoConto, 15) + " " +
                             Left(c.NomeBanca, 25) + " " + " " + ImportoColonna(c.Fido, 13) + " " +
                             Trim(c.abi) + "-" + Trim(c.Cab) + "-" + Trim(c.id));
        }
        FineStampa(s);
    });
}

void StampaRiepilogo() {
    ConClessidra([] {
        Form22& f = App().Form22;
        ModelloPagina pagina = PaginaElenco(57, false, 54);
        pagina.bianco = false;
        Stampa s{
            SenzaConto(TestataElenco(Space(42) + "Riepilogo Conti ", "    al " + f.DataVis.Text(),
                                     " Conto   Descrizione                           Saldo"
                                     "         Fido       Disponibilità")),
            pagina};
        IniziaStampa(s);
        double saldo = 0, fido = 0, disponibile = 0;
        for (const VoceRiepilogo& v : LeggiRiepilogo(f.Dataop(1).Value())) {
            RigaCorpo(s, AllineaDestra(v.codice, 8) + " " + Left(v.banca, 32) + " " +
                             ImportoColonna(v.saldo, 13) + " " + ImportoColonna(v.fido, 13) + " " +
                             ImportoColonna(v.disponibile, 13));
            saldo += v.saldo;
            fido += v.fido;
            disponibile += v.disponibile;
        }
        RigaLibera(Riga94());
        RigaLibera(Space(35) + "Totali " + ImportoColonna(saldo, 13) + " " +
                   ImportoColonna(fido, 13) + " " + ImportoColonna(disponibile, 13));
        FineStampa(s);
    });
}
