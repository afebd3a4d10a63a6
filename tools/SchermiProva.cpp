#include "tools/SchermiProva.h"

#include "store/Guasto.h"
#include "store/Piattaforma.h"
#include "store/Testo.h"

#include <string>

SchermiProva::SchermiProva() {
    ::Prova& p = Prova;
    ::ProvaModale& m = ProvaModale;

    p.Spento.Enabled = false;
    p.Nascosto.Visible = false;
    p.Codice.MaxLength = 3;
    p.Descrizione.MaxLength = 5;
    p.Elenco.Sorted = true;

    p.Primo.GotFocus = [&p] { p.Eventi.AddItem("Primo prende"); };
    p.Primo.LostFocus = [&p] { p.Eventi.AddItem("Primo perde"); };
    p.Numero.GotFocus = [&p] { p.Eventi.AddItem("Numero prende"); };
    p.Numero.LostFocus = [&p] { p.Eventi.AddItem("Numero perde"); };

    p.Numero.KeyPress = [](int& tasto) {
        if ((tasto >= '0' && tasto <= '9') || tasto == TastoBackspace) return;
        tasto = 0;
        Piattaforma().Beep();
    };
    // A full code sends the typing on to the description, as the entry lines of the program do.
    p.Codice.Change = [&p] {
        if (Len(p.Codice.Text()) == 3) p.Descrizione.SetFocus();
    };

    p.Aggiungi.Click = [&p] { p.Elenco.AddItem(p.Riga.Text()); };
    p.Elenco.Click = [&p] {
        p.Esito.SetText(p.Elenco.List(p.Elenco.ListIndex()) + " #" +
                        std::to_string(p.Elenco.ListIndex()));
    };
    p.Elenco.DblClick = [&p] { p.Esito.SetText("doppio " + p.Elenco.List(p.Elenco.ListIndex())); };

    p.Chiedi.Click = [&p] {
        Risposta r =
            Piattaforma().MsgBox("Procedere con la prova?\r\nSeconda riga", "AVVERTIMENTO!",
                                 Icona::Esclamazione, Pulsanti::OKAnnulla, 1);
        p.Esito.SetText("risposta " + NomeRisposta(r));
    };
    p.Modale.Click = [&p, &m] {
        m.S.Show(true);
        p.Esito.SetText(p.Esito.Text() + " / ritorno");
    };
    p.Guasto.Click = [&p] {
        p.Esito.SetText("prima del guasto");
        p.Esito.SetText(Str(Dividi(1, 0)));
    };
    p.Stampa.Click = [&p] {
        PortaPiattaforma& stampante = Piattaforma();
        stampante.StampanteFont("Courier New");
        stampante.StampanteCorpo(9.75);
        stampante.StampanteGrassetto(true);
        stampante.StampanteTab(5);
        stampante.StampaRiga("Titolo");
        stampante.StampanteGrassetto(false);
        stampante.StampaRiga(p.Riga.Text());
        stampante.StampanteNuovaPagina();
        stampante.StampanteCorpo(12);
        stampante.StampaRiga("");
        stampante.StampanteFine();
    };
    p.Fine.Click = [] { Piattaforma().Termina(); };

    m.Chiudi.Click = [&p, &m] {
        p.Esito.SetText("scritto " + m.Testo.Text());
        m.S.UnloadMe();
    };
}
