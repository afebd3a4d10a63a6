// The Qt port: message boxes as the user sees them, the hourglass, and modal screens that hold
// their caller until the model takes them down.
#include "ui/PiattaformaQt.h"
#include "screen/Schermo.h"
#include "ui/Legatore.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

// A box as the user sees it: "TITLE|TEXT|BUTTONS", the buttons from left to right between bars,
// the default one after "*", the one Escape presses before "!".
struct PiattaformaQtTest : testing::Test {
    PiattaformaQt porta;
    std::vector<std::string> visti;
    std::vector<QMessageBox::Icon> icone;
    std::string daPremere;

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
    EXPECT_EQ(visti.size(), std::size(casi) + 1);
}

TEST_F(PiattaformaQtTest, SenzaRispostaPreparataIlRiquadroAttendeLUtente) {
    porta.rispondi = nullptr;
    std::string visto;
    QTimer::singleShot(0, [&visto] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box) return;
        visto = box->windowTitle().toStdString();
        for (QAbstractButton* p : box->buttons())
            if (p->text() == "No") p->click();
    });
    QTimer::singleShot(5000, [] {
        if (QWidget* box = QApplication::activeModalWidget()) box->close();
    });
    EXPECT_EQ(porta.MsgBox("Salvare?", "Attenzione", Icona::Domanda, Pulsanti::SiNoAnnulla, 0),
              Risposta::No);
    EXPECT_EQ(visto, "Attenzione");
}

TEST_F(PiattaformaQtTest, LaClessidraNonSiAccumula) {
    porta.Clessidra(true);
    porta.Clessidra(true);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    porta.Clessidra(false);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

// A screen shown only modally, on the form tests/ui/forms/Prova.ui.
struct ProvaModale {
    Schermo S{"Prova", "Finestra modale"};
    Controllo Nome{S, TipoControllo::Campo, "Nome"};
    Controllo Chiudi{S, TipoControllo::Pulsante, "Chiudi", "Chiudi"};
    ProvaModale() { S.Figlio = false; }
};

struct Modale : PiattaformaQtTest {
    ProvaModale m;
    std::vector<std::string> passi;

    // Runs `azione` inside the modal loop, with a way out should it not end the loop.
    void MostraE(const std::function<void()>& azione) {
        QTimer::singleShot(0, [this, azione] {
            QWidget* finestra = porta.FinestraDi(m.S);
            bool modale = finestra && finestra->isVisible() && finestra->isModal();
            passi.push_back(modale ? "modale" : "non modale");
            azione();
        });
        QTimer::singleShot(5000, [this] {
            if (m.S.Stato() != StatoSchermo::Modale) return;
            ADD_FAILURE() << "the modal loop didn't end";
            porta.Termina();
        });
        EventoDaVista([this] {
            m.S.Show(true);
            passi.push_back("ritorno");
        });
    }
    QWidget* Finestra() { return porta.FinestraDi(m.S); }
    template <class W> W* Widget(const char* nome) { return Finestra()->findChild<W*>(nome); }
};

TEST_F(Modale, IlChiamanteAttendeFinCheLoSchermoSiNasconde) {
    m.Chiudi.Click = [this] { m.S.Hide(); };
    MostraE([this] {
        QTest::keyClicks(Widget<QLineEdit>("Nome"), "abc");
        // Escape is the model's key, not the window's: the screen stays up.
        QTest::keyClick(Widget<QLineEdit>("Nome"), Qt::Key_Escape);
        passi.push_back(Finestra()->isVisible() ? "ancora su" : "chiusa da Esc");
        QTest::mouseClick(Widget<QPushButton>("Chiudi"), Qt::LeftButton);
    });
    EXPECT_EQ(passi, (std::vector<std::string>{"modale", "ancora su", "ritorno"}));
    EXPECT_EQ(m.Nome.Text(), "abc");
    EXPECT_EQ(m.S.Stato(), StatoSchermo::Nascosto);
    ASSERT_NE(Finestra(), nullptr);
    EXPECT_FALSE(Finestra()->isVisible());
    EXPECT_EQ(Finestra()->windowTitle(), "Finestra modale");
    m.S.UnloadMe();
}

TEST_F(Modale, UnPulsanteOLaChiusuraDellaFinestraScaricanoLoSchermo) {
    m.Chiudi.Click = [this] { m.S.UnloadMe(); };
    for (bool pulsante : {true, false}) {
        passi.clear();
        MostraE([this, pulsante] {
            QTest::keyClicks(Widget<QLineEdit>("Nome"), "abc");
            if (pulsante)
                QTest::mouseClick(Widget<QPushButton>("Chiudi"), Qt::LeftButton);
            else
                Finestra()->close();
        });
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(passi, (std::vector<std::string>{"modale", "ritorno"})) << pulsante;
        EXPECT_EQ(m.S.Stato(), StatoSchermo::Scaricato) << pulsante;
        EXPECT_EQ(m.Nome.Text(), "") << pulsante;
        EXPECT_EQ(Finestra(), nullptr) << pulsante;
    }
}

TEST_F(Modale, LaFineDelProgrammaSciogliePureLoSchermoModale) {
    MostraE([this] { porta.Termina(); });
    EXPECT_EQ(passi, (std::vector<std::string>{"modale", "ritorno"}));
    EXPECT_TRUE(porta.terminato);
    m.S.UnloadMe();
}

} // namespace
