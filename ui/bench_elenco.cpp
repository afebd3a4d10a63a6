// The entry screen under load, for tools/bench.sh: in the program started on the directory
// that `bench_registro prepara` filled, from the start of the opening of its start account, of
// 32767 movements, to the entry screen shown with all the lines of its list; prints the
// milliseconds. The program starts with no start account, then opens it as its start does.
#include "shell/Applicazione.h"
#include "shell/Avvio.h"
#include "store/FileRecord.h"
#include "store/Guasto.h"
#include "store/Stato.h"
#include "tools/Memoria.h"
#include "ui/Legatore.h"
#include "ui/Partenza.h"
#include "ui/PiattaformaQt.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QElapsedTimer>
#include <QListView>

#include <cstdio>
#include <string>

// As in the program itself.
[[gnu::constructor(101)]] static void Memoria() { PreparaMemoria(); }

namespace {
constexpr int Righe = 32767;

// The list of the entry screen when it is on view with every line.
bool ElencoMostrato() {
    for (QWidget* w : QApplication::allWidgets()) {
        auto* lista = qobject_cast<QListView*>(w);
        if (lista && lista->objectName() == "ElencoMovim")
            return lista->isVisible() && lista->model() && lista->model()->rowCount() == Righe;
    }
    return false;
}

// The start account of Imposta.DAT; gives back the one it had.
std::string ImpostaContoIniziale(const std::string& codice) {
    RecImposta imposta;
    ConRecord(NomeFileProgramma("Imposta.DAT"), RecImposta::Lunghezza, 1,
              [&] { LeggiRecord(imposta, 1, 1); });
    std::string prima = imposta.contAvv.Testo();
    imposta.contAvv = codice;
    ConRecord(NomeFileProgramma("Imposta.DAT"), RecImposta::Lunghezza, 1,
              [&] { ScriviRecord(imposta, 1, 1); });
    return prima;
}

// Events until `fatto`, or ten seconds; whether it came.
bool Aspetta(const QElapsedTimer& orologio, bool (*fatto)()) {
    while (!fatto()) {
        if (orologio.elapsed() > 10000) return false;
        QCoreApplication::processEvents();
    }
    return true;
}
} // namespace

int main(int argc, char* argv[]) {
    if (argc != 2) {
        std::fprintf(stderr, "uso: bench_elenco CARTELLA_PROGRAMMA\n");
        return 2;
    }
    QApplication qt(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    Applicazione applicazione;
    PiattaformaQt porta;
    ImpostaPiattaforma(&porta);
    const std::string cartella = std::string(argv[1]) + "/";
    Stato.PercorsoProgramma = cartella;
    std::string conto;
    QElapsedTimer orologio;
    bool mostrato = EseguiEvento([&] { conto = ImpostaContoIniziale(""); });
    if (mostrato) {
        Parti(cartella);
        orologio.start();
        mostrato = Aspetta(orologio, [] {
            for (QWidget* w : QApplication::topLevelWidgets())
                if (w->isVisible()) return true;
            return false;
        });
    }
    EseguiEvento([&] { ImpostaContoIniziale(conto); });
    QCoreApplication::processEvents();
    Stato.Imposta.contAvv = conto;
    orologio.start();
    EventoDaVista(ApriContoIniziale);
    mostrato = mostrato && Aspetta(orologio, ElencoMostrato);
    // One more round, in which the list paints what it shows.
    QCoreApplication::processEvents();
    const double ms = static_cast<double>(orologio.nsecsElapsed()) / 1e6;
    ImpostaPiattaforma(nullptr);
    if (!mostrato) {
        std::fprintf(stderr, "la maschera con %d righe non si e' vista\n", Righe);
        return 1;
    }
    std::printf("%.1f\n", ms);
    return 0;
}
