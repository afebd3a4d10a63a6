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
    std::vector<std::string> riquadri; // "[TITLE] TEXT", each answered Annulla

    void SetUp() override {
        ImpostaPiattaforma(&porta);
        porta.rispondi = [this](QMessageBox& box) -> QAbstractButton* {
            riquadri.push_back("[" + box.windowTitle().toStdString() + "] " +
                               box.text().toStdString());
            for (QAbstractButton* p : box.buttons())
                if (p->text() == "Annulla") return p;
            return nullptr;
        };
        ASSERT_TRUE(cartella.isValid());
        Parti(cartella.path().toStdString() + "/");
        ASSERT_NE(Finestra(), nullptr);
    }
    void TearDown() override { ImpostaPiattaforma(nullptr); }

    QMainWindow* Finestra() { return porta.FinestraPrincipale(); }
    template <class W> W* Widget(const char* nome) { return Finestra()->findChild<W*>(nome); }
    // The captions of a menu's entries, a separator as "-", each followed by "|".
    static std::string Voci(const QWidget& w) {
        std::string voci;
        for (QAction* a : w.actions())
            voci += (a->isSeparator() ? "-" : a->text().toStdString()) + "|";
        return voci;
    }
};

TEST_F(FinestraPrincipale, IMenuInOrdineConLeLoroDidascalie) {
    EXPECT_EQ(Stato.PercorsoProgramma, cartella.path().toStdString() + "/");
    EXPECT_EQ(Finestra()->windowTitle(), "Marendola");
    EXPECT_EQ(Voci(*Finestra()->menuBar()), "&File|Immissioni|&Visualizza|Servizi|&Manutenzioni|"
                                            "Utilità|Informazioni|Finestra|?|");
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
        auto* menu = Widget<QMenu>(nome);
        ASSERT_NE(menu, nullptr) << nome;
        EXPECT_EQ(Voci(*menu), voci) << nome;
    }
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

// The question on the way out is the model's; the window's close box ends without it.
TEST_F(FinestraPrincipale, LaChiusuraDellaFinestraFinisceSenzaDomanda) {
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
