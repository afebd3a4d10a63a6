#include "ui/Legatore.h"

#include "screen/Schermo.h"
#include "store/Guasto.h"

#include <QAbstractListModel>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPixmap>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QToolButton>

#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

namespace {

int blocchi = 0;

QString Q(const std::string& s) {
    return QString::fromStdString(s);
}

// The lines of a list as its view sees them: a copy taken at each redraw, so that a view that
// paints while a handler is half way through its changes never reads past the lines.
struct ModelloRighe : QAbstractListModel {
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& genitore = {}) const override {
        return genitore.isValid() ? 0 : static_cast<int>(righe.size());
    }
    QVariant data(const QModelIndex& i, int ruolo) const override {
        if (ruolo != Qt::DisplayRole || !i.isValid() || i.row() >= rowCount()) return {};
        return Q(righe[static_cast<std::size_t>(i.row())]);
    }
    // Takes the control's lines when they changed; true when it did.
    bool Aggiorna(const Controllo& c) {
        if (revisione == c.Revisione()) return false;
        revisione = c.Revisione();
        if (righe == c.Righe()) return false;
        beginResetModel();
        righe = c.Righe();
        endResetModel();
        return true;
    }

    std::vector<std::string> righe;
    unsigned revisione = 0; // a control starts at 0 with no lines
};

struct Legame {
    Controllo* c = nullptr;
    QPointer<QObject> oggetto;
    ModelloRighe* righe = nullptr; // lists
    unsigned revisione = 0;        // combos: the lines last written
    std::string immagine;          // pictures: the file shown
};

// One screen tied to its form. The filter owns the connections, so that deleting it unties
// every signal at once.
struct Filtro : QObject {
    bool eventFilter(QObject* o, QEvent* e) override;
    std::unordered_map<const QObject*, Controllo*> controlli;
    // The field whose key the model's filter has just let through, for Qt to type.
    const QObject* tastoAmmesso = nullptr;
};

struct LegameSchermo {
    Schermo* schermo;
    QPointer<QWidget> radice;
    std::unique_ptr<Filtro> filtro;
    std::vector<Legame> legami;
};

std::vector<std::unique_ptr<LegameSchermo>>& Legati() {
    static std::vector<std::unique_ptr<LegameSchermo>> legati;
    return legati;
}

LegameSchermo* Trova(const Schermo& s) {
    for (auto& l : Legati())
        if (l->schermo == &s) return l.get();
    return nullptr;
}

// A masked date reads with its blanks: text() would drop them.
std::string TestoDi(const QLineEdit& campo, const Controllo& c) {
    return (c.tipo == TipoControllo::Data ? campo.displayText() : campo.text()).toStdString();
}

// The character a key types, as the classic KeyPress has it; -1 for a key that types nothing.
int CodiceAscii(const QKeyEvent& e) {
    switch (e.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return TastoInvio;
    case Qt::Key_Escape:
        return TastoEsc;
    case Qt::Key_Backspace:
        return TastoBackspace;
    default:
        break;
    }
    auto u = e.text().toUcs4();
    if (u.size() != 1 || u[0] < 32 || u[0] == 127) return -1;
    return static_cast<int>(u[0]);
}

// The classic key code of KeyUp; 0 for a key it has no code for.
int CodiceTasto(const QKeyEvent& e) {
    int k = e.key();
    if (k >= Qt::Key_0 && k <= Qt::Key_9)
        return (e.modifiers() & Qt::KeypadModifier) ? 96 + (k - Qt::Key_0) : k;
    if (k >= Qt::Key_A && k <= Qt::Key_Z) return k;
    if (k >= Qt::Key_F1 && k <= Qt::Key_F12) return 112 + (k - Qt::Key_F1);
    static const std::pair<int, int> tasti[] = {
        {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},       {Qt::Key_Return, 13},
        {Qt::Key_Enter, 13},    {Qt::Key_Shift, 16},    {Qt::Key_Control, 17},
        {Qt::Key_Alt, 18},      {Qt::Key_Escape, 27},   {Qt::Key_Space, 32},
        {Qt::Key_PageUp, 33},   {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},
        {Qt::Key_Home, 36},     {Qt::Key_Left, 37},     {Qt::Key_Up, 38},
        {Qt::Key_Right, 39},    {Qt::Key_Down, 40},     {Qt::Key_Insert, 45},
        {Qt::Key_Delete, 46},
    };
    for (auto [qt, classico] : tasti)
        if (k == qt) return classico;
    return 0;
}

bool Tasto(Filtro& f, Controllo* c, QObject* o, const QKeyEvent& e) {
    // Tab goes where the model's tab order says, skipping what can't have the focus.
    if (e.key() == Qt::Key_Tab && !(e.modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
        EventoDaVista([c] { c->Digita(TastoTab); });
        return true;
    }
    int k = CodiceAscii(e);
    if (k < 0 || !c->KeyPress) return false;
    int dato = k;
    EventoDaVista([c, &dato] { c->KeyPress(dato); });
    if (dato == k) {
        f.tastoAmmesso = o;
        return false;
    }
    // The handler dropped the key or typed another one in its place.
    if (dato != 0)
        if (auto* campo = qobject_cast<QLineEdit*>(o)) {
            auto u = static_cast<char32_t>(dato);
            f.tastoAmmesso = o;
            campo->insert(QString::fromUcs4(&u, 1));
        }
    return true;
}

// A field the user changed. What came in other than by a key the filter let through (a paste,
// a drop) goes through the key filter as typed keys do, so that the pasted text can't hold what
// the keyboard refuses; the refresh after the event shows the field as the model has it.
void Modificato(Controllo& c, QLineEdit& campo, bool tasto) {
    QString prima = Q(c.Text());
    QString dopo = campo.text();
    if (tasto || !c.KeyPress || c.tipo != TipoControllo::Campo) {
        c.SetText(TestoDi(campo, c));
        return;
    }
    qsizetype inizio = 0;
    while (inizio < prima.size() && inizio < dopo.size() && prima[inizio] == dopo[inizio])
        ++inizio;
    qsizetype fine = 0;
    while (fine < prima.size() - inizio && fine < dopo.size() - inizio &&
           prima[prima.size() - 1 - fine] == dopo[dopo.size() - 1 - fine])
        ++fine;
    QString resto = prima.left(inizio) + prima.right(fine);
    if (resto != prima) c.SetText(resto.toStdString());
    QString incollato = dopo.mid(inizio, dopo.size() - inizio - fine);
    c.Incolla(incollato.toStdString(),
              static_cast<std::size_t>(prima.left(inizio).toUcs4().size()));
}

bool Filtro::eventFilter(QObject* o, QEvent* e) {
    auto it = controlli.find(o);
    if (it == controlli.end() || blocchi > 0) return false;
    Controllo* c = it->second;
    switch (e->type()) {
    case QEvent::FocusIn: {
        // Only the user's moves: a window that comes back to the front restores its own focus,
        // which the model already knows.
        auto r = static_cast<QFocusEvent*>(e)->reason();
        if (r == Qt::MouseFocusReason || r == Qt::TabFocusReason || r == Qt::BacktabFocusReason ||
            r == Qt::ShortcutFocusReason)
            EventoDaVista([c] {
                if (c->PuoAvereFuoco() && !c->HaFuoco()) c->SetFocus();
            });
        return false;
    }
    case QEvent::KeyPress:
        return Tasto(*this, c, o, *static_cast<QKeyEvent*>(e));
    case QEvent::KeyRelease: {
        auto* tasto = static_cast<QKeyEvent*>(e);
        if (tasto->isAutoRepeat() || !c->KeyUp) return false;
        if (int codice = CodiceTasto(*tasto)) EventoDaVista([c, codice] { c->KeyUp(codice); });
        return false;
    }
    default:
        return false;
    }
}

// Ties the user's side of one widget to its control.
void Collega(Filtro& f, Legame& l) {
    Controllo* c = l.c;
    QObject* o = l.oggetto;
    auto evento = [c](void (Controllo::*azione)()) {
        return [c, azione] { EventoDaVista([c, azione] { (c->*azione)(); }); };
    };
    if (auto* w = qobject_cast<QWidget*>(o)) {
        f.controlli[w] = c;
        w->installEventFilter(&f);
    }
    if (auto* campo = qobject_cast<QLineEdit*>(o)) {
        if (c->tipo == TipoControllo::Data) campo->setInputMask("99/99/9999;_");
        QObject::connect(campo, &QLineEdit::textEdited, &f, [&f, c, campo] {
            bool tasto = f.tastoAmmesso == campo;
            f.tastoAmmesso = nullptr;
            EventoDaVista([c, campo, tasto] { Modificato(*c, *campo, tasto); });
        });
    } else if (auto* etichetta = qobject_cast<QLabel*>(o)) {
        if (c->tipo != TipoControllo::Immagine) etichetta->setTextFormat(Qt::PlainText);
    } else if (auto* combo = qobject_cast<QComboBox*>(o)) {
        QObject::connect(combo, &QComboBox::activated, &f,
                         [c](int i) { EventoDaVista([c, i] { c->SetListIndex(i); }); });
        if (QLineEdit* campo = combo->lineEdit()) {
            f.controlli[campo] = c;
            campo->installEventFilter(&f);
            QObject::connect(campo, &QLineEdit::textEdited, &f, [c](const QString& t) {
                EventoDaVista([c, t] { c->SetText(t.toStdString()); });
            });
        }
    } else if (auto* lista = qobject_cast<QListView*>(o)) {
        l.righe = new ModelloRighe(&f);
        lista->setModel(l.righe);
        // One height for every line: 30000 lines cost no more than 30.
        lista->setUniformItemSizes(true);
        lista->setSelectionMode(QAbstractItemView::SingleSelection);
        lista->setEditTriggers(QAbstractItemView::NoEditTriggers);
        // The lines are text at fixed columns.
        QFont fisso("Courier New", lista->font().pointSize());
        fisso.setStyleHint(QFont::TypeWriter);
        lista->setFont(fisso);
        QObject::connect(lista->selectionModel(), &QItemSelectionModel::currentChanged, &f,
                         [c](const QModelIndex& i) {
                             EventoDaVista([c, riga = i.row()] { c->SetListIndex(riga); });
                         });
        QObject::connect(lista, &QListView::doubleClicked, &f, evento(&Controllo::DoppioClic));
    } else if (auto* pulsante = qobject_cast<QAbstractButton*>(o)) {
        // Enter and Escape belong to the model's keys, never to a dialog's default button.
        if (auto* p = qobject_cast<QPushButton*>(pulsante)) {
            p->setAutoDefault(false);
            p->setDefault(false);
        }
        // The model keeps its option groups itself.
        if (auto* opzione = qobject_cast<QRadioButton*>(pulsante))
            opzione->setAutoExclusive(false);
        QObject::connect(pulsante, &QAbstractButton::clicked, &f, evento(&Controllo::Clicca));
    } else if (auto* azione = qobject_cast<QAction*>(o)) {
        // The classic menus make a separator of an entry captioned "-".
        if (c->Text() == "-") azione->setSeparator(true);
        QObject::connect(azione, &QAction::triggered, &f, evento(&Controllo::Clicca));
    } else if (auto* menu = qobject_cast<QMenu*>(o)) {
        // A menu clicks as it opens, so that its handler can set its entries first.
        QObject::connect(menu, &QMenu::aboutToShow, &f, evento(&Controllo::Clicca));
    }
}

void ScriviAzione(QAction& a, const Controllo& c, bool conTesto) {
    if (conTesto && !a.isSeparator() && a.text() != Q(c.Text())) a.setText(Q(c.Text()));
    if (a.isEnabled() != c.Enabled) a.setEnabled(c.Enabled);
    if (a.isVisible() != c.Visible) a.setVisible(c.Visible);
    if (a.toolTip() != Q(c.ToolTipText) && !c.ToolTipText.empty()) a.setToolTip(Q(c.ToolTipText));
}

void ScriviRighe(QListView& lista, Legame& l) {
    const Controllo& c = *l.c;
    int scorrimento = lista.verticalScrollBar()->value();
    if (l.righe->Aggiorna(c)) lista.verticalScrollBar()->setValue(scorrimento);
    if (lista.currentIndex().row() == c.ListIndex()) return;
    if (c.ListIndex() < 0) {
        lista.selectionModel()->clear();
        return;
    }
    QModelIndex i = l.righe->index(c.ListIndex());
    lista.selectionModel()->setCurrentIndex(i, QItemSelectionModel::ClearAndSelect);
    lista.scrollTo(i);
}

void ScriviCombo(QComboBox& combo, Legame& l) {
    const Controllo& c = *l.c;
    if (l.revisione != c.Revisione()) {
        l.revisione = c.Revisione();
        bool uguali = combo.count() == c.ListCount();
        for (int i = 0; uguali && i < c.ListCount(); ++i)
            uguali = combo.itemText(i) == Q(c.List(i));
        if (!uguali) {
            combo.clear();
            for (const auto& riga : c.Righe())
                combo.addItem(Q(riga));
        }
    }
    if (combo.currentIndex() != c.ListIndex()) combo.setCurrentIndex(c.ListIndex());
    if (combo.isEditable() && combo.currentText() != Q(c.Text())) combo.setEditText(Q(c.Text()));
}

// Model to view for one control.
void Scrivi(Legame& l) {
    QObject* o = l.oggetto;
    if (!o) return;
    const Controllo& c = *l.c;
    if (auto* azione = qobject_cast<QAction*>(o)) {
        ScriviAzione(*azione, c, true);
        return;
    }
    if (auto* menu = qobject_cast<QMenu*>(o)) {
        if (menu->title() != Q(c.Text())) menu->setTitle(Q(c.Text()));
        ScriviAzione(*menu->menuAction(), c, false);
        return;
    }
    auto* w = qobject_cast<QWidget*>(o);
    if (!w) return;
    if (w->testAttribute(Qt::WA_ForceDisabled) == c.Enabled) w->setEnabled(c.Enabled);
    if (w->isHidden() == c.Visible) w->setVisible(c.Visible);
    if (w->toolTip() != Q(c.ToolTipText)) w->setToolTip(Q(c.ToolTipText));

    if (auto* campo = qobject_cast<QLineEdit*>(w)) {
        if (c.tipo == TipoControllo::Campo) {
            int massimo = c.MaxLength > 0 ? c.MaxLength : 32767;
            if (campo->maxLength() != massimo) campo->setMaxLength(massimo);
        }
        if (TestoDi(*campo, c) != c.Text()) {
            campo->setText(Q(c.Text()));
            // An emptied date field takes the next digit in its first place, not after the mask.
            if (c.tipo == TipoControllo::Data && c.Text() == DataVuotaMaschera)
                campo->setCursorPosition(0);
        }
    } else if (auto* etichetta = qobject_cast<QLabel*>(w)) {
        if (c.tipo == TipoControllo::Immagine) {
            if (l.immagine != c.Text()) {
                l.immagine = c.Text();
                etichetta->setPixmap(c.Text().empty() ? QPixmap() : QPixmap(Q(c.Text())));
            }
        } else if (etichetta->text() != Q(c.Text())) {
            etichetta->setText(Q(c.Text()));
        }
    } else if (auto* cornice = qobject_cast<QGroupBox*>(w)) {
        if (cornice->title() != Q(c.Text())) cornice->setTitle(Q(c.Text()));
    } else if (auto* pulsante = qobject_cast<QAbstractButton*>(w)) {
        bool faccia = c.tipo == TipoControllo::Pulsante && c.Text().empty();
        if (!faccia && pulsante->text() != Q(c.Text())) pulsante->setText(Q(c.Text()));
        if (pulsante->isCheckable() && pulsante->isChecked() != c.Value())
            pulsante->setChecked(c.Value());
    } else if (auto* combo = qobject_cast<QComboBox*>(w)) {
        ScriviCombo(*combo, l);
    } else if (auto* lista = qobject_cast<QListView*>(w)) {
        ScriviRighe(*lista, l);
    }
}

QWidget* WidgetDi(const LegameSchermo& ls, const Controllo* c) {
    for (const auto& l : ls.legami)
        if (l.c == c) return qobject_cast<QWidget*>(l.oggetto.data());
    return nullptr;
}

// The window of a form: itself when it stands alone, else the MDI window or dialog around it.
QWidget* CorniceDi(QWidget& radice) {
    return radice.isWindow() ? &radice : radice.parentWidget();
}

// The active screen and the control with the focus come to the front in the view too.
void ScriviFuoco() {
    Schermo* attivo = SchermoAttivo();
    LegameSchermo* ls = attivo ? Trova(*attivo) : nullptr;
    if (!ls || !ls->radice) return;
    if (auto* finestra = qobject_cast<QMdiSubWindow*>(ls->radice->parentWidget()))
        if (QMdiArea* area = finestra->mdiArea(); area && area->activeSubWindow() != finestra)
            area->setActiveSubWindow(finestra);
    QWidget* w = WidgetDi(*ls, attivo->Fuoco());
    if (w && !w->hasFocus()) w->setFocus(Qt::OtherFocusReason);
}

} // namespace

BloccoEventi::BloccoEventi() {
    ++blocchi;
}
BloccoEventi::~BloccoEventi() {
    --blocchi;
}

QString NomeWidget(const Controllo& c) {
    QString nome = Q(c.nome);
    if (c.indice >= 0) nome += "_" + QString::number(c.indice);
    return nome;
}

bool TipoAdatto(TipoControllo tipo, const QObject* o) {
    switch (tipo) {
    case TipoControllo::Campo:
    case TipoControllo::Data:
        return qobject_cast<const QLineEdit*>(o);
    case TipoControllo::Etichetta:
        return qobject_cast<const QLabel*>(o) || qobject_cast<const QGroupBox*>(o);
    case TipoControllo::Pulsante:
        return qobject_cast<const QPushButton*>(o) || qobject_cast<const QToolButton*>(o);
    case TipoControllo::Menu:
        return qobject_cast<const QAction*>(o) || qobject_cast<const QMenu*>(o);
    case TipoControllo::Opzione:
        return qobject_cast<const QRadioButton*>(o);
    case TipoControllo::Casella:
        return qobject_cast<const QCheckBox*>(o);
    case TipoControllo::Lista:
        // A QListWidget keeps its own items and takes no model.
        return o && o->metaObject() == &QListView::staticMetaObject;
    case TipoControllo::Combo:
        return qobject_cast<const QComboBox*>(o);
    case TipoControllo::Immagine:
        return qobject_cast<const QLabel*>(o);
    case TipoControllo::Cornice:
        return qobject_cast<const QGroupBox*>(o);
    }
    return false;
}

void Lega(Schermo& schermo, QWidget* radice) {
    Slega(schermo);
    BloccoEventi blocco;
    auto ls = std::make_unique<LegameSchermo>();
    ls->schermo = &schermo;
    ls->radice = radice;
    ls->filtro = std::make_unique<Filtro>();
    QWidget* precedente = nullptr;
    for (Controllo* c : schermo.Controlli()) {
        QObject* o = radice->findChild<QObject*>(NomeWidget(*c));
        if (!o || !TipoAdatto(c->tipo, o)) continue;
        Legame& l = ls->legami.emplace_back();
        l.c = c;
        l.oggetto = o;
        Collega(*ls->filtro, l);
        // Shift+Tab walks back the same order as Tab.
        if (auto* w = qobject_cast<QWidget*>(o); w && w->focusPolicy() != Qt::NoFocus) {
            if (precedente) QWidget::setTabOrder(precedente, w);
            precedente = w;
        }
    }
    Legati().push_back(std::move(ls));
}

void Slega(Schermo& schermo) {
    auto& legati = Legati();
    for (auto it = legati.begin(); it != legati.end(); ++it)
        if ((*it)->schermo == &schermo) {
            legati.erase(it);
            return;
        }
}

QWidget* RadiceDi(const Schermo& schermo) {
    LegameSchermo* ls = Trova(schermo);
    return ls ? ls->radice.data() : nullptr;
}

Schermo* SchermoDi(const QWidget* radice) {
    for (auto& l : Legati())
        if (radice && l->radice == radice) return l->schermo;
    return nullptr;
}

void EventoDaVista(const std::function<void()>& evento) {
    if (blocchi > 0) return;
    EseguiEvento(evento);
    AggiornaViste();
}

void AggiornaViste() {
    BloccoEventi blocco;
    for (auto& ls : Legati()) {
        if (!ls->radice) continue;
        QWidget* finestra = CorniceDi(*ls->radice);
        if (finestra && finestra->windowTitle() != Q(ls->schermo->Caption))
            finestra->setWindowTitle(Q(ls->schermo->Caption));
        for (Legame& l : ls->legami)
            Scrivi(l);
    }
    ScriviFuoco();
}
