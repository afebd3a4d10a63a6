// ErroreDisco's boxes and results, the failure path of the handlers that use it, and the
// choosers' volumes and vanished folders, which no script can stage.
#include "tests/Ambiente.h"

#include "refdata/ErroreDisco.h"

namespace {
using ErroreDiscoTest = Ambiente;

// Each number with a box, and its buttons: with no answer the default button, the one that gives
// up (2). A number the handler has no text for gives 3 with no box.
TEST_F(ErroreDiscoTest, BoxERisultatoPerNumero) {
    const Pulsanti ok = Pulsanti::OK, ra = Pulsanti::RiprovaAnnulla,
                   iri = Pulsanti::InterrompiRiprovaIgnora;
    const std::pair<int, Pulsanti> casi[] = {{52, ok}, {64, ok}, {53, ok},  {54, iri},
                                             {55, ok}, {57, ra}, {61, iri}, {62, ok},
                                             {68, ra}, {71, ra}, {76, ok}};
    for (const auto& [numero, pulsanti] : casi) {
        SCOPED_TRACE(numero);
        porta.messaggi.clear();
        porta.box.clear();
        EXPECT_EQ(ErroreDisco(numero), 2);
        ASSERT_EQ(porta.box.size(), 1u);
        EXPECT_EQ(porta.box[0].titolo, "Errore Disco");
        EXPECT_EQ(porta.box[0].icona, Icona::Esclamazione);
        EXPECT_EQ(porta.box[0].pulsanti, pulsanti);
    }
    porta.box.clear();
    for (int numero : {0, 9, 58, 75})
        EXPECT_EQ(ErroreDisco(numero), 3) << numero;
    EXPECT_TRUE(porta.box.empty());
    for (const auto& [risposta, risultato] :
         {std::pair{Risposta::Riprova, 0}, {Risposta::Ignora, 1}, {Risposta::Interrompi, 2}}) {
        porta.risposte = {risposta};
        EXPECT_EQ(ErroreDisco(61), risultato);
    }
}

TEST_F(ErroreDiscoTest, LaViaDiFallimentoDeiGestori) {
    const struct {
        const char* nome;
        int numero;
        std::vector<Risposta> risposte;
        std::string passi; // the statements that ran, the failing one as often as it ran
    } casi[] = {
        {"Retry runs the statement again", 57, {Risposta::Riprova, Risposta::Riprova}, "abbbc"},
        {"Ignore goes on with the next", 61, {Risposta::Ignora}, "abc"},
        {"Cancel leaves", 57, {Risposta::Annulla}, "ab"},
        {"unknown failure leaves without a word", 75, {}, "ab"},
    };
    for (const auto& c : casi) {
        SCOPED_TRACE(c.nome);
        porta.messaggi.clear();
        porta.risposte.assign(c.risposte.begin(), c.risposte.end());
        // The pointer is on from the start; only the last statement turns it off.
        porta.clessidra = true;
        std::string passi;
        int fallimenti = 0;
        EseguiConErroreDisco({[&] { passi += 'a'; },
                              [&] {
                                  passi += 'b';
                                  if (fallimenti++ < 2) Errore(c.numero);
                              },
                              [&] {
                                  passi += 'c';
                                  porta.clessidra = false;
                              }});
        EXPECT_EQ(passi, c.passi);
        EXPECT_FALSE(porta.clessidra);
        EXPECT_EQ(porta.messaggi.size(), c.risposte.size());
    }
}

struct SceltaTest : AmbienteAvviato {
    Form7& F7() { return app->Form7; }
};

// A volume not chosen before starts at its root, with no way up; one chosen again goes back to
// its last folder.
TEST_F(SceltaTest, OgniVolumeRicordaLUltimaCartella) {
    fs::path altro = radice / "altro";
    fs::create_directories(altro / "sotto");
    porta.unita = {programma.string(), altro.string() + "/"};
    Clic(Finestra().ApriConto);
    EXPECT_EQ(F7().Drive1.Righe(), (std::vector<std::string>{altro.string(), programma.string()}));
    EXPECT_EQ(F7().Drive1.Text(), programma.string());
    Seleziona(F7().Drive1, altro.string());
    EXPECT_EQ(F7().Dir1.Righe(), (std::vector<std::string>{altro.string(), "sotto"}));
    EXPECT_EQ(Stato.PercorsoDati, altro.string() + "/");
    Seleziona(F7().Drive1, programma.string());
    EXPECT_EQ(Stato.PercorsoDati, dati.string() + "/");
}

// The data directory and a folder below it vanish while Form7 is up: entering the folder and
// the screen's coming to the front again both tell the path not found, and the pointer is
// normal after each.
TEST_F(SceltaTest, UnaCartellaSparitaDaIlPercorsoNonEsiste) {
    fs::path via = radice / "via";
    fs::create_directories(via / "sparita");
    Stato.PercorsoDati = via.string() + "/";
    Clic(Finestra().ApriConto);
    fs::remove_all(via);
    const std::vector<std::string> avviso = {"[Errore Disco] Il percorso non esiste -> OK"};
    Seleziona(F7().Dir1, "sparita", true);
    EXPECT_EQ(Messaggi(), avviso);
    EXPECT_EQ(Stato.PercorsoDati, via.string() + "/");
    EXPECT_FALSE(porta.clessidra);
    EXPECT_TRUE(EseguiEvento([&] {
        Finestra().S.Attiva();
        F7().S.Attiva();
    }));
    EXPECT_EQ(Messaggi(), avviso);
    EXPECT_FALSE(porta.clessidra);
}
} // namespace
