#include "interest/StampaCondizioni.h"

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
    PortaPiattaforma& p = Piattaforma();
    const auto& c = Stato.TassiCreditori;
    const auto& d = Stato.TassiDebitori;
    const auto& s = Stato.SpeseVarie;
    const auto& o = Stato.OneriPassivi;
    auto importo = [](double x) { return Format(x * Stato.Cambio, Stato.FormatoImporti); };

    p.StampanteFont("Arial");
    p.StampanteCorpo(18);
    p.StampaRiga("           Elenco Costi e condizioni " +
                 Trim(Stato.Conti[Stato.IndiceConto].NomeBanca));
    p.StampanteFont("Courier New");
    p.StampanteCorpo(9.75);
    p.StampaRiga("  Valuta: " + Trim(App().MDIForm1.Combo1.Text()));
    p.StampaRiga(std::string(80, '-'));

    p.StampaRiga("  Interessi creditori");
    const Fisso<10>* dateC[] = {&c.DataC1, &c.DataC2, &c.DataC3, &c.DataC4, &c.DataC5};
    const float tassiC[] = {c.PerC1, c.PerC2, c.PerC3, c.PerC4, c.PerC5};
    for (int k = 0; k < 5; ++k)
        p.StampaRiga("  dalla data: " + dateC[k]->Testo() + Percento(tassiC[k]));

    p.StampaRiga("  Interessi Debitori");
    const Fisso<10>* dateD[] = {&d.DATAD1, &d.DATAD2, &d.DATAD3, &d.DATAD4, &d.DATAD5};
    const float entro[] = {d.PerD1, d.PerD2, d.PerD3, d.PerD4, d.PerD5};
    const float fuori[] = {d.PerD6, d.PerD7, d.PerD8, d.PerD9, d.PerD10};
    for (int k = 0; k < 5; ++k)
        p.StampaRiga("  dalla data: " + dateD[k]->Testo() + Percento(entro[k]) +
                     Percento(fuori[k]));

    p.StampaRiga("  Spese Varie");
    p.StampaRiga("  Spese fisse di chiusura    Lire " + importo(s.IMPORTO1) +
                 Addebito(s.Frequenza1));
    p.StampaRiga("  Tenuta conto               Lire " + importo(s.IMPORTO2) +
                 Addebito(s.Frequenza2));
    p.StampaRiga("  Costo scrittura movimenti  Lire " + importo(s.IMPORTO3) +
                 Addebito(s.Frequenza3));
    p.StampaRiga("  Costo tenuta fido          Lire " + importo(s.IMPORTO4) +
                 Addebito(s.Frequenza4));
    p.StampaRiga("  Rimborso forfettario       Lire " + importo(s.IMPORTO5) +
                 Addebito(s.Frequenza5));
    p.StampaRiga("  " + s.Descr1.Testo() + "  Lire " + importo(s.IMPORTO6) +
                 Addebito(s.Frequenza6));
    p.StampaRiga("  " + s.Descr2.Testo() + "  Lire " + importo(s.IMPORTO7) +
                 Addebito(s.Frequenza7));
    p.StampaRiga("  Nr. movimenti sotto il quale si applica il rimborso fofettario: " +
                 Str(Stato.OpzioniCalcolo.NrScritt));

    p.StampaRiga("  Oneri passivi");
    p.StampaRiga("  Commissione eccedenza / E.F.    " + Percento(o.Per1));
    p.StampaRiga("  Commissione massimo scoperto    " + Percento(o.Per2));
    p.StampaRiga("  Ritenuta fiscale                " + Percento(o.Per3));
    p.StampaRiga("  " + Giustifica(o.Descr3, 28) + "    " + Percento(o.Per4));
    p.StampaRiga("  " + Giustifica(o.Descr4, 28) + "    " + Percento(o.Per5));
    p.StampaRiga("                                           Pagina 1                 .....fine "
                 "stampa");
    p.StampanteFine();
}
