// The forms of ui/forms/ against the screen models, as ui/Legatore.h states the agreement; and
// the menus hold the model's entries, each in its menu (without one, the bar) in the model's order.
#include "ui/Moduli.h"
#include "screen/PiattaformaSenzaSchermo.h"
#include "screen/Schermo.h"
#include "shell/Applicazione.h"
#include "ui/Legatore.h"

#include <QtWidgets>

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <set>

namespace {

bool Nominato(const QObject& o, const QWidget& radice) {
    const QString nome = o.objectName();
    if (&o == &radice || nome.isEmpty() || nome.startsWith("_") || nome.startsWith("qt_") ||
        qobject_cast<const QMdiArea*>(&o))
        return false;
    // The scroll buttons of a tab strip are the toolkit's own.
    if (qobject_cast<const QTabBar*>(o.parent())) return false;
    return o.isWidgetType() || qobject_cast<const QAction*>(&o);
}

// The names of the entries of the form's menus and menu bar, each menu's in a string.
std::map<const QWidget*, std::string> VociDelModulo(const QWidget& radice, const QWidget* barra) {
    std::map<const QWidget*, std::string> voci;
    for (QWidget* m : radice.findChildren<QWidget*>()) {
        if (m != barra && !qobject_cast<QMenu*>(m)) continue;
        for (QAction* a : m->actions()) {
            QObject* voce = a->menu() ? static_cast<QObject*>(a->menu()) : a;
            voci[m] += voce->objectName().toStdString() + "|";
        }
    }
    return voci;
}

TEST(Moduli, ModuliESchermiSiCorrispondono) {
    PiattaformaSenzaSchermo porta;
    ImpostaPiattaforma(&porta);
    Applicazione app;
    QStringList moduli;
    for (const QString& file : QDir(MARENDOLA_MODULI).entryList({"*.ui"}, QDir::Files))
        moduli << file.chopped(3);
    for (Schermo* s : Schermi()) {
        SCOPED_TRACE(s->nome);
        EXPECT_EQ(moduli.removeAll(QString::fromStdString(s->nome)), 1) << "no form";
        std::unique_ptr<QWidget> radice(CaricaModulo(s->nome));
        ASSERT_NE(radice, nullptr) << "not in the resources";
        std::set<QString> nomiControlli;
        QWidget* barra = radice->findChild<QMenuBar*>();
        std::map<const QWidget*, std::string> voci;
        for (Controllo* c : s->Controlli()) {
            const QString nome = NomeWidget(*c);
            nomiControlli.insert(nome);
            auto trovati = radice->findChildren<QObject*>(nome);
            ASSERT_EQ(trovati.size(), 1) << Riferimento(*c) << ": widgets of its name";
            EXPECT_TRUE(TipoAdatto(c->tipo, trovati.front()))
                << Riferimento(*c) << ": a " << trovati.front()->metaObject()->className();
            if (c->tipo != TipoControllo::Menu) continue;
            QWidget* menu =
                c->MenuPadre ? radice->findChild<QMenu*>(NomeWidget(*c->MenuPadre)) : barra;
            voci[menu] += c->nome + "|";
        }
        for (QObject* o : radice->findChildren<QObject*>())
            EXPECT_TRUE(!Nominato(*o, *radice) || nomiControlli.count(o->objectName()))
                << o->metaObject()->className() << " " << o->objectName().toStdString()
                << ": no control of that name";
        EXPECT_EQ(VociDelModulo(*radice, barra), voci);
    }
    EXPECT_EQ(moduli, QStringList{}) << "forms with no screen model";
    ImpostaPiattaforma(nullptr);
}

} // namespace
