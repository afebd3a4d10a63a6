#include "interest/Competenze.h"
#include "interest/Scala.h"
#include "interest/Staffa.h"
#include "reports/Pagina.h"
#include "shell/Applicazione.h"
#include "store/Guasto.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

namespace {
std::string DalAl(const Staffa& f) {
    return "    dal " + f.dal.Text() + " al " + f.al.Text() + "   ";
}

Testata TestataStaffa(const Staffa& f, const char* corpoTitolo, const std::string& titolo,
                      const char* corpoElenco) {
    Testata t;
    t.corpoTitolo = corpoTitolo;
    t.titolo = titolo;
    t.conValuta = true;
    t.corpoElenco = corpoElenco;
    t.selezione = DalAl(f);
    t.sotto = {" " + std::string(80, '-')};
    return t;
}

// Bold runs from a section's title (the start of its row) through its column heading, or is
// the one row when the heading is blank here.
struct Grassetto {
    std::string inizio, fine;
};
const Grassetto Grassetti[] = {
    {"ELEMENTI PER IL CONTEGGIO DELLE COMPETENZE",
     "       DECORRENZA    TASSO   NUMERI CREDITORI  INTERESSI CREDITORI"},
    {"    INTERESSI DEBITORI",
     "       DECORRENZA    TASSO    NUMERI DEBITORI   INTERESSI DEBITORI"},
    {"    COMMISSIONE MASSIMO SCOPERTO",
     "          DATA      ALIQUOTA  BASE DI CALCOLO  IMPORTO COMMISSIONE"},
    {"    SPESE", ""},
    {"RIEPILOGO COMPETENZE", ""},
    {"COMPETENZE A CREDITO", ""},
    {"SBILANCIO COMPETENZE", ""},
    {" - COMMISSIONE ECCEDENZA O EXTRAFIDO ", ""},
    {"     COMPETENZE FINALI A CREDITO  ", ""},
    {"     SBILANCIO COMPETENZE A DEBITO", ""},
};

// The statement's rows as one stream: the printer throws its own pages, with no head.
void StampaRighe(const std::vector<std::string>& righe) {
    PortaPiattaforma& p = Piattaforma();
    const Grassetto* aperto = nullptr;
    for (const std::string& riga : righe) {
        for (const Grassetto& g : Grassetti)
            if (!aperto && riga.compare(0, g.inizio.size(), g.inizio) == 0) {
                aperto = &g;
                p.StampanteGrassetto(true);
            }
        RigaLibera(riga);
        if (aperto && (aperto->fine.empty() || riga == aperto->fine)) {
            aperto = nullptr;
            p.StampanteGrassetto(false);
        }
    }
}
} // namespace

void StampaStaffa() {
    Staffa& f = App().Staffa;
    ConClessidra([&f] {
        f.List1.Clear();
        Testata t = TestataStaffa(f, "18", Space(40) + "Staffa ", "9,75");
        t.sotto.insert(
            t.sotto.end(),
            {" De   Valuta      Saldi Valuta  giorni   Numeri Debitori   Numeri Creditori",
             t.sotto.front()});
        Stampa s{t, ModelloPagina{55, false, 47, true, {Riga94()}}};
        s.righe = 1;
        IniziaStampa(s);
        ScalaValute scala;
        RigheLadder l;
        IgnoraErrori({[&] {
            scala = CostruisciScala(f.dal.Text(), f.al.Text(), f.NSospesi.Value());
            l = CorpoScala(scala, f.al.Text());
        }});
        for (const std::string& riga : l.righe)
            RigaCorpo(s, riga);
        // The printed totals have wordings and columns of their own against the screen's.
        const std::string riga(87, '-');
        RigaLibera(riga);
        RigaLibera("Liq. finale      " +
                   ImportoInColonna(Stato.Cambio * scala.SaldiScala[scala.n]));
        RigaLibera(riga);
        RigaLibera(Space(30) + "Totali   " + ImportoInColonna(l.debitori) + " " +
                   ImportoInColonna(l.creditori));
        RigaLibera(riga);
        RigaLibera(" massima eccedenza/extra fido  Lire    " +
                   ImportoInColonna(-l.MassimaEccedenza + 0.0));
        if (l.MassimoScoperto != 0) {
            RigaLibera(Riga94());
            RigaLibera("     Massimo scoperto          Lire    " +
                       ImportoInColonna(-(l.MassimaEccedenza + l.MassimoScoperto)));
        }
        FineStampa(s);
    });
    CalcolaStaffa(f);
}

void StampaCompetenze() {
    const Staffa& f = App().Staffa;
    ConClessidra([&f] {
        StampaTestata(TestataStaffa(f, "14", Space(30) + "Calcolo interessi e costi ", "8"));
        Competenze c;
        IgnoraErrori(
            {[&] { c = CalcolaInteressi(f.dal.Text(), f.al.Text(), f.NSospesi.Value(), true); },
             [&] { CalcolaCosti(c); }});
        StampaRighe(c.Righe);
        RigaLibera(Riga94());
        RigaLibera(Space(55) + ".....fine stampa");
        Piattaforma().StampanteFine();
    });
}
