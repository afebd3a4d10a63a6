// The binder on a screen made for the test, with its widgets built here: what the user does
// reaches the model once, what the model holds reaches the widgets, and the binder's own writes
// never come back as the user's.
#include "ui/Legatore.h"
#include "screen/PiattaformaSenzaSchermo.h"
#include "screen/Schermo.h"
#include "store/Guasto.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

struct Prova {
    Schermo S{"Prova", "Prova del legatore"};
    Controllo Nome{S, TipoControllo::Campo, "Nome"};
    Controllo DataOper{S, TipoControllo::Data, "DataOper"};
    Controllo Elenco{S, TipoControllo::Lista, "Elenco"};
    Controllo Valuta{S, TipoControllo::Combo, "Valuta"};
    Controllo Due{S, TipoControllo::Opzione, "Due", "Due"};
    Controllo Spunta{S, TipoControllo::Casella, "Spunta", "Spunta"};
    Controllo OK{S, TipoControllo::Pulsante, "OK", "OK"};
    Controllo Bandiera{S, TipoControllo::Immagine, "Bandiera"};
    MatriceControlli Saldi{S, TipoControllo::Etichetta, "Saldi", 0, 1};
    Controllo Voce{S, TipoControllo::Menu, "Voce", "&Voce"};
    Controllo Menu{S, TipoControllo::Menu, "Menu", "&Menu"};
};

struct Legatore : testing::Test {
    PiattaformaSenzaSchermo porta;
    Prova p;
    QWidget radice;
    std::vector<std::string> eventi;

    template <class W> void Aggiungi(std::initializer_list<const char*> nomi) {
        for (const char* nome : nomi) {
            auto* w = new W(&radice);
            w->setObjectName(nome);
            radice.layout()->addWidget(w);
        }
    }
    template <class W> W* Widget(const char* nome) { return radice.findChild<W*>(nome); }

    void SetUp() override {
        ImpostaPiattaforma(&porta);
        new QVBoxLayout(&radice);
        Aggiungi<QLineEdit>({"Nome", "DataOper"});
        Aggiungi<QListView>({"Elenco"});
        Aggiungi<QComboBox>({"Valuta"});
        Aggiungi<QRadioButton>({"Due"});
        Aggiungi<QCheckBox>({"Spunta"});
        Aggiungi<QPushButton>({"OK"});
        Aggiungi<QLabel>({"Bandiera", "Saldi_0", "Saldi_1"});
        auto* menu = new QMenu(&radice);
        menu->setObjectName("Menu");
        auto* voce = new QAction(&radice);
        voce->setObjectName("Voce");
        menu->addAction(voce);
        for (Controllo* c : {&p.Nome, &p.DataOper, &p.Elenco, &p.Valuta, &p.OK}) {
            std::string n = c->nome;
            c->Change = [this, n] { eventi.push_back(n + ".Change"); };
            c->Click = [this, n] { eventi.push_back(n + ".Click"); };
        }
        p.S.Show();
        Lega(p.S, &radice);
        AggiornaViste();
        radice.show();
        radice.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&radice));
        eventi.clear();
    }
    void TearDown() override {
        Slega(p.S);
        ImpostaPiattaforma(nullptr);
    }
    // A click where an option or a check box takes it: on its box, at the left.
    void Spunta(const char* nome) {
        auto* w = Widget<QAbstractButton>(nome);
        QTest::mouseClick(w, Qt::LeftButton, {}, QPoint(6, w->height() / 2));
    }
    // The model changed by the program's code: the widgets follow at the end of the event.
    void DalModello(const std::function<void()>& f) {
        f();
        AggiornaViste();
    }
};

TEST_F(Legatore, UnCampoPienoNonPrendeAltriTasti) {
    DalModello([&] { p.Nome.MaxLength = 3; });
    auto* campo = Widget<QLineEdit>("Nome");
    campo->setFocus();
    QTest::keyClicks(campo, "Rossi");
    EXPECT_EQ(p.Nome.Text(), "Ros");
    EXPECT_EQ(campo->text(), "Ros");
}

// A masked date reads with its blanks, which the program's date checks count on.
TEST_F(Legatore, UnaDataMascherataSiLeggeConIBlank) {
    auto* data = Widget<QLineEdit>("DataOper");
    data->setFocus();
    QTest::keyClicks(data, "15");
    EXPECT_EQ(p.DataOper.Text(), "15/__/____");
}

TEST_F(Legatore, LeScrittureDelLegatoreNonTornanoComeEventi) {
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
    EXPECT_EQ(eventi, (std::vector<std::string>{"OK.Click", "Nome.Change", "Valuta.Click",
                                                "Elenco.Click"}));
    EXPECT_EQ(Widget<QLineEdit>("Nome")->text(), "scritto dal programma");
    EXPECT_EQ(Widget<QComboBox>("Valuta")->currentIndex(), 1);
    EXPECT_EQ(Widget<QComboBox>("Valuta")->currentText(), "Lira - Italia");
    EXPECT_TRUE(Widget<QRadioButton>("Due")->isChecked());
}

TEST_F(Legatore, IlFiltroDeiTastiScartaOCambiaIlTasto) {
    std::vector<int> premuti, rilasciati;
    p.Nome.KeyPress = [&](int& k) {
        premuti.push_back(k);
        if (k == 'x')
            k = 0;
        else if (k >= 'a' && k <= 'z')
            k -= 32;
    };
    p.Nome.KeyUp = [&](int k) { rilasciati.push_back(k); };
    auto* campo = Widget<QLineEdit>("Nome");
    campo->setFocus();
    QTest::keyClicks(campo, "axb");
    QTest::keyClick(campo, Qt::Key_Return);
    EXPECT_EQ(p.Nome.Text(), "AB");
    EXPECT_EQ(campo->text(), "AB");
    EXPECT_EQ(premuti, (std::vector<int>{'a', 'x', 'b', TastoInvio}));
    EXPECT_EQ(rilasciati, (std::vector<int>{'A', 'X', 'B', TastoInvio}));
}

TEST_F(Legatore, IlFuocoSegueIlModelloTabEClic) {
    std::vector<std::string> fuoco;
    p.Nome.LostFocus = [&] { fuoco.push_back("Nome.LostFocus"); };
    p.Spunta.GotFocus = [&] { fuoco.push_back("Spunta.GotFocus"); };
    DalModello([&] {
        p.Nome.SetFocus();
        p.DataOper.Enabled = false;
    });
    ASSERT_TRUE(Widget<QLineEdit>("Nome")->hasFocus());
    QTest::keyClick(Widget<QLineEdit>("Nome"), Qt::Key_Tab);
    EXPECT_EQ(p.S.Fuoco(), &p.Elenco);
    EXPECT_TRUE(Widget<QListView>("Elenco")->hasFocus());

    DalModello([&] { p.Nome.SetFocus(); });
    fuoco.clear();
    Spunta("Spunta");
    EXPECT_EQ(fuoco, (std::vector<std::string>{"Nome.LostFocus", "Spunta.GotFocus"}));
    EXPECT_TRUE(p.Spunta.Value());
}

TEST_F(Legatore, UnaListaDiTrentamilaRighe) {
    DalModello([&] {
        for (int i = 0; i < 30000; ++i) p.Elenco.AddItem("riga " + std::to_string(i));
    });
    auto* lista = Widget<QListView>("Elenco");
    ASSERT_EQ(lista->model()->rowCount(), 30000);
    EXPECT_EQ(lista->font().family(), "Courier New");

    int doppi = 0;
    p.Elenco.DblClick = [&] { ++doppi; };
    QPoint terza = lista->visualRect(lista->model()->index(2, 0)).center();
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, terza);
    QTest::mouseDClick(lista->viewport(), Qt::LeftButton, {}, terza);
    EXPECT_EQ(p.Elenco.ListIndex(), 2);
    EXPECT_EQ(doppi, 1);

    DalModello([&] {
        p.Elenco.SetListIndex(29999);
        p.Elenco.RemoveItem(0);
    });
    EXPECT_EQ(lista->model()->rowCount(), 29999);
    EXPECT_EQ(lista->currentIndex().row(), 29998);
    EXPECT_EQ(lista->model()->index(0, 0).data().toString(), "riga 1");
}

TEST_F(Legatore, LaSceltaNellaComboEUnClic) {
    DalModello([&] {
        p.Valuta.AddItem("Euro - Unione Europea");
        p.Valuta.AddItem("Lira - Italia");
        p.Valuta.SetListIndex(0);
    });
    eventi.clear();
    auto* combo = Widget<QComboBox>("Valuta");
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(p.Valuta.Text(), "Lira - Italia");
    // A choice from the lines is a click, not a change of text.
    EXPECT_EQ(eventi, std::vector<std::string>{"Valuta.Click"});
}

TEST_F(Legatore, VisibileSuggerimentoEMenuCheSiApre) {
    auto* saldo = Widget<QLabel>("Saldi_1");
    DalModello([&] {
        p.Saldi(1).Visible = false;
        p.Saldi(1).ToolTipText = "Saldo per data valuta";
    });
    EXPECT_FALSE(saldo->isVisible());
    EXPECT_EQ(saldo->toolTip(), "Saldo per data valuta");

    // A menu pops up only when the user opens it: its visibility is that of its entry.
    EXPECT_FALSE(Widget<QMenu>("Menu")->isVisible());
    // The menu's handler runs as it opens and may change its entries before they show.
    p.Menu.Click = [&] { p.Voce.Enabled = false; };
    emit Widget<QMenu>("Menu")->aboutToShow();
    EXPECT_FALSE(Widget<QAction>("Voce")->isEnabled());
    DalModello([&] { p.Menu.Visible = false; });
    EXPECT_FALSE(Widget<QMenu>("Menu")->menuAction()->isVisible());
}

TEST_F(Legatore, LImmagineMostraIlFileDelTesto) {
    QTemporaryDir cartella;
    QString file = cartella.filePath("15.png");
    QImage bandiera(16, 11, QImage::Format_RGB32);
    bandiera.fill(Qt::blue);
    ASSERT_TRUE(bandiera.save(file));
    DalModello([&] { p.Bandiera.SetText(file.toStdString()); });
    EXPECT_EQ(Widget<QLabel>("Bandiera")->pixmap().size(), QSize(16, 11));
    DalModello([&] { p.Bandiera.SetText(""); });
    EXPECT_TRUE(Widget<QLabel>("Bandiera")->pixmap().isNull());
}

TEST_F(Legatore, UnGuastoNelGestoreVaAllaPiattaformaEIlProgrammaProsegue) {
    p.OK.Click = [] { Errore(9); };
    QTest::mouseClick(Widget<QPushButton>("OK"), Qt::LeftButton);
    p.OK.Click = [this] { eventi.push_back("dopo"); };
    QTest::mouseClick(Widget<QPushButton>("OK"), Qt::LeftButton);
    EXPECT_EQ(porta.messaggi,
              std::vector<std::string>{"FAILURE 9 Indice non compreso nell'intervallo"});
    EXPECT_EQ(eventi, std::vector<std::string>{"dopo"});
}

} // namespace
