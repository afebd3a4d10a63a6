#pragma once
// A program directory of its own for each test, under a fresh temporary folder that is also the
// current directory, with the headless port and a new application for every start.
#include "screen/PiattaformaSenzaSchermo.h"
#include "shell/Applicazione.h"
#include "shell/Avvio.h"
#include "store/FileRecord.h"
#include "store/Guasto.h"
#include "store/Stato.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace fs = std::filesystem;

using Byte = std::vector<unsigned char>;

inline Byte ContenutoFile(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return Byte(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// One record written at its number, on a file opened and closed here.
template <class R> void ScriviIn(const fs::path& file, const R& record, long numero) {
    ApriRecord(file.string(), R::Lunghezza, 1);
    ScriviRecord(record, numero, 1);
    ChiudiRecord(1);
}

struct Ambiente : ::testing::Test {
    PiattaformaSenzaSchermo porta;
    fs::path radice, programma, dati;
    fs::path cartellaPrima;
    std::unique_ptr<Applicazione> app;

    void SetUp() override {
        porta.oggi = DataCivile{15, 3, 2001};
        ImpostaPiattaforma(&porta);
        // Short, so that a data path under it fits the 35 characters of the stored one.
        char modello[] = "/tmp/mrd-XXXXXX";
        radice = mkdtemp(modello);
        cartellaPrima = fs::current_path();
        fs::current_path(radice);
        programma = radice / "prog";
        dati = programma / "dati";
    }

    void TearDown() override {
        app.reset();
        ChiudiTutti();
        fs::current_path(cartellaPrima);
        fs::remove_all(radice);
    }

    // A start of the program as from nothing: new state, new screens.
    void Avvia() {
        app.reset();
        Stato = StatoApplicazione{};
        app = std::make_unique<Applicazione>();
        EseguiEvento([&] { AvviaProgramma(programma.string()); });
    }

    MDIForm1& Finestra() { return app->MDIForm1; }

    // The messages shown since the last call.
    std::vector<std::string> Messaggi() {
        std::vector<std::string> m;
        m.swap(porta.messaggi);
        return m;
    }

    void ScriviImposta(const RecImposta& imposta) {
        ScriviIn(programma / "Imposta.DAT", imposta, 1);
    }

    void ScriviValuta(long numero, const std::string& nome, const std::string& paese,
                      double cambio) {
        RecValuta v;
        v.Numero = static_cast<std::int16_t>(numero);
        v.Nome = nome;
        v.Paese = paese;
        v.Cambio = cambio;
        ScriviIn(programma / "Valute.DAT", v, numero);
    }

    // An account in the default data directory, as the first in its table.
    void ScriviConto(const std::string& codice, const std::string& banca, double fido) {
        RecConto c;
        c.Numero = 1;
        c.CodConto = codice;
        c.NomeBanca = banca;
        c.Fido = fido;
        ScriviIn(dati / "Conti.dat", c, 1);
        ScriviContatore((dati / "RecConti.dat").string(), 1);
    }
};
