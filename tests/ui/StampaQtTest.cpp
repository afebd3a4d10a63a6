// The printer device with no printer installed: a report becomes a PDF of the user's alone in the
// documents folder, named after its first line, with its pages and its text at its columns.
#include "ui/StampanteQt.h"

#include <QtPrintSupport>

#include <gtest/gtest.h>

namespace {

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
    // Each word with its place on the page, in points from the paper's left edge.
    QProcess pdftotext;
    pdftotext.start("pdftotext", {"-bbox", file.filePath(), "-"});
    pdftotext.waitForFinished(30000);
    const QString parole = QString::fromUtf8(pdftotext.readAllStandardOutput());
    EXPECT_EQ(parole.count("<page "), 3);
    EXPECT_TRUE(parole.contains(">100</word>"));
    // Column N starts N - 1 characters of 10-point Courier (6 points each) into the printable
    // area: "Elenco" at column 3, 12 points in; "C57" at column 20, 114 points in.
    QPrinter modello(QPrinter::HighResolution);
    modello.setOutputFormat(QPrinter::PdfFormat);
    const double margine = modello.pageLayout().paintRectPoints().left();
    for (auto [parola, punti] : {std::pair{"Elenco", 12.0}, {"C57", 114.0}}) {
        auto x =
            QRegularExpression(QString("xMin=\"([0-9.]+)\"[^>]*>") + parola + "<").match(parole);
        EXPECT_NEAR(x.captured(1).toDouble() - margine, punti, 1.0) << parola;
    }
}

} // namespace
