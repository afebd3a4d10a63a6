// The user's colours reach a list in the real window: Form6's causali, opened from the menu,
// take the background and the text colour of colori.col's mode "N".
#include "store/Colore.h"
#include "store/Stato.h"
#include "tests/ui/ProgrammaQt.h"

#include <QAction>
#include <QListView>
#include <QMainWindow>

namespace {

using ColoriQt = ProgrammaQt;

TEST_F(ColoriQt, UnElencoPrendeIColoriDellUtente) {
    Stato.Colori.Predefiniti = "N";
    Stato.Colori.ColoreSfondo = ValoreColore({0, 0, 128});
    Stato.Colori.ColoreCarattere = ValoreColore({255, 255, 0});
    porta.FinestraPrincipale()->findChild<QAction*>("GestCaus")->trigger();
    auto* elenco = In<QListView>(app.Form6.S, "ElencoCausali");
    ASSERT_NE(elenco, nullptr) << "Form6 isn't up";
    EXPECT_EQ(elenco->palette().color(QPalette::Base), QColor(0, 0, 128));
    EXPECT_EQ(elenco->palette().color(QPalette::Text), QColor(255, 255, 0));
}

} // namespace
