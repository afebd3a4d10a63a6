// Names that stay inside the data directory, links that aren't written through, private files.
#include "store/FileRecord.h"
#include "store/RecordRegistro.h"
#include "store/Stato.h"

#include "tests/Ambiente.h"

#include <set>
#include <sys/stat.h>

namespace {
struct NomiSicuriTest : Ambiente {
    void SetUp() override {
        Ambiente::SetUp();
        fs::create_directories(dati);
        Stato.PercorsoDati = dati.string() + "/";
    }
    std::set<fs::path> Tutto() {
        std::set<fs::path> visti;
        for (const auto& voce : fs::recursive_directory_iterator(radice))
            visti.insert(voce.path());
        return visti;
    }
    mode_t Modo(const fs::path& p) {
        struct stat info;
        EXPECT_EQ(lstat(p.c_str(), &info), 0) << p;
        return info.st_mode & 07777;
    }
};

TEST_F(NomiSicuriTest, UnoSteloCheEsceONonENomeNonCreaNulla) {
    const std::string rifiutati[] = {"../x", "..",   "a/b",  "/etc/x", "x..y",
                                     std::string("a\0b", 3), "a\tb", "a\x1f", "a\x7f"};
    const std::set<fs::path> prima = Tutto();
    for (const std::string& codice : rifiutati) {
        Stato.CodContoAperto = codice;
        EXPECT_EQ(NumeroGuasto([] { ApriRecord(NomeFileConto(".MOV"), 76, 1); }), 52) << codice;
        EXPECT_EQ(NumeroGuasto([] { LeggiContatore(NomeFileConto(".MOR")); }), 52) << codice;
    }
    ChiudiTutti();
    EXPECT_EQ(Tutto(), prima);
    EXPECT_FALSE(fs::exists(radice.parent_path() / "x.MOV"));

    for (const char* buono : {"1.2", "a\\b", "AB 12", "\xc3\xa8x", ".x"}) {
        Stato.CodContoAperto = buono;
        EXPECT_EQ(NumeroGuasto([] { LeggiContatore(NomeFileConto(".MOR")); }), 0) << buono;
    }
}

TEST_F(NomiSicuriTest, UnFileCheELinkNonSiScriveAttraversoLaCartellaSi) {
    ScriviFile(radice / "altro", {1, 2, 3});
    fs::create_symlink(radice / "altro", dati / "12.TOT");
    Stato.CodContoAperto = "12";
    EXPECT_EQ(NumeroGuasto([] { ApriRecord(NomeFileConto(".TOT"), 72, 1); }), 75);
    EXPECT_EQ(ContenutoFile(radice / "altro"), (Byte{1, 2, 3}));

    // A data directory that is itself a link to another folder works as the folder.
    fs::create_directory(radice / "vera");
    fs::create_directory_symlink(radice / "vera", radice / "collegata");
    Stato.PercorsoDati = (radice / "collegata").string() + "/";
    ScriviContatore(NomeFileConto(".MOR"), 7);
    EXPECT_EQ(ContenutoFile(radice / "vera" / "12.MOR"), (Byte{7, 0}));
}

TEST_F(NomiSicuriTest, FileECartelleNuoviSonoPrivati) {
    mode_t prima = umask(0);
    CreaCartelle((radice / "a" / "b").string() + "/");
    ApriRecord((radice / "a" / "b" / "x.MOV").string(), 76, 1);
    ChiudiTutti();
    ScriviFile(radice / "sorgente", {'h', 'i'});
    CopiaFile((radice / "sorgente").string(), (radice / "a" / "copia").string());
    umask(prima);
    EXPECT_EQ(Modo(radice / "a"), 0700u);
    EXPECT_EQ(Modo(radice / "a" / "b"), 0700u);
    EXPECT_EQ(Modo(radice / "a" / "b" / "x.MOV"), 0600u);
    EXPECT_EQ(Modo(radice / "a" / "copia"), 0600u);
    EXPECT_EQ(ContenutoFile(radice / "a" / "copia"), (Byte{'h', 'i'}));

    // What exists keeps its mode.
    fs::permissions(radice / "a", fs::perms::owner_all | fs::perms::group_read);
    CreaCartelle((radice / "a").string());
    EXPECT_EQ(Modo(radice / "a"), 0740u);
}
} // namespace
