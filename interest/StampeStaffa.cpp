#include "interest/Scala.h"
#include "interest/Staffa.h"
#include "reports/Pagina.h"
#include "shell/Applicazione.h"
#include "store/Guasto.h"
#include "store/Stato.h"
#include "store/Testo.h"

namespace {
std::string DalAl(const Staffa& f) {
    return "    dal " + f.dal.Text() + " al " + f.al.Text() + "   ";
}
} // namespace

void StampaStaffa() {
    Staffa& f = App().Staffa;
    ConClessidra([&f] {
        f.List1.Clear();
        const std::string righello = " " + std::string(80, '-');
        Testata t;
        t.titolo = Space(40) + "Staffa ";
        t.conValuta = true;
        t.selezione = DalAl(f);
        t.sotto = {righello,
                   " De   Valuta      Saldi Valuta  giorni   Numeri Debitori   Numeri Creditori",
                   righello};
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
        RigaLibera("Liq. finale      " + ImportoInColonna(Stato.Cambio * scala.SaldiScala[scala.n]));
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
