#include "interest/StampaCondizioni.h"

#include "reports/Pagina.h"
#include "shell/Applicazione.h"
#include "store/Formato.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include <string>

namespace {
std::string Percento(float tasso) {
    return Format(tasso, "00.00") + "%";
}

std::string Addebito(const Fisso<1>& frequenza) {
    return "  Addebito " + std::string(Val(frequenza) == 1 ? "Trimestrale" : "Annuale");
}
} // namespace

void StampaCondizioni() {
    ConClessidra([] {
        PortaPiattaforma& p = Piattaforma();
        const auto& c = Stato.TassiCreditori;
        const auto& d = Stato.TassiDebitori;
        const auto& s = Stato.SpeseVarie;
        const auto& o = Stato.OneriPassivi;
        auto importo = [](double x) { return Format(x * Stato.Cambio, Stato.FormatoImporti); };

        p.StampanteFont("Arial");
        CorpoStampante("18");
        RigaLibera("           Elenco Costi e condizioni " +
                   Trim(Stato.Conti[Stato.IndiceConto].NomeBanca));
        p.StampanteFont("Courier New");
        CorpoStampante("9,75");
        RigaLibera("  Valuta: " + Trim(App().MDIForm1.Combo1.Text()));
        RigaLibera(std::string(80, '-'));

        RigaLibera("  Interessi creditori");
        const Fisso<10>* dateC[] = {&c.DataC1, &c.DataC2, &c.DataC3, &c.DataC4, &c.DataC5};
        const float tassiC[] = {c.PerC1, c.PerC2, c.PerC3, c.PerC4, c.PerC5};
        for (int k = 0; k < 5; ++k)
            RigaLibera("  dalla data: " + dateC[k]->Testo() + Percento(tassiC[k]));

        RigaLibera("  Interessi Debitori");
        const Fisso<10>* dateD[] = {&d.DATAD1, &d.DATAD2, &d.DATAD3, &d.DATAD4, &d.DATAD5};
        const float entro[] = {d.PerD1, d.PerD2, d.PerD3, d.PerD4, d.PerD5};
        const float fuori[] = {d.PerD6, d.PerD7, d.PerD8, d.PerD9, d.PerD10};
        for (int k = 0; k < 5; ++k)
            RigaLibera("  dalla data: " + dateD[k]->Testo() + Percento(entro[k]) +
                       Percento(fuori[k]));

        RigaLibera("  Spese Varie");
        RigaLibera("  Spese fisse di chiusura    Lire " + importo(s.IMPORTO1) +
                   Addebito(s.Frequenza1));
        RigaLibera("  Tenuta conto               Lire " + importo(s.IMPORTO2) +
                   Addebito(s.Frequenza2));
        RigaLibera("  Costo scrittura movimenti  Lire " + importo(s.IMPORTO3) +
                   Addebito(s.Frequenza3));
        RigaLibera("  Costo tenuta fido          Lire " + importo(s.IMPORTO4) +
                   Addebito(s.Frequenza4));
        RigaLibera("  Rimborso forfettario       Lire " + importo(s.IMPORTO5) +
                   Addebito(s.Frequenza5));
        RigaLibera("  " + s.Descr1.Testo() + "  Lire " + importo(s.IMPORTO6) +
                   Addebito(s.Frequenza6));
        RigaLibera("  " + s.Descr2.Testo() + "  Lire " + importo(s.IMPORTO7) +
                   Addebito(s.Frequenza7));
        RigaLibera("  Nr. movimenti sotto il quale si applica il rimborso fofettario: " +
                   Str(Stato.OpzioniCalcolo.NrScritt));

        RigaLibera("  Oneri passivi");
        RigaLibera("  Commissione eccedenza / E.F.    " + Percento(o.Per1));
        RigaLibera("  Commissione massimo scoperto    " + Percento(o.Per2));
        RigaLibera("  Ritenuta fiscale                " + Percento(o.Per3));
        RigaLibera("  " + Giustifica(o.Descr3, 28) + "    " + Percento(o.Per4));
        RigaLibera("  " + Giustifica(o.Descr4, 28) + "    " + Percento(o.Per5));
        RigaLibera(RigaFineStampa(1));
        p.StampanteFine();
    });
}
