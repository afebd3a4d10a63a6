// The Qt port: message boxes as the user sees them, the hourglass, and modal screens that hold
// their caller until the model takes them down.
#include "ui/PiattaformaQt.h"
#include "screen/Schermo.h"
#include "ui/Legatore.h"

#include <QApplication>
#include <QDate>
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

TEST_F(PiattaformaQtTest, PulsantiDiOgniInsiemeInOrdineConIlPredefinito) {
    struct Caso {
        Pulsanti insieme;
        int predefinito;
        std::vector<std::string> pulsanti;
        std::string atteso, premuto;
        Risposta risposta;
    };
    const Caso casi[] = {
        {Pulsanti::OK, 0, {"OK"}, "OK", "OK", Risposta::OK},
        {Pulsanti::OKAnnulla, 1, {"OK", "Annulla"}, "Annulla", "OK", Risposta::OK},
        {Pulsanti::OKAnnulla, 1, {"OK", "Annulla"}, "Annulla", "Annulla", Risposta::Annulla},
        {Pulsanti::InterrompiRiprovaIgnora,
         1,
         {"Interrompi", "Riprova", "Ignora"},
         "Riprova",
         "Ignora",
         Risposta::Ignora},
        {Pulsanti::SiNoAnnulla, 2, {"Sì", "No", "Annulla"}, "Annulla", "No", Risposta::No},
        {Pulsanti::SiNo, 0, {"Sì", "No"}, "Sì", "Sì", Risposta::Si},
        {Pulsanti::RiprovaAnnulla,
         0,
         {"Riprova", "Annulla"},
         "Riprova",
         "Annulla",
         Risposta::Annulla},
    };
    for (const Caso& caso : casi) {
        SCOPED_TRACE(caso.premuto + " of " + caso.pulsanti.front());
        visti.clear();
        daPremere = caso.premuto;
        EXPECT_EQ(porta.MsgBox("Sei Sicuro di Voler Uscire?", "AVVERTIMENTO!", Icona::Esclamazione,
                               caso.insieme, caso.predefinito),
                  caso.risposta);
        ASSERT_EQ(visti.size(), 1u);
        EXPECT_EQ(visti[0].pulsanti, caso.pulsanti);
        EXPECT_EQ(visti[0].predefinito, caso.atteso);
    }
}

TEST_F(PiattaformaQtTest, TitoloTestoEIcona) {
    struct Caso {
        Icona icona;
        QMessageBox::Icon qt;
    };
    for (const Caso& caso : {Caso{Icona::Critica, QMessageBox::Critical},
                             Caso{Icona::Esclamazione, QMessageBox::Warning},
                             Caso{Icona::Domanda, QMessageBox::Question},
                             Caso{Icona::Informazione, QMessageBox::Information},
                             Caso{Icona::Nessuna, QMessageBox::NoIcon}}) {
        visti.clear();
        daPremere = "OK";
        porta.MsgBox("il nr. di conto non esiste. ricontrollare i dati inseriti", "ATTENZIONE!",
                     caso.icona, Pulsanti::OK, 0);
        ASSERT_EQ(visti.size(), 1u);
        EXPECT_EQ(visti[0].titolo, "ATTENZIONE!");
        EXPECT_EQ(visti[0].testo, "il nr. di conto non esiste. ricontrollare i dati inseriti");
        EXPECT_EQ(visti[0].icona, caso.qt);
    }
}

TEST_F(PiattaformaQtTest, EscVuolDireAnnullaQuandoCE) {
    daPremere = "OK";
    porta.MsgBox("?", "Attenzione", Icona::Esclamazione, Pulsanti::OKAnnulla, 1);
    porta.MsgBox("?", "Attenzione", Icona::Esclamazione, Pulsanti::SiNoAnnulla, 0);
    porta.MsgBox("?", "Attenzione", Icona::Informazione, Pulsanti::OK, 0);
    ASSERT_EQ(visti.size(), 3u);
    EXPECT_EQ(visti[0].uscita, "Annulla");
    EXPECT_EQ(visti[1].uscita, "Annulla");
    EXPECT_EQ(visti[2].uscita, "OK");
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

TEST_F(PiattaformaQtTest, OggiEUnita) {
    DataCivile oggi = porta.Oggi();
    QDate data = QDate::currentDate();
    EXPECT_EQ(QDate(oggi.anno, oggi.mese, oggi.giorno), data);
    auto unita = porta.Unita();
    EXPECT_NE(std::find(unita.begin(), unita.end(), "/"), unita.end());
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

TEST_F(Modale, UnPulsanteCheScaricaIlProprioSchermo) {
    m.Chiudi.Click = [this] { m.S.UnloadMe(); };
    MostraE([this] {
        QTest::keyClicks(Widget<QLineEdit>("Nome"), "abc");
        QTest::mouseClick(Widget<QPushButton>("Chiudi"), Qt::LeftButton);
    });
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(passi, (std::vector<std::string>{"modale", "ritorno"}));
    EXPECT_EQ(m.S.Stato(), StatoSchermo::Scaricato);
    EXPECT_EQ(m.Nome.Text(), "");
    EXPECT_EQ(Finestra(), nullptr);
}

TEST_F(Modale, ChiudereLaFinestraScaricaLoSchermo) {
    int scaricamenti = 0;
    m.S.Unload = [&] { ++scaricamenti; };
    MostraE([this] { Finestra()->close(); });
    EXPECT_EQ(passi, (std::vector<std::string>{"modale", "ritorno"}));
    EXPECT_EQ(scaricamenti, 1);
    EXPECT_EQ(m.S.Stato(), StatoSchermo::Scaricato);
    EXPECT_EQ(Finestra(), nullptr);
}

TEST_F(Modale, LaFineDelProgrammaSciogliePureLoSchermoModale) {
    MostraE([this] { porta.Termina(); });
    EXPECT_EQ(passi, (std::vector<std::string>{"modale", "ritorno"}));
    EXPECT_TRUE(porta.terminato);
    m.S.UnloadMe();
}

} // namespace
