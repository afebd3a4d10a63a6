#include "cheques/Form15.h"

#include "cheques/ElenchiAssegni.h"
#include "ledger/Form9.h"
#include "ledger/Immissione.h"
#include "ledger/Registro.h"
#include "refdata/Valute.h"
#include "shell/Applicazione.h"
#include "shell/Colori.h"
#include "store/Date.h"
#include "store/FileRecord.h"
#include "store/Formato.h"
#include "store/Guasto.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include <algorithm>
#include <string>

namespace {
void Rifiuta(Controllo& fuoco, const char* testo) {
    Piattaforma().Beep();
    Piattaforma().MsgBox(testo, "ERRORE", Icona::Nessuna, Pulsanti::OK, 0);
    fuoco.SetFocus();
}

// Enter with text moves on, and a field full to `larghezza` moves on by itself.
void Avanza(Controllo& campo, int larghezza, Controllo& prossimo) {
    campo.KeyPress = [&campo, &prossimo](int& tasto) {
        if (tasto != TastoInvio) return;
        tasto = 0;
        if (!campo.Text().empty()) prossimo.SetFocus();
    };
    campo.Change = [&campo, larghezza, &prossimo] {
        if (Len(campo.Text()) >= larghezza) prossimo.SetFocus();
    };
}

// The stored sheet back into the fields.
void MostraFoglio(Form15& f, const RecAssegno& a) {
    f.DataAssegno.SetText(a.DataAssegno == "00/00/0000" ? DataVuotaMaschera
                                                        : std::string(a.DataAssegno));
    f.IMPORTO.SetText(Format(Stato.Cambio * a.IMPORTO, ""));
    f.traente.SetText(RTrim(a.traente));
    f.NoteAss.SetText(RTrim(a.NoteAss));
}

// Steps 9 to 13 of Conferma: the sheet and its movement, new or changed in place.
void RegistraAssegno(Form15& f, const std::string& annullato) {
    RecAssegno& a = Stato.Assegni[Stato.FoglioCorrente];
    const short legame = a.NrMovimento;
    a.NrAssegno = Intero32(Val(f.NrAssegno.Text()));
    a.DataAssegno = f.DataAssegno.Text();
    a.traente = f.traente.Text();
    a.NoteAss = f.NoteAss.Text();
    a.AssegnoAnnullato = annullato;
    a.IMPORTO = ImportoInEuro(ImportoDaTesto(f.IMPORTO.Text()));
    if (legame == 0) a.NrMovimento = static_cast<std::int16_t>(Stato.NumMovimenti + 1);

    Stato.NumMovimenti = Intero16(Stato.NumMovimenti + 1.0);
    RecMovimento& m = Stato.Movimenti[Stato.NumMovimenti];
    const std::string numero = Trim(f.NrAssegno.Text());
    m.NrOper = Stato.NumMovimenti;
    m.DataOper = f.DataAssegno.Text();
    m.DataValuta = f.DataAssegno.Text();
    m.Causale = "AS";
    m.IMPORTO = a.IMPORTO;
    // A new cheque of nine digits or more keeps the last eight.
    m.NrDoc = Len(numero) >= 9 ? Right(numero, 8) : f.NrAssegno.Text();
    m.DescMovim = f.traente.Text();
    m.Sospeso = "S";
    m.D_A = "U";
    m.Annullato = "N";

    if (legame == 0) {
        AggiungiMovimento();
        return;
    }
    // The cheque has its movement: that one is changed in place, and the slot past the end
    // stays as written. An aligned cheque's movement turns suspended again.
    Stato.NumMovimenti -= 1;
    Stato.MovimentoCorrente = a.NrMovimento;
    RecMovimento& vecchio = Stato.Movimenti[Stato.MovimentoCorrente];
    vecchio.DataOper = m.DataOper;
    vecchio.DataValuta = m.DataValuta;
    vecchio.Causale = "AS";
    vecchio.IMPORTO = m.IMPORTO;
    vecchio.NrDoc = f.NrAssegno.Text();
    vecchio.DescMovim = m.DescMovim;
    vecchio.Sospeso = "S";
    vecchio.D_A = "U";
    vecchio.Annullato = "N";
    ConRecord(NomeFileConto(".MOV"), RecMovimento::Lunghezza, 1,
              [&] { ScriviRecord(vecchio, Stato.MovimentoCorrente, 1); });
    ElencaPerOperazione();
    Form9& e = App().Form9;
    e.Command2.Enabled = true;
    e.Command1.Enabled = false;
    e.Del.Enabled = false;
    ElencaSituazione();
    Stato.MovimentoCorrente = 0;
}
} // namespace

Form15::Form15() {
    List1.Sorted = true;
    S.Load = [this] { ColoriElenchi({&List1}); };
    List1.ToolTipText = "elenco assegni del carnet selezionato";
    traente.MaxLength = 30;
    NoteAss.MaxLength = 30;

    S.Activate = [this] {
        IMPORTO.SetText("0");
        DataAssegno.SetText(DataVuotaMaschera);
        traente.SetText("");
        NoteAss.SetText("");
        const RecConto& conto = Stato.Conti[Stato.IndiceConto];
        Banca.SetText(RTrim(conto.NomeBanca));
        NrConto.SetText(RTrim(conto.CodConto));
        if (Stato.NumCarnet == 0) {
            Piattaforma().MsgBox("Nessun Carnet in memoria; devi prima caricare il carnet",
                                 "ERRORE", Icona::Nessuna, Pulsanti::OK, 0);
            S.Hide();
            return;
        }
        if (Stato.CarnetScelto != 0) return;
        // The last book, its count taken as its number.
        IgnoraErrori({
            [this] { NrCarnet.SetText(std::to_string(Stato.NumCarnet)); },
            ElencaFogli,
            [this] {
                const RecCarnet& c = Stato.Carnet[Stato.NumCarnet];
                NrFogliCarnet.SetText(std::to_string(c.NrFinale - c.NrInf + 1));
            },
            PrimoFoglioLibero,
        });
    };

    DataAssegno.KeyPress = [](int& tasto) {
        if ((tasto >= '0' && tasto <= '9') || tasto == TastoBackspace || tasto == '/') return;
        Piattaforma().Beep();
        tasto = 0;
    };
    IMPORTO.GotFocus = [this] {
        if (IMPORTO.Text() == "0") IMPORTO.SetText("");
    };
    Avanza(IMPORTO, 10, traente);
    IMPORTO.KeyPress = [this](int& tasto) {
        if (tasto == TastoInvio) {
            tasto = 0;
            if (!IMPORTO.Text().empty()) traente.SetFocus();
        } else if (!(tasto >= '0' && tasto <= '9') && tasto != TastoBackspace) {
            tasto = 0;
        }
    };
    traente.GotFocus = [this] {
        IMPORTO.SetText(Format(ImportoDaTesto(IMPORTO.Text()), Stato.FormatoImporti));
    };
    Avanza(traente, 30, NoteAss);
    Avanza(NoteAss, 30, Salva);

    List1.Click = CaricaAssegno;
    Salva.Click = ConfermaAssegno;
    Command3D1.Click = [this] {
        Stato.ChiamanteCarnet = 1;
        App().Form14.S.Show(true);
        // The free sheet found by the pick leaves the screen: a sheet is to be clicked.
        IMPORTO.SetText("");
        traente.SetText("");
        NrAssegno.SetText("");
    };
    Command3D8.Click = [this] {
        Stato.NumMovimenti = LeggiContatore(NomeFileConto(".MOR"));
        S.Hide();
        SvuotaRiga();
        App().Form9.Del.SetText("Del");
        App().Form9.Del.Enabled = false;
    };
    Command3D9.Click = [] { App().Form13.S.Show(true); };
}

void ElencaFogli() {
    Form15& f = App().Form15;
    f.List1.Clear();
    f.RigheFogli = 0;
    const double carnet = Val(f.NrCarnet.Text());
    for (long k = 1; k <= Stato.NumAssegni; ++k) {
        const RecAssegno& a = Stato.Assegni[k];
        if (a.NrCarnet != carnet) continue;
        RigaFoglio& r = f.FogliCarnet[++f.RigheFogli];
        r.DataAssegno = a.DataAssegno;
        r.Importo = a.IMPORTO * Stato.Cambio;
        r.traente = a.traente;
        r.NrAssegno = a.NrAssegno;
        r.NrFoglio = a.NrFoglio;
        r.NrMovimento = a.NrMovimento;
        const std::string numero = std::to_string(a.NrAssegno);
        // Left-justified in 11, a longer number whole.
        f.List1.AddItem(numero + Space(std::max(0, 11 - Len(numero))) + std::string(a.DataAssegno) +
                        " " + AllineaDestra(Format(r.Importo, Stato.FormatoImporti), 14));
    }
}

void PrimoFoglioLibero() {
    Form15& f = App().Form15;
    for (int i = 1; i <= f.RigheFogli; ++i) {
        const RigaFoglio& r = f.FogliCarnet[i];
        if (r.NrMovimento != 0) continue;
        f.NrAssegno.SetText(std::to_string(r.NrAssegno));
        Stato.FoglioCorrente = r.NrFoglio;
        return;
    }
}

void CaricaAssegno() {
    Form15& f = App().Form15;
    const double numero = Val(Trim(Left(f.List1.List(f.List1.ListIndex()), 10)));
    short& k = Stato.FoglioCorrente;
    for (k = 1; Stato.Assegni[k].NrAssegno != numero; ++k) {
    }
    const RecAssegno& a = Stato.Assegni[k];
    MostraFoglio(f, a);
    f.NrCarnet.SetText(std::to_string(a.NrCarnet));
    f.NrAssegno.SetText(std::to_string(a.NrAssegno));
    f.DataAssegno.SetFocus();
}

void ConfermaAssegno() {
    Form15& f = App().Form15;
    Stato.CarnetScelto = 1;
    if (DataVuota(f.DataAssegno.Text()))
        return Rifiuta(f.DataAssegno, "Campo data operazione obbligatorio");
    if (f.NrAssegno.Text().empty())
        return Rifiuta(f.DataAssegno, "Assegno non selezionato, seleziona prima l'assegno con un "
                                      "doppio click del mouse dalla lista");
    if (!ControllaCampoData(f.DataAssegno)) {
        f.DataAssegno.SetFocus();
        return;
    }
    Piattaforma().Clessidra(true);
    // The sheet's book number taken as a position in the table of the books.
    bool prima = false;
    IgnoraErrori({[&] {
        const RecCarnet& c = Stato.Carnet[Stato.Assegni[Stato.FoglioCorrente].NrCarnet];
        prima = NumeroData(c.DataCarnet) > NumeroData(f.DataAssegno.Text());
    }});
    if (prima) {
        Piattaforma().MsgBox("Data Movimento precedente rispetto alla data di prelievo del "
                             "Carnet; Correggi i dati e riprova",
                             "ERRORE", Icona::Nessuna, Pulsanti::OK, 0);
        f.DataAssegno.SetText(DataVuotaMaschera);
        f.DataAssegno.SetFocus();
        Piattaforma().Clessidra(false);
        return;
    }
    if (f.IMPORTO.Text().empty()) f.IMPORTO.SetText("0");
    std::string annullato = "N";
    // Only the very text "0" asks: a zero with decimals is an ordinary cheque of 0.
    if (f.IMPORTO.Text() == "0") {
        Risposta r = Piattaforma().MsgBox(
            "Attenzione non è stato inserito l'importo dell'assegno, se si tratta di un "
            "assegno annullato conferma l'inserimento",
            "AVVERTIMENTO!", Icona::Esclamazione, Pulsanti::OKAnnulla, 1);
        if (r != Risposta::OK) {
            f.DataAssegno.SetFocus();
            Piattaforma().Clessidra(false);
            return;
        }
        annullato = "S";
        f.traente.SetText("Annullato");
    }
    IgnoraErrori({
        [&] { RegistraAssegno(f, annullato); },
        [] {
            ConRecord(NomeFileConto(".FOG"), RecAssegno::Lunghezza, 3, [] {
                ScriviRecord(Stato.Assegni[Stato.FoglioCorrente], Stato.FoglioCorrente, 3);
            });
        },
        [&] { MostraFoglio(f, Stato.Assegni[Stato.FoglioCorrente]); },
        ElencaFogli,
        ScriviOrd,
        RicalcolaTotali,
        ElencaPerOperazione,
        [&] {
            f.DataAssegno.SetFocus();
            Piattaforma().Clessidra(false);
        },
    });
}
