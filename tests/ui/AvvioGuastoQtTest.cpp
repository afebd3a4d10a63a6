// The real program: a start on a spoiled counter of causali still shows the main window, with
// the account chooser within reach; a paste into the account number passes the key filter.
#include "tests/ui/ProgrammaQt.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QLineEdit>
#include <QMainWindow>
#include <QTest>

namespace {
struct AvvioGuastoQt : ProgrammaQt {
    void SetUp() override {
        QFile contatore(cartella.filePath("RecCausa.dat"));
        ASSERT_TRUE(contatore.open(QIODevice::WriteOnly));
        contatore.write("\xff", 1);
        contatore.close();
        ProgrammaQt::SetUp();
    }
    void Menu(const char* voce) {
        porta.FinestraPrincipale()->findChild<QAction*>(voce)->trigger();
    }
};

TEST_F(AvvioGuastoQt, LaFinestraVieneSuEIlNumeroIncollatoPassaPerIlFiltro) {
    EXPECT_TRUE(porta.FinestraPrincipale()->isVisible());
    Menu("ApriConto");
    EXPECT_NE(porta.FinestraDi(app.Form7.S), nullptr);
    In<QPushButton>(app.Form7.S, "Command2")->click();

    Menu("NuovoConto");
    auto* numero = In<QLineEdit>(app.Form2.S, "CodConto");
    ASSERT_NE(numero, nullptr);
    QTest::keyClicks(numero, "1");
    QApplication::clipboard()->setText("../2/3");
    numero->paste();
    EXPECT_EQ(numero->text(), "123");
    EXPECT_EQ(app.Form2.CodConto.Text(), "123");
}
} // namespace
