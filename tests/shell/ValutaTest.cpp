// The currency in use: the lines of the combo, the choice at the start by name, a choice by the
// user with its rate, and the redraw of an open account at its rate.
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
    void Scegli(const std::string& testo) {
        const auto& righe = Combo().Righe();
        int riga = static_cast<int>(std::find(righe.begin(), righe.end(), testo) - righe.begin());
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
    const struct {
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
    for (const auto& c : casi) {
        Installa(c.predefinita);
        EXPECT_EQ(Combo().Text(), c.riga) << c.predefinita;
        EXPECT_EQ(Stato.Cambio, c.cambio) << c.predefinita;
        EXPECT_TRUE(Messaggi().empty()) << c.predefinita;
        fs::remove_all(programma);
    }
}

TEST_F(ValutaTest, SceltaDellUtenteESuaBandiera) {
    Installa();
    Scegli("Franco - Francia");
    EXPECT_EQ(Stato.Cambio, 6.55957);
    // A line never written matches no record: the rate stays.
    Scegli(" - ");
    EXPECT_EQ(Stato.Cambio, 6.55957);
    EXPECT_TRUE(Messaggi().empty());
    // Lira is line 12 of the combo: its flag is 13.ICO.
    fs::remove(programma / "13.ICO");
    Scegli("Lira - Italia");
    EXPECT_EQ(Messaggi(), (std::vector<std::string>{"FAILURE 53 " + DescrizioneErrore(53)}));
    EXPECT_EQ(Stato.Cambio, 6.55957);
}

TEST_F(ValutaTest, IlContoApertoAlCambioDellAvvioEDiOgniScelta) {
    fs::create_directories(dati);
    ScriviConto("12", "Banca di Prova", 1000);
    ScriviIn(dati / "12.MOV", Mov(1, "15/03/2001", "15/03/2001", 1234.56, "E", "N"), 1);
    ScriviContatore((dati / "12.MOR").string(), 1);
    Installa("Lira - Italia", "12");
    MDIForm1& f = Finestra();
    const Controllo& elenco = app->Form9.ElencoMovim;
    // 1000 * 1936,27 = 1.936.270; 1234,56 * 1936,27 = 2.390.441,4912.
    EXPECT_EQ(f.Saldi(2).Text(), "1.936.270,00");
    ASSERT_EQ(elenco.ListCount(), 1);
    EXPECT_TRUE(elenco.List(0).ends_with("   2.390.441,49 *")) << elenco.List(0);

    Scegli("Euro - Unione Europea");
    EXPECT_TRUE(Messaggi().empty());
    for (int i : {0, 1, 3, 4})
        EXPECT_EQ(f.Saldi(i).Text(), "1.234,56") << i;
    EXPECT_EQ(f.Saldi(2).Text(), "1.000,00");
    // The availability through whole numbers: 1000 + 1234,56 = 2234,56, rounded to 2235.
    EXPECT_EQ(f.Saldi(5).Text(), "2.235,00");
    EXPECT_TRUE(elenco.List(0).ends_with("   1.234,56 *")) << elenco.List(0);
}
} // namespace
