#pragma once
// The real program started with the Qt port on a temporary program directory; every message box
// takes its default button and is kept as "[TITLE] TEXT".
#include "shell/Applicazione.h"
#include "ui/Partenza.h"
#include "ui/PiattaformaQt.h"

#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>
#include <vector>

struct ProgrammaQt : testing::Test {
    QTemporaryDir cartella;
    Applicazione app;
    PiattaformaQt porta;
    std::vector<std::string> riquadri;

    void SetUp() override {
        ImpostaPiattaforma(&porta);
        porta.rispondi = [this](QMessageBox& box) -> QAbstractButton* {
            riquadri.push_back("[" + box.windowTitle().toStdString() + "] " +
                               box.text().toStdString());
            return box.defaultButton();
        };
        ASSERT_TRUE(cartella.isValid());
        Parti(cartella.path().toStdString() + "/");
        ASSERT_NE(porta.FinestraPrincipale(), nullptr);
        riquadri.clear();
    }
    void TearDown() override { ImpostaPiattaforma(nullptr); }

    template <class W> W* Principale(const char* nome) {
        return porta.FinestraPrincipale()->findChild<W*>(nome);
    }
};
