#include "refdata/Conti.h"

#include "refdata/ErroreDisco.h"
#include "refdata/Form2.h"
#include "shell/Applicazione.h"
#include "store/FileRecord.h"
#include "store/Formato.h"
#include "store/Guasto.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace {
// The lists of the screens that are loaded; the others read the accounts when they come up.
std::vector<Controllo*> ElenchiCaricati() {
    std::vector<Controllo*> elenchi;
    if (App().Form2.S.Caricato()) elenchi.push_back(&App().Form2.ListaConti);
    if (App().Form7.S.Caricato()) elenchi.push_back(&App().Form7.List1);
    return elenchi;
}

void ScriviConto(short slot, long record) {
    ApriRecord(NomeFileDati("Conti.dat"), RecConto::Lunghezza, 1);
    ScriviRecord(Stato.Conti[slot], record, 1);
    ChiudiRecord(1);
}

// Every file of the directory whose name starts with `prefisso`, as "prefisso*.*" does:
// folders are not files and stay.
void CancellaFileCheIniziano(const std::string& prefisso) {
    for (const std::string& nome : FileCheIniziano(Stato.PercorsoDati, prefisso)) {
        struct stat info;
        if (lstat(nome.c_str(), &info) == 0 && S_ISDIR(info.st_mode)) continue;
        if (unlink(nome.c_str()) != 0) Errore(NumeroDaErrno(errno));
    }
}
} // namespace

std::string RigaConto(const RecConto& conto) {
    return conto.CodConto.Testo() + " - " + conto.NomeBanca.Testo();
}

void ElencaConti() {
    for (Controllo* elenco : ElenchiCaricati()) {
        elenco->Clear();
        for (short i = 1; i <= Stato.NumConti; ++i) elenco->AddItem(RigaConto(Stato.Conti[i]));
    }
}

void LeggiTabellaConti() {
    ApriRecord(NomeFileDati("Conti.dat"), RecConto::Lunghezza, 1);
    LeggiRecords(Stato.Conti.righe, 1, Stato.NumConti, 1);
    ChiudiRecord(1);
}

void LeggiConti() {
    EseguiConErroreDisco({
        [] {
            for (Controllo* elenco : ElenchiCaricati()) elenco->Clear();
        },
        [] { Stato.NumConti = LeggiContatore(NomeFileDati("RecConti.dat")); },
        [] { LeggiTabellaConti(); },
        [] { ElencaConti(); },
    });
}

std::string NumeroContoDaRiga(const std::string& riga) {
    return Left(riga, Mid(riga, 11, 3) == " - " ? 10 : 12);
}

short CercaConto(const std::string& numero) {
    for (short i = 1; i <= Stato.NumConti; ++i)
        if (Trim(Stato.Conti[i].CodConto) == numero) return i;
    return 0;
}

void SalvaNuovoConto() {
    const RecConto& conto = Stato.Conti[Stato.NumConti];
    ScriviConto(Stato.NumConti, Stato.NumConti);
    ScriviContatore(NomeFileDati("RecConti.dat"), Stato.NumConti);
    std::string numero = Trim(conto.CodConto);
    numero += Space(std::max(0, 10 - Len(numero)));
    for (Controllo* elenco : ElenchiCaricati())
        elenco->AddItem(numero + " - " + App().Form2.NomeBanca.Text());
}

void AggiornaConto() {
    RecConto& conto = Stato.Conti[Stato.IndiceConto];
    conto.Numero = Stato.IndiceConto;
    CampiInConto(App().Form2, conto);
    ScriviConto(Stato.IndiceConto, Stato.IndiceConto);
    ElencaConti();
    Stato.IndiceConto = 0;
}

void SelezionaConto(const std::string& riga) {
    Stato.IndiceConto = CercaConto(Trim(NumeroContoDaRiga(riga)));
    const RecConto& conto = Stato.Conti[Stato.IndiceConto];
    Form2& f = App().Form2;
    f.CodConto.SetText(conto.CodConto);
    f.TipoConto.SetText(conto.TipoConto);
    f.NomeBanca.SetText(conto.NomeBanca);
    f.IndBanca.SetText(conto.IndBanca);
    f.CapBanca.SetText(conto.CapBanca);
    f.LocBanca.SetText(conto.LocBanca);
    f.ProvBanca.SetText(conto.ProvBanca);
    f.abi.SetText(conto.abi);
    f.Cab.SetText(conto.Cab);
    f.id.SetText(conto.id);
    f.Fido.SetText(Format(conto.Fido * Stato.Cambio, Stato.FormatoImporti));
}

void CancellaConto() {
    if (Piattaforma().MsgBox("Attenzione il conto selezionato verrà cancellato"
                             " tutti i dati verranno irrimediabilmente persi. Vuoi continuare ?",
                             "AVVERTIMENTO!", Icona::Esclamazione, Pulsanti::OKAnnulla,
                             1) != Risposta::OK)
        return;
    // The main window shows the data directory and the number of the open account, so the
    // bare number matches only a caption written that way.
    const short scelto = Stato.IndiceConto;
    if (scelto < 1 || scelto > Stato.NumConti ||
        App().MDIForm1.Codice.Text() == Stato.Conti[scelto].CodConto.Testo()) {
        Piattaforma().MsgBox("Non si può cancellare il conto sul quale si lavora, devi prima "
                             "chiudere il conto",
                             "attenzione", Icona::Nessuna, Pulsanti::OK, 0);
        return;
    }
    // A number that names no plain file, as one found in Conti.dat may be, deletes nothing; nor
    // does one of blanks, whose prefix would take every file of the folder.
    const std::string stelo = Trim(Stato.Conti[scelto].CodConto);
    if (stelo.empty()) Errore(52);
    ControllaStelo(stelo);

    // The last old record stays behind the new end of the file, no longer counted.
    ApriRecord(NomeFileDati("Conti.dat"), RecConto::Lunghezza, 1);
    short numero = 0;
    for (short i = 1; i <= Stato.NumConti; ++i) {
        if (Stato.Conti[i].Numero == scelto) continue;
        Stato.Conti[i].Numero = ++numero;
        ScriviRecord(Stato.Conti[i], numero, 1);
    }
    ChiudiRecord(1);

    // A prefix, on purpose: deleting "12" takes the files of "123" as well.
    CancellaFileCheIniziano(stelo);

    --Stato.NumConti;
    ScriviContatore(NomeFileDati("RecConti.dat"), Stato.NumConti);
    LeggiTabellaConti();
    ElencaConti();
    Form10& scheda = App().Form10;
    for (Controllo* c : {&scheda.CodConto, &scheda.TipoConto, &scheda.NomeBanca,
                         &scheda.IndBanca, &scheda.CapBanca, &scheda.LocBanca, &scheda.ProvBanca,
                         &scheda.abi, &scheda.Fido})
        c->SetText("");
}

void ChiudiConto() {
    Applicazione& a = App();
    a.Form10.S.UnloadMe();
    a.Form9.S.UnloadMe();
    a.Form3.S.UnloadMe();
    a.Form15.S.UnloadMe();
    a.Form13.S.UnloadMe();

    MDIForm1& f = a.MDIForm1;
    for (Controllo* c : {&f.UltimaData, &f.AssMano, &f.AssFuori, &f.DescConto}) c->SetText("");
    for (int i = 0; i <= 5; ++i) f.Saldi(i).SetText("");
    f.Codice.SetText(Stato.PercorsoDati);
    Stato.CodContoAperto = "";
    AbilitaComandiConto(f, false);

    Stato.IndiceConto = 0;
    // Form7's chooser rules the data directory; a Form7 not loaded would come up on it.
    if (a.Form7.S.Caricato()) {
        DirDaDrive(a.Form7.Scelta);
        Stato.PercorsoDati = ConBarra(a.Form7.Scelta.Percorso);
    }
    Stato.ContoAperto = 0;
}

void CollegaMenuConti(MDIForm1& f) {
    f.NuovoConto.Click = [] {
        ChiudiConto();
        Form2& s = App().Form2;
        s.S.Carica();
        SvuotaCampiConto(s, true);
        s.CodConto.Enabled = true;
        s.S.Show();
    };
    f.ApriConto.Click = [] { App().Form7.S.Show(); };
    f.Command3D2.Click = [] {
        if (App().Staffa.S.Caricato()) App().Staffa.S.UnloadMe();
        App().Form7.S.Show();
    };
    f.close.Click = ChiudiConto;
}
