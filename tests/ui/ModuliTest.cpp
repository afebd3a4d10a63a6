// The forms of ui/forms/ against the screen models: both sides must name the same controls.
//
// A form's named objects are its widgets and actions whose objectName is not empty and begins
// neither with "_" (containers, layouts' holders, the menu bar) nor with "qt_" (the toolkit's
// own parts), other than the form itself and the main window's QMdiArea, which holds the child
// screens and belongs to the port. Each one must be a control of the screen, and each control
// must have one widget of its name and of a kind that fits it.
#include "ui/Moduli.h"
#include "screen/PiattaformaSenzaSchermo.h"
#include "screen/Schermo.h"
#include "shell/Applicazione.h"
#include "ui/Legatore.h"

#include <QAction>
#include <QDir>
#include <QMdiArea>
#include <QTabBar>
#include <QWidget>

#include <gtest/gtest.h>

#include <memory>
#include <set>

namespace {

bool Nominato(const QObject& o, const QWidget& radice) {
    const QString nome = o.objectName();
    if (&o == &radice || nome.isEmpty() || nome.startsWith("_") || nome.startsWith("qt_"))
        return false;
    if (qobject_cast<const QMdiArea*>(&o)) return false;
    // The scroll buttons of a tab strip are the toolkit's own.
    if (qobject_cast<const QTabBar*>(o.parent())) return false;
    return o.isWidgetType() || qobject_cast<const QAction*>(&o);
}

struct Moduli : testing::Test {
    PiattaformaSenzaSchermo porta;
    void SetUp() override { ImpostaPiattaforma(&porta); }
    void TearDown() override { ImpostaPiattaforma(nullptr); }
};

TEST_F(Moduli, OgniSchermoHaIlSuoModuloEOgniModuloIlSuoSchermo) {
    Applicazione app;
    QStringList moduli;
    for (const QString& file : QDir(MARENDOLA_MODULI).entryList({"*.ui"}, QDir::Files))
        moduli << file.chopped(3);
    ASSERT_FALSE(moduli.isEmpty());
    std::set<QString> schermi;
    for (Schermo* s : Schermi()) {
        schermi.insert(QString::fromStdString(s->nome));
        EXPECT_TRUE(moduli.contains(QString::fromStdString(s->nome))) << s->nome << ": no form";
    }
    for (const QString& m : moduli) {
        EXPECT_TRUE(schermi.count(m)) << m.toStdString() << ".ui: no screen model";
        EXPECT_TRUE(ElencoModuli().contains(m)) << m.toStdString() << ".ui: not in the resources";
    }
}

TEST_F(Moduli, ControlliEWidgetSiCorrispondono) {
    Applicazione app;
    for (Schermo* s : Schermi()) {
        std::unique_ptr<QWidget> radice(CaricaModulo(s->nome));
        if (!radice) continue; // reported by the test above
        SCOPED_TRACE(s->nome);
        EXPECT_EQ(radice->objectName().toStdString(), s->nome);

        std::set<QString> nomiControlli;
        for (Controllo* c : s->Controlli()) {
            const QString nome = NomeWidget(*c);
            nomiControlli.insert(nome);
            auto trovati = radice->findChildren<QObject*>(nome);
            ASSERT_EQ(trovati.size(), 1)
                << Riferimento(*c) << ": widgets named " << nome.toStdString();
            EXPECT_TRUE(TipoAdatto(c->tipo, trovati.front()))
                << Riferimento(*c) << ": a " << trovati.front()->metaObject()->className()
                << " doesn't fit it";
        }
        for (QObject* o : radice->findChildren<QObject*>()) {
            if (!Nominato(*o, *radice)) continue;
            EXPECT_TRUE(nomiControlli.count(o->objectName()))
                << o->metaObject()->className() << " " << o->objectName().toStdString()
                << ": no control of that name";
        }
    }
}

} // namespace
