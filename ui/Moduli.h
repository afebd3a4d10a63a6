#pragma once
// The screens' forms: one Qt Designer file a screen, "NAME.ui", kept in the program's resources.
#include <QStringList>

#include <string>

class QWidget;

// The widgets of a screen's form, made under `genitore`; nullptr when the screen has no form.
QWidget* CaricaModulo(const std::string& schermo, QWidget* genitore = nullptr);
// The names of the screens that have a form.
QStringList ElencoModuli();
