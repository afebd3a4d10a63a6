// The access check at the start, the colours and the bank's site: what the screens write and
// what the next start or the next command makes of it.
#include "shell/Servizi.h"
#include "store/Colore.h"
#include "store/RecordCondizioni.h"
#include "tests/Ambiente.h"

namespace {
using Impostazioni = AmbienteAvviato;

// Three wrong tries pass with a box each and the fourth ends the program; name and password are
// compared whole, blanks and case included. Torrelba comes back empty and has no say.
TEST_F(Impostazioni, AccessoAlQuartoErroreIlProgrammaFinisce) {
    for (const auto& [quarta, ammesso] : {std::pair{"pw", true}, {"p", false}}) {
        SCOPED_TRACE(quarta);
        RecImposta imposta;
        imposta.NomeUt = "Mario";
        imposta.PassW = "pw";
        imposta.accesso = -1;
        ScriviImposta(imposta);
        fs::remove(programma / "Torrelba");
        porta.terminato = false;
        porta.cicloModale = [&, quarta = quarta](Schermo&) {
            const std::pair<const char*, const char*> prove[] = {
                {"Mario ", "pw"}, {"mario", "pw"}, {"Mario", "PW"}, {"Mario", quarta}};
            for (const auto& [nome, password] : prove) {
                EseguiEvento([&] { app->passWord.txtUserName.SetText(nome); });
                EseguiEvento([&] { app->passWord.txtPassword.SetText(password); });
                Clic(app->passWord.cmdOK);
            }
        };
        Avvia();
        EXPECT_EQ(porta.terminato, !ammesso);
        EXPECT_EQ(app->passWord.Riuscito, ammesso);
        auto messaggi = Messaggi();
        EXPECT_EQ(messaggi.size(), ammesso ? 3u : 5u);
        EXPECT_EQ(messaggi.back() == "[Errore] Tentativo di aprire il programma fallito!!! -> OK",
                  !ammesso);
        EXPECT_EQ(fs::file_size(programma / "Torrelba"), 0u);
    }
}

TEST_F(Impostazioni, ColoriScrittiEPresiDagliElenchiAlProssimoAvvio) {
    Clic(Finestra().color);
    porta.colori = {ValoreColore({255, 128, 0}), std::nullopt};
    Clic(app->Form5.sfondo);
    Clic(app->Form5.carattere);
    Clic(app->Form5.OK);
    // 33023 = 0x80FF: exponent 15, fraction 255 / 32768.
    EXPECT_EQ(ContenutoFile(programma / "colori.col"),
              (Byte{0, 0, 0, 0, 0xE0, 0x1F, 0xE0, 0x40, 0, 0, 0, 0, 0, 0, 0, 0, 'N', ' '}));
    Avvia();
    Clic(Finestra().GestCaus);
    EXPECT_EQ(app->Form6.ElencoCausali.BackColor, 33023);
    EXPECT_EQ(app->Form6.ElencoCausali.ForeColor, 0);

    Clic(Finestra().color);
    Clic(app->Form5.predef);
    EXPECT_EQ(ContenutoFile(programma / "colori.col")[16], 'S');
    Avvia();
    Clic(Finestra().GestCaus);
    EXPECT_EQ(app->Form6.ElencoCausali.BackColor, -1);
}

TEST_F(Impostazioni, IndirizzoDelSitoDellaBanca) {
    const std::pair<const char*, const char*> buoni[] = {
        {"www.banca.it", "https://www.banca.it"},
        {"HTTPS://www.banca.it", "https://www.banca.it"},
        {" http://Banca.it/conti?x=1 ", "http://Banca.it/conti?x=1"},
    };
    for (const auto& [scritto, atteso] : buoni)
        EXPECT_EQ(IndirizzoWeb(scritto), atteso);
    for (const char* scritto : {"banca", "www.banca .it", "ftp://www.banca.it", "https://",
                                ".banca.it", "www.banca.", "www..it", "www.banca_it.it"})
        EXPECT_EQ(IndirizzoWeb(scritto), "") << scritto;

    // No account open: the conditions of the blank stem.
    RecOpzioniCalcolo opzioni;
    opzioni.IndInter = "www.banca.it";
    ScriviIn(dati / ".Opz", opzioni, 1);
    Clic(Finestra().browse);
    EXPECT_EQ(Messaggi(), std::vector<std::string>{"BROWSER https://www.banca.it"});
}
} // namespace
