#include "cheques/Form3.h"

#include "cheques/Carnet.h"
#include "cheques/ElenchiAssegni.h"
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

namespace {
void FiltroData(int& tasto) {
    if (tasto == 0 || (tasto >= '0' && tasto <= '9') || tasto == TastoBackspace || tasto == '/')
        return;
    Piattaforma().Beep();
    tasto = 0;
}

void CifreZitte(int& tasto) {
    if (!(tasto >= '0' && tasto <= '9') && tasto != TastoBackspace) tasto = 0;
}

// Enter with text in the field moves on; Enter itself is never typed.
void InvioAvanza(int& tasto, bool conTesto, Controllo& prossimo) {
    if (tasto != TastoInvio) return;
    tasto = 0;
    if (conTesto) prossimo.SetFocus();
}

void ProssimoNumero(Form3& f) {
    f.NrCarnet.SetText(std::to_string(Stato.Carnet[Stato.NumCarnet].NrCarnet + 1));
}

void SvuotaCampi(Form3& f) {
    f.DataCarnet.SetText(DataVuotaMaschera);
    f.CostoCarnet.SetText("");
    f.NrInf.SetText("");
    f.NrFinale.SetText("");
    f.DataCarnet.SetFocus();
}

void Avviso(const char* testo) {
    Piattaforma().MsgBox(testo, "", Icona::Esclamazione, Pulsanti::OK, 0);
}

// Steps 8 and 9 of Conferma: the book and its cost movement in the next free slots.
void RiempiSlot(Form3& f) {
    Stato.NumCarnet = Intero16(Stato.NumCarnet + 1.0);
    RecCarnet& c = Stato.Carnet[Stato.NumCarnet];
    c.MovCosto = static_cast<std::int16_t>(Stato.NumMovimenti + 1);
    c.NrCarnet = static_cast<std::int16_t>(Val(f.NrCarnet.Text()));
    c.DataCarnet = f.DataCarnet.Text();
    // An empty cost becomes "0" and leaves the slot's figure as it stands.
    if (f.CostoCarnet.Text().empty())
        f.CostoCarnet.SetText("0");
    else
        c.CostoCarnet = ImportoInEuro(ImportoDaTesto(f.CostoCarnet.Text()));
    c.NrInf = Intero32(Val(f.NrInf.Text()));
    c.NrFinale = Intero32(Val(f.NrFinale.Text()));
    c.Chiuso = "N";
    c.FogliFuori = 10;
    c.CostoAllineato = "N";

    Stato.NumMovimenti = Intero16(Stato.NumMovimenti + 1.0);
    RecMovimento& m = Stato.Movimenti[Stato.NumMovimenti];
    m.NrOper = Stato.NumMovimenti;
    m.DataOper = f.DataCarnet.Text();
    m.DataValuta = f.DataCarnet.Text();
    m.Causale = "CA";
    m.IMPORTO =
        f.CostoCarnet.Text() == "0" ? 0 : ImportoInEuro(ImportoDaTesto(f.CostoCarnet.Text()));
    m.NrDoc = f.NrCarnet.Text();
    m.DescMovim = "Carnet nr. " + f.NrCarnet.Text() + "-" + f.NrInf.Text();
    m.Sospeso = "S";
    m.D_A = "U";
    m.Annullato = "N";
}
} // namespace

std::string CostoFormattato(double costo) {
    return Format(costo, FormatoBrevePerDecimali(Stato.Imposta.decimali));
}

Form3::Form3() {
    NrInf.MaxLength = 8;
    Del.Enabled = false;

    auto prepara = [this] {
        if (Stato.FlagOperazione != 1) ProssimoNumero(*this);
    };
    S.Load = [this, prepara] {
        const RecConto& conto = Stato.Conti[Stato.IndiceConto];
        banca.SetText(RTrim(conto.NomeBanca));
        NrConto.SetText(RTrim(conto.CodConto));
        prepara();
    };
    S.Activate = [this, prepara] {
        prepara();
        DataCarnet.SetFocus();
    };

    DataCarnet.KeyPress = [this](int& tasto) {
        InvioAvanza(tasto, !DataVuota(DataCarnet.Text()), CostoCarnet);
        FiltroData(tasto);
    };
    CostoCarnet.KeyPress = [this](int& tasto) {
        InvioAvanza(tasto, !CostoCarnet.Text().empty(), NrInf);
        CifreZitte(tasto);
    };
    CostoCarnet.LostFocus = [this] {
        if (CostoCarnet.Text().empty()) CostoCarnet.SetText("0");
        CostoCarnet.SetText(CostoFormattato(ImportoDaTesto(CostoCarnet.Text())));
    };
    NrInf.KeyPress = [this](int& tasto) {
        InvioAvanza(tasto, !NrInf.Text().empty(), Salva);
        CifreZitte(tasto);
    };
    NrInf.Change = [this] {
        if (Len(NrInf.Text()) >= 8) Salva.SetFocus();
    };
    Salva.GotFocus = [this] {
        NrFinale.SetText(Str(Val(NrInf.Text()) + Val(NrFogli.Text()) - 1).substr(1));
    };

    Salva.Click = ConfermaCarnet;
    esci.Click = [this] {
        S.UnloadMe();
        SvuotaRiga();
        App().Form9.Del.Enabled = false;
        Stato.FlagOperazione = 0;
        Del.Enabled = false;
    };
    Visualizza.Click = [this] {
        App().Form14.S.Show(true);
        Del.Enabled = true;
    };
    Command3D1.Click = [this] {
        Stato.CarnetCorrente = 0;
        ProssimoNumero(*this);
        Del.Enabled = false;
        SvuotaCampi(*this);
    };
    Del.Click = [this] {
        Risposta r = Piattaforma().MsgBox(
            "Attenzione il Carnet selezionato verrà cancellato, ...Vuoi Continuare?",
            "AVVERTIMENTO!", Icona::Esclamazione, Pulsanti::OKAnnulla, 1);
        if (r == Risposta::OK) CancellaCarnet();
        SvuotaCampi(*this);
    };
    Command3D9.Click = [] { App().Form13.S.Show(true); };
}

void ConfermaCarnet() {
    Form3& f = App().Form3;
    long vecchiNumeri[11] = {};
    const bool modifica = Stato.CarnetCorrente >= 1 && Stato.CarnetCorrente <= Stato.NumCarnet;
    if (modifica)
        for (int j = 0; j < 10; ++j)
            vecchiNumeri[j + 1] = Stato.Carnet[Stato.CarnetCorrente].NrInf + j;

    // Only an equal first number is a duplicate: ranges aren't compared.
    for (long j = 1; j <= Stato.NumCarnet; ++j)
        if (Stato.CarnetCorrente == 0 && Val(f.NrInf.Text()) == Stato.Carnet[j].NrInf) {
            Avviso("Carnet già esistente");
            f.NrInf.SetText("");
            f.NrInf.SetFocus();
            Piattaforma().Clessidra(false);
            return;
        }
    if (DataVuota(f.DataCarnet.Text())) {
        Avviso("Campo Data obbligatorio");
        f.DataCarnet.SetFocus();
        return;
    }
    if (f.NrInf.Text().empty()) {
        Avviso("Campo obbligatorio");
        f.NrInf.SetFocus();
        return;
    }
    const int lunghezza = Len(f.DataCarnet.Text());
    if (lunghezza != 8 && lunghezza != 10) {
        MessaggioDataBreve();
        f.DataCarnet.SetText(DataVuotaMaschera);
        f.DataCarnet.SetFocus();
        return;
    }
    if (!ControllaCampoData(f.DataCarnet)) {
        f.DataCarnet.SetFocus();
        return;
    }
    Piattaforma().Clessidra(true);
    bool nuovo = true;

    IgnoraErrori({
        [&] { RiempiSlot(f); },
        [&] {
            // A change: the two slots were scratch places, and the book and its movement are
            // written where they stand. An aligned cost movement turns suspended again.
            if (Stato.CarnetCorrente < 1 || Stato.CarnetCorrente > Stato.NumCarnet - 1) return;
            const RecMovimento scritto = Stato.Movimenti[Stato.NumMovimenti];
            Stato.NumCarnet -= 1;
            Stato.NumMovimenti -= 1;
            Stato.MovimentoCorrente = Stato.Carnet[Stato.CarnetCorrente].MovCosto;
            ModificaCarnet(vecchiNumeri);
            RecMovimento& m = Stato.Movimenti[Stato.MovimentoCorrente];
            m = scritto;
            m.NrOper = Stato.MovimentoCorrente;
            ConRecord(NomeFileConto(".MOV"), RecMovimento::Lunghezza, 1,
                      [&] { ScriviRecord(m, Stato.MovimentoCorrente, 1); });
            Form9& e = App().Form9;
            RidisegnaElencoForm9();
            e.Command2.Enabled = true;
            e.Command1.Enabled = false;
            e.Del.Enabled = false;
            Stato.MovimentoCorrente = 0;
            Stato.CarnetCorrente = 0;
            nuovo = false;
        },
        [&] {
            if (!nuovo) return;
            ScriviNuovoCarnet();
            AggiungiMovimento();
        },
        ElencaSituazione,
        [&] { SvuotaCampi(f); },
        RicalcolaTotali,
        ScriviOrd,
        ElencaPerOperazione,
        [&] {
            Piattaforma().Clessidra(false);
            ProssimoNumero(f);
            Stato.FlagOperazione = 0;
            f.Del.Enabled = false;
        },
    });
}
