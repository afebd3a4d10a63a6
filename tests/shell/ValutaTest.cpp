// The currency in use: the lines of the combo, the choice at the start by name, a choice by the
// user with its flag, its rate and the redraw of an open account.
#include "tests/Ambiente.h"

#include "store/RecordRegistro.h"

namespace {
struct ValutaTest : Ambiente {
    // An installation that has started once, with some of the rates entered, started again.
    void Installa(const std::string& predefinita = "", const std::string& contoAvvio = "") {
        Avvia();
        ScriviValuta(2, "Franco", "Belgio", 40.3399);
        ScriviValuta(3, "Marco", "Finlandia", 5.94573);
        ScriviValuta(5, "Franco", "Francia", 6.55957);
        ScriviValuta(6, "Marco", "Germania", 1.95583);
        ScriviValuta(7, "Lira", "Italia", 1936.27);
        RecImposta imposta;
        imposta.decimali = 2;
        imposta.contAvv = contoAvvio;
        imposta.Combo1 = predefinita;
        ScriviImposta(imposta);
        Avvia();
    }
    Controllo& Combo() { return Finestra().Combo1; }
    int Riga(const std::string& testo) {
        auto i = std::find(Combo().Righe().begin(), Combo().Righe().end(), testo);
        return static_cast<int>(i - Combo().Righe().begin());
    }
    void Scegli(int riga) {
        EseguiEvento([&] { Combo().SetListIndex(riga); });
    }
};

TEST_F(ValutaTest, RigheInOrdineDiTesto) {
    Installa();
    std::vector<std::string> scritte(Combo().Righe().begin() + 9, Combo().Righe().end());
    EXPECT_EQ(scritte, (std::vector<std::string>{"Euro - Unione Europea", "Franco - Belgio",
                                                 "Franco - Francia", "Lira - Italia",
                                                 "Marco - Finlandia", "Marco - Germania"}));
}

TEST_F(ValutaTest, ValutaPredefinitaAllAvvioCercataPerNome) {
    struct Caso {
        const char* predefinita;
        const char* riga; // the line chosen, "" for none
        double cambio;
    } casi[] = {
        // No default: line 0, whose text belongs to no record, so the rate stays as it was.
        {"", " - ", 1},
        {"Lira - Italia", "Lira - Italia", 1936.27},
        // The line is France's, the rate the first "Franco": Belgium's.
        {"Franco - Francia", "Franco - Francia", 40.3399},
        {"Marco - Germania", "Marco - Germania", 5.94573},
        {"  Euro - Unione Europea  ", "Euro - Unione Europea", 1},
        // No line of a record never written: no choice, and no name to give a rate.
        {"Yen - Giappone", "", 1},
    };
    for (const Caso& c : casi) {
        Installa(c.predefinita);
        EXPECT_EQ(Combo().Text(), c.riga) << c.predefinita;
        EXPECT_EQ(Stato.Cambio, c.cambio) << c.predefinita;
        EXPECT_TRUE(Messaggi().empty()) << c.predefinita;
        fs::remove_all(programma);
    }
}

TEST_F(ValutaTest, SceltaDellUtenteCambioEBandiera) {
    Installa();
    Scegli(Riga("Franco - Francia"));
    EXPECT_EQ(Stato.Cambio, 6.55957);
    EXPECT_EQ(Finestra().Image1.Text(),
              programma.string() + "/" + std::to_string(Riga("Franco - Francia") + 1) + ".ICO");
    // A line never written matches no record: the rate stays, only the flag changes.
    Scegli(3);
    EXPECT_EQ(Stato.Cambio, 6.55957);
    EXPECT_EQ(Finestra().Image1.Text(), programma.string() + "/4.ICO");
    EXPECT_TRUE(Messaggi().empty());

    int lira = Riga("Lira - Italia");
    fs::remove(programma / (std::to_string(lira + 1) + ".ICO"));
    Scegli(lira);
    EXPECT_EQ(Messaggi(), (std::vector<std::string>{"FAILURE 53 " + DescrizioneErrore(53)}));
    EXPECT_EQ(Stato.Cambio, 6.55957);
}

TEST_F(ValutaTest, DaEuroALiraConContoApertoRidisegnaIlPannello) {
    fs::create_directories(dati);
    ScriviConto("12", "Banca di Prova", 1000);
    RecMovimento m;
    m.NrOper = 1;
    m.DataOper = m.DataValuta = "15/03/2001";
    m.IMPORTO = 1234.56;
    m.Sospeso = m.Annullato = "N";
    m.D_A = "E";
    ScriviIn(dati / "12.MOV", m, 1);
    ScriviContatore((dati / "12.MOR").string(), 1);
    Installa("Euro - Unione Europea", "12");
    MDIForm1& f = Finestra();
    ASSERT_EQ(Stato.ContoAperto, 1);
    EXPECT_EQ(f.Saldi(5).Text(), "2.234,56");

    Scegli(Riga("Lira - Italia"));
    EXPECT_TRUE(Messaggi().empty());
    // 1234,56 * 1936,27 = 2.390.441,4912; 1000 * 1936,27 = 1.936.270.
    for (int i : {0, 1, 3, 4}) EXPECT_EQ(f.Saldi(i).Text(), "2.390.441,49") << i;
    EXPECT_EQ(f.Saldi(2).Text(), "1.936.270,00");
    // The availability in whole numbers: 1.936.270 + 2.390.441,4912 rounded.
    EXPECT_EQ(f.Saldi(5).Text(), "4.326.711,00");
    ASSERT_EQ(app->Form9.ElencoMovim.ListCount(), 1);
    EXPECT_TRUE(app->Form9.ElencoMovim.List(0).ends_with("   2.390.441,49 *"))
        << app->Form9.ElencoMovim.List(0);
}
} // namespace
