#include "ui/Partenza.h"

#include "shell/Avvio.h"
#include "ui/Legatore.h"

#include <QDir>
#include <QStandardPaths>

std::string CartellaProgramma() {
    QString cartella = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    return QDir(cartella).absolutePath().toStdString() + "/";
}

void Parti(const std::string& cartellaProgramma) {
    EventoDaVista([&cartellaProgramma] { AvviaProgramma(cartellaProgramma); });
}
