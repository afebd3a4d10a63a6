#include "ui/Moduli.h"

#include <QDir>
#include <QFile>
#include <QUiLoader>
#include <QWidget>

namespace {
const QString Cartella = QStringLiteral(":/forms/");
}

QWidget* CaricaModulo(const std::string& schermo, QWidget* genitore) {
    QFile file(Cartella + QString::fromStdString(schermo) + ".ui");
    if (!file.open(QIODevice::ReadOnly)) return nullptr;
    QUiLoader caricatore;
    return caricatore.load(&file, genitore);
}

QStringList ElencoModuli() {
    QStringList nomi;
    for (const QString& file : QDir(Cartella).entryList({"*.ui"}, QDir::Files, QDir::Name))
        nomi << file.chopped(3);
    return nomi;
}
