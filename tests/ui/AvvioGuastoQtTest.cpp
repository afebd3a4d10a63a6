// The real program on a spoiled counter of causali: the box "Errore", then the main window on
// screen with the account chooser within reach; and a paste into the account number, which
// goes through the key filter.
#include "tests/ui/ProgrammaQt.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QLineEdit>
#include <QMainWindow>
#include <QTest>

namespace {
TEST(AvvioGuastoQt, LaFinestraPrincipaleVieneSuComunqueEApreLaScelta) {
    QTemporaryDir cartella;
    ASSERT_TRUE(cartella.isValid());
    QFile contatore(cartella.filePath("RecCausa.dat"));
    ASSERT_TRUE(contatore.open(QIODevice::WriteOnly));
    contatore.write("\xff", 1);
    contatore.close();

    Applicazione app;
    PiattaformaQt porta;
    ImpostaPiattaforma(&porta);
    std::vector<std::string> riquadri;
    porta.rispondi = [&](QMessageBox& box) -> QAbstractButton* {
        riquadri.push_back("[" + box.windowTitle().toStdString() + "] " + box.text().toStdString());
        return box.defaultButton();
    };
    Parti(cartella.path().toStdString() + "/");
    EXPECT_EQ(riquadri, (std::vector<std::string>{
                            "[Errore] Errore 9: Indice non compreso nell'intervallo"}));
    QMainWindow* principale = porta.FinestraPrincipale();
    ASSERT_NE(principale, nullptr);
    EXPECT_TRUE(principale->isVisible());
    principale->findChild<QAction*>("ApriConto")->trigger();
    EXPECT_NE(porta.FinestraDi(app.Form7.S), nullptr);
    ImpostaPiattaforma(nullptr);
}

struct IncollaQt : ProgrammaQt {};

TEST_F(IncollaQt, IlNumeroIncollatoPassaPerIlFiltroDeiTasti) {
    porta.FinestraPrincipale()->findChild<QAction*>("NuovoConto")->trigger();
    auto* numero = In<QLineEdit>(app.Form2.S, "CodConto");
    ASSERT_NE(numero, nullptr);
    numero->setFocus();
    QTest::keyClicks(numero, "1");
    QApplication::clipboard()->setText("../2/3");
    numero->paste();
    EXPECT_EQ(numero->text(), "123");
    EXPECT_EQ(app.Form2.CodConto.Text(), "123");
}
} // namespace
