#include "ui/Legatore.h"

#include "screen/Schermo.h"
#include "store/Colore.h"
#include "store/Formato.h"
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
#include <QTabWidget>
#include <QToolButton>

#include <algorithm>
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

struct TipoWidget;

struct Legame {
    Controllo* c = nullptr;
    const TipoWidget* tipo = nullptr;
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
    case QEvent::MouseButtonDblClick:
        // A field with a double-click handler (the lists report theirs themselves).
        if (!c->DblClick || !qobject_cast<QLineEdit*>(o)) return false;
        EventoDaVista([c] { c->DoppioClic(); });
        return true;
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

// The user's clicks on a widget, as one model event each.
auto Evento(Controllo* c, void (Controllo::*azione)()) {
    return [c, azione] { EventoDaVista([c, azione] { (c->*azione)(); }); };
}

void CollegaCampo(Filtro& f, Legame& l) {
    Controllo* c = l.c;
    auto* campo = static_cast<QLineEdit*>(l.oggetto.data());
    if (c->tipo == TipoControllo::Data) campo->setInputMask("99/99/9999;_");
    QObject::connect(campo, &QLineEdit::textEdited, &f, [&f, c, campo] {
        bool tasto = f.tastoAmmesso == campo;
        f.tastoAmmesso = nullptr;
        EventoDaVista([c, campo, tasto] { Modificato(*c, *campo, tasto); });
    });
}

// A field with a format shows the amount in it while the focus is elsewhere, as typed while
// it has it; a text that is no amount shows as it stands.
std::string TestoMostrato(const Controllo& c) {
    if (c.Formato.empty() || c.HaFuoco() || c.Text().empty()) return c.Text();
    try {
        return Format(ImportoDaTesto(c.Text()), c.Formato);
    } catch (const ErroreEsecuzione&) {
        return c.Text();
    }
}

void ScriviCampo(Legame& l) {
    const Controllo& c = *l.c;
    auto& campo = static_cast<QLineEdit&>(*l.oggetto);
    if (c.tipo == TipoControllo::Campo) {
        int massimo = c.MaxLength > 0 ? c.MaxLength : 32767;
        if (campo.maxLength() != massimo) campo.setMaxLength(massimo);
    }
    std::string mostrato = TestoMostrato(c);
    if (TestoDi(campo, c) != mostrato) {
        campo.setText(Q(mostrato));
        // An emptied date field takes the next digit in its first place, not after the mask.
        if (c.tipo == TipoControllo::Data && c.Text() == DataVuotaMaschera)
            campo.setCursorPosition(0);
    }
}

void CollegaEtichetta(Filtro&, Legame& l) {
    if (l.c->tipo != TipoControllo::Immagine)
        static_cast<QLabel&>(*l.oggetto).setTextFormat(Qt::PlainText);
}

void ScriviEtichetta(Legame& l) {
    const Controllo& c = *l.c;
    auto& etichetta = static_cast<QLabel&>(*l.oggetto);
    if (c.tipo != TipoControllo::Immagine) {
        if (etichetta.text() != Q(c.Text())) etichetta.setText(Q(c.Text()));
    } else if (l.immagine != c.Text()) {
        l.immagine = c.Text();
        etichetta.setPixmap(c.Text().empty() ? QPixmap() : QPixmap(Q(c.Text())));
    }
}

void CollegaNiente(Filtro&, Legame&) {}

void ScriviCornice(Legame& l) {
    auto& cornice = static_cast<QGroupBox&>(*l.oggetto);
    if (cornice.title() != Q(l.c->Text())) cornice.setTitle(Q(l.c->Text()));
}

void CollegaPulsante(Filtro& f, Legame& l) {
    auto* pulsante = static_cast<QAbstractButton*>(l.oggetto.data());
    // Enter and Escape belong to the model's keys, never to a dialog's default button.
    if (auto* p = qobject_cast<QPushButton*>(pulsante)) {
        p->setAutoDefault(false);
        p->setDefault(false);
    }
    // The model keeps its option groups itself.
    if (auto* opzione = qobject_cast<QRadioButton*>(pulsante)) opzione->setAutoExclusive(false);
    QObject::connect(pulsante, &QAbstractButton::clicked, &f, Evento(l.c, &Controllo::Clicca));
}

void ScriviPulsante(Legame& l) {
    const Controllo& c = *l.c;
    auto& pulsante = static_cast<QAbstractButton&>(*l.oggetto);
    bool faccia = c.tipo == TipoControllo::Pulsante && c.Text().empty();
    if (!faccia && pulsante.text() != Q(c.Text())) pulsante.setText(Q(c.Text()));
    if (pulsante.isCheckable() && pulsante.isChecked() != c.Value())
        pulsante.setChecked(c.Value());
}

void CollegaCombo(Filtro& f, Legame& l) {
    Controllo* c = l.c;
    auto* combo = static_cast<QComboBox*>(l.oggetto.data());
    QObject::connect(combo, &QComboBox::activated, &f,
                     [c](int i) { EventoDaVista([c, i] { c->SetListIndex(i); }); });
    if (QLineEdit* campo = combo->lineEdit()) {
        f.controlli[campo] = c;
        campo->installEventFilter(&f);
        QObject::connect(campo, &QLineEdit::textEdited, &f, [c](const QString& t) {
            EventoDaVista([c, t] { c->SetText(t.toStdString()); });
        });
    }
}

void ScriviCombo(Legame& l) {
    const Controllo& c = *l.c;
    auto& combo = static_cast<QComboBox&>(*l.oggetto);
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

void CollegaLista(Filtro& f, Legame& l) {
    Controllo* c = l.c;
    auto* lista = static_cast<QListView*>(l.oggetto.data());
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
    QObject::connect(lista, &QListView::doubleClicked, &f, Evento(c, &Controllo::DoppioClic));
}

// The user's colours on a list; -1 leaves the desktop's own.
void ScriviColori(QWidget& w, const Controllo& c) {
    QPalette tavolozza = w.palette();
    auto tingi = [&tavolozza](QPalette::ColorRole ruolo, double colore) {
        Rgb rgb = RgbDi(colore);
        if (colore >= 0) tavolozza.setColor(ruolo, QColor(rgb.r, rgb.g, rgb.b));
    };
    tingi(QPalette::Base, c.BackColor);
    tingi(QPalette::Text, c.ForeColor);
    if (tavolozza != w.palette()) w.setPalette(tavolozza);
}

void ScriviLista(Legame& l) {
    const Controllo& c = *l.c;
    auto& lista = static_cast<QListView&>(*l.oggetto);
    ScriviColori(lista, c);
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

void ScriviAzione(QAction& a, const Controllo& c, bool conTesto) {
    if (conTesto && !a.isSeparator() && a.text() != Q(c.Text())) a.setText(Q(c.Text()));
    if (a.isEnabled() != c.Enabled) a.setEnabled(c.Enabled);
    if (a.isVisible() != c.Visible) a.setVisible(c.Visible);
    if (a.toolTip() != Q(c.ToolTipText) && !c.ToolTipText.empty()) a.setToolTip(Q(c.ToolTipText));
}

void CollegaVoce(Filtro& f, Legame& l) {
    auto* azione = static_cast<QAction*>(l.oggetto.data());
    // The classic menus make a separator of an entry captioned "-".
    if (l.c->Text() == "-") azione->setSeparator(true);
    QObject::connect(azione, &QAction::triggered, &f, Evento(l.c, &Controllo::Clicca));
}

void ScriviVoce(Legame& l) {
    ScriviAzione(static_cast<QAction&>(*l.oggetto), *l.c, true);
}

void CollegaMenu(Filtro& f, Legame& l) {
    // A menu clicks as it opens, so that its handler can set its entries first.
    QObject::connect(static_cast<QMenu*>(l.oggetto.data()), &QMenu::aboutToShow, &f,
                     Evento(l.c, &Controllo::Clicca));
}

void ScriviMenu(Legame& l) {
    auto& menu = static_cast<QMenu&>(*l.oggetto);
    if (menu.title() != Q(l.c->Text())) menu.setTitle(Q(l.c->Text()));
    ScriviAzione(*menu.menuAction(), *l.c, false);
}

template <class... W> bool Di(const QObject* o) {
    return (qobject_cast<const W*>(o) || ...);
}

// A QListWidget keeps its own items and takes no model.
bool SoloListView(const QObject* o) {
    return o && o->metaObject() == &QListView::staticMetaObject;
}

// The kinds of widget: which objects are one, the kinds of control each may stand for, how the
// user's side is tied to the control and how the model is written to the widget. A menu is a
// widget too, but it shows as it opens and is enabled and visible through its entry.
struct TipoWidget {
    bool (*e)(const QObject*);
    std::vector<TipoControllo> tipi;
    void (*collega)(Filtro&, Legame&);
    void (*scrivi)(Legame&);
    bool finestra = true;    // enabled, visible and tip written on the widget itself
};

const std::vector<TipoWidget>& TipiWidget() {
    using T = TipoControllo;
    static const std::vector<TipoWidget> tipi = {
        {&Di<QLineEdit>, {T::Campo, T::Data}, &CollegaCampo, &ScriviCampo},
        {&Di<QLabel>, {T::Etichetta, T::Immagine}, &CollegaEtichetta, &ScriviEtichetta},
        {&Di<QGroupBox>, {T::Etichetta, T::Cornice}, &CollegaNiente, &ScriviCornice},
        {&Di<QPushButton, QToolButton>, {T::Pulsante}, &CollegaPulsante, &ScriviPulsante},
        {&Di<QRadioButton>, {T::Opzione}, &CollegaPulsante, &ScriviPulsante},
        {&Di<QCheckBox>, {T::Casella}, &CollegaPulsante, &ScriviPulsante},
        {&Di<QComboBox>, {T::Combo}, &CollegaCombo, &ScriviCombo},
        {&SoloListView, {T::Lista}, &CollegaLista, &ScriviLista},
        {&Di<QAction>, {T::Menu}, &CollegaVoce, &ScriviVoce},
        {&Di<QMenu>, {T::Menu}, &CollegaMenu, &ScriviMenu, false},
    };
    return tipi;
}

const TipoWidget* TipoDi(TipoControllo tipo, const QObject* o) {
    for (const TipoWidget& t : TipiWidget())
        if (t.e(o) && std::find(t.tipi.begin(), t.tipi.end(), tipo) != t.tipi.end()) return &t;
    return nullptr;
}

// Ties the user's side of one widget to its control.
void Collega(Filtro& f, Legame& l) {
    if (auto* w = qobject_cast<QWidget*>(l.oggetto.data())) {
        f.controlli[w] = l.c;
        w->installEventFilter(&f);
    }
    l.tipo->collega(f, l);
}

// Model to view for one control.
void Scrivi(Legame& l) {
    if (!l.oggetto) return;
    const Controllo& c = *l.c;
    if (auto* w = qobject_cast<QWidget*>(l.oggetto.data()); w && l.tipo->finestra) {
        if (w->testAttribute(Qt::WA_ForceDisabled) == c.Enabled) w->setEnabled(c.Enabled);
        if (w->isHidden() == c.Visible) w->setVisible(c.Visible);
        if (w->toolTip() != Q(c.ToolTipText)) w->setToolTip(Q(c.ToolTipText));
    }
    l.tipo->scrivi(l);
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
    if (!w) return;
    // The tab of the control with the focus comes to the front.
    for (QWidget* pagina = w; pagina->parentWidget(); pagina = pagina->parentWidget())
        if (auto* schede = qobject_cast<QTabWidget*>(pagina->parentWidget()->parentWidget()))
            if (int i = schede->indexOf(pagina); i >= 0 && schede->currentIndex() != i)
                schede->setCurrentIndex(i);
    if (!w->hasFocus()) w->setFocus(Qt::OtherFocusReason);
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
    return TipoDi(tipo, o) != nullptr;
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
        const TipoWidget* tipo = o ? TipoDi(c->tipo, o) : nullptr;
        if (!tipo) continue;
        Legame& l = ls->legami.emplace_back();
        l.c = c;
        l.tipo = tipo;
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
    // A screen that isn't shown is written when it is: its widgets can't be seen before.
    for (auto& ls : Legati()) {
        if (!ls->radice || !ls->schermo->Mostrato()) continue;
        QWidget* finestra = CorniceDi(*ls->radice);
        if (finestra && finestra->windowTitle() != Q(ls->schermo->Caption))
            finestra->setWindowTitle(Q(ls->schermo->Caption));
        for (Legame& l : ls->legami)
            Scrivi(l);
    }
    ScriviFuoco();
}
