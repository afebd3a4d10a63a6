// The currencies: Form25's fixed records and its lock, the converter, and the division by the
// rate in use.
#include "tests/Ambiente.h"

#include "refdata/Valute.h"
#include "store/Formato.h"
#include "store/Testo.h"

#include <algorithm>

namespace {
struct ValuteTest : AmbienteAvviato {
    Form25& F25() { return app->Form25; }
    RecValuta SuDisco(long n) { return LeggiDa<RecValuta>(programma / "Valute.DAT", n); }

    // Form25 shown with its fields unlocked.
    void Sblocca() {
        F25().S.Show();
        F25().Check1.Clicca();
    }
    void ConfermaSulForm25(Controllo& comando, const std::string& cambio, int box) {
        F25().Box(box).SetText(cambio);
        EXPECT_TRUE(Clic(comando));
    }
};

// Each command, its record, what it stores, and the rate typed for it with the Italian
// separators, and the rate that text gives.
struct Riga25 {
    Controllo Form25::*comando;
    long record;
    const char* nome;
    const char* paese;
    const char* digitato;
    double cambio;
};
const Riga25 Righe25[] = {
    {&Form25::SSCommand9, 1, "Scellino", "Austria", "13,7603", 13.7603},
    {&Form25::SSCommand4, 2, "Franco", "Belgio", "40,3399", 40.3399},
    {&Form25::SSCommand7, 3, "Marco", "Finlandia", "5,94573", 5.94573},
    {&Form25::SSCommand5, 4, "Sterlina", "Irlanda", "0,787564", 0.787564},
    {&Form25::SSCommand3, 5, "Franco", "Francia", "6,55957", 6.55957},
    {&Form25::SSCommand2, 6, "Marco", "Germania", "1,95583", 1.95583},
    {&Form25::SSCommand1, 7, "Lira", "Italia", "1.936,27", 1936.27},
    {&Form25::SSCommand8, 8, "Peseta", "Spagna", "166,386", 166.386},
    {&Form25::SSCommand12, 9, "Franco", "Lussemburgo", "40,3398", 40.3398},
    {&Form25::SSCommand6, 10, "Escudo", "Portogallo", "200,482", 200.482},
    {&Form25::SSCommand10, 11, "Fiorino", "Olanada", "2,20371", 2.20371},
    {&Form25::SSCommand11, 12, "Dollaro", "USA", "0,9", 0.9},
    {&Form25::SSCommand14, 13, "Yen", "Giappone", "130", 130},
    {&Form25::SSCommand15, 14, "Sterlina", "Gran Bretagna", "0,62", 0.62},
};

TEST_F(ValuteTest, OgniValutaRestaAlSuoRecordInQualunqueOrdineSiConfermino) {
    const std::vector<std::vector<int>> ordini = {
        {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13},
        {13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0},
        {6, 13, 0, 9, 4, 11, 2, 8, 12, 1, 5, 10, 3, 7},
    };
    for (const auto& ordine : ordini) {
        SCOPED_TRACE(::testing::PrintToString(ordine));
        fs::remove_all(programma);
        Avvia();
        Sblocca();
        for (int k : ordine) {
            const Riga25& r = Righe25[k];
            ConfermaSulForm25(F25().*r.comando, r.digitato, static_cast<int>(r.record - 1));
        }
        EXPECT_TRUE(Messaggi().empty());
        EXPECT_EQ(fs::file_size(programma / "Valute.DAT"), 15u * 60);
        for (const Riga25& r : Righe25) {
            RecValuta v = SuDisco(r.record);
            EXPECT_EQ(v.Numero, r.record);
            EXPECT_EQ(RTrim(v.Nome), r.nome);
            EXPECT_EQ(RTrim(v.Paese), r.paese);
            EXPECT_EQ(v.Cambio, r.cambio) << r.nome << " " << r.paese;
        }
        RecValuta euro = SuDisco(15);
        EXPECT_EQ(RTrim(euro.Nome) + " - " + RTrim(euro.Paese), "Euro - Unione Europea");
        EXPECT_EQ(euro.Cambio, 1);
    }
}

TEST_F(ValuteTest, UnTassoNonNumericoEUnGuastoENonScriveNulla) {
    const Byte prima = ContenutoFile(programma / "Valute.DAT");
    Sblocca();
    F25().Box(6).SetText("");
    EXPECT_FALSE(Clic(F25().SSCommand1));
    EXPECT_EQ(Messaggi(), std::vector<std::string>{"FAILURE 13 Tipo non corrispondente"});
    EXPECT_EQ(ContenutoFile(programma / "Valute.DAT"), prima);
}

// The currencies of Form25 in their records, the Dollar's never written.
void ScriviValute(ValuteTest& t) {
    for (const Riga25& r : Righe25)
        if (r.record != 12) t.ScriviValuta(r.record, r.nome, r.paese, r.cambio);
}

TEST_F(ValuteTest, LaRicercaConfrontaNomeEPaeseENonTrovaLeRigheMaiScritte) {
    ScriviValute(*this);
    LeggiTabellaValute();
    const std::pair<const char*, short> casi[] = {
        {"-", 0}, // the trimmed line of a record never written
        {" - ", 12},
        {"Franco - Francia", 5},
        {"Franco-Lussemburgo", 0},
        {"Euro - Unione Europea", 15},
        {"Franco", 0},
    };
    for (const auto& [testo, record] : casi)
        EXPECT_EQ(CercaValuta(testo), record) << testo;
}
} // namespace
