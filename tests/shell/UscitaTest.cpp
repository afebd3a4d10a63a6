// The way out of the program: a question, and the end only on OK.
#include "tests/Ambiente.h"

namespace {
using UscitaTest = Ambiente;

TEST_F(UscitaTest, DomandaPrimaDiUscire) {
    struct Caso {
        const char* nome;
        const char* comando;
        std::vector<Risposta> risposte; // none: the default button
        bool terminato;
        const char* risposta;
    } casi[] = {
        {"menu, OK: il programma finisce", "esci", {Risposta::OK}, true, "OK"},
        {"menu, Annulla: tutto resta", "esci", {Risposta::Annulla}, false, "Annulla"},
        {"menu, senza risposta: Annulla predefinito", "esci", {}, false, "Annulla"},
        {"pulsante, OK: il programma finisce", "SSCommand2", {Risposta::OK}, true, "OK"},
        {"pulsante, senza risposta: Annulla predefinito", "SSCommand2", {}, false, "Annulla"},
    };
    for (const Caso& c : casi) {
        Avvia();
        app->Form1.S.UnloadMe();
        Messaggi();
        porta.terminato = false;
        porta.risposte.assign(c.risposte.begin(), c.risposte.end());
        Controllo* comando = Finestra().S.Trova(c.comando);
        ASSERT_NE(comando, nullptr) << c.nome;
        std::string codice = Finestra().Codice.Text();
        EseguiEvento([&] { comando->Clicca(); });
        EXPECT_EQ(Messaggi(),
                  (std::vector<std::string>{
                      std::string("[AVVERTIMENTO!] Sei Sicuro di Voler Uscire? -> ") + c.risposta}))
            << c.nome;
        EXPECT_EQ(porta.terminato, c.terminato) << c.nome;
        EXPECT_EQ(Finestra().S.Stato(), StatoSchermo::Visibile) << c.nome;
        EXPECT_EQ(Finestra().Codice.Text(), codice) << c.nome;
    }
}
} // namespace
