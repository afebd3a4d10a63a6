// The currencies: Form25's fixed records and its lock, the converter, and the division by the
// rate in use.
#include "tests/shell/Ambiente.h"

#include "refdata/Valute.h"
#include "store/Formato.h"
#include "store/Testo.h"

#include <algorithm>

namespace {
struct ValuteTest : Ambiente {
    void SetUp() override {
        Ambiente::SetUp();
        Avvia();
        Messaggi();
    }

    Form25& F25() { return app->Form25; }

    RecValuta SuDisco(long numero) {
        RecValuta v;
        ApriRecord((programma / "Valute.DAT").string(), RecValuta::Lunghezza, 1);
        LeggiRecord(v, numero, 1);
        ChiudiRecord(1);
        return v;
    }

    // The 60 bytes of record n of Valute.DAT.
    Byte Blocco(const Byte& file, long n) {
        return Byte(file.begin() + (n - 1) * 60, file.begin() + n * 60);
    }

    void ConfermaSulForm25(Controllo& comando, const std::string& cambio, int box) {
        F25().Box(box).SetText(cambio);
        EXPECT_TRUE(EseguiEvento([&] { comando.Clicca(); }));
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
        app.reset();
        fs::remove_all(programma);
        Avvia();
        F25().S.Show();
        F25().Check1.Clicca();
        for (int k : ordine) {
            const Riga25& r = Righe25[k];
            ConfermaSulForm25(F25().*r.comando, r.digitato, static_cast<int>(r.record - 1));
        }
        EXPECT_TRUE(Messaggi().empty());
        EXPECT_EQ(fs::file_size(programma / "Valute.DAT"), 15u * 60);
        for (const Riga25& r : Righe25) {
            RecValuta v = SuDisco(r.record);
            EXPECT_EQ(v.Numero, r.record);
            EXPECT_EQ(v.Nome.Testo(), Giustifica(r.nome, 25));
            EXPECT_EQ(v.Paese.Testo(), Giustifica(r.paese, 25));
            EXPECT_EQ(v.Cambio, r.cambio) << r.nome << " " << r.paese;
        }
        RecValuta euro = SuDisco(15);
        EXPECT_EQ(euro.Numero, 15);
        EXPECT_EQ(Trim(euro.Nome) + "/" + Trim(euro.Paese), "Euro/Unione Europea");
        EXPECT_EQ(euro.Cambio, 1);
    }
}

TEST_F(ValuteTest, OgniPulsanteScriveSoloIlProprioRecord) {
    F25().S.Show();
    F25().Check1.Clicca();
    // A rate typed beside another currency and never confirmed is not stored.
    F25().Box(5).SetText("1,95583");
    const Byte prima = ContenutoFile(programma / "Valute.DAT");
    ConfermaSulForm25(F25().SSCommand1, "1.936,27", 6);

    const Byte dopo = ContenutoFile(programma / "Valute.DAT");
    ASSERT_EQ(dopo.size(), prima.size());
    for (long n = 1; n <= 15; ++n)
        if (n != 7) EXPECT_EQ(Blocco(dopo, n), Blocco(prima, n)) << "record " << n;
    Byte lira{7, 0};
    for (char c : Giustifica("Lira", 25))
        lira.push_back(static_cast<unsigned char>(c));
    // 1936.27 as a little-endian double: 0x409E4114 7AE147AE.
    for (unsigned char c : {0xAE, 0x47, 0xE1, 0x7A, 0x14, 0x41, 0x9E, 0x40})
        lira.push_back(c);
    for (char c : Giustifica("Italia", 25))
        lira.push_back(static_cast<unsigned char>(c));
    EXPECT_EQ(Blocco(dopo, 7), lira);
}

TEST_F(ValuteTest, IlTassoNonRaggiungeIlCambioInUsoFinCheLaValutaNonVieneScelta) {
    Stato.Cambio = 1;
    F25().S.Show();
    F25().Check1.Clicca();
    ConfermaSulForm25(F25().SSCommand1, "1.936,27", 6);
    EXPECT_EQ(Stato.Cambio, 1);
    EXPECT_EQ(Stato.Valute[7].Cambio, 1936.27);
}

TEST_F(ValuteTest, AllAperturaICampiMostranoITassiEBloccaIDatiLiSpegne) {
    ScriviValuta(7, "Lira", "Italia", 1936.27);
    ScriviValuta(6, "Marco", "Germania", 1.95583);
    F25().S.Show();
    EXPECT_EQ(F25().Box(6).Text(), "1936,27");
    EXPECT_EQ(F25().Box(5).Text(), "1,95583");
    EXPECT_EQ(F25().Box(0).Text(), "0");
    EXPECT_EQ(F25().Box(13).ToolTipText, "Rapporto di parità con l'Euro");

    EXPECT_TRUE(F25().Check1.Value());
    for (bool bloccato : {true, false, true}) {
        for (int i = 0; i < 14; ++i)
            EXPECT_EQ(F25().Box(i).Enabled, !bloccato) << i;
        F25().Check1.Clicca();
    }
}

TEST_F(ValuteTest, UnTassoNonNumericoEUnGuastoENonScriveNulla) {
    const Byte prima = ContenutoFile(programma / "Valute.DAT");
    F25().S.Show();
    F25().Check1.Clicca();
    F25().Box(6).SetText("");
    EXPECT_FALSE(EseguiEvento([&] { F25().SSCommand1.Clicca(); }));
    EXPECT_EQ(Messaggi(), std::vector<std::string>{"FAILURE 13 Tipo non corrispondente"});
    EXPECT_EQ(ContenutoFile(programma / "Valute.DAT"), prima);
}

struct ConvertoreTest : ValuteTest {
    Convertore& C() { return app->Convertore; }

    void Scegli(Controllo& combo, const std::string& testo) {
        auto it = std::find(combo.Righe().begin(), combo.Righe().end(), testo);
        ASSERT_NE(it, combo.Righe().end()) << testo;
        combo.SetListIndex(static_cast<int>(it - combo.Righe().begin()));
    }
};

TEST_F(ConvertoreTest, AlPrimoAvvioQuattordiciRigheVuoteEPoiLEuro) {
    C().S.Show();
    std::vector<std::string> righe(14, " - ");
    righe.push_back("Euro - Unione Europea");
    EXPECT_EQ(C().Combo1.Righe(), righe);
    EXPECT_EQ(C().Combo2.Righe(), righe);
    EXPECT_EQ(C().Combo1.ListIndex(), 0);
    EXPECT_EQ(C().Combo2.Text(), " - ");
}

TEST_F(ConvertoreTest, LeRigheSonoInOrdineAlfabeticoConIlNomeEIlPaese) {
    for (const Riga25& r : Righe25)
        ScriviValuta(r.record, r.nome, r.paese, r.cambio);
    C().S.Show();
    EXPECT_EQ(C().Combo1.Righe(), (std::vector<std::string>{
                                      "Dollaro - USA",
                                      "Escudo - Portogallo",
                                      "Euro - Unione Europea",
                                      "Fiorino - Olanada",
                                      "Franco - Belgio",
                                      "Franco - Francia",
                                      "Franco - Lussemburgo",
                                      "Lira - Italia",
                                      "Marco - Finlandia",
                                      "Marco - Germania",
                                      "Peseta - Spagna",
                                      "Scellino - Austria",
                                      "Sterlina - Gran Bretagna",
                                      "Sterlina - Irlanda",
                                      "Yen - Giappone",
                                  }));
}

struct CasoConversione {
    const char* nome;
    const char* importo;
    const char* da;
    const char* a;
    const char* euro; // "" when nothing is computed
    const char* risultato;
};

TEST_F(ConvertoreTest, ConverteAttraversoLEuro) {
    for (const Riga25& r : Righe25)
        ScriviValuta(r.record, r.nome, r.paese, r.cambio);
    ScriviValuta(12, "", "", 0); // the Dollar's record back to never written
    // 1936270 / 1936.27 = 1000; 1000 * 1.95583 = 1955.83. 655.957 / 6.55957 = 100;
    // 100 * 40.3399 = 4033.99 (Belgium's, not the first Franco's).
    const CasoConversione casi[] = {
        {"lire into marks", "1.936.270", "Lira - Italia", "Marco - Germania", "1000", "1955,83"},
        {"French francs into Belgian ones", "655,957", "Franco - Francia", "Franco - Belgio", "100",
         "4033,99"},
        {"euro into lire", "100", "Euro - Unione Europea", "Lira - Italia", "100", "193627"},
        {"into a currency never written", "1.936.270", "Lira - Italia", " - ", "1000", "0"},
        {"nothing typed", "", "Lira - Italia", "Marco - Germania", "", ""},
    };
    for (const CasoConversione& caso : casi) {
        SCOPED_TRACE(caso.nome);
        C().S.UnloadMe();
        C().S.Show();
        C().ImDa.SetText(caso.importo);
        Scegli(C().Combo1, caso.da);
        Scegli(C().Combo2, caso.a);
        EXPECT_TRUE(EseguiEvento([&] { C().SSCommand1.Clicca(); }));
        EXPECT_EQ(C().Euros.Text(), caso.euro);
        EXPECT_EQ(C().ImA.Text(), caso.risultato);
    }
}

TEST_F(ConvertoreTest, DaUnaValutaSenzaTassoEUnaDivisionePerZero) {
    ScriviValuta(7, "Lira", "Italia", 1936.27);
    C().S.Show();
    C().ImDa.SetText("100");
    Scegli(C().Combo1, " - ");
    Scegli(C().Combo2, "Lira - Italia");
    EXPECT_FALSE(EseguiEvento([&] { C().SSCommand1.Clicca(); }));
    EXPECT_EQ(Messaggi(), std::vector<std::string>{"FAILURE 11 Divisione per zero"});
    EXPECT_EQ(C().ImA.Text(), "");
}

TEST_F(ValuteTest, LImportoDigitatoSiMemorizzaInEuroDivisoPerIlCambioInUso) {
    Stato.Cambio = 1936.27;
    const double memorizzato = ImportoInEuro(1000000);
    EXPECT_NEAR(memorizzato, 516.45689909, 1e-8);
    EXPECT_EQ(Format(memorizzato * Stato.Cambio, "#,###,###,##0.00"), "1.000.000,00");

    Stato.Cambio = 0;
    EXPECT_FALSE(EseguiEvento([] { ImportoInEuro(100); }));
    EXPECT_EQ(Messaggi(), std::vector<std::string>{"FAILURE 11 Divisione per zero"});
}

TEST_F(ValuteTest, LaRicercaConfrontaNomeEPaeseENonTrovaLeRigheMaiScritte) {
    for (const Riga25& r : Righe25)
        ScriviValuta(r.record, r.nome, r.paese, r.cambio);
    ScriviValuta(12, "", "", 0);
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
