// One movement typed with the keyboard into the widgets of the real Form9, on an account opened
// as the program opens one, and read back from the list and from the main window's panel.
#include "screen/Schermo.h"
#include "shell/Applicazione.h"
#include "store/Stato.h"
#include "ui/Legatore.h"
#include "ui/Partenza.h"
#include "ui/PiattaformaQt.h"
#include "tests/ui/ProgrammaQt.h"

#include <QDate>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QPushButton>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

struct Form9Qt : ProgrammaQt {
    void SetUp() override {
        ProgrammaQt::SetUp();
        if (HasFatalFailure()) return;
        // A causale and an account with no credit line, through their screens' models.
        EventoDaVista([this] {
            app.MDIForm1.GestCaus.Clicca();
            app.Form6.CodCausale.SetText("VS");
            app.Form6.DescCausale.SetText("Versamento");
            app.Form6.OK.Clicca();
            app.Form6.esci.Clicca();
            app.MDIForm1.NuovoConto.Clicca();
            app.Form2.CodConto.SetText("1");
            app.Form2.NomeBanca.SetText("Banca Qt");
            app.Form2.AddAnItem.Clicca();
            app.Form2.esci.Clicca();
            app.MDIForm1.ApriConto.Clicca();
            app.Form7.List1.SetListIndex(0);
            app.Form7.OK.Clicca();
            app.Form10.Saldi.Clicca();
        });
        riquadri.clear();
    }

    template <class W> W* In(const char* nome) { return ProgrammaQt::In<W>(app.Form9.S, nome); }
    std::string Pannello(const char* nome) {
        return porta.FinestraPrincipale()->findChild<QLabel*>(nome)->text().toStdString();
    }
};

TEST_F(Form9Qt, UnMovimentoDigitatoFinisceInElencoENelPannello) {
    auto* dataOper = In<QLineEdit>("DataOper");
    ASSERT_NE(dataOper, nullptr) << "Form9 isn't up";
    EXPECT_TRUE(app.Form9.DataOper.HaFuoco());
    const QString anno = QString::number(QDate::currentDate().year());

    // Four digits a date: the year is today's and the focus moves on by itself.
    QTest::keyClicks(dataOper, "0101");
    EXPECT_EQ(dataOper->displayText(), "01/01/" + anno);
    EXPECT_TRUE(app.Form9.DataValuta.HaFuoco());
    auto* dataValuta = In<QLineEdit>("DataValuta");
    QTest::keyClicks(dataValuta, "0101");
    EXPECT_EQ(dataValuta->displayText(), "01/01/" + anno);
    EXPECT_TRUE(app.Form9.Causale.HaFuoco());

    auto* causale = In<QLineEdit>("Causale");
    QTest::keyClicks(causale, "VS");
    QTest::keyClick(causale, Qt::Key_Return);
    EXPECT_TRUE(app.Form9.IMPORTO.HaFuoco());
    EXPECT_EQ(In<QLabel>("DescrCausale")->text(), "Versamento");
    EXPECT_EQ(In<QLabel>("Sospeso")->text(), "S");
    EXPECT_EQ(In<QLabel>("D_A")->text(), "E");

    auto* importo = In<QLineEdit>("IMPORTO");
    QTest::keyClicks(importo, "1234,5");
    QTest::keyClick(importo, Qt::Key_Return);
    auto* nrDoc = In<QLineEdit>("NrDoc");
    QTest::keyClicks(nrDoc, "7");
    QTest::keyClick(nrDoc, Qt::Key_Return);
    auto* descrizione = In<QLineEdit>("DescMovim");
    QTest::keyClicks(descrizione, "Prova Qt");
    QTest::keyClick(descrizione, Qt::Key_Return);
    EXPECT_EQ(riquadri, std::vector<std::string>{});

    // 1 January: the date number is 366 times the year plus 1. With no decimals set, 1234,5
    // shows rounded half away from zero.
    const std::string data = "01/01/" + anno.toStdString();
    const std::string attesa = " " + std::to_string(366 * QDate::currentDate().year() + 1) +
                               "  " + data + " " + data + " 0001 Versamento" +
                               std::string(10, ' ') + "  S   E         7 " +
                               std::string(10, ' ') + "1.235";
    auto* elenco = In<QListView>("ElencoMovim");
    ASSERT_EQ(elenco->model()->rowCount(), 1);
    EXPECT_EQ(elenco->model()->index(0, 0).data().toString().toStdString(), attesa);
    EXPECT_EQ(Pannello("Saldi_1"), "1.235");
    EXPECT_EQ(Pannello("Saldi_4"), "1.235");
    EXPECT_EQ(Pannello("Saldi_0"), "0");

    // The line is empty again, ready for the next movement.
    EXPECT_EQ(dataOper->displayText(), "__/__/____");
    EXPECT_EQ(importo->text(), "");
    EXPECT_EQ(In<QLabel>("NrOper")->text(), "2");
    EXPECT_TRUE(app.Form9.DataOper.HaFuoco());
    EXPECT_EQ(Stato.NumMovimenti, 1);
}

} // namespace
