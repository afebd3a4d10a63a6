// The Qt port: message boxes, the hourglass, the main window, the child screens in its area and
// the modal screens that hold their caller until the model takes them down.
#include "ui/PiattaformaQt.h"
#include "screen/Schermo.h"
#include "shell/Applicazione.h"
#include "ui/Legatore.h"

#include <QTest>
#include <QtWidgets>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

// Each box is kept as "TITLE|TEXT|BUTTONS", the buttons from left to right between bars, the
// default one after "*", the one Escape presses before "!"; the button `daPremere` is pressed.
struct PiattaformaQtTest : testing::Test {
    Applicazione app;
    PiattaformaQt porta;
    std::vector<std::string> visti;
    std::vector<QMessageBox::Icon> icone;
    std::string daPremere;
    QTimer guardia; // should a modal loop never end, the program's end lets the test go on

    void SetUp() override {
        ImpostaPiattaforma(&porta);
        porta.rispondi = [this](QMessageBox& box) -> QAbstractButton* {
            box.show();
            auto pulsanti = box.buttons();
            auto x = [](QAbstractButton* p) { return p->mapToGlobal(QPoint()).x(); };
            std::sort(pulsanti.begin(), pulsanti.end(),
                      [&x](QAbstractButton* a, QAbstractButton* b) { return x(a) < x(b); });
            std::string visto = box.windowTitle().toStdString() + "|" + box.text().toStdString();
            QAbstractButton* premuto = nullptr;
            for (QAbstractButton* p : pulsanti) {
                visto += (p == box.defaultButton() ? "|*" : "|") + p->text().toStdString() +
                         (p == box.escapeButton() ? "!" : "");
                if (p->text().toStdString() == daPremere) premuto = p;
            }
            visti.push_back(visto);
            icone.push_back(box.icon());
            return premuto;
        };
        porta.FinestraPrincipale()->show();
        guardia.callOnTimeout([this] {
            if (QWidget* box = QApplication::activeModalWidget()) box->close();
            porta.Termina();
        });
        guardia.start(10000);
    }
    void TearDown() override { ImpostaPiattaforma(nullptr); }
};

TEST_F(PiattaformaQtTest, IconaPulsantiInOrdinePredefinitoEdEsc) {
    struct Caso {
        Icona icona;
        QMessageBox::Icon qt;
        Pulsanti insieme;
        int predefinito;
        const char *pulsanti, *premuto;
        Risposta risposta;
    };
    using I = Icona;
    using P = Pulsanti;
    using Q = QMessageBox;
    const Caso casi[] = {
        {I::Informazione, Q::Information, P::OK, 0, "*OK!", "OK", Risposta::OK},
        {I::Esclamazione, Q::Warning, P::OKAnnulla, 1, "OK|*Annulla!", "OK", Risposta::OK},
        {I::Critica, Q::Critical, P::InterrompiRiprovaIgnora, 1, "Interrompi|*Riprova|Ignora",
         "Ignora", Risposta::Ignora},
        {I::Domanda, Q::Question, P::SiNoAnnulla, 0, "*Sì|No|Annulla!", "No", Risposta::No},
        {I::Nessuna, Q::NoIcon, P::SiNo, 0, "*Sì|No", "Sì", Risposta::Si},
        {I::Esclamazione, Q::Warning, P::RiprovaAnnulla, 0, "*Riprova|Annulla!", "Annulla",
         Risposta::Annulla},
    };
    for (const Caso& caso : casi) {
        SCOPED_TRACE(caso.pulsanti);
        daPremere = caso.premuto;
        EXPECT_EQ(porta.MsgBox("il nr. di conto non esiste.", "ATTENZIONE!", caso.icona,
                               caso.insieme, caso.predefinito),
                  caso.risposta);
        EXPECT_EQ(visti.back(),
                  std::string("ATTENZIONE!|il nr. di conto non esiste.|") + caso.pulsanti);
        EXPECT_EQ(icone.back(), caso.qt);
    }
    // A run-time failure is a critical box with its number.
    porta.Guasto(53, "Impossibile trovare il file");
    EXPECT_EQ(visti.back(), "Errore|Errore 53: Impossibile trovare il file|*OK!");
    EXPECT_EQ(icone.back(), QMessageBox::Critical);
}

// The box waits for the user, with the arrow under the hourglass, which doesn't pile up.
TEST_F(PiattaformaQtTest, SenzaRispostaPreparataIlRiquadroAttendeLUtente) {
    porta.rispondi = nullptr;
    porta.Clessidra(true);
    int freccia = -1;
    QTimer::singleShot(0, &guardia, [&freccia] {
        freccia = QApplication::overrideCursor()->shape();
        for (QAbstractButton* p : QApplication::activeModalWidget()->findChildren<QPushButton*>())
            if (p->text() == "No") p->click();
    });
    EXPECT_EQ(porta.MsgBox("Salvare?", "Attenzione", Icona::Domanda, Pulsanti::SiNoAnnulla, 0),
              Risposta::No);
    EXPECT_EQ(freccia, Qt::ArrowCursor);
    porta.Clessidra(true);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    porta.Clessidra(false);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

// In the main window's menus "-" makes a separator; its close box ends the program without the
// question on the way out, which is the model's.
TEST_F(PiattaformaQtTest, MenuEChiusuraDellaFinestraPrincipale) {
    QMainWindow* finestra = porta.FinestraPrincipale();
    EXPECT_TRUE(finestra->findChild<QAction*>("A")->isSeparator());
    EXPECT_FALSE(finestra->findChild<QAction*>("esci")->isSeparator());
    finestra->close();
    EXPECT_TRUE(porta.terminato);
    EXPECT_EQ(visti, std::vector<std::string>{});
}

// The screens made by these tests have their form in tests/ui/forms/Prova.ui.
TEST_F(PiattaformaQtTest, GliSchermiFigliStannoNellArea) {
    auto* area = porta.FinestraPrincipale()->findChild<QMdiArea*>("Area");
    Schermo uno("Prova", "Primo"), due("Prova", "Secondo");
    EventoDaVista([&] {
        uno.Show();
        due.Show();
    });
    auto* finestraUno = qobject_cast<QMdiSubWindow*>(porta.FinestraDi(uno));
    auto* finestraDue = qobject_cast<QMdiSubWindow*>(porta.FinestraDi(due));
    ASSERT_TRUE(finestraUno && finestraDue);
    EXPECT_EQ(area->activeSubWindow(), finestraDue);

    // The user brings the first to the front: the model hears of it.
    area->setActiveSubWindow(finestraUno);
    EXPECT_EQ(SchermoAttivo(), &uno);

    // Tiled vertically: side by side, each as tall as the area.
    porta.DisponiFinestre(2);
    QRect spazio = area->viewport()->rect();
    EXPECT_EQ(finestraDue->geometry(),
              QRect(spazio.width() / 2, 0, spazio.width() / 2, spazio.height()));

    finestraDue->close(); // the close box unloads the screen
    EXPECT_EQ(due.Stato(), StatoSchermo::Scaricato);
    EXPECT_EQ(porta.FinestraDi(due), nullptr);
    uno.UnloadMe();
}

// The caller waits until the screen is hidden by its button (way 0), unloaded by it (1), or let
// go at the program's end (2).
TEST_F(PiattaformaQtTest, IlChiamanteAttendeFinCheLoSchermoModaleVieneVia) {
    Schermo S{"Prova", "Finestra modale"};
    Controllo Nome{S, TipoControllo::Campo, "Nome"};
    Controllo OK{S, TipoControllo::Pulsante, "OK", "Chiudi"};
    S.Figlio = false;
    const StatoSchermo stati[] = {StatoSchermo::Nascosto, StatoSchermo::Scaricato,
                                  StatoSchermo::Modale};
    for (int modo : {0, 1, 2}) {
        SCOPED_TRACE(modo);
        OK.Click = [&S, modo] { modo == 0 ? S.Hide() : S.UnloadMe(); };
        std::string passi;
        QTimer::singleShot(0, &guardia, [&, modo] {
            QWidget* f = porta.FinestraDi(S);
            auto* nome = f->findChild<QLineEdit*>("Nome");
            QTest::keyClicks(nome, "abc");
            QTest::keyClick(nome, Qt::Key_Escape); // the model's key, not the window's
            passi = Nome.Text() + (f->isVisible() && f->isModal() ? " modale " : " ") +
                    f->windowTitle().toStdString();
            if (modo < 2) QTest::mouseClick(f->findChild<QPushButton*>("OK"), Qt::LeftButton);
            if (modo == 2) porta.Termina();
        });
        EventoDaVista([&] {
            S.Show(true);
            passi += " ritorno";
        });
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(passi, "abc modale Finestra modale ritorno");
        EXPECT_EQ(S.Stato(), stati[modo]);
        QWidget* finestra = porta.FinestraDi(S);
        EXPECT_EQ(finestra != nullptr, modo != 1);
        EXPECT_EQ(finestra && finestra->isVisible(), modo == 2);
        EXPECT_EQ(porta.terminato, modo == 2);
        S.UnloadMe();
    }
}

} // namespace
