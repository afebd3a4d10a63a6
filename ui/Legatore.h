#pragma once
// The one binder between the screen models and their widgets. A screen's widgets carry the
// names of its controls as objectName ("Saldi_3" for Saldi(3)); the binder ties each control to
// its widget both ways, by the kind of widget:
//
//   QLineEdit            Campo (text, MaxLength), Data (input mask "99/99/9999", '_' blanks)
//   QLabel               Etichetta (caption), Immagine (shows the picture file named by Text)
//   QGroupBox            Etichetta, Cornice (caption)
//   QPushButton/QToolButton  Pulsante (caption, click); an empty caption keeps the form's face
//                        of the button, which stands for the picture the button had
//   QRadioButton         Opzione       QCheckBox   Casella
//   QComboBox            Combo (lines, text, selection)
//   QListView            Lista (lines, selection, double click)
//   QAction / QMenu      Menu (caption, triggered; a menu clicks as it opens)
//
// Every widget of a form with a name is a control, except the form itself and the names that
// begin with "_" or "qt_" (containers and the toolkit's own parts): the forms' check enforces it.
#include <QString>

#include <functional>

class QObject;
class QWidget;
struct Controllo;
struct Schermo;
enum class TipoControllo;

// The objectName of the widget of a control.
QString NomeWidget(const Controllo& c);
// Whether a widget (or action) may stand for a control of that kind.
bool TipoAdatto(TipoControllo tipo, const QObject* oggetto);

// Ties every control of the screen to its widget under `radice`, the widget loaded from the
// screen's form; a screen already tied is tied again.
void Lega(Schermo& schermo, QWidget* radice);
// Unties the screen; its widgets are left to their owner.
void Slega(Schermo& schermo);
// The form widget the screen is tied to, or nullptr.
QWidget* RadiceDi(const Schermo& schermo);
// The screen whose form widget is `radice`, or nullptr.
Schermo* SchermoDi(const QWidget* radice);

// The one entrance for what the user does: ignored while the widgets are being written by the
// program itself, otherwise run through EseguiEvento; then every shown screen is redrawn from its
// model.
void EventoDaVista(const std::function<void()>& evento);
// Model to view, for every screen that is tied and shown: a hidden one is written when it shows.
void AggiornaViste();

// While one lives, what the widgets report is not the user's doing and doesn't reach the models.
struct BloccoEventi {
    BloccoEventi();
    ~BloccoEventi();
    BloccoEventi(const BloccoEventi&) = delete;
    BloccoEventi& operator=(const BloccoEventi&) = delete;
};
