#include "store/FileRecord.h"
#include "store/RecordRegistro.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include "tests/NumeroGuasto.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {
using Byte = std::vector<unsigned char>;

class FileRecordTest : public ::testing::Test {
protected:
    std::string dir;

    void SetUp() override {
        std::string modello = (fs::temp_directory_path() / "filerecordXXXXXX").string();
        ASSERT_NE(mkdtemp(modello.data()), nullptr);
        dir = modello + "/";
        Stato.PercorsoDati = dir;
        Stato.PercorsoProgramma = dir + "programma/";
        fs::create_directory(Stato.PercorsoProgramma);
        Stato.CodContoAperto = "AB12";
    }
    void TearDown() override {
        ChiudiTutti();
        fs::remove_all(dir);
    }

    Byte Contenuto(const std::string& nome) {
        std::ifstream in(dir + nome, std::ios::binary);
        return Byte(std::istreambuf_iterator<char>(in), {});
    }
    void Crea(const std::string& nome, const Byte& byte) {
        std::ofstream out(dir + nome, std::ios::binary);
        out.write(reinterpret_cast<const char*>(byte.data()),
                  static_cast<std::streamsize>(byte.size()));
    }
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

TEST_F(FileRecordTest, AprireCreaUnFileVuoto) {
    ApriRecord(NomeFileConto(".RIP"), 18, 1);
    ChiudiRecord(1);
    ASSERT_TRUE(fs::exists(dir + "AB12.RIP"));
    EXPECT_EQ(fs::file_size(dir + "AB12.RIP"), 0u);
}

TEST_F(FileRecordTest, LetturaOltreLaFineDaIlRecordPulito) {
    Crea("AB12.RIP", RiportoSuDisco);
    ApriRecord(NomeFileConto(".RIP"), 18, 1);
    RecRiporto r = Riporto("01/01/1999", 5);
    LeggiRecord(r, 1, 1);
    EXPECT_EQ(r.DataRiporto.Testo(), "31/12/2000");
    EXPECT_EQ(r.ImportoRiporto, -1.0);
    LeggiRecord(r, 2, 1);
    EXPECT_EQ(r.DataRiporto.Testo(), "          ");
    EXPECT_EQ(r.ImportoRiporto, 0.0);
    r = Riporto("01/01/1999", 5);
    LeggiRecord(r, 40, 1);
    EXPECT_EQ(r.DataRiporto.Testo(), "          ");
    EXPECT_EQ(r.ImportoRiporto, 0.0);
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
    Byte dati = {'3', '0', '/', '0', '6', '/', '2', '0', '0', '1',
                 0, 0, 0, 0, 0, 0, 0xE8, 0x3F, 'A', 'B', 'C'};
    Crea("AB12.chi", dati);
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
    struct Riga {
        const char* nome;
        std::function<void()> azione;
        int numero;
    };
    const Riga righe[] = {
        {"channel 0", [&] { ApriRecord(rip, 18, 0); }, 52},
        {"channel 4", [&] { ApriRecord(rip, 18, 4); }, 52},
        {"open twice",
         [&] {
             ApriRecord(rip, 18, 1);
             ApriRecord(rip, 18, 1);
         },
         55},
        {"read on a closed channel",
         [&] {
             RecRiporto r;
             LeggiRecord(r, 1, 3);
         },
         52},
        {"write on a closed channel", [&] { ScriviRecord(RecRiporto{}, 1, 3); }, 52},
        {"record 0",
         [&] {
             ApriRecord(rip, 18, 1);
             RecRiporto r;
             LeggiRecord(r, 0, 1);
         },
         63},
        {"record -1 written",
         [&] {
             ApriRecord(rip, 18, 1);
             ScriviRecord(RecRiporto{}, -1, 1);
         },
         63},
        {"integer at record 0",
         [&] {
             ApriRecord(rip, 2, 1);
             LeggiIntero(0, 1);
         },
         63},
        {"record of another length",
         [&] {
             ApriRecord(rip, 18, 1);
             RecTotali t;
             LeggiRecord(t, 1, 1);
         },
         59},
        {"integer on a record channel",
         [&] {
             ApriRecord(rip, 18, 1);
             ScriviIntero(1, 1, 1);
         },
         59},
        {"missing directory", [&] { ApriRecord(dir + "manca/AB12.RIP", 18, 1); }, 76},
        {"missing directory for a counter",
         [&] { LeggiContatore(dir + "manca/AB12.MOR"); }, 76},
    };
    for (const Riga& r : righe) {
        EXPECT_EQ(NumeroGuasto(r.azione), r.numero) << r.nome;
        ChiudiTutti();
    }
}

TEST_F(FileRecordTest, UnLetturaFallitaPulisceComunque) {
    RecRiporto r = Riporto("01/01/1999", 5);
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

TEST_F(FileRecordTest, CanaleRiapribileDopoLaChiusura) {
    for (int canale = 1; canale <= 3; ++canale) ApriRecord(NomeFileConto(".TOT"), 72, canale);
    ChiudiTutti();
    for (int canale = 1; canale <= 3; ++canale) ApriRecord(NomeFileConto(".TOT"), 72, canale);
    ChiudiRecord(2);
    ChiudiRecord(2);
    ApriRecord(NomeFileConto(".TOT"), 72, 2);
}

TEST_F(FileRecordTest, InteriDaDueByte) {
    ApriRecord(NomeFileConto(".NRF"), 2, 3);
    ScriviIntero(-2, 1, 3);
    ScriviIntero(300, 3, 3);
    EXPECT_EQ(LeggiIntero(1, 3), -2);
    EXPECT_EQ(LeggiIntero(2, 3), 0);
    EXPECT_EQ(LeggiIntero(3, 3), 300);
    EXPECT_EQ(LeggiIntero(4, 3), 0);
    ChiudiRecord(3);
    EXPECT_EQ(Contenuto("AB12.NRF"), (Byte{0xFE, 0xFF, 0x00, 0x00, 0x2C, 0x01}));
}

TEST_F(FileRecordTest, Contatori) {
    EXPECT_EQ(LeggiContatore(NomeFileConto(".MOR")), 0);
    ASSERT_TRUE(fs::exists(dir + "AB12.MOR"));
    EXPECT_EQ(fs::file_size(dir + "AB12.MOR"), 0u);

    Crea("AB12.NRC", {});
    EXPECT_EQ(LeggiContatore(NomeFileConto(".NRC")), 0);

    Crea("AB12.NRF", {0x07});
    EXPECT_EQ(LeggiContatore(NomeFileConto(".NRF")), 7);

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
    m.NrOper = 1;
    m.DescMovim = "è à € 中";
    ApriRecord(NomeFileConto(".MOV"), 76, 1);
    ScriviRecord(m, 1, 1);
    RecMovimento letto;
    LeggiRecord(letto, 1, 1);
    ChiudiRecord(1);
    Byte disco = Contenuto("AB12.MOV");
    ASSERT_EQ(disco.size(), 76u);
    Byte desc(disco.begin() + 43, disco.begin() + 73);
    Byte atteso = {0xE8, ' ', 0xE0, ' ', 0x80, ' ', '?'};
    atteso.resize(30, ' ');
    EXPECT_EQ(desc, atteso);
    EXPECT_EQ(letto.DescMovim.Testo(), "è à € ?" + std::string(23, ' '));
}

TEST_F(FileRecordTest, GrafiaDeiNomi) {
    struct Riga {
        const char* nome;
        std::string ottenuto, atteso;
    };
    const Riga righe[] = {
        {"mov", NomeFileConto(".mov"), dir + "AB12.MOV"},
        {"Mov", NomeFileConto(".Mov"), dir + "AB12.MOV"},
        {"ORD", NomeFileConto(".ORD"), dir + "AB12.Ord"},
        {"mor", NomeFileConto(".mor"), dir + "AB12.MOR"},
        {"tot", NomeFileConto(".tot"), dir + "AB12.TOT"},
        {"rip", NomeFileConto(".rip"), dir + "AB12.RIP"},
        {"CHI", NomeFileConto(".CHI"), dir + "AB12.chi"},
        {"Car", NomeFileConto(".Car"), dir + "AB12.CAR"},
        {"Fog", NomeFileConto(".Fog"), dir + "AB12.FOG"},
        {"nrc", NomeFileConto(".nrc"), dir + "AB12.NRC"},
        {"nrf", NomeFileConto(".nrf"), dir + "AB12.NRF"},
        {"IAT", NomeFileConto(".IAT"), dir + "AB12.Iat"},
        {"ipa", NomeFileConto(".ipa"), dir + "AB12.Ipa"},
        {"OPZ", NomeFileConto(".OPZ"), dir + "AB12.Opz"},
        {"onp", NomeFileConto(".onp"), dir + "AB12.Onp"},
        {"SPE", NomeFileConto(".SPE"), dir + "AB12.spe"},
        {"CONTI.DAT", NomeFileDati("CONTI.DAT"), dir + "Conti.dat"},
        {"RECCONTI.DAT", NomeFileDati("RECCONTI.DAT"), dir + "RecConti.dat"},
        {"Causali.dat", NomeFileProgramma("Causali.dat"), Stato.PercorsoProgramma + "Causali.DAT"},
        {"reccausa.DAT", NomeFileProgramma("reccausa.DAT"),
         Stato.PercorsoProgramma + "RecCausa.dat"},
        {"VALUTE.dat", NomeFileProgramma("VALUTE.dat"), Stato.PercorsoProgramma + "Valute.DAT"},
        {"imposta.dat", NomeFileProgramma("imposta.dat"),
         Stato.PercorsoProgramma + "Imposta.DAT"},
        {"Colori.COL", NomeFileProgramma("Colori.COL"), Stato.PercorsoProgramma + "colori.col"},
        {"no known name", NomeFileDati("Torrelba"), dir + "Torrelba"},
    };
    for (const Riga& r : righe) EXPECT_EQ(r.ottenuto, r.atteso) << r.nome;
}

TEST_F(FileRecordTest, FileEsistenteInAltraGrafia) {
    Crea("AB12.mov", {0x09, 0x00});
    Crea("ab12.Tot", {});
    EXPECT_EQ(NomeFileConto(".MOV"), dir + "AB12.mov");
    EXPECT_EQ(NomeFileConto(".TOT"), dir + "ab12.Tot");

    ApriRecord(NomeFileConto(".MOV"), 76, 1);
    RecMovimento m;
    LeggiRecord(m, 1, 1);
    ChiudiRecord(1);
    EXPECT_EQ(m.NrOper, 9);
    // The primitives resolve a name on their own too.
    ApriRecord(dir + "AB12.MOV", 76, 1);
    ChiudiRecord(1);
    EXPECT_FALSE(fs::exists(dir + "AB12.MOV"));
}

TEST_F(FileRecordTest, SteloConSpazi) {
    Stato.CodContoAperto = "  AB12";
    EXPECT_EQ(NomeFileConto(".TOT"), dir + "AB12.TOT");
    EXPECT_EQ(Stato.CodContoAperto.Testo(), "AB12        ");
    Stato.CodContoAperto = "AB12   ";
    EXPECT_EQ(NomeFileConto(".TOT"), dir + "AB12.TOT");
    Stato.CodContoAperto = " AB 12 ";
    EXPECT_EQ(NomeFileConto(".TOT"), dir + "AB 12.TOT");
}

TEST_F(FileRecordTest, FileCheIniziano) {
    for (const char* nome : {"AB12.MOV", "ab12.tot", "AB123.MOV", "XAB12.MOV", "Bak.ORD"}) {
        Crea(nome, {});
    }
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
        m.DescMovim = "movimento " + std::to_string(n);
        m.D_A = "E";
        ScriviRecord(m, n, 1);
    }
    std::vector<RecMovimento> righe(6);
    righe[1].NrOper = 77;
    LeggiRecords(righe, 2, 5, 1);
    EXPECT_EQ(righe[1].NrOper, 77);
    for (short n = 2; n <= 4; ++n) {
        EXPECT_EQ(righe[n].NrOper, n);
        EXPECT_EQ(righe[n].DescMovim.Testo(), Giustifica("movimento " + std::to_string(n), 30));
        EXPECT_EQ(righe[n].D_A.Testo(), "E");
    }
    EXPECT_EQ(righe[5].NrOper, 0);
    EXPECT_EQ(righe[5].D_A.Testo(), " ");

    EXPECT_EQ(NumeroGuasto([&] { LeggiRecords(righe, 1, 6, 1); }), 9);
    EXPECT_EQ(NumeroGuasto([&] { LeggiRecords(righe, 0, 2, 1); }), 63);
    std::vector<RecMovimento> vuote;
    LeggiRecords(vuote, 1, 0, 1);
    EXPECT_TRUE(vuote.empty());
}
