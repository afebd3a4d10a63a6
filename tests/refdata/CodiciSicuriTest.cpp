// A number found in Conti.dat that would name no plain file of the data directory ("../x",
// blanks alone) opens nothing and deletes nothing.
#include "tests/Ambiente.h"

#include <set>

namespace {
using CodiciSicuriTest = AmbienteAvviato;

TEST_F(CodiciSicuriTest, UnNumeroCheEsceDallaCartellaNonApreENonCancellaNulla) {
    ScriviFile(dati / "12.MOV", {1});
    ScriviConto("../x", "Fuori", 0, 1);
    ScriviConto("   ", "Vuoto", 0, 2);
    auto tutto = [&] {
        std::set<fs::path> visti;
        for (const auto& voce : fs::recursive_directory_iterator(radice))
            visti.insert(voce.path());
        return visti;
    };
    const std::set<fs::path> prima = tutto();

    Clic(Finestra().ApriConto);
    Seleziona(app->Form7.List1, "../x", true);
    EXPECT_FALSE(Clic(app->Form10.Saldi));
    EXPECT_EQ(Messaggi().back(), "FAILURE 52 " + DescrizioneErrore(52));
    // Deleting the account of blanks would take every file of the folder by the prefix.
    Clic(Finestra().NuovoConto);
    for (const char* riga : {"../x", "   "}) {
        Seleziona(app->Form2.ListaConti, riga, true);
        porta.risposte.push_back(Risposta::OK);
        EXPECT_FALSE(Clic(app->Form2.Del)) << riga;
    }
    EXPECT_EQ(tutto(), prima);
}
} // namespace
