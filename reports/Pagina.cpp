#include "reports/Pagina.h"

#include "shell/Applicazione.h"
#include "store/Date.h"
#include "store/Formato.h"
#include "store/Piattaforma.h"
#include "store/Testo.h"

namespace {
// The "Pagina" of the page foot and the one of the last page differ by a blank.
const std::string PaginaPiede = Space(42) + "Pagina ";
const std::string PaginaFine = Space(43) + "Pagina ";
} // namespace

std::string Riga94() {
    return " " + std::string(94, '-');
}

Testata TestataElenco(const std::string& titolo, const std::string& selezione,
                      const std::string& colonne) {
    Testata t;
    t.titolo = titolo;
    t.selezione = selezione;
    t.sotto = {Riga94(), colonne, Riga94(), ""};
    return t;
}

ModelloPagina PaginaElenco(short limite, bool oltre, short riempimento) {
    ModelloPagina m;
    m.limite = limite;
    m.oltre = oltre;
    m.riempimento = riempimento;
    m.chiusura = {Riga94(), ""};
    return m;
}

void CorpoStampante(const std::string& testo) {
    Piattaforma().StampanteCorpo(ImportoDaTesto(testo));
}

void StampaTestata(const Testata& t) {
    PortaPiattaforma& p = Piattaforma();
    p.StampanteFont("Arial");
    CorpoStampante(t.corpoTitolo);
    p.StampaRiga("");
    p.StampaRiga(t.titolo);
    if (t.conConto) {
        p.StampaRiga(Space(37));
        CorpoStampante("12");
        p.StampanteTab(1);
        std::string riga = App().MDIForm1.DescConto.Text() + "  " + Space(23) + "Stampato il " +
                           Oggi("DD-MM-YYYY");
        if (t.conValuta) riga += Space(9) + "Valuta: " + App().MDIForm1.Combo1.Text();
        p.StampaRiga(riga);
    } else {
        p.StampaRiga("");
        CorpoStampante("12");
        p.StampaRiga("");
    }
    p.StampaRiga("");
    p.StampanteFont("Courier New");
    CorpoStampante(t.corpoElenco);
    if (t.selezioneGrassetto) p.StampanteGrassetto(true);
    p.StampaRiga(t.selezione);
    if (t.selezioneGrassetto) p.StampanteGrassetto(false);
    for (const std::string& riga : t.sotto)
        p.StampaRiga(riga);
}

void IniziaStampa(Stampa& s) {
    StampaTestata(s.testata);
}

void RigaCorpo(Stampa& s, const std::string& riga) {
    PortaPiattaforma& p = Piattaforma();
    ++s.righe;
    const bool piena = s.modello.oltre ? s.righe >= s.modello.limite : s.righe == s.modello.limite;
    if (piena) {
        p.StampaRiga(" " + std::string(95, '-'));
        p.StampaRiga("");
        p.StampaRiga(PaginaPiede + std::to_string(s.pagina));
        p.StampanteNuovaPagina();
        StampaTestata(s.testata);
        s.righe = 1;
        ++s.pagina;
    }
    p.StampaRiga(s.modello.bianco ? " " + riga : riga);
}

void RigaLibera(const std::string& riga) {
    Piattaforma().StampaRiga(riga);
}

void FineStampa(Stampa& s) {
    PortaPiattaforma& p = Piattaforma();
    for (int i = 1; i <= s.modello.riempimento - s.righe; ++i)
        p.StampaRiga("");
    p.StampaRiga("");
    for (const std::string& riga : s.modello.chiusura)
        p.StampaRiga(riga);
    p.StampaRiga(RigaFineStampa(s.pagina));
    p.StampanteFine();
}

std::string RigaFineStampa(short pagina) {
    return PaginaFine + std::to_string(pagina) + Space(17) + ".....fine stampa";
}

void ConClessidra(const std::function<void()>& stampa) {
    PortaPiattaforma& p = Piattaforma();
    p.Clessidra(true);
    try {
        stampa();
    } catch (...) {
        p.StampanteAnnulla();
        p.Clessidra(false);
        throw;
    }
    p.Clessidra(false);
}

std::string NumeroStampa(long numero, int larghezza) {
    return AllineaDestra(std::to_string(numero), larghezza);
}
