// The real main window, started as the program starts it on an empty program directory: its
// form's menus and the child screens in its area.
#include "screen/Schermo.h"
#include "store/Stato.h"
#include "tests/ui/ProgrammaQt.h"
#include "ui/Legatore.h"

#include <QAction>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>

namespace {

using FinestraPrincipale = ProgrammaQt;

// The captions of a menu's entries, a separator as "-", each followed by "|".
std::string Voci(const QWidget& w) {
    std::string voci;
    for (QAction* a : w.actions())
        voci += (a->isSeparator() ? "-" : a->text().toStdString()) + "|";
    return voci;
}

TEST_F(FinestraPrincipale, IMenuInOrdineConLeLoroDidascalie) {
    EXPECT_EQ(Stato.PercorsoProgramma, cartella.path().toStdString() + "/");
    EXPECT_EQ(porta.FinestraPrincipale()->windowTitle(), "Marendola");
    EXPECT_EQ(Voci(*porta.FinestraPrincipale()->menuBar()),
              "&File|Immissioni|&Visualizza|Servizi|&Manutenzioni|Utilità|Informazioni|Finestra|"
              "?|");
    const std::pair<const char*, const char*> casi[] = {
        {"File", "&Gestione conto|&Apri conto esitente|Gestione causali|Gestione valute|Chiudi|"
                 "Imposta colori|Imposta stampante|Preferenze|&Stampe|-|Esci|"},
        {"Stampe", "&Movimenti|&Causali|&Elenco conti|Totale conti|"},
        {"Immissioni", "&Movimenti|&Assegni|&Carnet|"},
        {"Visualizza", "&Movimenti|Assegni fuori|Assegni annullati|"},
        {"chiusure", "Staffa/Interessi|Elimina periodi|Interessi e costi|"},
        {"Manut", "Allineamento conto|Ripristina chiusura prec.|-|Esegui copie di sicurezza|"
                  "Ripristina copie|Cancella Movimenti|"},
        {"UT", "Riordina archivi|Conversione valute|Calcolatrice|"},
        {"Finestre", "Sovrapponi|Affianca orizzontalmente|Affianca verticalmente|Disponi icone|"},
        {"Guida", "Sommario|"},
    };
    for (const auto& [nome, voci] : casi) {
        auto* menu = Principale<QMenu>(nome);
        ASSERT_NE(menu, nullptr) << nome;
        EXPECT_EQ(Voci(*menu), voci) << nome;
    }
}

// The question on the way out is the model's; the window's close box ends without it.
TEST_F(FinestraPrincipale, LaChiusuraDellaFinestraFinisceSenzaDomanda) {
    porta.FinestraPrincipale()->close();
    EXPECT_TRUE(porta.terminato);
    EXPECT_EQ(riquadri, std::vector<std::string>{});
}

// A child screen made for the test, on the form tests/ui/forms/Prova.ui.
struct ProvaFiglio {
    Schermo S;
    explicit ProvaFiglio(const char* titolo) : S("Prova", titolo) {}
};

TEST_F(FinestraPrincipale, GliSchermiFigliStannoNellArea) {
    // The area to these two alone (the first start brings up its welcome screen).
    auto* area = Principale<QMdiArea>("Area");
    ASSERT_NE(area, nullptr);
    EventoDaVista([area] {
        for (QMdiSubWindow* finestra : area->subWindowList())
            if (Schermo* s = SchermoDi(finestra->widget())) s->UnloadMe();
    });
    ProvaFiglio uno("Primo"), due("Secondo");
    EventoDaVista([&] {
        uno.S.Show();
        due.S.Show();
    });
    auto* finestraUno = qobject_cast<QMdiSubWindow*>(porta.FinestraDi(uno.S));
    auto* finestraDue = qobject_cast<QMdiSubWindow*>(porta.FinestraDi(due.S));
    ASSERT_NE(finestraUno, nullptr);
    ASSERT_NE(finestraDue, nullptr);
    EXPECT_EQ(finestraUno->mdiArea(), area);
    EXPECT_EQ(area->activeSubWindow(), finestraDue);
    EXPECT_EQ(finestraDue->windowTitle(), "Secondo");

    // The user brings the first to the front: the model hears of it.
    area->setActiveSubWindow(finestraUno);
    EXPECT_EQ(SchermoAttivo(), &uno.S);

    // Tiled vertically: side by side, each as tall as the area.
    porta.DisponiFinestre(2);
    QRect spazio = area->viewport()->rect();
    EXPECT_EQ(finestraDue->geometry(),
              QRect(spazio.width() / 2, 0, spazio.width() / 2, spazio.height()));

    // The close box of a child unloads its screen.
    finestraDue->close();
    EXPECT_EQ(due.S.Stato(), StatoSchermo::Scaricato);
    EXPECT_EQ(porta.FinestraDi(due.S), nullptr);
    uno.S.UnloadMe();
}

} // namespace
