#include "ledger/Form20.h"

#include "ledger/Immissione.h"
#include "ledger/Registro.h"
#include "refdata/Valute.h"
#include "shell/Applicazione.h"
#include "store/Date.h"
#include "store/FileRecord.h"
#include "store/Formato.h"
#include "store/Guasto.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include <string>

namespace {
std::string DescrizioneDi(const Fisso<5>& codice) {
    for (long j = 1; j <= Stato.NumCausali; ++j)
        if (Stato.Causali[j].CodCausale == codice) return Stato.Causali[j].DescCausale;
    return "";
}

void Riempi(Form20& f, const RecMovimento& m) {
    f.S.Carica();
    f.NrOper.SetText(std::to_string(m.NrOper));
    f.DataOper.SetText(m.DataOper);
    f.DataValuta.SetText(m.DataValuta);
    f.Causale.SetText(m.Causale);
    f.DescrCausale.SetText(DescrizioneDi(m.Causale));
    f.Sospeso.SetText(m.Sospeso);
    f.D_A.SetText(m.D_A);
    f.IMPORTO.Formato = Stato.FormatoImporti;
    f.IMPORTO.SetText(Format(m.IMPORTO * Stato.Cambio, Stato.FormatoImporti));
    f.NrDoc.SetText(m.NrDoc);
    f.DescMovim.SetText(m.DescMovim);
    f.Annullato.SetText(m.Annullato);
}
} // namespace

Form20::Form20() {
    Causale.MaxLength = 5;
    Sospeso.MaxLength = 1;
    D_A.MaxLength = 1;
    Annullato.MaxLength = 1;
    NrDoc.MaxLength = 8;
    DescMovim.MaxLength = 30;
    OK.ToolTipText = "Conferma";
    Esc.ToolTipText = "Uscita";
    Command3D1.ToolTipText = "Seleziona causali";

    OK.Click = ConfermaCorrezione;
    Esc.Click = [this] { S.UnloadMe(); };
    Command3D1.Click = [] {
        Stato.ChiamanteCausale = 2;
        App().FORM12.S.Show(true);
    };
}

void ApriCorrezione() {
    const Controllo& lista = App().Form11.List1;
    const int indice = lista.ListIndex();
    bool trovato = false;
    ConRecord(NomeFileConto(".Ord"), RecMovimento::Lunghezza, 1, [&] {
        const std::string inizio = Left(lista.List(indice), 2);
        // The carried line, the cheque details and the closing lines are no movements.
        if (indice < 1 || inizio == "--" || inizio == "  " || indice > lista.ListCount() - 6)
            return;
        // Only with every movement listed does a line's place give its record of .Ord.
        if (lista.ListCount() - 5 < Stato.NumMovimenti) {
            Piattaforma().MsgBox(
                "Questa funzione funziona solo se tutti i movimenti sono inclusi nella lista",
                "Avvertimento", Icona::Esclamazione, Pulsanti::OK, 0);
            return;
        }
        long numero = indice;
        for (int k = 1; k < indice; ++k)
            if (Left(lista.List(k), 2) == "  ") --numero;
        RecMovimento m;
        LeggiRecord(m, numero, 1);
        Riempi(App().Form20, m);
        trovato = true;
    });
    if (trovato) App().Form20.S.Show();
}

void ConfermaCorrezione() {
    Form20& f = App().Form20;
    if (DataMancante(f.DataOper, "Campo data operazione obbligatorio") || DataErrata(f.DataOper))
        return;
    if (DataMancante(f.DataValuta, "Campo data Valuta obbligatorio") || DataErrata(f.DataValuta))
        return;
    AllargaDaSelezione();
    App().MDIForm1.UltimaData.SetText(Stato.UltimaDataOperazione);
    if (f.IMPORTO.Text().empty()) {
        Piattaforma().MsgBox("Campo Importo obbligatorio", "", Icona::Nessuna, Pulsanti::OK, 0);
        f.IMPORTO.SetFocus();
        return;
    }

    const long n = static_cast<long>(Val(f.NrOper.Text()));
    RecMovimento& m = Stato.Movimenti[n];
    m.NrOper = Intero16(static_cast<double>(n));
    m.DataOper = f.DataOper.Text();
    m.DataValuta = f.DataValuta.Text();
    m.Causale = f.Causale.Text();
    m.IMPORTO = f.IMPORTO.Text() == "0" ? 0 : ImportoInEuro(ImportoDaTesto(f.IMPORTO.Text()));
    m.NrDoc = f.NrDoc.Text();
    m.DescMovim = f.DescMovim.Text();
    m.Sospeso = f.Sospeso.Text();
    m.D_A = f.D_A.Text();
    m.Annullato = f.Annullato.Text();
    const RecMovimento corretto = m;
    ConRecord(NomeFileConto(".MOV"), RecMovimento::Lunghezza, 1,
              [&] { ScriviRecord(corretto, n, 1); });

    ScriviOrd();
    ElencaPerOperazione();

    f.NrOper.SetText("");
    f.DataOper.SetText(DataVuotaMaschera);
    f.DataValuta.SetText(DataVuotaMaschera);
    for (Controllo* c : {&f.Causale, &f.DescrCausale, &f.Sospeso, &f.D_A, &f.Annullato,
                         &f.IMPORTO, &f.NrDoc, &f.DescMovim})
        c->SetText("");

    // Only the new values leave the balances, and the old ones stay in: the next load of the
    // account rebuilds them.
    StornaMovimento(corretto.DataValuta, corretto.DataOper, corretto.IMPORTO, corretto.D_A,
                    corretto.Sospeso);
    f.S.UnloadMe();
}
