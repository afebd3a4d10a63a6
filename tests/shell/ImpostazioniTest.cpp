// Preferences, access check and colours: what the screens write, byte for byte, and what the
// next start makes of it.
#include "shell/Servizi.h"
#include "store/Colore.h"
#include "store/RecordCondizioni.h"
#include "store/Testo.h"
#include "tests/Ambiente.h"

namespace {

Byte Testo(const std::string& t, std::size_t larghezza) {
    Byte b(t.begin(), t.end());
    b.resize(larghezza, ' ');
    return b;
}

Byte operator+(Byte a, const Byte& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

struct Impostazioni : AmbienteAvviato {
    void Scrivi(Controllo& campo, const std::string& testo) {
        EseguiEvento([&] { campo.SetText(testo); });
    }
};

TEST_F(Impostazioni, Form23ScriveIlRecordEIlProssimoAvvioLoSegue) {
    ScriviConto("12", "Banca di Prova", 1000);
    ScriviValuta(7, "Lira", "Italia", 1936.27);
    Form23& f = app->Form23;
    Clic(Finestra().pref);
    Scrivi(f.PerAvv, dati.string());
    Scrivi(f.contAvv, " 12 ");
    Scrivi(f.NomeUt, "Mario ");
    Scrivi(f.PassW, "Se3");
    Digita(f.decimali, "2");
    Seleziona(f.Combo1, "Lira");
    Clic(f.accesso);
    Clic(f.Salva);
    EXPECT_FALSE(f.S.Caricato());
    EXPECT_EQ(ContenutoFile(programma / "Imposta.DAT"),
              (Testo(dati.string() + "/", 35) + Testo("12", 12) + Testo("Lira - Italia", 25) +
               Byte{2, 0} + Testo("Mario ", 30) + Testo("Se3", 10) + Byte{0xFF, 0xFF}));

    porta.cicloModale = [this](Schermo&) {
        Scrivi(app->passWord.txtUserName, "Mario");
        Scrivi(app->passWord.txtPassword, "Se3");
        Clic(app->passWord.cmdOK);
    };
    Avvia();
    EXPECT_EQ(Messaggi(), std::vector<std::string>{});
    EXPECT_FALSE(porta.terminato);
    EXPECT_EQ(Finestra().Combo1.Text(), "Lira - Italia");
    EXPECT_EQ(Finestra().Codice.Text(), dati.string() + "/12");
    EXPECT_EQ(Finestra().Saldi(2).Text(), "1.936.270,00");
    EXPECT_TRUE(app->Form9.S.Mostrato());

    // An empty path is stored as "0" and shows empty again.
    Form23& g = app->Form23;
    Clic(Finestra().pref);
    EXPECT_EQ(g.PerAvv.Text(), dati.string() + "/");
    Scrivi(g.PerAvv, "  ");
    Clic(g.Salva);
    EXPECT_EQ(Trim(LeggiDa<RecImposta>(programma / "Imposta.DAT", 1).PerAvv), "0");
    Clic(Finestra().pref);
    EXPECT_EQ(g.PerAvv.Text(), "");
}

TEST_F(Impostazioni, AccessoAlQuartoErroreIlProgrammaFinisce) {
    using Prove = std::vector<std::pair<std::string, std::string>>;
    struct Caso {
        const char *nome, *password; // stored
        Prove prove;                 // typed, one OK each
        bool ammesso;
        std::size_t messaggi;
    };
    const Caso casi[] = {
        {"", "", {{"", ""}}, true, 0},
        {"Mario", "pw", {{"Mario", "pw"}}, true, 0},
        {"Mario",
         "pw",
         {{"Mario ", "pw"}, {"mario", "pw"}, {"Mario", "PW"}, {"Mario", "pw"}},
         true,
         3},
        {"Mario", "pw", {{"x", ""}, {"y", ""}, {"z", ""}, {"w", ""}}, false, 5},
        {"Mario", "pw", {{"x", ""}, {"y", ""}, {"z", ""}, {"Mario", "p"}}, false, 5},
    };
    for (const Caso& c : casi) {
        SCOPED_TRACE(c.prove.size());
        RecImposta imposta;
        imposta.NomeUt = c.nome;
        imposta.PassW = c.password;
        imposta.accesso = -1;
        ScriviImposta(imposta);
        fs::remove(programma / "Torrelba");
        porta.terminato = false;
        porta.cicloModale = [&](Schermo& s) {
            for (const auto& [nome, password] : c.prove) {
                ASSERT_TRUE(s.Mostrato() && !porta.terminato);
                Scrivi(app->passWord.txtUserName, nome);
                Scrivi(app->passWord.txtPassword, password);
                Clic(app->passWord.cmdOK);
            }
        };
        Avvia();
        EXPECT_EQ(porta.terminato, !c.ammesso);
        EXPECT_EQ(app->passWord.Riuscito, c.ammesso);
        auto messaggi = Messaggi();
        EXPECT_EQ(messaggi.size(), c.messaggi);
        if (!c.ammesso) {
            EXPECT_EQ(messaggi.back(),
                      "[Errore] Tentativo di aprire il programma fallito!!! -> OK");
        }
        // Torrelba comes back empty and has no say.
        EXPECT_EQ(fs::file_size(programma / "Torrelba"), 0u);
    }
}

TEST_F(Impostazioni, ColoriScrittiEPresiDagliElenchiAlProssimoAvvio) {
    Clic(Finestra().color);
    porta.colori = {ValoreColore({255, 128, 0}), std::nullopt};
    Clic(app->Form5.sfondo);
    Clic(app->Form5.carattere);
    EXPECT_EQ(app->Form5.esempio.BackColor, 33023);
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
    const std::pair<const char*, const char*> casi[] = {
        {"www.banca.it", "https://www.banca.it"},
        {" http://Banca.it/conti?x=1 ", "http://Banca.it/conti?x=1"},
        {"HTTPS://www.banca.it", "https://www.banca.it"},
        {"", ""},
        {"banca", ""},
        {"www.banca .it", ""},
        {"ftp://www.banca.it", ""},
        {"https://", ""},
        {".banca.it", ""},
        {"www.banca.", ""},
        {"www..it", ""},
        {"www.banca_it.it", ""},
    };
    for (const auto& [scritto, atteso] : casi)
        EXPECT_EQ(IndirizzoWeb(scritto), atteso) << scritto;

    // No account open: the conditions of the blank stem.
    RecOpzioniCalcolo opzioni;
    opzioni.IndInter = "www.banca.it";
    ScriviIn(dati / ".Opz", opzioni, 1);
    Clic(Finestra().browse);
    opzioni.IndInter = "banca";
    ScriviIn(dati / ".Opz", opzioni, 1);
    Clic(Finestra().browse);
    EXPECT_EQ(Messaggi(), (std::vector<std::string>{
                              "BROWSER https://www.banca.it",
                              "[Attenzione] Indirizzo Internet non valido: banca -> OK"}));
}

} // namespace
