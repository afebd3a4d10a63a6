// A two-page report through the real printer device: with no printer installed it becomes a PDF
// in the documents folder, named after the report, with its pages and its text.
#include "ProgrammaQt.h"

#include "refdata/Causali.h"
#include "reports/Stampe.h"
#include "store/FileRecord.h"
#include "store/Guasto.h"
#include "store/Stato.h"

#include <QFileInfo>
#include <QPrinterInfo>
#include <QProcess>
#include <QRegularExpression>

namespace {
QString Esegui(const QString& programma, const QStringList& argomenti) {
    QProcess p;
    p.start(programma, argomenti);
    p.waitForFinished(30000);
    return QString::fromUtf8(p.readAllStandardOutput());
}
} // namespace

TEST_F(ProgrammaQt, UnElencoDiDuePagineDiventaUnPdf) {
    if (!QPrinterInfo::availablePrinters().isEmpty()) GTEST_SKIP() << "a printer is installed";
    QTemporaryDir documenti;
    porta.stampante.cartellaDocumenti = documenti.path().toStdString();
    std::string pdf;
    porta.stampante.documentoPronto = [&pdf](const std::string& percorso) { pdf = percorso; };

    // 57 causali: the 57th line opens the second page.
    Stato.NumCausali = 57;
    for (short j = 1; j <= 57; ++j) {
        Stato.Causali[j].CodCausale = "C" + std::to_string(j);
        Stato.Causali[j].DescCausale = "Causale numero " + std::to_string(j);
        Stato.Causali[j].DareAvere = "E";
        Stato.Causali[j].Sospeso = "S";
        ScriviCausale(j, j);
    }
    ScriviContatore(NomeFileProgramma("RecCausa.dat"), Stato.NumCausali);
    ASSERT_TRUE(EseguiEvento(StampaCausali));

    const QFileInfo file(QString::fromStdString(pdf));
    ASSERT_TRUE(file.exists()) << pdf;
    EXPECT_TRUE(file.fileName().startsWith("Elenco Causali "));
    EXPECT_EQ(file.permissions() & (QFile::ReadGroup | QFile::ReadOther), 0);
    const QString info = Esegui("pdfinfo", {file.filePath()});
    EXPECT_TRUE(info.contains(QRegularExpression("Pages:\\s+2\\n")));
    const QString testo = Esegui("pdftotext", {"-layout", file.filePath(), "-"});
    EXPECT_TRUE(testo.contains(QRegularExpression("C57\\s+Causale numero 57\\s+E\\s+S")));
    EXPECT_TRUE(testo.contains(QRegularExpression("Pagina 2\\s+\\.\\.\\.\\.\\.fine stampa")));
}
