#include "shell/Avvio.h"

#include "refdata/Causali.h"
#include "refdata/Conti.h"
#include "shell/Applicazione.h"
#include "shell/PrimoAvvio.h"
#include "shell/Uscita.h"
#include "shell/passWord.h"
#include "shell/Valuta.h"
#include "store/FileRecord.h"
#include "store/Formato.h"
#include "store/Guasto.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

namespace {
template <class R> void LeggiPrimoRecord(const std::string& nome, R& record) {
    ApriRecord(nome, R::Lunghezza, 1);
    LeggiRecord(record, 1, 1);
    ChiudiRecord(1);
}

// A stored path counts when it starts with a letter (the codes 65 to 122, as the program has
// always tested) or with "/"; "0", the saved form of an empty path, falls to the default.
std::string PercorsoDatiAvvio() {
    std::string memorizzato = Trim(Stato.Imposta.PerAvv);
    unsigned char primo = memorizzato.empty() ? 0 : static_cast<unsigned char>(memorizzato[0]);
    if ((primo >= 65 && primo <= 122) || primo == '/') return memorizzato;
    return Stato.PercorsoProgramma + "dati/";
}

// The accounts are read here without the disk failure path of the account screens: at the
// start a data directory that points nowhere is a plain failure. The count is taken once its
// records are in, so that a spoiled counter leaves no account counted that isn't loaded.
void LeggiArchivi() {
    short conti = LeggiContatore(NomeFileDati("RecConti.dat"));
    ApriRecord(NomeFileDati("Conti.dat"), RecConto::Lunghezza, 1);
    LeggiRecords(Stato.Conti.righe, 1, conti, 1);
    ChiudiRecord(1);
    Stato.NumConti = conti;
    ElencaConti();
    LeggiCausali();
    ElencaCausali();
}

// The load of the main window, step by step in the order the state depends on.
void CaricaFinestraPrincipale(const std::string& cartellaProgramma) {
    MDIForm1& f = App().MDIForm1;

    Stato.PercorsoProgramma = cartellaProgramma;
    if (Stato.PercorsoProgramma.empty() || Stato.PercorsoProgramma.back() != '/')
        Stato.PercorsoProgramma += '/';
    CreaCartelle(Stato.PercorsoProgramma);
    const bool primo = PrimoAvvio();

    LeggiPrimoRecord(NomeFileProgramma("colori.col"), Stato.Colori);
    LeggiPrimoRecord(NomeFileProgramma("Imposta.DAT"), Stato.Imposta);
    Stato.FormatoImporti = FormatoImportiPerDecimali(Stato.Imposta.decimali);
    Stato.PercorsoDati = PercorsoDatiAvvio();
    f.Codice.SetText(Stato.PercorsoDati);

    if (primo) EseguiPrimoAvvio();

    LeggiArchivi();
    LeggiValute();
    ValutaIniziale();

    // A refused or cancelled access has ended the program: nothing more is opened.
    if (Stato.Imposta.accesso == -1 && !ControllaAccesso()) return;
    // "ABC" has the value 0 and is never opened at the start.
    if (Val(Trim(Stato.Imposta.contAvv)) != 0) ApriContoIniziale();
}
} // namespace

void AvviaProgramma(const std::string& cartellaProgramma) {
    MDIForm1& f = App().MDIForm1;
    // A failure of the load is reported, and the window comes up all the same with what was
    // loaded, so that the user can reach the account chooser and another data directory, or
    // leave.
    f.S.Load = [cartellaProgramma] {
        EseguiEvento([&] { CaricaFinestraPrincipale(cartellaProgramma); });
    };
    f.S.Show();
}

void CollegaFinestraPrincipale(MDIForm1& f) {
    f.Combo1.Sorted = true;
    f.Combo1.Click = SceltaValuta;
    f.esci.Click = Esci;
    f.SSCommand2.Click = Esci;
    f.Sovra.Click = [] { Piattaforma().DisponiFinestre(0); };
    f.AffOriz.Click = [] { Piattaforma().DisponiFinestre(1); };
    f.AffVert.Click = [] { Piattaforma().DisponiFinestre(2); };
    f.DispIcon.Click = [] { Piattaforma().DisponiFinestre(3); };
}

void ApriContoIniziale() {
    MDIForm1& f = App().MDIForm1;
    Piattaforma().Clessidra(true);
    Stato.CodContoAperto = Trim(Stato.Imposta.contAvv);
    std::string codice = Trim(Stato.CodContoAperto);

    Stato.IndiceConto = CercaConto(codice);
    if (Stato.IndiceConto == 0) {
        Piattaforma().MsgBox("il nr. di conto non esiste. ricontrollare i dati inseriti", "",
                             Icona::Nessuna, Pulsanti::OK, 0);
        Piattaforma().Clessidra(false);
        return;
    }

    const RecConto& conto = Stato.Conti[Stato.IndiceConto];
    f.Codice.SetText(Stato.PercorsoDati + codice);
    f.DescConto.SetText(Trim(conto.NomeBanca));
    f.Saldi(2).SetText(Format(conto.Fido * Stato.Cambio, Stato.FormatoImporti));
    AbilitaComandiConto(f, true);

    // The entry screen, coming up, loads the account: CaricaConto, AllargaEstremi,
    // ElencaPerOperazione and ScriviOrd.
    App().Form9.S.Show();
    Piattaforma().Clessidra(false);
}
