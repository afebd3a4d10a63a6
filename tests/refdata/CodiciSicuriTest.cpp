// Account numbers that would name no plain file of the data directory: blanks alone, a pasted
// "/", a "../x" found in Conti.dat.
#include "tests/shell/Ambiente.h"

#include <set>

namespace {
struct CodiciSicuriTest : AmbienteAvviato {
    std::set<fs::path> Tutto() {
        std::set<fs::path> visti;
        for (const auto& voce : fs::recursive_directory_iterator(radice)) visti.insert(voce.path());
        return visti;
    }
};

TEST_F(CodiciSicuriTest, SoloSpaziEComeVuotoEIlDeposito) {
    ScriviConto("12", "Banca", 0);
    Clic(Finestra().NuovoConto);
    Form2& f = app->Form2;
    // A paste passes the key filter as typing does.
    EXPECT_TRUE(EseguiEvento([&] { f.CodConto.Incolla("1./2\\3", std::string::npos); }));
    EXPECT_EQ(f.CodConto.Text(), "123");
    EXPECT_EQ(Messaggi(), (std::vector<std::string>{"BEEP", "BEEP", "BEEP"}));

    f.CodConto.SetText("   ");
    Clic(f.AddAnItem);
    EXPECT_EQ(Messaggi(), (std::vector<std::string>{"BEEP", "[ERRORE] Nr. di conto obbligatorio -> OK"}));
    EXPECT_EQ(LeggiContatore((dati / "RecConti.dat").string()), 1);
    EXPECT_EQ(f.S.Fuoco(), &f.CodConto);
}

TEST_F(CodiciSicuriTest, UnNumeroCheEsceDallaCartellaNonApreENonCancellaNulla) {
    ScriviFile(dati / "12.MOV", {1});
    ScriviConto("../x", "Fuori", 0, 1);
    ScriviConto("   ", "Vuoto", 0, 2);
    const std::set<fs::path> prima = Tutto();

    Clic(Finestra().ApriConto);
    Seleziona(app->Form7.List1, "../x", true);
    EXPECT_FALSE(Clic(app->Form10.Saldi));
    EXPECT_EQ(Messaggi().back(), "FAILURE 52 " + DescrizioneErrore(52));

    // Deleting the account of blanks would take every file of the folder by the prefix.
    Clic(Finestra().NuovoConto);
    Form2& f = app->Form2;
    for (const char* riga : {"../x", "   "}) {
        Seleziona(f.ListaConti, riga, true);
        porta.risposte.push_back(Risposta::OK);
        EXPECT_FALSE(Clic(f.Del)) << riga;
    }
    EXPECT_EQ(Tutto(), prima);
    EXPECT_EQ(LeggiContatore((dati / "RecConti.dat").string()), 2);
}
} // namespace
