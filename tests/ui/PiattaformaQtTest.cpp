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

struct Riquadro {
    std::string titolo, testo;
    QMessageBox::Icon icona;
    std::vector<std::string> pulsanti; // from left to right
    std::string predefinito, uscita;
};

struct PiattaformaQtTest : testing::Test {
    PiattaformaQt porta;
    std::vector<Riquadro> visti;
    std::string daPremere;

    void SetUp() override {
        ImpostaPiattaforma(&porta);
        porta.rispondi = [this](QMessageBox& box) -> QAbstractButton* {
            box.show();
            auto pulsanti = box.buttons();
            auto x = [](QAbstractButton* p) { return p->mapToGlobal(QPoint()).x(); };
            std::sort(pulsanti.begin(), pulsanti.end(),
                      [&x](QAbstractButton* a, QAbstractButton* b) { return x(a) < x(b); });
            Riquadro r{box.windowTitle().toStdString(),
                       box.text().toStdString(),
                       box.icon(),
                       {},
                       box.defaultButton() ? box.defaultButton()->text().toStdString() : "",
                       box.escapeButton() ? box.escapeButton()->text().toStdString() : ""};
            QAbstractButton* premuto = nullptr;
            for (QAbstractButton* p : pulsanti) {
                r.pulsanti.push_back(p->text().toStdString());
                if (p->text().toStdString() == daPremere) premuto = p;
            }
            visti.push_back(r);
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
        std::vector<std::string> pulsanti;
        std::string atteso, uscita, premuto; // uscita: the Escape button, "" not looked at
        Risposta risposta;
    };
    const Caso casi[] = {
        {Icona::Informazione, QMessageBox::Information, Pulsanti::OK, 0, {"OK"}, "OK", "OK", "OK",
         Risposta::OK},
        {Icona::Esclamazione, QMessageBox::Warning, Pulsanti::OKAnnulla, 1, {"OK", "Annulla"},
         "Annulla", "Annulla", "OK", Risposta::OK},
        {Icona::Critica, QMessageBox::Critical, Pulsanti::InterrompiRiprovaIgnora, 1,
         {"Interrompi", "Riprova", "Ignora"}, "Riprova", "", "Ignora", Risposta::Ignora},
        {Icona::Domanda, QMessageBox::Question, Pulsanti::SiNoAnnulla, 0, {"Sì", "No", "Annulla"},
         "Sì", "Annulla", "No", Risposta::No},
        {Icona::Nessuna, QMessageBox::NoIcon, Pulsanti::SiNo, 0, {"Sì", "No"}, "Sì", "", "Sì",
         Risposta::Si},
        {Icona::Esclamazione, QMessageBox::Warning, Pulsanti::RiprovaAnnulla, 0,
         {"Riprova", "Annulla"}, "Riprova", "", "Annulla", Risposta::Annulla},
    };
    for (const Caso& caso : casi) {
        visti.clear();
        daPremere = caso.premuto;
        EXPECT_EQ(porta.MsgBox("il nr. di conto non esiste.", "ATTENZIONE!", caso.icona,
                               caso.insieme, caso.predefinito),
                  caso.risposta);
        ASSERT_EQ(visti.size(), 1u);
        const Riquadro& r = visti[0];
        EXPECT_EQ(r.titolo + "|" + r.testo, "ATTENZIONE!|il nr. di conto non esiste.");
        EXPECT_EQ(r.icona, caso.qt);
        EXPECT_EQ(r.pulsanti, caso.pulsanti);
        EXPECT_EQ(r.predefinito, caso.atteso);
        if (!caso.uscita.empty()) EXPECT_EQ(r.uscita, caso.uscita);
    }
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

TEST_F(PiattaformaQtTest, IlGuastoEUnRiquadroErrore) {
    daPremere = "OK";
    porta.Guasto(53, "Impossibile trovare il file");
    ASSERT_EQ(visti.size(), 1u);
    EXPECT_EQ(visti[0].titolo, "Errore");
    EXPECT_EQ(visti[0].testo, "Errore 53: Impossibile trovare il file");
    EXPECT_EQ(visti[0].icona, QMessageBox::Critical);
    EXPECT_EQ(visti[0].pulsanti, std::vector<std::string>{"OK"});
}

TEST_F(PiattaformaQtTest, LaClessidraNonSiAccumula) {
    porta.Clessidra(true);
    porta.Clessidra(true);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    porta.Clessidra(false);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

// A screen shown only modally, with its form under tests/ui/forms.
struct ProvaModale {
    Schermo S{"ProvaModale", "Finestra modale"};
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
