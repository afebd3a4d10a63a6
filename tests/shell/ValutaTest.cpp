// The currency in use: the default chosen at the start by name, and an open account drawn at
// the rate of the start and of each choice of the user.
#include "tests/Ambiente.h"

#include <tuple>

namespace {
struct ValutaTest : Ambiente {
    // An installation that has started once, with some of the rates entered, started again.
    void Installa(const std::string& predefinita, const std::string& contoAvvio = "") {
        Avvia();
        ScriviValuta(2, "Franco", "Belgio", 40.3399);
        ScriviValuta(5, "Franco", "Francia", 6.55957);
        ScriviValuta(7, "Lira", "Italia", 1936.27);
        RecImposta imposta;
        imposta.decimali = 2;
        imposta.contAvv = contoAvvio;
        imposta.Combo1 = predefinita;
        ScriviImposta(imposta);
        Avvia();
    }
    void Scegli(const std::string& testo) {
        const auto& righe = Finestra().Combo1.Righe();
        int riga = static_cast<int>(std::find(righe.begin(), righe.end(), testo) - righe.begin());
        EseguiEvento([&] { Finestra().Combo1.SetListIndex(riga); });
    }
};

TEST_F(ValutaTest, ValutaPredefinitaAllAvvioCercataPerNome) {
    const std::tuple<const char*, const char*, double> casi[] = {
        // No default: line 0, whose text belongs to no record, so the rate stays as it was.
        {"", " - ", 1},
        {"Lira - Italia", "Lira - Italia", 1936.27},
        // The line is France's, the rate the first "Franco": Belgium's.
        {"Franco - Francia", "Franco - Francia", 40.3399},
        {"  Euro - Unione Europea  ", "Euro - Unione Europea", 1},
        // No line of a record never written: no choice, and no name to give a rate.
        {"Yen - Giappone", "", 1},
    };
    for (const auto& [predefinita, riga, cambio] : casi) {
        SCOPED_TRACE(predefinita);
        Installa(predefinita);
        EXPECT_EQ(Finestra().Combo1.Text(), riga);
        EXPECT_EQ(Stato.Cambio, cambio);
        EXPECT_TRUE(Messaggi().empty());
        fs::remove_all(programma);
    }
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
    EXPECT_TRUE(elenco.List(0).ends_with("   2.390.441,49 *")) << elenco.List(0);

    // France's rate, which a line never written then keeps: 1000 * 6,55957 = 6.559,57.
    Scegli("Franco - Francia");
    Scegli(" - ");
    EXPECT_EQ(f.Saldi(2).Text(), "6.559,57");
    Scegli("Euro - Unione Europea");
    for (int i : {0, 1, 3, 4})
        EXPECT_EQ(f.Saldi(i).Text(), "1.234,56") << i;
    EXPECT_EQ(f.Saldi(2).Text(), "1.000,00");
    // The availability through whole numbers: 1000 + 1234,56 = 2234,56, rounded to 2235.
    EXPECT_EQ(f.Saldi(5).Text(), "2.235,00");
    EXPECT_TRUE(elenco.List(0).ends_with("   1.234,56 *")) << elenco.List(0);
    EXPECT_TRUE(Messaggi().empty());

    // Lira is line 14 of the combo, after eleven lines never written, Euro and two Franchi.
    fs::remove(programma / "15.ICO");
    Scegli("Lira - Italia");
    EXPECT_EQ(Messaggi(), (std::vector<std::string>{"FAILURE 53 " + DescrizioneErrore(53)}));
    EXPECT_EQ(f.Saldi(2).Text(), "1.000,00");
}
} // namespace
