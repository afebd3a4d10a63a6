// ErroreDisco's boxes and results, the failure path of the choosers' handlers, real failures of
// the file system on Form7, and the choosers' walk through volumes and folders.
#include "tests/shell/Ambiente.h"

#include "refdata/Conti.h"
#include "refdata/ErroreDisco.h"

#include <sys/stat.h>
#include <unistd.h>

namespace {
// The headless port that also keeps what each box looked like.
struct PortaCheGuarda : PiattaformaSenzaSchermo {
    struct Box {
        std::string titolo;
        Icona icona;
        Pulsanti pulsanti;
        int predefinito;
    };
    std::vector<Box> box;

    Risposta MsgBox(const std::string& testo, const std::string& titolo, Icona icona,
                    Pulsanti pulsanti, int predefinito) override {
        box.push_back({titolo, icona, pulsanti, predefinito});
        return PiattaformaSenzaSchermo::MsgBox(testo, titolo, icona, pulsanti, predefinito);
    }
};

struct ErroreDiscoTest : ::testing::Test {
    PortaCheGuarda porta;
    void SetUp() override { ImpostaPiattaforma(&porta); }
};

TEST_F(ErroreDiscoTest, TestiEPulsantiPerNumero) {
    struct Caso {
        int numero;
        std::string testo;
        Pulsanti pulsanti;
    };
    const Caso casi[] = {
        {52, "Nome o numero di file non valido", Pulsanti::OK},
        {64, "Nome o numero di file non valido", Pulsanti::OK},
        {53, "Il file non esiste.", Pulsanti::OK},
        {54, "Modalità di file non valida.", Pulsanti::InterrompiRiprovaIgnora},
        {55, "File già aperto.", Pulsanti::OK},
        {57, "Errore di I/O di periferica", Pulsanti::RiprovaAnnulla},
        {61, "Disco pieno. Continuare?", Pulsanti::InterrompiRiprovaIgnora},
        {62,
         "Input oltre la fine del file; è stata raggiunta la fine del file e non si può "
         "continuare con la lettura.",
         Pulsanti::OK},
        {68, "Periferica non disponibile.", Pulsanti::RiprovaAnnulla},
        {71, "Disco non pronto. Inserire un dischetto", Pulsanti::RiprovaAnnulla},
        {76, "Il percorso non esiste", Pulsanti::OK},
    };
    for (const Caso& c : casi) {
        porta.messaggi.clear();
        porta.box.clear();
        porta.risposte = {Risposta::OK};
        ErroreDisco(c.numero);
        ASSERT_EQ(porta.box.size(), 1u) << c.numero;
        EXPECT_EQ(porta.messaggi[0].rfind("[Errore Disco] " + c.testo + " -> ", 0), 0u)
            << c.numero;
        EXPECT_EQ(porta.box[0].icona, Icona::Esclamazione) << c.numero;
        EXPECT_EQ(porta.box[0].pulsanti, c.pulsanti) << c.numero;
    }
}

TEST_F(ErroreDiscoTest, RisultatoPerRisposta) {
    struct Caso {
        int numero;
        Risposta risposta;
        int risultato;
    };
    const Caso casi[] = {
        {57, Risposta::Riprova, 0},    {57, Risposta::Annulla, 2},
        {61, Risposta::Ignora, 1},     {61, Risposta::Interrompi, 2},
        {54, Risposta::Riprova, 0},    {76, Risposta::OK, 2},
        {52, Risposta::OK, 2},
    };
    for (const Caso& c : casi) {
        porta.risposte = {c.risposta};
        EXPECT_EQ(ErroreDisco(c.numero), c.risultato)
            << c.numero << " " << NomeRisposta(c.risposta);
    }
}

TEST_F(ErroreDiscoTest, UnNumeroSenzaTestoDa3SenzaBox) {
    for (int numero : {0, 9, 58, 70, 75}) {
        EXPECT_EQ(ErroreDisco(numero), 3) << numero;
    }
    EXPECT_TRUE(porta.messaggi.empty());
}

TEST_F(ErroreDiscoTest, UnaFallaCheDuraNonGiraAllInfinitoSullaRispostaPredefinita) {
    // Enter takes the default button: the one that gives up.
    for (int numero : {54, 57, 61, 68, 71}) EXPECT_EQ(ErroreDisco(numero), 2) << numero;
}

TEST_F(ErroreDiscoTest, LaViaDiFallimentoDeiGestori) {
    struct Caso {
        const char* nome;
        int numero;
        std::vector<Risposta> risposte;
        std::string passi;    // the statements that ran, the failing one as often as it ran
        bool clessidra;       // still on at the end
    };
    const Caso casi[] = {
        {"Retry runs the statement again", 57, {Risposta::Riprova, Risposta::Riprova}, "abbbc",
         false},
        {"Ignore goes on with the next", 61, {Risposta::Ignora}, "abc", false},
        {"Cancel leaves, pointer normal", 57, {Risposta::Annulla}, "ab", false},
        {"OK leaves, pointer normal", 76, {Risposta::OK}, "ab", false},
        {"unknown failure leaves without a word", 75, {}, "ab", false},
    };
    for (const Caso& c : casi) {
        porta.messaggi.clear();
        porta.risposte.assign(c.risposte.begin(), c.risposte.end());
        std::string passi;
        int fallimenti = 0;
        EseguiConErroreDisco({
            [&] {
                passi += 'a';
                Piattaforma().Clessidra(true);
            },
            [&] {
                passi += 'b';
                if (fallimenti++ < 2) Errore(c.numero);
            },
            [&] {
                passi += 'c';
                Piattaforma().Clessidra(false);
            },
        });
        EXPECT_EQ(passi, c.passi) << c.nome;
        EXPECT_EQ(porta.clessidra, c.clessidra) << c.nome;
        EXPECT_EQ(porta.messaggi.size(), c.risposte.size()) << c.nome;
    }
}

struct SceltaTest : Ambiente {
    void SetUp() override {
        Ambiente::SetUp();
        Avvia();
        Messaggi();
    }
    Form7& F7() { return app->Form7; }

    void Entra(const std::string& riga) {
        Controllo& dir = F7().Dir1;
        for (int i = 0; i < dir.ListCount(); ++i)
            if (dir.List(i) == riga) {
                EXPECT_TRUE(EseguiEvento([&] {
                    dir.SetListIndex(i);
                    dir.DoppioClic();
                }));
                return;
            }
        ADD_FAILURE() << "Dir1 has no line " << riga;
    }
    void ApriForm7() { EXPECT_TRUE(EseguiEvento([&] { Finestra().ApriConto.Clicca(); })); }
    void Volume(const std::string& radice) {
        auto& righe = F7().Drive1.Righe();
        auto i = std::find(righe.begin(), righe.end(), radice) - righe.begin();
        EXPECT_TRUE(EseguiEvento([&] { F7().Drive1.SetListIndex(static_cast<int>(i)); }));
    }
};

TEST_F(SceltaTest, Dir1MostraLaCartellaLaRisalitaELeSottocartellePerNome) {
    fs::create_directories(dati / "b");
    fs::create_directories(dati / "A");
    std::ofstream(dati / "c.txt") << "x";
    ApriForm7();
    EXPECT_EQ(F7().Dir1.Righe(), (std::vector<std::string>{dati.string(), "..", "A", "b"}));
    EXPECT_EQ(F7().NomeFile.Text(), "Percorso: " + dati.string());
    EXPECT_EQ(F7().Drive1.Righe(), std::vector<std::string>{"/"});
    EXPECT_EQ(F7().Drive1.Text(), "/");
}

TEST_F(SceltaTest, UnaCartellaSenzaContiFiniscePerAvereIDueFileVuoti) {
    fs::create_directories(dati / "vuota");
    ApriForm7();
    Entra("vuota");
    fs::path vuota = dati / "vuota";
    EXPECT_EQ(Stato.PercorsoDati, vuota.string() + "/");
    EXPECT_EQ(F7().NomeFile.Text(), "Percorso: " + vuota.string());
    EXPECT_EQ(Finestra().Codice.Text(), dati.string() + "/");
    EXPECT_EQ(F7().List1.ListCount(), 0);
    EXPECT_EQ(Stato.NumConti, 0);
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
    ApriForm7();
    EXPECT_EQ(F7().Drive1.Righe(), (std::vector<std::string>{altro.string(), programma.string()}));
    EXPECT_EQ(F7().Drive1.Text(), programma.string());
    EXPECT_EQ(F7().Dir1.Righe(), (std::vector<std::string>{dati.string(), ".."}));

    // A volume not chosen before starts at its root, with no way up.
    Volume(altro.string());
    EXPECT_EQ(F7().Dir1.Righe(), (std::vector<std::string>{altro.string(), "sotto"}));
    EXPECT_EQ(Stato.PercorsoDati, altro.string() + "/");
    EXPECT_TRUE(fs::exists(altro / "RecConti.dat"));

    Volume(programma.string());
    EXPECT_EQ(Stato.PercorsoDati, dati.string() + "/");
    EXPECT_EQ(F7().NomeFile.Text(), "Percorso: " + dati.string());
    Entra("..");
    EXPECT_EQ(F7().Dir1.Righe(), (std::vector<std::string>{programma.string(), "dati"}));
}

TEST_F(SceltaTest, UnPercorsoRelativoRisalePerPuntiPunto) {
    Stato.PercorsoDati = "prog/dati/";
    ApriForm7();
    EXPECT_EQ(F7().Dir1.List(0), "prog/dati");
    for (const char* su : {"prog", "."}) {
        Entra("..");
        EXPECT_EQ(F7().Dir1.List(0), su);
        EXPECT_EQ(Stato.PercorsoDati, std::string(su) + "/");
    }
    // The current directory itself can still go up.
    EXPECT_EQ(F7().Dir1.List(1), "..");
}

TEST_F(SceltaTest, UnaCartellaSparitaDaIlPercorsoNonEsiste) {
    fs::create_directories(dati / "sparita");
    ApriForm7();
    fs::remove(dati / "sparita");
    Entra("sparita");
    EXPECT_EQ(Messaggi(), std::vector<std::string>{"[Errore Disco] Il percorso non esiste -> OK"});
    EXPECT_EQ(F7().Dir1.List(0), dati.string());
    EXPECT_EQ(Stato.PercorsoDati, dati.string() + "/");
    EXPECT_FALSE(porta.clessidra);
}

TEST_F(SceltaTest, UnaCartellaDatiSparitaSiScopreLeggendoIConti) {
    fs::path via = radice / "via";
    fs::create_directories(via);
    Stato.PercorsoDati = via.string() + "/";
    ApriForm7();
    ASSERT_TRUE(Messaggi().empty());
    fs::remove_all(via);
    // Coming to the front again reads the accounts of the vanished folder.
    EXPECT_TRUE(EseguiEvento([&] {
        Finestra().S.Attiva();
        F7().S.Attiva();
    }));
    EXPECT_EQ(Messaggi(), std::vector<std::string>{"[Errore Disco] Il percorso non esiste -> OK"});
    EXPECT_EQ(F7().List1.ListCount(), 0);
    EXPECT_FALSE(porta.clessidra);
}

TEST_F(SceltaTest, UnaCartellaSenzaPermessoNonSiApreETaceSenzaBox) {
    if (geteuid() == 0) GTEST_SKIP() << "root reads every folder";
    fs::create_directories(dati / "chiusa");
    ApriForm7();
    chmod((dati / "chiusa").c_str(), 0);
    Entra("chiusa");
    chmod((dati / "chiusa").c_str(), 0755);
    // Access denied has no text of its own: the handler leaves without a word.
    EXPECT_TRUE(Messaggi().empty());
    EXPECT_EQ(F7().Dir1.List(0), dati.string());
    EXPECT_EQ(Stato.PercorsoDati, dati.string() + "/");
}
} // namespace
