#pragma once
// A program directory of its own for each test, under a fresh temporary folder that is also the
// current directory, with the headless port and a new application for every start; and the
// user's actions on the screens, as the script driver does them.
#include "screen/PiattaformaSenzaSchermo.h"
#include "shell/Applicazione.h"
#include "shell/Avvio.h"
#include "store/FileRecord.h"
#include "store/Guasto.h"
#include "store/Stato.h"

#include <gtest/gtest.h>

#include <algorithm>
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

inline void ScriviFile(const fs::path& file, const Byte& byte) {
    std::ofstream out(file, std::ios::binary);
    out.write(reinterpret_cast<const char*>(byte.data()),
              static_cast<std::streamsize>(byte.size()));
}

// One record written or read at its number, on a file opened and closed here.
template <class R> void ScriviIn(const fs::path& file, const R& record, long numero) {
    ApriRecord(file.string(), R::Lunghezza, 1);
    ScriviRecord(record, numero, 1);
    ChiudiRecord(1);
}
template <class R> R LeggiDa(const fs::path& file, long numero) {
    R record;
    ApriRecord(file.string(), R::Lunghezza, 1);
    LeggiRecord(record, numero, 1);
    ChiudiRecord(1);
    return record;
}

// The headless port that also keeps the form of each box.
struct PortaCheGuarda : PiattaformaSenzaSchermo {
    struct Box {
        std::string titolo;
        Icona icona;
        Pulsanti pulsanti;
    };
    std::vector<Box> box;

    Risposta MsgBox(const std::string& testo, const std::string& titolo, Icona icona,
                    Pulsanti pulsanti, int predefinito) override {
        box.push_back({titolo, icona, pulsanti});
        return PiattaformaSenzaSchermo::MsgBox(testo, titolo, icona, pulsanti, predefinito);
    }
};

// A click, through the top-level handler: false when it ended in a failure.
inline bool Clic(Controllo& c) {
    return EseguiEvento([&] { c.Clicca(); });
}

// Keys typed from `campo` on, each to the control that has the focus by then.
inline void Digita(Controllo& campo, const std::string& tasti) {
    EseguiEvento([&] {
        campo.SetFocus();
        for (char t : tasti) campo.schermo.Fuoco()->Digita(static_cast<unsigned char>(t));
    });
}

// A click on the first line that begins with `inizio`, and a double click after it if asked.
inline void Seleziona(Controllo& lista, const std::string& inizio, bool doppio = false) {
    const auto& righe = lista.Righe();
    auto riga = std::find_if(righe.begin(), righe.end(),
                             [&](const std::string& r) { return r.rfind(inizio, 0) == 0; });
    ASSERT_NE(riga, righe.end()) << "no line of " << lista.nome << " begins with " << inizio;
    EXPECT_TRUE(EseguiEvento([&] {
        lista.SetListIndex(static_cast<int>(riga - righe.begin()));
        if (doppio) lista.DoppioClic();
    }));
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

    // The menus and buttons that only an open account enables, all on or all off.
    void ComandiConto(bool accesi, const std::string& caso = "") {
        MDIForm1& f = Finestra();
        for (Controllo* c : {&f.Files, &f.Stampe, &f.Visualizza, &f.Immissioni, &f.PulStampe,
                             &f.PulsMovimenti, &f.Manut, &f.BottCarnet, &f.Vista, &f.chiusure})
            EXPECT_EQ(c->Enabled, accesi) << caso << " " << c->nome;
    }

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

    // An account in the default data directory, as the last of a table of `numero`.
    void ScriviConto(const std::string& codice, const std::string& banca, double fido,
                     short numero = 1) {
        RecConto c;
        c.Numero = numero;
        c.CodConto = codice;
        c.NomeBanca = banca;
        c.Fido = fido;
        ScriviIn(dati / "Conti.dat", c, numero);
        ScriviContatore((dati / "RecConti.dat").string(), numero);
    }
};

// The program started once, its first messages read.
struct AmbienteAvviato : Ambiente {
    void SetUp() override {
        Ambiente::SetUp();
        Avvia();
        Messaggi();
    }
};
