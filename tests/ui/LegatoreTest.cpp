// The binder on a screen made for the test, on tests/ui/forms/Prova.ui with one widget of each
// kind: what the user does reaches the model once, and what the model holds reaches the widgets.
#include "ui/Legatore.h"
#include "screen/PiattaformaSenzaSchermo.h"
#include "screen/Schermo.h"
#include "store/Colore.h"
#include "store/Guasto.h"
#include "ui/Moduli.h"

#include <QTest>
#include <QtWidgets>

#include <gtest/gtest.h>

namespace {

using Eventi = std::vector<std::string>;

struct Prova {
    Schermo S{"Prova", "Prova del legatore"};
    Controllo Nome{S, TipoControllo::Campo, "Nome"};
    Controllo DataOper{S, TipoControllo::Data, "DataOper"};
    Controllo Elenco{S, TipoControllo::Lista, "Elenco"};
    Controllo Valuta{S, TipoControllo::Combo, "Valuta"};
    Controllo Due{S, TipoControllo::Opzione, "Due", "Due"};
    Controllo OK{S, TipoControllo::Pulsante, "OK", "OK"};
    Controllo Bandiera{S, TipoControllo::Immagine, "Bandiera"};
    MatriceControlli Saldi{S, TipoControllo::Etichetta, "Saldi", 0, 1};
    Controllo Voce{S, TipoControllo::Menu, "Voce", "&Voce"};
    Controllo Menu{S, TipoControllo::Menu, "Menu", "&Menu"};
};

// The widgets follow the model at the end of each event; a test that changes the model itself
// calls AggiornaViste() as that end.
struct Legatore : testing::Test {
    PiattaformaSenzaSchermo porta;
    Prova p;
    std::unique_ptr<QWidget> radice{CaricaModulo("Prova")};
    Eventi eventi;

    template <class W> W* Widget(const char* nome) { return radice->findChild<W*>(nome); }

    void SetUp() override {
        ImpostaPiattaforma(&porta);
        for (Controllo* c : {&p.Nome, &p.DataOper, &p.Elenco, &p.Valuta, &p.OK, &p.Voce}) {
            c->Change = [this, n = c->nome] { eventi.push_back(n + ".Change"); };
            c->Click = [this, n = c->nome] { eventi.push_back(n + ".Click"); };
        }
        p.S.Show();
        Lega(p.S, radice.get());
        AggiornaViste();
        radice->show();
        radice->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(radice.get()));
        eventi.clear();
    }
    void TearDown() override {
        Slega(p.S);
        ImpostaPiattaforma(nullptr);
    }
};

TEST_F(Legatore, IlCampoTroncaMascheraEMostraLImportoFormattato) {
    auto* nome = Widget<QLineEdit>("Nome");
    p.Nome.MaxLength = 3;
    AggiornaViste();
    QTest::keyClicks(nome, "Rossi");
    EXPECT_EQ(p.Nome.Text(), "Ros");

    // A masked date reads with its blanks, which the program's date checks count on.
    QTest::keyClicks(Widget<QLineEdit>("DataOper"), "15");
    EXPECT_EQ(p.DataOper.Text(), "15/__/____");

    // 1234,5 in "#,##0.00": thousands grouped with ".", two decimals after ","; as typed while
    // the field has the focus, and a text that is no amount as it stands.
    p.Nome.MaxLength = 0;
    p.Nome.Formato = "#,##0.00";
    const std::tuple<const char*, Controllo*, const char*> casi[] = {
        {"1234,5", &p.DataOper, "1.234,50"}, {"1234,5", &p.Nome, "1234,5"}, {"abc", &p.OK, "abc"}};
    for (auto [testo, fuoco, mostrato] : casi) {
        p.Nome.SetText(testo);
        fuoco->SetFocus();
        AggiornaViste();
        EXPECT_EQ(nome->text(), mostrato) << testo;
    }
}

// The selected line of a combo must show when it is not the first: line 1 of two.
TEST_F(Legatore, LeScrittureDelProgrammaNonTornanoELaSceltaDellUtenteEUnClic) {
    p.OK.Click = [this] {
        eventi.push_back("OK.Click");
        p.Nome.SetText("scritto dal programma");
        p.Valuta.AddItem("Euro - Unione Europea");
        p.Valuta.AddItem("Lira - Italia");
        p.Valuta.SetListIndex(1);
        p.Elenco.AddItem("riga");
        p.Elenco.SetListIndex(0);
        p.Due.SetValue(true);
    };
    QTest::mouseClick(Widget<QPushButton>("OK"), Qt::LeftButton);
    // Each change once, from the model itself; none again from the widgets written after.
    EXPECT_EQ(eventi, (Eventi{"OK.Click", "Nome.Change", "Valuta.Click", "Elenco.Click"}));
    EXPECT_EQ(Widget<QLineEdit>("Nome")->text(), "scritto dal programma");
    auto* combo = Widget<QComboBox>("Valuta");
    EXPECT_EQ(combo->currentIndex(), 1);
    EXPECT_TRUE(Widget<QRadioButton>("Due")->isChecked());

    // A failure in a handler goes to the platform, and the program goes on: a choice from the
    // lines is a click, not a change of text.
    p.OK.Click = [] { Errore(9); };
    QTest::mouseClick(Widget<QPushButton>("OK"), Qt::LeftButton);
    EXPECT_EQ(porta.messaggi, Eventi{"FAILURE 9 Indice non compreso nell'intervallo"});
    eventi.clear();
    QTest::keyClick(combo, Qt::Key_Up);
    EXPECT_EQ(p.Valuta.Text(), "Euro - Unione Europea");
    EXPECT_EQ(eventi, Eventi{"Valuta.Click"});
}

TEST_F(Legatore, IlFiltroDeiTastiScartaOCambiaIlTastoAncheNellIncollato) {
    std::vector<int> premuti, rilasciati;
    p.Nome.KeyPress = [&](int& k) {
        premuti.push_back(k);
        if (k == 'x' || k == '/')
            k = 0;
        else if (k >= 'a' && k <= 'z')
            k -= 32;
    };
    p.Nome.KeyUp = [&](int k) { rilasciati.push_back(k); };
    auto* campo = Widget<QLineEdit>("Nome");
    QTest::keyClicks(campo, "axb");
    // A paste between A and B: what the keyboard refuses can't come in that way either.
    campo->setCursorPosition(1);
    QApplication::clipboard()->setText("c/x2");
    campo->paste();
    QTest::keyClick(campo, Qt::Key_Return);
    EXPECT_EQ(p.Nome.Text(), "AC2B");
    EXPECT_EQ(campo->text(), "AC2B");
    EXPECT_EQ(premuti, (std::vector<int>{'a', 'x', 'b', 'c', '/', 'x', '2', TastoInvio}));
    EXPECT_EQ(rilasciati, (std::vector<int>{'A', 'X', 'B', TastoInvio}));
}

TEST_F(Legatore, IlFuocoVaDalModelloAlWidgetEDalClicAlModello) {
    p.Nome.LostFocus = [this] { eventi.push_back("Nome.LostFocus"); };
    p.Nome.SetFocus();
    AggiornaViste();
    ASSERT_TRUE(Widget<QLineEdit>("Nome")->hasFocus());
    QTest::mouseClick(Widget<QLineEdit>("DataOper"), Qt::LeftButton);
    EXPECT_EQ(p.S.Fuoco(), &p.DataOper);
    EXPECT_EQ(eventi, Eventi{"Nome.LostFocus"});
}

TEST_F(Legatore, UnaListaDiTrentamilaRigheNeiColoriDellUtente) {
    for (int i = 0; i < 30000; ++i)
        p.Elenco.AddItem("riga " + std::to_string(i));
    p.Elenco.BackColor = ValoreColore({0, 0, 128});
    p.Elenco.ForeColor = ValoreColore({255, 255, 0});
    AggiornaViste();
    auto* lista = Widget<QListView>("Elenco");
    EXPECT_EQ(lista->palette().color(QPalette::Base), QColor(0, 0, 128));
    EXPECT_EQ(lista->palette().color(QPalette::Text), QColor(255, 255, 0));

    p.Elenco.DblClick = [this] { eventi.push_back("Elenco.DblClick"); };
    QPoint terza = lista->visualRect(lista->model()->index(2, 0)).center();
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, terza);
    QTest::mouseDClick(lista->viewport(), Qt::LeftButton, {}, terza);
    EXPECT_EQ(p.Elenco.ListIndex(), 2);
    EXPECT_EQ(eventi, (Eventi{"Elenco.Click", "Elenco.DblClick"}));

    p.Elenco.SetListIndex(29999);
    p.Elenco.RemoveItem(0);
    AggiornaViste();
    EXPECT_EQ(lista->model()->rowCount(), 29999);
    EXPECT_EQ(lista->currentIndex().row(), 29998);
    EXPECT_EQ(lista->model()->index(0, 0).data().toString(), "riga 1");
}

TEST_F(Legatore, VisibileSuggerimentoImmagineEMenuCheSiApre) {
    QTemporaryDir cartella;
    QString file = cartella.filePath("15.png");
    QImage bandiera(16, 11, QImage::Format_RGB32);
    bandiera.fill(Qt::blue);
    ASSERT_TRUE(bandiera.save(file));
    p.Saldi(1).Visible = false;
    p.Saldi(1).ToolTipText = "Saldo per data valuta";
    p.Bandiera.SetText(file.toStdString());
    AggiornaViste();
    auto* saldo = Widget<QLabel>("Saldi_1");
    EXPECT_FALSE(saldo->isVisible());
    EXPECT_EQ(saldo->toolTip(), "Saldo per data valuta");
    EXPECT_EQ(Widget<QLabel>("Bandiera")->pixmap().size(), QSize(16, 11));

    // A menu pops up only when the user opens it; its handler runs as it opens and may change
    // its entries before they show.
    auto* menu = Widget<QMenu>("Menu");
    auto* voce = Widget<QAction>("Voce");
    EXPECT_FALSE(menu->isVisible());
    EXPECT_EQ(menu->title() + voce->text(), "&Menu&Voce");
    p.Menu.Click = [this] { p.Voce.Enabled = false; };
    emit menu->aboutToShow();
    EXPECT_FALSE(voce->isEnabled());
    p.Voce.Enabled = true;
    p.Menu.Visible = false;
    AggiornaViste();
    voce->trigger();
    EXPECT_EQ(eventi, Eventi{"Voce.Click"});
    EXPECT_FALSE(menu->menuAction()->isVisible());
}

} // namespace
