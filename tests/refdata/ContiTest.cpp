// The accounts' rules below the screens: the duplicate numbers, the credit line at a rate other
// than 1, and numbers found in Conti.dat that would name no plain file of the data directory.
#include "tests/Ambiente.h"

#include "refdata/Conti.h"
#include "store/Testo.h"

#include <set>

namespace {
struct ContiTest : AmbienteAvviato {
    Form2& F2() { return app->Form2; }
    RecConto SuDisco(long numero) { return LeggiDa<RecConto>(dati / "Conti.dat", numero); }

    void NuovoConto(const std::string& numero, const std::string& fido = "") {
        F2().CodConto.SetText(numero);
        F2().NomeBanca.SetText("Banca");
        F2().Fido.SetText(fido);
        Clic(F2().AddAnItem);
    }
};

TEST_F(ContiTest, NumeriDoppiConfrontatiSenzaIBlankADestra) {
    const std::string rifiuto = "[ERRORE] Si è inserito un numero di conto già esistente, i "
                                "dati inseriti non possono essere salvati. Cambiare il nr. di "
                                "conto e riprovare. -> OK";
    // In order: each accepted number joins the table for the rows after it.
    const std::pair<std::string, bool> casi[] = {{"12", true},  {"12", false}, {"12 ", false},
                                                 {" 12", true}, {"123", true}, {"123  ", false}};
    Clic(Finestra().NuovoConto);
    short attesi = 0;
    for (const auto& [numero, accettato] : casi) {
        SCOPED_TRACE('"' + numero + '"');
        NuovoConto(numero);
        attesi += accettato;
        EXPECT_EQ(Messaggi(),
                  accettato ? std::vector<std::string>{} : std::vector<std::string>{rifiuto});
        EXPECT_EQ(Stato.NumConti, attesi);
    }
    EXPECT_EQ(LeggiContatore((dati / "RecConti.dat").string()), 3);
    EXPECT_EQ(SuDisco(2).CodConto.Testo(), " 12         ");
}

// At the lira's rate the credit line typed in lire is stored in euro, 1.936.270 / 1936,27 =
// 1000, and every screen shows it in lire again.
TEST_F(ContiTest, IlFidoSiScriveInEuroESiMostraAlCambio) {
    Stato.Cambio = 1936.27;
    Stato.FormatoImporti = "#,###,###,##0";
    Clic(Finestra().NuovoConto);
    NuovoConto("12", "1936270");
    EXPECT_NEAR(SuDisco(1).Fido, 1000, 1e-9);
    Seleziona(F2().ListaConti, "12", true);
    EXPECT_EQ(F2().Fido.Text(), "1.936.270");
    Clic(F2().esci);
    app->Form22.S.Show();
    // Balance, credit line and what is available, 15 characters each.
    EXPECT_EQ(app->Form22.Totali.Text(), std::string(16, ' ') + "Totali " + std::string(14, ' ') +
                                             "0       1.936.270       1.936.270 ");
    Seleziona(app->Form22.List1, "          12", true);
    EXPECT_EQ(app->Form10.Fido.Text(), "1.936.270");
}

// "../x" would reach out of the folder, and blanks alone would take every file by the prefix.
TEST_F(ContiTest, UnNumeroCheEsceDallaCartellaNonApreENonCancellaNulla) {
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
    Clic(Finestra().NuovoConto);
    for (const char* riga : {"../x", "   "}) {
        Seleziona(F2().ListaConti, riga, true);
        porta.risposte.push_back(Risposta::OK);
        EXPECT_FALSE(Clic(F2().Del)) << riga;
    }
    EXPECT_EQ(tutto(), prima);
}
} // namespace
