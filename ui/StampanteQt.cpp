#include "ui/StampanteQt.h"

#include "store/Guasto.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>

namespace {
// A failure of the printing layer is the classic printer failure.
constexpr int ErroreStampante = 482;

// A name that the file systems of a desktop all accept.
QString NomeFile(const std::string& nome) {
    QString pulito = QString::fromStdString(nome).simplified();
    for (QChar c : {'/', '\\', ':', '*', '?', '"', '<', '>', '|'})
        pulito.replace(c, '_');
    return pulito.isEmpty() ? QStringLiteral("Stampa") : pulito;
}

const QFile::Permissions SoloUtente = QFile::ReadOwner | QFile::WriteOwner;
} // namespace

StampanteQt::StampanteQt() : stampante_(std::make_unique<QPrinter>(QPrinter::HighResolution)) {
    if (QPrinterInfo::availablePrinters().isEmpty())
        stampante_->setOutputFormat(QPrinter::PdfFormat);
}

StampanteQt::~StampanteQt() {
    Annulla();
}

bool StampanteQt::SuFile() const {
    return stampante_->outputFormat() == QPrinter::PdfFormat;
}

QFont StampanteQt::Carattere() const {
    QFont f(QString::fromStdString(famiglia_));
    f.setStyleHint(famiglia_ == "Courier New" ? QFont::TypeWriter : QFont::SansSerif);
    f.setPointSizeF(punti_);
    f.setBold(grassetto_);
    return f;
}

void StampanteQt::Font(const std::string& nome) {
    famiglia_ = nome;
}
void StampanteQt::Corpo(double punti) {
    punti_ = punti;
}
void StampanteQt::Grassetto(bool acceso) {
    grassetto_ = acceso;
}
void StampanteQt::Tab(int colonna) {
    colonna_ = colonna;
}

// A run's PDF is written under a provisional name and takes the report's name at the end, when
// its first line of text is known.
void StampanteQt::Inizia() {
    if (SuFile()) {
        const QString cartella =
            cartellaDocumenti.empty()
                ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                : QString::fromStdString(cartellaDocumenti);
        if (!QDir(cartella).exists()) {
            if (!QDir().mkpath(cartella)) Errore(ErroreStampante);
            QFile::setPermissions(cartella, SoloUtente | QFile::ExeOwner);
        }
        const QString provvisorio = cartella + "/.marendola-" +
                                    QString::number(QDateTime::currentMSecsSinceEpoch()) + ".pdf";
        stampante_->setOutputFileName(provvisorio);
        file_ = provvisorio.toStdString();
    }
    pittore_ = std::make_unique<QPainter>();
    if (!pittore_->begin(stampante_.get())) {
        pittore_.reset();
        Errore(ErroreStampante);
    }
    nome_.clear();
    y_ = 0;
    riga_ = false;
}

void StampanteQt::Riga(const std::string& testo) {
    if (!pittore_) Inizia();
    const QFont carattere = Carattere();
    const QFontMetricsF misure(carattere, stampante_.get());
    // The paper full, the text goes on on the next page, as the printer does by itself.
    if (riga_ && y_ + misure.lineSpacing() > stampante_->height()) NuovaPagina();
    if (nome_.empty()) nome_ = QString::fromStdString(testo).trimmed().toStdString();
    pittore_->setFont(carattere);
    const double x = (colonna_ - 1) * misure.averageCharWidth();
    pittore_->drawText(QPointF(x, y_ + misure.ascent()), QString::fromStdString(testo));
    y_ += misure.lineSpacing();
    riga_ = true;
    colonna_ = 1;
}

void StampanteQt::NuovaPagina() {
    if (!pittore_) Inizia();
    if (!stampante_->newPage()) Errore(ErroreStampante);
    y_ = 0;
    riga_ = false;
}

void StampanteQt::Fine() {
    if (!pittore_) return;
    const bool fatto = pittore_->end();
    pittore_.reset();
    if (!fatto) Errore(ErroreStampante);
    if (file_.empty()) return;
    const QString provvisorio = QString::fromStdString(file_);
    file_.clear();
    const QFileInfo info(provvisorio);
    const QString base = info.absolutePath() + "/" + NomeFile(nome_) + " " +
                         QDateTime::currentDateTime().toString("yyyy-MM-dd HH.mm.ss");
    QString percorso = base + ".pdf";
    for (int n = 2; QFileInfo::exists(percorso); ++n)
        percorso = base + " (" + QString::number(n) + ").pdf";
    if (!QFile::rename(provvisorio, percorso)) Errore(ErroreStampante);
    QFile::setPermissions(percorso, SoloUtente);
    if (documentoPronto) documentoPronto(percorso.toStdString());
}

void StampanteQt::Annulla() {
    if (!pittore_) return;
    pittore_->end();
    pittore_.reset();
    if (!file_.empty()) QFile::remove(QString::fromStdString(file_));
    file_.clear();
}

void StampanteQt::Imposta(QWidget* padre) {
    QPrintDialog dialogo(stampante_.get(), padre);
    dialogo.setOption(QAbstractPrintDialog::PrintSelection, false);
    dialogo.setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialogo.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
    dialogo.setWindowTitle("Imposta stampante");
    dialogo.exec();
}
