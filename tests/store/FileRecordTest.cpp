#include "store/FileRecord.h"
#include "store/RecordRegistro.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include "tests/Ambiente.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <unistd.h>
#include <vector>

namespace {
// The data directory is the test's folder, the open account "AB12".
struct FileRecordTest : Ambiente {
    std::string dir;

    void SetUp() override {
        Ambiente::SetUp();
        dir = radice.string() + "/";
        Stato.PercorsoDati = dir;
        Stato.PercorsoProgramma = dir + "programma/";
        fs::create_directory(Stato.PercorsoProgramma);
        Stato.CodContoAperto = "AB12";
    }
    Byte Contenuto(const std::string& nome) { return ContenutoFile(dir + nome); }
    void Crea(const std::string& nome, const Byte& byte) { ScriviFile(dir + nome, byte); }
};

RecRiporto Riporto(const char* data, double importo) {
    RecRiporto r;
    r.DataRiporto = data;
    r.ImportoRiporto = importo;
    return r;
}

// "31/12/2000" and -1.0 as a .RIP record.
const Byte RiportoSuDisco = {'3', '1', '/', '1', '2', '/', '2', '0', '0', '0',
                             0, 0, 0, 0, 0, 0, 0xF0, 0xBF};
} // namespace

TEST_F(FileRecordTest, AprireCreaUnFileVuotoELeggereOltreLaFineDaIlRecordPulito) {
    ApriRecord(NomeFileConto(".RIP"), 18, 1);
    ChiudiRecord(1);
    ASSERT_TRUE(fs::exists(dir + "AB12.RIP"));
    EXPECT_EQ(fs::file_size(dir + "AB12.RIP"), 0u);

    Crea("AB12.RIP", RiportoSuDisco);
    ApriRecord(NomeFileConto(".RIP"), 18, 1);
    for (long numero : {1, 2, 40}) {
        RecRiporto r = Riporto("01/01/1999", 5);
        LeggiRecord(r, numero, 1);
        EXPECT_EQ(r.DataRiporto.Testo(), numero == 1 ? "31/12/2000" : "          ") << numero;
        EXPECT_EQ(r.ImportoRiporto, numero == 1 ? -1.0 : 0.0) << numero;
    }
    ChiudiRecord(1);
    EXPECT_EQ(fs::file_size(dir + "AB12.RIP"), 18u);
}

TEST_F(FileRecordTest, ScritturaOltreLaFineAllungaConZeri) {
    ApriRecord(NomeFileConto(".RIP"), 18, 1);
    ScriviRecord(Riporto("31/12/2000", -1), 3, 1);
    ChiudiRecord(1);
    Byte atteso(36, 0);
    atteso.insert(atteso.end(), RiportoSuDisco.begin(), RiportoSuDisco.end());
    EXPECT_EQ(Contenuto("AB12.RIP"), atteso);
}

TEST_F(FileRecordTest, NienteAccorciaUnFile) {
    Crea("AB12.RIP", Byte(54, 0x41));
    ApriRecord(NomeFileConto(".RIP"), 18, 1);
    ScriviRecord(Riporto("31/12/2000", -1), 1, 1);
    ChiudiRecord(1);
    Byte atteso = RiportoSuDisco;
    atteso.resize(54, 0x41);
    EXPECT_EQ(Contenuto("AB12.RIP"), atteso);

    Crea("AB12.MOR", {0x05, 0x00, 0x07, 0x00});
    ScriviContatore(NomeFileConto(".MOR"), 4);
    EXPECT_EQ(Contenuto("AB12.MOR"), (Byte{0x04, 0x00, 0x07, 0x00}));
}

TEST_F(FileRecordTest, UltimoRecordTroncato) {
    Crea("AB12.chi", {'3', '0', '/', '0', '6', '/', '2', '0', '0', '1', 0, 0, 0, 0, 0, 0, 0xE8,
                      0x3F, 'A', 'B', 'C'});
    ApriRecord(NomeFileConto(".chi"), 30, 2);
    RecChiusura r;
    r.CodConto = "ZZZZZZZZZZZZ";
    LeggiRecord(r, 1, 2);
    EXPECT_EQ(r.DataRiporto.Testo(), "30/06/2001");
    EXPECT_EQ(r.ImportoRiporto, 0.75);
    EXPECT_EQ(r.CodConto.Testo(), "ABC         ");
}

TEST_F(FileRecordTest, Guasti) {
    std::string rip = dir + "AB12.RIP";
    RecRiporto r;
    RecTotali t;
    RecIntero intero;
    struct Riga {
        const char* nome;
        int lunghezza; // of the records of channel 1, opened first; 0: nothing open
        std::function<void()> azione;
        int numero;
    };
    const Riga righe[] = {
        {"channel 0", 0, [&] { ApriRecord(rip, 18, 0); }, 52},
        {"channel 4", 0, [&] { ApriRecord(rip, 18, 4); }, 52},
        {"open twice", 18, [&] { ApriRecord(rip, 18, 1); }, 55},
        {"read on a closed channel", 0, [&] { LeggiRecord(r, 1, 3); }, 52},
        {"write on a closed channel", 0, [&] { ScriviRecord(r, 1, 3); }, 52},
        {"record 0", 18, [&] { LeggiRecord(r, 0, 1); }, 63},
        {"record -1 written", 18, [&] { ScriviRecord(r, -1, 1); }, 63},
        {"integer at record 0", 2, [&] { LeggiRecord(intero, 0, 1); }, 63},
        {"record of another length", 18, [&] { LeggiRecord(t, 1, 1); }, 59},
        {"integer on a record channel", 18, [&] { ScriviRecord(intero, 1, 1); }, 59},
        {"missing directory", 0, [&] { ApriRecord(dir + "manca/AB12.RIP", 18, 1); }, 76},
        {"missing directory for a counter", 0, [&] { LeggiContatore(dir + "manca/x.MOR"); }, 76},
    };
    for (const Riga& riga : righe) {
        if (riga.lunghezza) ApriRecord(rip, riga.lunghezza, 1);
        EXPECT_EQ(NumeroGuasto(riga.azione), riga.numero) << riga.nome;
        ChiudiTutti();
    }
    // A failed read clears its target all the same.
    r = Riporto("01/01/1999", 5);
    EXPECT_EQ(NumeroGuasto([&] { LeggiRecord(r, 1, 2); }), 52);
    EXPECT_EQ(r.DataRiporto.Testo(), "          ");
    EXPECT_EQ(r.ImportoRiporto, 0.0);
}

TEST_F(FileRecordTest, PermessoNegato) {
    if (geteuid() == 0) GTEST_SKIP() << "root ignores file permissions";
    Crea("AB12.TOT", {});
    fs::permissions(dir + "AB12.TOT", fs::perms::owner_read);
    EXPECT_EQ(NumeroGuasto([&] { ApriRecord(NomeFileConto(".TOT"), 72, 1); }), 75);
}

TEST_F(FileRecordTest, InteriEContatori) {
    ApriRecord(NomeFileConto(".NRF"), 2, 3);
    ScriviRecord(RecIntero{-2}, 1, 3);
    ScriviRecord(RecIntero{300}, 3, 3);
    auto intero = [](long numero) {
        RecIntero r;
        LeggiRecord(r, numero, 3);
        return r.Valore;
    };
    EXPECT_EQ(intero(2), 0);
    EXPECT_EQ(intero(3), 300);
    EXPECT_EQ(intero(4), 0);
    ChiudiRecord(3);
    EXPECT_EQ(Contenuto("AB12.NRF"), (Byte{0xFE, 0xFF, 0x00, 0x00, 0x2C, 0x01}));
    EXPECT_EQ(LeggiContatore(NomeFileConto(".NRF")), -2);

    // Missing or empty, a counter reads 0, and reading it leaves the empty file.
    EXPECT_EQ(LeggiContatore(NomeFileConto(".MOR")), 0);
    EXPECT_EQ(fs::file_size(dir + "AB12.MOR"), 0u);
    Crea("AB12.NRC", {});
    EXPECT_EQ(LeggiContatore(NomeFileConto(".NRC")), 0);
    Crea("AB12.NRC", {0x07});
    EXPECT_EQ(LeggiContatore(NomeFileConto(".NRC")), 7);
    ScriviContatore(NomeFileDati("RecConti.dat"), 1234);
    EXPECT_EQ(Contenuto("RecConti.dat"), (Byte{0xD2, 0x04}));
    EXPECT_EQ(LeggiContatore(NomeFileDati("RECCONTI.DAT")), 1234);

    // A counter works beside the channels that the caller holds, and leaves none open.
    ApriRecord(NomeFileConto(".MOV"), 76, 1);
    ApriRecord(NomeFileConto(".Ord"), 76, 3);
    ScriviContatore(NomeFileConto(".MOR"), -5);
    EXPECT_EQ(LeggiContatore(NomeFileConto(".MOR")), -5);
    ApriRecord(NomeFileConto(".TOT"), 72, 2);
    EXPECT_EQ(NumeroGuasto([&] { LeggiContatore(NomeFileConto(".MOR")); }), 67);
}

TEST_F(FileRecordTest, TestoInWindows1252) {
    RecMovimento m;
    m.DescMovim = "è à € 中";
    ApriRecord(NomeFileConto(".MOV"), 76, 1);
    ScriviRecord(m, 1, 1);
    LeggiRecord(m, 1, 1);
    ChiudiRecord(1);
    Byte disco = Contenuto("AB12.MOV");
    ASSERT_EQ(disco.size(), 76u);
    Byte atteso = {0xE8, ' ', 0xE0, ' ', 0x80, ' ', '?'};
    atteso.resize(30, ' ');
    EXPECT_EQ(Byte(disco.begin() + 43, disco.begin() + 73), atteso);
    EXPECT_EQ(m.DescMovim.Testo(), "è à € ?" + std::string(23, ' '));
}

TEST_F(FileRecordTest, GrafiaDeiNomi) {
    // Each file has one spelling on disk, whatever the spelling asked.
    const std::pair<const char*, const char*> conto[] = {
        {".mov", "MOV"}, {".ORD", "Ord"}, {".CHI", "chi"}, {".Car", "CAR"}, {".IAT", "Iat"},
        {".ipa", "Ipa"}, {".OPZ", "Opz"}, {".onp", "Onp"}, {".SPE", "spe"}, {".nrf", "NRF"}};
    for (const auto& [chiesto, scritto] : conto)
        EXPECT_EQ(NomeFileConto(chiesto), dir + "AB12." + scritto);
    EXPECT_EQ(NomeFileDati("CONTI.DAT"), dir + "Conti.dat");
    EXPECT_EQ(NomeFileDati("RECCONTI.DAT"), dir + "RecConti.dat");
    EXPECT_EQ(NomeFileDati("Torrelba"), dir + "Torrelba");
    const std::pair<const char*, const char*> programma[] = {
        {"Causali.dat", "Causali.DAT"}, {"reccausa.DAT", "RecCausa.dat"},
        {"VALUTE.dat", "Valute.DAT"},   {"imposta.dat", "Imposta.DAT"},
        {"Colori.COL", "colori.col"}};
    for (const auto& [chiesto, scritto] : programma)
        EXPECT_EQ(NomeFileProgramma(chiesto), Stato.PercorsoProgramma + scritto);
}

TEST_F(FileRecordTest, FileEsistenteInAltraGrafia) {
    Crea("AB12.mov", {0x09, 0x00});
    Crea("ab12.Tot", {});
    EXPECT_EQ(NomeFileConto(".MOV"), dir + "AB12.mov");
    EXPECT_EQ(NomeFileConto(".TOT"), dir + "ab12.Tot");
    // The primitives resolve a name on their own too.
    ApriRecord(dir + "AB12.MOV", 76, 1);
    RecMovimento m;
    LeggiRecord(m, 1, 1);
    ChiudiRecord(1);
    EXPECT_EQ(m.NrOper, 9);
    EXPECT_FALSE(fs::exists(dir + "AB12.MOV"));
}

TEST_F(FileRecordTest, SteloConSpaziEFileCheIniziano) {
    for (const char* codice : {"  AB12", "AB12   "}) {
        Stato.CodContoAperto = codice;
        EXPECT_EQ(NomeFileConto(".TOT"), dir + "AB12.TOT") << codice;
    }
    Stato.CodContoAperto = " AB 12 ";
    EXPECT_EQ(NomeFileConto(".TOT"), dir + "AB 12.TOT");

    for (const char* nome : {"AB12.MOV", "ab12.tot", "AB123.MOV", "XAB12.MOV", "Bak.ORD"})
        Crea(nome, {});
    EXPECT_EQ(FileCheIniziano(dir, "ab12."),
              (std::vector<std::string>{dir + "AB12.MOV", dir + "ab12.tot"}));
    EXPECT_EQ(FileCheIniziano(dir.substr(0, dir.size() - 1), "BAK."),
              (std::vector<std::string>{dir + "Bak.ORD"}));
    EXPECT_TRUE(FileCheIniziano(dir + "manca/", "AB").empty());
}

TEST_F(FileRecordTest, LetturaInBlocco) {
    ApriRecord(NomeFileConto(".MOV"), 76, 1);
    for (short n = 1; n <= 4; ++n) {
        RecMovimento m;
        m.NrOper = n;
        m.D_A = "E";
        ScriviRecord(m, n, 1);
    }
    std::vector<RecMovimento> righe(6);
    righe[1].NrOper = 77;
    LeggiRecords(righe, 2, 5, 1);
    std::string letti;
    for (const RecMovimento& m : righe) letti += std::to_string(m.NrOper) + m.D_A.Testo();
    EXPECT_EQ(letti, "0 77 2E3E4E0 ");

    EXPECT_EQ(NumeroGuasto([&] { LeggiRecords(righe, 1, 6, 1); }), 9);
    EXPECT_EQ(NumeroGuasto([&] { LeggiRecords(righe, 0, 2, 1); }), 63);
}
