// The record files: records past the end, counters, failures, the names on disk and what the
// names may not reach.
#include "store/FileRecord.h"
#include "store/RecordRegistro.h"

#include "tests/Ambiente.h"

#include <sys/stat.h>

namespace {
// "31/12/2000" and -1.0 as a .RIP record.
const Byte RiportoSuDisco = {'3', '1', '/', '1', '2', '/', '2', '0', '0', '0',
                             0,   0,   0,   0,   0,   0,   0xF0, 0xBF};
} // namespace

TEST_F(AmbienteConto, OltreLaFineERecordTroncati) {
    // Records da to a of .RIP in one read, over records that held something else.
    auto riporti = [&](long da, long a) {
        std::vector<RecRiporto> righe(static_cast<std::size_t>(a + 1), {"01/01/1999", 5});
        ConRecord(File(".RIP"), 18, 1, [&] { LeggiRecords(righe, da, a, 1); });
        std::string letti;
        for (long n = da; n <= a; ++n)
            letti += righe[n].DataRiporto.Testo() + Str(righe[n].ImportoRiporto);
        return letti;
    };
    // Opening makes the file empty; a read past the end clears the record and adds nothing.
    EXPECT_EQ(riporti(1, 1), "           0");
    EXPECT_EQ(ContenutoFile(File(".RIP")), Byte{});
    ScriviIn(File(".RIP"), RecRiporto{"31/12/2000", -1}, 3);
    Byte atteso = RiportoSuDisco;
    atteso.insert(atteso.begin(), 36, 0);
    EXPECT_EQ(ContenutoFile(File(".RIP")), atteso);
    EXPECT_EQ(riporti(2, 4), "           0" "31/12/2000-1" "           0");
    // A last record cut short gives what is there, and zero bytes read as blanks.
    ScriviFile(File(".chi"), {'3', '0', '/', '0', '6', '/', '2', '0', '0', '1', 0, 0, 0, 0,
                                  0, 0, 0xE8, 0x3F, 'A', 'B', 'C'});
    RecChiusura r = LeggiDa<RecChiusura>(NomeFileConto(".chi"), 1);
    EXPECT_EQ(r.DataRiporto.Testo() + Str(r.ImportoRiporto) + r.CodConto.Testo(),
              "30/06/2001 .75ABC         ");
}

TEST_F(AmbienteConto, Guasti) {
    const std::string rip = File(".RIP"), manca = radice.string() + "/manca/";
    RecRiporto r;
    std::vector<RecRiporto> righe(3);
    // Channel 1 open on records of 18 bytes, channel 2 on records of 72, channel 3 closed.
    ApriRecord(rip, 18, 1);
    ApriRecord(rip, 72, 2);
    const std::pair<std::function<void()>, int> casi[] = {
        {[&] { ApriRecord(rip, 18, 4); }, 52},   {[&] { ApriRecord(rip, 18, 1); }, 55},
        {[&] { LeggiRecord(r, 1, 3); }, 52},     {[&] { ScriviRecord(r, 1, 0); }, 52},
        {[&] { LeggiRecord(r, 0, 1); }, 63},     {[&] { ScriviRecord(r, -1, 1); }, 63},
        {[&] { LeggiRecord(r, 1, 2); }, 59},     {[&] { LeggiRecords(righe, 1, 3, 1); }, 9},
        {[&] { LeggiRecords(righe, 0, 2, 1); }, 63},
        {[&] { ApriRecord(manca + "123.RIP", 18, 3); }, 76},
        {[&] { LeggiContatore(manca + "x.MOR"); }, 76}};
    for (const auto& [azione, numero] : casi) EXPECT_EQ(NumeroGuasto(azione), numero);
}

TEST_F(AmbienteConto, Contatori) {
    ScriviFile(File(".NRF"), {0xFE, 0xFF, 0x2C, 0x01});
    EXPECT_EQ(LeggiContatore(NomeFileConto(".NRF")), -2);
    // Missing, a counter reads 0, and reading it leaves the empty file.
    EXPECT_EQ(LeggiContatore(NomeFileConto(".MOR")) + ContenutoFile(File(".MOR")).size(), 0u);
    ScriviFile(File(".NRC"), {0x07});
    EXPECT_EQ(LeggiContatore(NomeFileConto(".NRC")), 7);
    ScriviFile(File(".MOR"), {0x05, 0x00, 0x07, 0x00});
    // A counter takes a free channel beside those the caller holds, and shortens nothing.
    ApriRecord(NomeFileConto(".MOV"), 76, 1);
    ApriRecord(NomeFileConto(".Ord"), 76, 3);
    ScriviContatore(NomeFileConto(".MOR"), 1234);
    EXPECT_EQ(ContenutoFile(File(".MOR")), (Byte{0xD2, 0x04, 0x07, 0x00}));
    ApriRecord(NomeFileConto(".TOT"), 72, 2);
    EXPECT_EQ(NumeroGuasto([&] { LeggiContatore(NomeFileConto(".MOR")); }), 67);
}

TEST_F(AmbienteConto, UnaGrafiaSulDiscoPerOgniFile) {
    const std::string dir = radice.string() + "/";
    for (std::string e : {".MOV", ".Ord", ".chi", ".NRF", ".Iat", ".Opz", ".spe"})
        EXPECT_EQ(NomeFileConto(UCase(e)) + " " + NomeFileConto(LCase(e)),
                  dir + "123" + e + " " + dir + "123" + e);
    for (std::string n : {"Conti.dat", "RecConti.dat"}) EXPECT_EQ(NomeFileDati(UCase(n)), dir + n);
    for (std::string n : {"Causali.DAT", "RecCausa.dat", "Valute.DAT", "Imposta.DAT", "colori.col"})
        EXPECT_EQ(NomeFileProgramma(LCase(n)), dir + n);
    EXPECT_EQ(NomeFileDati("Torrelba"), dir + "Torrelba");
    // A file that exists in another spelling is that file, for the primitives too.
    ScriviFile(File(".mov"), {0x09, 0x00});
    EXPECT_EQ(NomeFileConto(".MOV"), File(".mov"));
    EXPECT_EQ(LeggiDa<RecMovimento>(File(".MOV"), 1).NrOper, 9);
    EXPECT_FALSE(fs::exists(File(".MOV")));
    // The stem is the trimmed code.
    Stato.CodContoAperto = " 12 3  ";
    EXPECT_EQ(NomeFileConto(".TOT"), dir + "12 3.TOT");
    for (const char* nome : {"123.tot", "1233.MOV", "X123.MOV", "Bak.ORD"})
        ScriviFile(dir + nome, {});
    EXPECT_EQ(FileCheIniziano(dir, "123."),
              (std::vector<std::string>{File(".mov"), File(".tot")}));
    EXPECT_EQ(FileCheIniziano(radice.string(), "BAK."), std::vector{dir + "Bak.ORD"});
    EXPECT_TRUE(FileCheIniziano(dir + "manca/", "AB").empty());
}

TEST_F(AmbienteConto, NomiCheNonEsconoDallaCartella) {
    for (const std::string& codice : std::initializer_list<std::string>{
             "../x", "..", "a/b", "x..y", "a\tb", "a\x7f", std::string("a\0b", 3)}) {
        Stato.CodContoAperto = codice;
        EXPECT_EQ(NumeroGuasto([] { ApriRecord(NomeFileConto(".MOV"), 76, 1); }), 52) << codice;
    }
    EXPECT_TRUE(fs::is_empty(radice));
    EXPECT_FALSE(fs::exists(radice.parent_path() / "x.MOV"));
    Stato.CodContoAperto = "1.2 a\\b \xc3\xa8";
    EXPECT_EQ(NumeroGuasto([] { LeggiContatore(NomeFileConto(".MOR")); }), 0);
    // A file that is a link isn't written through.
    ScriviFile(radice / "altro", {1, 2, 3});
    fs::create_symlink(radice / "altro", radice / "12.TOT");
    Stato.CodContoAperto = "12";
    EXPECT_EQ(NumeroGuasto([] { ApriRecord(NomeFileConto(".TOT"), 72, 1); }), 75);
    EXPECT_EQ(ContenutoFile(radice / "altro"), (Byte{1, 2, 3}));
}

TEST_F(AmbienteConto, FileECartelleNuoviSonoPrivati) {
    const std::string a = radice.string() + "/a/";
    mode_t umaskPrima = umask(0);
    CreaCartelle(a + "b/");
    ScriviIn(a + "b/x.RIP", RecRiporto{"31/12/2000", -1}, 1);
    CopiaFile(a + "b/x.RIP", a + "copia");
    umask(umaskPrima);
    std::vector<int> modi;
    for (const std::string& p : {a, a + "b", a + "b/x.RIP", a + "copia"})
        modi.push_back(static_cast<int>(fs::status(p).permissions()));
    EXPECT_EQ(modi, (std::vector{0700, 0700, 0600, 0600}));
    EXPECT_EQ(ContenutoFile(a + "copia"), RiportoSuDisco);
}
