#include "ui/PiattaformaQt.h"

#include "screen/Schermo.h"
#include "store/Colore.h"
#include "ui/Legatore.h"
#include "ui/Moduli.h"

#include <QApplication>
#include <QCloseEvent>
#include <QColorDialog>
#include <QDate>
#include <QDesktopServices>
#include <QEventLoop>
#include <QFileInfo>
#include <QIcon>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPixmap>
#include <QProcess>
#include <QPushButton>
#include <QStatusBar>
#include <QStandardPaths>
#include <QStorageInfo>
#include <QUrl>
#include <QVBoxLayout>

namespace {

// The main window is the one screen whose form is a QMainWindow with the area of the others.
const std::string Principale = "MDIForm1";

// Takes over the closing of the screens' windows: the model decides what a close does.
struct FiltroChiusure : QObject {
    std::function<bool(QObject*)> chiudi; // true when the close is taken over

    bool eventFilter(QObject* o, QEvent* e) override {
        if (e->type() != QEvent::Close || !chiudi(o)) return false;
        e->ignore();
        return true;
    }
};

QMessageBox::Icon IconaQt(Icona i) {
    switch (i) {
    case Icona::Critica:
        return QMessageBox::Critical;
    case Icona::Esclamazione:
        return QMessageBox::Warning;
    case Icona::Domanda:
        return QMessageBox::Question;
    case Icona::Informazione:
        return QMessageBox::Information;
    case Icona::Nessuna:
        break;
    }
    return QMessageBox::NoIcon;
}

QString TestoPulsante(Risposta r) {
    switch (r) {
    case Risposta::OK:
        return "OK";
    case Risposta::Annulla:
        return "Annulla";
    case Risposta::Interrompi:
        return "Interrompi";
    case Risposta::Riprova:
        return "Riprova";
    case Risposta::Ignora:
        return "Ignora";
    case Risposta::Si:
        return QString::fromUtf8("Sì");
    case Risposta::No:
        return "No";
    }
    return "OK";
}

} // namespace

PiattaformaQt::PiattaformaQt() {
    auto filtro = std::make_unique<FiltroChiusure>();
    filtro->chiudi = [this](QObject* o) {
        // Closing the main window ends the program at once, with no question.
        if (o == principale_) {
            Termina();
            return false;
        }
        for (auto& [schermo, vista] : viste_)
            if (vista.finestra == o) {
                Schermo* s = schermo;
                EventoDaVista([s] { s->UnloadMe(); });
                return true;
            }
        return false;
    };
    chiusure_ = std::move(filtro);
    // A report that became a PDF opens on the desktop, and the main window says where it is.
    stampante.documentoPronto = [this](const std::string& percorso) {
        const QString file = QString::fromStdString(percorso);
        if (principale_) principale_->statusBar()->showMessage("Stampa salvata in " + file);
        QDesktopServices::openUrl(QUrl::fromLocalFile(file));
    };
}

void PiattaformaQt::ImpostaStampante() {
    stampante.Imposta(QApplication::activeWindow() ? QApplication::activeWindow()
                                                   : principale_.data());
}

PiattaformaQt::~PiattaformaQt() {
    BloccoEventi blocco;
    for (auto& [schermo, vista] : viste_)
        Slega(*schermo);
    for (auto& [schermo, vista] : viste_)
        if (vista.finestra && vista.finestra != principale_) delete vista.finestra;
    delete principale_;
}

Risposta PiattaformaQt::MsgBox(const std::string& testo, const std::string& titolo, Icona icona,
                               Pulsanti pulsanti, int predefinito) {
    QMessageBox box(IconaQt(icona), QString::fromStdString(titolo), QString::fromStdString(testo),
                    QMessageBox::NoButton, QApplication::activeWindow());
    std::vector<Risposta> risposte = RisposteDi(pulsanti);
    std::vector<QPushButton*> tasti;
    // One role for all keeps the buttons in the order of their set.
    for (Risposta r : risposte)
        tasti.push_back(box.addButton(TestoPulsante(r), QMessageBox::ActionRole));
    std::size_t primo = predefinito >= 0 && static_cast<std::size_t>(predefinito) < tasti.size()
                            ? static_cast<std::size_t>(predefinito)
                            : 0;
    box.setDefaultButton(tasti[primo]);
    // Escape is Cancel where the set has it, and the one button of a plain notice.
    for (std::size_t i = 0; i < risposte.size(); ++i)
        if (risposte[i] == Risposta::Annulla || risposte.size() == 1)
            box.setEscapeButton(tasti[i]);

    QAbstractButton* premuto = nullptr;
    if (rispondi) {
        premuto = rispondi(box);
    } else {
        // The box shows the arrow even while the program works under the hourglass.
        if (clessidra_) QApplication::setOverrideCursor(Qt::ArrowCursor);
        box.exec();
        if (clessidra_) QApplication::restoreOverrideCursor();
        premuto = box.clickedButton();
    }
    for (std::size_t i = 0; i < tasti.size(); ++i)
        if (tasti[i] == premuto) return risposte[i];
    return risposte[primo];
}

void PiattaformaQt::Beep() {
    QApplication::beep();
}

void PiattaformaQt::Clessidra(bool accesa) {
    if (accesa == clessidra_) return;
    clessidra_ = accesa;
    if (accesa)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

DataCivile PiattaformaQt::Oggi() {
    QDate oggi = QDate::currentDate();
    return {oggi.day(), oggi.month(), oggi.year()};
}

void PiattaformaQt::Guasto(int numero, const std::string& descrizione) {
    MsgBox("Errore " + std::to_string(numero) + ": " + descrizione, "Errore", Icona::Critica,
           Pulsanti::OK, 0);
}

QMainWindow* PiattaformaQt::FinestraPrincipale() {
    if (principale_) return principale_;
    Schermo* s = TrovaSchermo(Principale);
    if (!s) return nullptr;
    BloccoEventi blocco;
    QWidget* modulo = CaricaModulo(Principale);
    principale_ = qobject_cast<QMainWindow*>(modulo);
    if (!principale_) {
        delete modulo;
        return nullptr;
    }
    area_ = principale_->findChild<QMdiArea*>("Area");
    if (area_)
        QObject::connect(area_, &QMdiArea::subWindowActivated, area_, [](QMdiSubWindow* f) {
            if (Schermo* attivato = f ? SchermoDi(f->widget()) : nullptr)
                EventoDaVista([attivato] { attivato->Attiva(); });
        });
    principale_->installEventFilter(chiusure_.get());
    Lega(*s, principale_);
    viste_[s] = Vista{principale_.data(), false};
    return principale_;
}

QWidget* PiattaformaQt::FinestraDi(const Schermo& schermo) const {
    for (const auto& [s, vista] : viste_)
        if (s == &schermo) return vista.finestra;
    return nullptr;
}

QWidget* PiattaformaQt::Prepara(Schermo& s, bool modale) {
    if (s.nome == Principale) return FinestraPrincipale();
    if (auto it = viste_.find(&s); it != viste_.end()) {
        if (it->second.finestra && it->second.modale == modale) return it->second.finestra;
        // Shown the other way than before: a new window.
        Distruggi(s);
    }
    QMainWindow* principale = FinestraPrincipale();
    BloccoEventi blocco;
    QWidget* finestra = nullptr;
    QWidget* modulo = nullptr;
    if (modale) {
        // A plain window rather than a QDialog: Enter and Escape are the model's keys.
        finestra = new QWidget(principale, Qt::Dialog);
        modulo = CaricaModulo(s.nome, finestra);
        if (!modulo) {
            delete finestra;
            return nullptr;
        }
        QSize progetto = modulo->size();
        auto* strato = new QVBoxLayout(finestra);
        strato->setContentsMargins(0, 0, 0, 0);
        strato->addWidget(modulo);
        finestra->setWindowModality(Qt::ApplicationModal);
        finestra->resize(progetto);
    } else if (s.Figlio && area_) {
        modulo = CaricaModulo(s.nome);
        if (!modulo) return nullptr;
        QSize progetto = modulo->size();
        auto* figlia = area_->addSubWindow(modulo);
        // The window opens at the size its form was drawn at, with its frame around it.
        figlia->resize(progetto + figlia->sizeHint() - modulo->sizeHint());
        QPixmap nessuna(16, 16);
        nessuna.fill(Qt::transparent);
        figlia->setWindowIcon(QIcon(nessuna));
        finestra = figlia;
    } else {
        finestra = modulo = CaricaModulo(s.nome);
        if (!modulo) return nullptr;
    }
    finestra->installEventFilter(chiusure_.get());
    Lega(s, modulo);
    viste_[&s] = {finestra, modale};
    return finestra;
}

void PiattaformaQt::MostraSchermo(Schermo& s, bool modale) {
    QWidget* finestra = Prepara(s, modale);
    if (!finestra) return;
    {
        BloccoEventi blocco;
        finestra->show();
        if (auto* figlia = qobject_cast<QMdiSubWindow*>(finestra); figlia && area_) {
            area_->setActiveSubWindow(figlia);
            Contieni(*figlia);
        } else if (finestra == principale_ && area_) {
            // Children shown while the main window was loading meet the area's real size now.
            for (QMdiSubWindow* figlia : area_->subWindowList())
                Contieni(*figlia);
        } else {
            finestra->raise();
            finestra->activateWindow();
        }
    }
    if (!modale) return;
    // The caller waits here while the user works in the screen, until the model takes it down.
    AggiornaViste();
    QEventLoop ciclo;
    cicli_[&s] = &ciclo;
    while (s.Stato() == StatoSchermo::Modale && !terminato)
        ciclo.exec(QEventLoop::DialogExec);
    cicli_.erase(&s);
}

void PiattaformaQt::NascondiSchermo(Schermo& s) {
    if (QWidget* finestra = FinestraDi(s)) {
        BloccoEventi blocco;
        finestra->hide();
    }
    FineModale(s);
}

void PiattaformaQt::ScaricaSchermo(Schermo& s) {
    // Unloading the main window ends the program, as it does on the classic desktop.
    if (s.nome == Principale) {
        NascondiSchermo(s);
        Termina();
        return;
    }
    Distruggi(s);
    FineModale(s);
}

void PiattaformaQt::Distruggi(Schermo& s) {
    auto it = viste_.find(&s);
    if (it == viste_.end()) return;
    BloccoEventi blocco;
    Slega(s);
    if (QWidget* finestra = it->second.finestra) {
        finestra->hide();
        // The event that unloads the screen may have come from one of its own widgets.
        finestra->deleteLater();
    }
    viste_.erase(it);
}

void PiattaformaQt::FineModale(const Schermo& s) {
    if (auto it = cicli_.find(&s); it != cicli_.end()) it->second->quit();
}

void PiattaformaQt::Termina() {
    terminato = true;
    for (auto& [schermo, ciclo] : cicli_)
        ciclo->quit();
}

void PiattaformaQt::Esegui() {
    QEventLoop ciclo;
    cicli_[nullptr] = &ciclo;
    while (!terminato)
        ciclo.exec();
    cicli_.erase(nullptr);
}

std::vector<std::string> PiattaformaQt::Unita() {
    std::vector<std::string> unita;
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes())
        if (volume.isValid() && volume.isReady()) unita.push_back(volume.rootPath().toStdString());
    return unita;
}

void PiattaformaQt::DisponiFinestre(int modo) {
    if (!area_) return;
    BloccoEventi blocco;
    switch (modo) {
    case 0:
        area_->cascadeSubWindows();
        break;
    case 1:
        Affianca(true);
        break;
    case 2:
        Affianca(false);
        break;
    case 3:
        DisponiIcone();
        break;
    default:
        break;
    }
}

// A child window no bigger than the area, as long as the area is up to measure it.
void PiattaformaQt::Contieni(QMdiSubWindow& figlia) {
    if (area_->isVisible()) figlia.resize(figlia.size().boundedTo(area_->viewport()->size()));
}

// Tiling horizontally lays the windows one under the other, each as wide as the area;
// vertically, side by side, each as tall as the area.
void PiattaformaQt::Affianca(bool orizzontale) {
    QList<QMdiSubWindow*> aperte;
    for (QMdiSubWindow* f : area_->subWindowList())
        if (f->isVisible() && !f->isMinimized()) aperte << f;
    if (aperte.isEmpty()) return;
    QRect spazio = area_->viewport()->rect();
    auto n = static_cast<int>(aperte.size());
    for (int i = 0; i < n; ++i) {
        QMdiSubWindow* f = aperte[i];
        if (f->isMaximized()) f->showNormal();
        if (orizzontale) {
            int alto = spazio.height() / n;
            f->setGeometry(0, i * alto, spazio.width(), alto);
        } else {
            int largo = spazio.width() / n;
            f->setGeometry(i * largo, 0, largo, spazio.height());
        }
    }
}

// The minimised windows in a row along the bottom of the area.
void PiattaformaQt::DisponiIcone() {
    int x = 0;
    int fondo = area_->viewport()->height();
    for (QMdiSubWindow* f : area_->subWindowList())
        if (f->isVisible() && f->isMinimized()) {
            f->move(x, fondo - f->height());
            x += f->width();
        }
}

bool PiattaformaQt::ScegliColore(double& colore) {
    Rgb c = RgbDi(colore);
    QColor scelto = QColorDialog::getColor(QColor(c.r, c.g, c.b), QApplication::activeWindow(),
                                           "Colore");
    if (!scelto.isValid()) return false;
    colore = ValoreColore({scelto.red(), scelto.green(), scelto.blue()});
    return true;
}

bool PiattaformaQt::AvviaProgramma(const std::string& programma) {
    QString eseguibile = QStandardPaths::findExecutable(QString::fromStdString(programma));
    return !eseguibile.isEmpty() && QProcess::startDetached(eseguibile, {});
}

bool PiattaformaQt::ApriGuida(const std::string& file) {
    QFileInfo guida(QString::fromStdString(file));
    return guida.exists() &&
           QDesktopServices::openUrl(QUrl::fromLocalFile(guida.absoluteFilePath()));
}

bool PiattaformaQt::ApriBrowser(const std::string& indirizzo) {
    return QDesktopServices::openUrl(QUrl(QString::fromStdString(indirizzo), QUrl::StrictMode));
}
