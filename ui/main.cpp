#include "shell/Applicazione.h"
#include "tools/Memoria.h"
#include "ui/Partenza.h"
#include "ui/PiattaformaQt.h"

#include <QApplication>

// Far fewer page faults at the open of a big account; before main, as the state's tables are.
[[gnu::constructor(101)]] static void Memoria() { PreparaMemoria(); }

int main(int argc, char* argv[]) {
    QApplication qt(argc, argv);
    QApplication::setApplicationName("marendola");
    // The port says when the program ends; the windows only hide or unload.
    QApplication::setQuitOnLastWindowClosed(false);
    // The screens outlive the windows, which the port takes down first.
    Applicazione applicazione;
    PiattaformaQt porta;
    ImpostaPiattaforma(&porta);
    Parti(CartellaProgramma());
    porta.Esegui();
    ImpostaPiattaforma(nullptr);
    return 0;
}
