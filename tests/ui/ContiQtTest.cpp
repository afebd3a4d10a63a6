// An account made and opened through the widgets of the real program: typed on Form2, picked on
// Form7, confirmed on Form10, and read back from the main window's panel.
#include "screen/Schermo.h"
#include "shell/Applicazione.h"
#include "store/FileRecord.h"
#include "store/Stato.h"
#include "ui/Partenza.h"
#include "ui/PiattaformaQt.h"
#include "tests/ui/ProgrammaQt.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

struct ContiQt : ProgrammaQt {
    template <class W> W* Principale(const char* nome) {
        return porta.FinestraPrincipale()->findChild<W*>(nome);
    }
};

TEST_F(ContiQt, UnContoDigitatoSulForm2SiApreDalForm7EDalForm10) {
    Principale<QAction>("NuovoConto")->trigger();
    const Schermo& form2 = app.Form2.S;
    auto* numero = In<QLineEdit>(form2, "CodConto");
    ASSERT_NE(numero, nullptr) << "Form2 isn't up";
    QTest::keyClicks(numero, "1.2");
    QTest::keyClick(numero, Qt::Key_Return);
    EXPECT_EQ(numero->text(), "12");
    EXPECT_EQ(app.Form2.S.Fuoco(), &app.Form2.TipoConto);
    QTest::keyClicks(In<QLineEdit>(form2, "NomeBanca"), "Banca Qt");
    auto* fido = In<QLineEdit>(form2, "Fido");
    QTest::keyClicks(fido, "15x00");
    EXPECT_EQ(fido->text(), "1500");
    QTest::mouseClick(In<QPushButton>(form2, "AddAnItem"), Qt::LeftButton);
    EXPECT_EQ(riquadri, std::vector<std::string>{});

    auto* elenco = In<QListView>(form2, "ListaConti");
    ASSERT_EQ(elenco->model()->rowCount(), 1);
    EXPECT_EQ(elenco->model()->index(0, 0).data().toString().toStdString(),
              "12         - Banca Qt");
    EXPECT_EQ(numero->text(), "");
    QTest::mouseClick(In<QPushButton>(form2, "esci"), Qt::LeftButton);
    EXPECT_EQ(porta.FinestraDi(form2), nullptr);

    Principale<QAction>("ApriConto")->trigger();
    const Schermo& form7 = app.Form7.S;
    auto* conti = In<QListView>(form7, "List1");
    ASSERT_NE(conti, nullptr) << "Form7 isn't up";
    ASSERT_EQ(conti->model()->rowCount(), 1);
    auto* conferma = In<QPushButton>(form7, "OK");
    EXPECT_FALSE(conferma->isEnabled());
    QModelIndex riga = conti->model()->index(0, 0);
    QTest::mouseClick(conti->viewport(), Qt::LeftButton, {}, conti->visualRect(riga).center());
    EXPECT_TRUE(conferma->isEnabled());
    QTest::mouseClick(conferma, Qt::LeftButton);

    const Schermo& form10 = app.Form10.S;
    ASSERT_NE(porta.FinestraDi(form10), nullptr) << "Form10 isn't up";
    EXPECT_EQ(In<QLineEdit>(form10, "CodConto")->text(), "12");
    EXPECT_EQ(In<QLineEdit>(form10, "NomeBanca")->text(), "Banca Qt");
    EXPECT_EQ(In<QLineEdit>(form10, "Fido")->text(), "1.500");
    QTest::mouseClick(In<QPushButton>(form10, "Saldi"), Qt::LeftButton);
    EXPECT_EQ(riquadri, std::vector<std::string>{});

    EXPECT_EQ(porta.FinestraDi(form7), nullptr);
    EXPECT_EQ(porta.FinestraDi(form10), nullptr);
    EXPECT_NE(porta.FinestraDi(app.Form9.S), nullptr);
    const std::string dati = cartella.path().toStdString() + "/dati/";
    EXPECT_EQ(Principale<QLabel>("Codice")->text().toStdString(), dati + "12");
    EXPECT_EQ(Principale<QLabel>("DescConto")->text(), "Banca Qt");
    EXPECT_EQ(Principale<QLabel>("Saldi_2")->text(), "1.500");
    // No movement yet: every balance is nought, and the availability is the credit line.
    for (const char* saldo : {"Saldi_0", "Saldi_1", "Saldi_3", "Saldi_4"})
        EXPECT_EQ(Principale<QLabel>(saldo)->text(), "0") << saldo;
    EXPECT_EQ(Principale<QLabel>("Saldi_5")->text(), "1.500");
    EXPECT_TRUE(Principale<QPushButton>("Vista")->isEnabled());

    RecConto conto;
    ApriRecord(dati + "Conti.dat", RecConto::Lunghezza, 1);
    LeggiRecord(conto, 1, 1);
    ChiudiRecord(1);
    EXPECT_EQ(conto.CodConto.Testo(), "12          ");
    EXPECT_DOUBLE_EQ(conto.Fido, 1500);
    EXPECT_EQ(Stato.ContoAperto, 1);
}

} // namespace
