// ErroreDisco's boxes and results, the failure path of the choosers' handlers, real failures of
// the file system on Form7, and the choosers' walk through volumes and folders.
#include "tests/Ambiente.h"

#include "refdata/Conti.h"
#include "refdata/ErroreDisco.h"

#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace {
using ErroreDiscoTest = Ambiente;

// Each number's box, and what the answer gives back: with none, the default button, the one that
// gives up. A number with no text shows no box.
TEST_F(ErroreDiscoTest, BoxERisultatoPerNumero) {
    const std::string fineFile = "Input oltre la fine del file; è stata raggiunta la fine del "
                                 "file e non si può continuare con la lettura.";
    const Pulsanti ok = Pulsanti::OK, ra = Pulsanti::RiprovaAnnulla,
                   iri = Pulsanti::InterrompiRiprovaIgnora;
    struct Caso {
        int numero;
        std::string testo; // "": no box
        Pulsanti pulsanti;
        std::optional<Risposta> risposta;
        int risultato;
    };
    const Caso casi[] = {
        {52, "Nome o numero di file non valido", ok, {}, 2},
        {64, "Nome o numero di file non valido", ok, {}, 2},
        {53, "Il file non esiste.", ok, {}, 2},
        {54, "Modalità di file non valida.", iri, {}, 2},
        {55, "File già aperto.", ok, {}, 2},
        {57, "Errore di I/O di periferica", ra, Risposta::Riprova, 0},
        {57, "Errore di I/O di periferica", ra, Risposta::Annulla, 2},
        {57, "Errore di I/O di periferica", ra, {}, 2},
        {61, "Disco pieno. Continuare?", iri, Risposta::Ignora, 1},
        {61, "Disco pieno. Continuare?", iri, Risposta::Interrompi, 2},
        {61, "Disco pieno. Continuare?", iri, {}, 2},
        {62, fineFile, ok, {}, 2},
        {68, "Periferica non disponibile.", ra, {}, 2},
        {71, "Disco non pronto. Inserire un dischetto", ra, {}, 2},
        {76, "Il percorso non esiste", ok, Risposta::OK, 2},
        {0, "", ok, {}, 3}, {9, "", ok, {}, 3}, {58, "", ok, {}, 3}, {75, "", ok, {}, 3},
    };
    for (const Caso& c : casi) {
        porta.messaggi.clear();
        porta.box.clear();
        porta.risposte.clear();
        if (c.risposta) porta.risposte.push_back(*c.risposta);
        EXPECT_EQ(ErroreDisco(c.numero), c.risultato) << c.numero;
        ASSERT_EQ(porta.box.size(), c.testo.empty() ? 0u : 1u) << c.numero;
        if (c.testo.empty()) continue;
        EXPECT_EQ(porta.messaggi[0].rfind("[Errore Disco] " + c.testo + " -> ", 0), 0u)
            << c.numero;
        EXPECT_EQ(porta.box[0].icona, Icona::Esclamazione) << c.numero;
        EXPECT_EQ(porta.box[0].pulsanti, c.pulsanti) << c.numero;
    }
}

TEST_F(ErroreDiscoTest, LaViaDiFallimentoDeiGestori) {
    struct Caso {
        const char* nome;
        int numero;
        std::vector<Risposta> risposte;
        std::string passi; // the statements that ran, the failing one as often as it ran
    };
    const Caso casi[] = {
        {"Retry runs the statement again", 57, {Risposta::Riprova, Risposta::Riprova}, "abbbc"},
        {"Ignore goes on with the next", 61, {Risposta::Ignora}, "abc"},
        {"Cancel leaves", 57, {Risposta::Annulla}, "ab"},
        {"OK leaves", 76, {Risposta::OK}, "ab"},
        {"unknown failure leaves without a word", 75, {}, "ab"},
    };
    for (const Caso& c : casi) {
        porta.messaggi.clear();
        porta.risposte.assign(c.risposte.begin(), c.risposte.end());
        // The pointer is on from the start; the last statement turns it off.
        porta.clessidra = true;
        std::string passi;
        int fallimenti = 0;
        EseguiConErroreDisco({[&] { passi += 'a'; },
                              [&] { passi += 'b'; if (fallimenti++ < 2) Errore(c.numero); },
                              [&] { passi += 'c'; porta.clessidra = false; }});
        EXPECT_EQ(passi, c.passi) << c.nome;
        // Whichever way it ends, the pointer is normal again.
        EXPECT_FALSE(porta.clessidra) << c.nome;
        EXPECT_EQ(porta.messaggi.size(), c.risposte.size()) << c.nome;
    }
}

struct SceltaTest : AmbienteAvviato {
    Form7& F7() { return app->Form7; }
    void Entra(const std::string& riga) { Seleziona(F7().Dir1, riga, true); }
    void Volume(const std::string& radice) { Seleziona(F7().Drive1, radice); }
};

TEST_F(SceltaTest, UnaCartellaSenzaContiFiniscePerAvereIDueFileVuoti) {
    fs::create_directories(dati / "vuota");
    fs::create_directories(dati / "A");
    std::ofstream(dati / "c.txt") << "x";
    Clic(Finestra().ApriConto);
    EXPECT_EQ(F7().Dir1.Righe(), (std::vector<std::string>{dati.string(), "..", "A", "vuota"}));
    EXPECT_EQ(F7().Drive1.Righe(), std::vector<std::string>{"/"});

    Entra("vuota");
    fs::path vuota = dati / "vuota";
    EXPECT_EQ(Stato.PercorsoDati, vuota.string() + "/");
    EXPECT_EQ(F7().NomeFile.Text(), "Percorso: " + vuota.string());
    EXPECT_EQ(F7().List1.ListCount(), 0);
    for (const char* nome : {"RecConti.dat", "Conti.dat"}) {
        ASSERT_TRUE(fs::exists(vuota / nome)) << nome;
        EXPECT_EQ(fs::file_size(vuota / nome), 0u) << nome;
    }
    EXPECT_EQ(F7().Dir1.Righe(), (std::vector<std::string>{vuota.string(), ".."}));
    Entra("..");
    EXPECT_EQ(Stato.PercorsoDati, dati.string() + "/");
    EXPECT_TRUE(Messaggi().empty());
}

TEST_F(SceltaTest, OgniVolumeRicordaLUltimaCartella) {
    fs::path altro = radice / "altro";
    fs::create_directories(altro / "sotto");
    porta.unita = {programma.string(), altro.string() + "/"};
    Clic(Finestra().ApriConto);
    EXPECT_EQ(F7().Drive1.Righe(), (std::vector<std::string>{altro.string(), programma.string()}));
    EXPECT_EQ(F7().Drive1.Text(), programma.string());

    // A volume not chosen before starts at its root, with no way up.
    Volume(altro.string());
    EXPECT_EQ(F7().Dir1.Righe(), (std::vector<std::string>{altro.string(), "sotto"}));
    EXPECT_EQ(Stato.PercorsoDati, altro.string() + "/");
    Volume(programma.string());
    EXPECT_EQ(Stato.PercorsoDati, dati.string() + "/");
    Entra("..");
    EXPECT_EQ(F7().Dir1.Righe(), (std::vector<std::string>{programma.string(), "dati"}));
}

TEST_F(SceltaTest, UnaCartellaSparitaDaIlPercorsoNonEsiste) {
    fs::create_directories(dati / "sparita");
    Clic(Finestra().ApriConto);
    fs::remove(dati / "sparita");
    Entra("sparita");
    EXPECT_EQ(Messaggi(), std::vector<std::string>{"[Errore Disco] Il percorso non esiste -> OK"});
    EXPECT_EQ(Stato.PercorsoDati, dati.string() + "/");
    EXPECT_FALSE(porta.clessidra);
}

TEST_F(SceltaTest, UnaCartellaDatiSparitaSiScopreLeggendoIConti) {
    fs::path via = radice / "via";
    fs::create_directories(via);
    Stato.PercorsoDati = via.string() + "/";
    Clic(Finestra().ApriConto);
    fs::remove_all(via);
    // Coming to the front again reads the accounts of the vanished folder.
    EXPECT_TRUE(EseguiEvento([&] {
        Finestra().S.Attiva();
        F7().S.Attiva();
    }));
    EXPECT_EQ(Messaggi(), std::vector<std::string>{"[Errore Disco] Il percorso non esiste -> OK"});
    EXPECT_FALSE(porta.clessidra);
}

TEST_F(SceltaTest, UnaCartellaSenzaPermessoNonSiApreETaceSenzaBox) {
    if (geteuid() == 0) GTEST_SKIP() << "root reads every folder";
    fs::create_directories(dati / "chiusa");
    Clic(Finestra().ApriConto);
    chmod((dati / "chiusa").c_str(), 0);
    Entra("chiusa");
    chmod((dati / "chiusa").c_str(), 0755);
    // Access denied has no text of its own: the handler leaves without a word.
    EXPECT_TRUE(Messaggi().empty());
    EXPECT_EQ(Stato.PercorsoDati, dati.string() + "/");
}
} // namespace
