// The real main window, started as the program starts it on an empty program directory.
#include "screen/Schermo.h"
#include "shell/Applicazione.h"
#include "store/Stato.h"
#include "ui/Legatore.h"
#include "ui/Partenza.h"
#include "ui/PiattaformaQt.h"

#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

struct FinestraPrincipale : testing::Test {
    QTemporaryDir cartella;
    Applicazione app;
    PiattaformaQt porta;
    std::vector<std::string> riquadri; // "[TITLE] TEXT -> BUTTON"
    std::string risposta = "Annulla";

    void SetUp() override {
        ImpostaPiattaforma(&porta);
        porta.rispondi = [this](QMessageBox& box) -> QAbstractButton* {
            riquadri.push_back("[" + box.windowTitle().toStdString() + "] " +
                               box.text().toStdString() + " -> " + risposta);
            for (QAbstractButton* p : box.buttons())
                if (p->text().toStdString() == risposta) return p;
            return nullptr;
        };
        ASSERT_TRUE(cartella.isValid());
        Parti(cartella.path().toStdString() + "/");
        ASSERT_NE(Finestra(), nullptr);
    }
    void TearDown() override { ImpostaPiattaforma(nullptr); }

    QMainWindow* Finestra() { return porta.FinestraPrincipale(); }
    template <class W> W* Widget(const char* nome) { return Finestra()->findChild<W*>(nome); }
    static std::vector<std::string> Voci(const QWidget& w) {
        std::vector<std::string> voci;
        for (QAction* a : w.actions())
            voci.push_back(a->isSeparator() ? "-" : a->text().toStdString());
        return voci;
    }
};

TEST_F(FinestraPrincipale, SiApreSullaCartellaDelProgramma) {
    EXPECT_EQ(Stato.PercorsoProgramma, cartella.path().toStdString() + "/");
    EXPECT_TRUE(Finestra()->isVisible());
    EXPECT_EQ(Finestra()->windowTitle(), "Marendola");
    EXPECT_EQ(riquadri, std::vector<std::string>{});
}

TEST_F(FinestraPrincipale, IMenuInOrdineConLeLoroDidascalie) {
    EXPECT_EQ(
        Voci(*Finestra()->menuBar()),
        (std::vector<std::string>{"&File", "Immissioni", "&Visualizza", "Servizi", "&Manutenzioni",
                                  "Utilità", "Informazioni", "Finestra", "?"}));
    struct Caso {
        const char* menu;
        std::vector<std::string> voci;
    };
    const Caso casi[] = {
        {"File",
         {"&Gestione conto", "&Apri conto esitente", "Gestione causali", "Gestione valute",
          "Chiudi", "Imposta colori", "Imposta stampante", "Preferenze", "&Stampe", "-", "Esci"}},
        {"Stampe", {"&Movimenti", "&Causali", "&Elenco conti", "Totale conti"}},
        {"Immissioni", {"&Movimenti", "&Assegni", "&Carnet"}},
        {"Visualizza", {"&Movimenti", "Assegni fuori", "Assegni annullati"}},
        {"chiusure", {"Staffa/Interessi", "Elimina periodi", "Interessi e costi"}},
        {"Manut",
         {"Allineamento conto", "Ripristina chiusura prec.", "-", "Esegui copie di sicurezza",
          "Ripristina copie", "Cancella Movimenti"}},
        {"UT", {"Riordina archivi", "Conversione valute", "Calcolatrice"}},
        {"Finestre",
         {"Sovrapponi", "Affianca orizzontalmente", "Affianca verticalmente", "Disponi icone"}},
        {"Guida", {"Sommario"}},
    };
    for (const Caso& caso : casi) {
        auto* menu = Widget<QMenu>(caso.menu);
        ASSERT_NE(menu, nullptr) << caso.menu;
        EXPECT_EQ(Voci(*menu), caso.voci) << caso.menu;
    }
}

TEST_F(FinestraPrincipale, SenzaContoIComandiDelContoSonoSpenti) {
    for (const char* menu : {"Stampe", "Visualizza", "Immissioni", "Manut", "chiusure"})
        EXPECT_FALSE(Widget<QMenu>(menu)->menuAction()->isEnabled()) << menu;
    for (const char* pulsante : {"Files", "PulStampe", "PulsMovimenti", "BottCarnet", "Vista"})
        EXPECT_FALSE(Widget<QPushButton>(pulsante)->isEnabled()) << pulsante;
    // What needs no account stays on.
    for (const char* menu : {"File", "UT", "Finestre", "Guida"})
        EXPECT_TRUE(Widget<QMenu>(menu)->menuAction()->isEnabled()) << menu;
    for (const char* pulsante : {"Command3D2", "Command3D4", "SSCommand1", "browse", "SSCommand2"})
        EXPECT_TRUE(Widget<QPushButton>(pulsante)->isEnabled()) << pulsante;
}

TEST_F(FinestraPrincipale, ISuggerimentiDelPannelloEDeiPulsanti) {
    struct Caso {
        const char* widget;
        const char* suggerimento;
    };
    for (const Caso& caso :
         {Caso{"Command3D2", " Apri "}, Caso{"Vista", " Lista Movimenti "},
          Caso{"SSCommand1", "Gestione Valute"},
          Caso{"Codice", "Percorso dove sono archiviati i dati e nr. di conto"},
          Caso{"Saldi_5", "Disponibilità comprensiva di fido per data operazione"},
          Caso{"UltimaData", "ultima data delle operazioni postergate"}})
        EXPECT_EQ(Widget<QWidget>(caso.widget)->toolTip().toStdString(), caso.suggerimento)
            << caso.widget;
}

TEST_F(FinestraPrincipale, UnaVoceDelMenuArrivaAlModelloEIlModelloAllaFinestra) {
    MDIForm1& f = App().MDIForm1;
    int clic = 0;
    f.sommario.Click = [&] {
        ++clic;
        AbilitaComandiConto(f, true);
        f.Codice.SetText("/dati/123");
    };
    Widget<QAction>("sommario")->trigger();
    EXPECT_EQ(clic, 1);
    EXPECT_TRUE(Widget<QMenu>("Visualizza")->menuAction()->isEnabled());
    EXPECT_TRUE(Widget<QPushButton>("Vista")->isEnabled());
    EXPECT_EQ(Widget<QLabel>("Codice")->text(), "/dati/123");
}

TEST_F(FinestraPrincipale, EsciChiedeConfermaEAnnullaLasciaTuttoComEra) {
    if (!App().MDIForm1.esci.Click) GTEST_SKIP() << "MDIForm1.esci has no handler yet";
    for (const char* comando : {"esci", "SSCommand2"}) {
        riquadri.clear();
        if (std::string(comando) == "esci")
            Widget<QAction>(comando)->trigger();
        else
            QTest::mouseClick(Widget<QPushButton>(comando), Qt::LeftButton);
        EXPECT_EQ(
            riquadri,
            std::vector<std::string>{"[AVVERTIMENTO!] Sei Sicuro di Voler Uscire? -> Annulla"})
            << comando;
        EXPECT_FALSE(porta.terminato);
        EXPECT_TRUE(Finestra()->isVisible());
    }
    risposta = "OK";
    Widget<QAction>("esci")->trigger();
    EXPECT_TRUE(porta.terminato);
}

TEST_F(FinestraPrincipale, ChiudereLaFinestraTerminaSenzaDomande) {
    Finestra()->close();
    EXPECT_TRUE(porta.terminato);
    EXPECT_EQ(riquadri, std::vector<std::string>{});
}

// Two child screens made for the test, with their forms under tests/ui/forms.
struct ProvaFiglio {
    Schermo S;
    Controllo Titolo{S, TipoControllo::Etichetta, "Titolo"};
    ProvaFiglio(const char* nome, const char* titolo) : S(nome, titolo) {}
};

TEST_F(FinestraPrincipale, GliSchermiFigliStannoNellArea) {
    // The area to these two alone (the first start brings up its welcome screen).
    auto* area = Widget<QMdiArea>("Area");
    EventoDaVista([area] {
        for (QMdiSubWindow* finestra : area->subWindowList())
            if (Schermo* s = SchermoDi(finestra->widget())) s->UnloadMe();
    });
    ProvaFiglio uno("ProvaFiglio", "Primo"), due("ProvaFiglioDue", "Secondo");
    int attivazioni = 0;
    uno.S.Activate = [&] { ++attivazioni; };
    EventoDaVista([&] {
        uno.S.Show();
        due.S.Show();
    });
    auto* finestraUno = qobject_cast<QMdiSubWindow*>(porta.FinestraDi(uno.S));
    auto* finestraDue = qobject_cast<QMdiSubWindow*>(porta.FinestraDi(due.S));
    ASSERT_NE(finestraUno, nullptr);
    ASSERT_NE(finestraDue, nullptr);
    EXPECT_EQ(finestraUno->mdiArea(), area);
    EXPECT_EQ(finestraUno->windowTitle(), "Primo");
    EXPECT_EQ(area->activeSubWindow(), finestraDue);
    EXPECT_EQ(attivazioni, 1);

    // The user brings the first to the front: the model hears of it.
    area->setActiveSubWindow(finestraUno);
    EXPECT_EQ(SchermoAttivo(), &uno.S);
    EXPECT_EQ(attivazioni, 2);

    // Tiled vertically: side by side, each as tall as the area.
    porta.DisponiFinestre(2);
    QRect spazio = area->viewport()->rect();
    EXPECT_EQ(finestraUno->geometry(), QRect(0, 0, spazio.width() / 2, spazio.height()));
    EXPECT_EQ(finestraDue->geometry(),
              QRect(spazio.width() / 2, 0, spazio.width() / 2, spazio.height()));
    // Tiled horizontally: one under the other, each as wide as the area.
    porta.DisponiFinestre(1);
    EXPECT_EQ(finestraDue->geometry(),
              QRect(0, spazio.height() / 2, spazio.width(), spazio.height() / 2));

    // The close box of a child unloads its screen.
    int scaricamenti = 0;
    due.S.Unload = [&] { ++scaricamenti; };
    finestraDue->close();
    EXPECT_EQ(scaricamenti, 1);
    EXPECT_EQ(due.S.Stato(), StatoSchermo::Scaricato);
    EXPECT_EQ(porta.FinestraDi(due.S), nullptr);
    uno.S.UnloadMe();
}

} // namespace
