// The printer device with no printer installed: a report becomes a PDF of the user's alone in the
// documents folder, named after its first line, with its pages and its text at its columns.
#include "ui/StampanteQt.h"

#include <QtPrintSupport>

#include <gtest/gtest.h>

namespace {

QString Esegui(const QString& programma, const QStringList& argomenti) {
    QProcess p;
    p.start(programma, argomenti);
    p.waitForFinished(30000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

TEST(StampanteQt, UnaStampaDiTrePagineDiventaUnPdf) {
    if (!QPrinterInfo::availablePrinters().isEmpty()) GTEST_SKIP() << "a printer is installed";
    QTemporaryDir documenti;
    StampanteQt stampante;
    stampante.cartellaDocumenti = documenti.path().toStdString();
    std::string pdf;
    stampante.documentoPronto = [&pdf](const std::string& percorso) { pdf = percorso; };

    stampante.Riga("  Elenco Causali");
    stampante.Tab(20);
    stampante.Riga("C57");
    stampante.NuovaPagina();
    // 100 lines of about 11.3 points (10-point type) are 1133 points: more than one A4 or
    // Letter page, less than two; the device turns the page by itself.
    for (int i = 1; i <= 100; ++i)
        stampante.Riga("riga " + std::to_string(i));
    stampante.Fine();

    const QFileInfo file(QString::fromStdString(pdf));
    ASSERT_TRUE(file.exists()) << pdf;
    EXPECT_TRUE(file.fileName().startsWith("Elenco Causali 20"));
    EXPECT_EQ(file.permissions() & (QFile::ReadGroup | QFile::ReadOther), 0);
    const QString info = Esegui("pdfinfo", {file.filePath()});
    EXPECT_TRUE(info.contains(QRegularExpression("Pages:\\s+3\\n"))) << info.toStdString();
    const QString testo = Esegui("pdftotext", {"-layout", file.filePath(), "-"});
    // The title's text begins at column 3, C57 at column 20: 17 columns further right.
    EXPECT_TRUE(testo.contains(QRegularExpression("Elenco Causali\\n {17}C57\\n")))
        << testo.toStdString();
    EXPECT_TRUE(testo.contains("riga 100"));
}

} // namespace
