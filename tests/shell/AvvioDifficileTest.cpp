// Starts that meet a lost or spoiled file, and what the program leaves on disk: the window always
// comes up, the causali of the user stay, and everything made is private.
#include "tests/Ambiente.h"

#include "ledger/Registro.h"

#include <functional>

#include <sys/stat.h>

namespace {
using AvvioDifficileTest = Ambiente;

TEST_F(AvvioDifficileTest, UnGuastoAllAvvioLasciaLaFinestraEIlSceltaConti) {
    struct Caso {
        const char* nome;
        std::function<void()> guasta;
        int numero;
    };
    RecImposta altrove;
    altrove.PerAvv = (radice / "manca").string() + "/";
    RecImposta senzaTrattino;
    senzaTrattino.Combo1 = "Euro";
    const Caso casi[] = {
        {"data directory missing", [&] { ScriviImposta(altrove); }, 76},
        {"101 accounts",
         [&] {
             ScriviFile(dati / "RecConti.dat", {101, 0});
         },
         9},
        {"1-byte RecCausa.dat", [&] { ScriviFile(programma / "RecCausa.dat", {0xFF}); }, 9},
        {"a folder for Valute.DAT",
         [&] {
             fs::remove(programma / "Valute.DAT");
             fs::create_directory(programma / "Valute.DAT");
         },
         52},
        {"default currency without \"-\"", [&] { ScriviImposta(senzaTrattino); }, 5},
    };
    for (const Caso& c : casi) {
        SCOPED_TRACE(c.nome);
        fs::remove_all(programma);
        Avvia();
        c.guasta();
        Messaggi();
        Avvia();
        EXPECT_EQ(Messaggi(), (std::vector<std::string>{"FAILURE " + std::to_string(c.numero) +
                                                        " " + DescrizioneErrore(c.numero)}));
        EXPECT_TRUE(Finestra().S.Mostrato());
        EXPECT_EQ(Stato.NumConti, 0);
        ComandiConto(false);
        EXPECT_TRUE(Clic(Finestra().ApriConto));
        EXPECT_TRUE(app->Form7.S.Mostrato());
    }
}

TEST_F(AvvioDifficileTest, PersoValuteDatICausaliRestano) {
    Avvia();
    RecCausale causale;
    for (short n = 1; n <= 5; ++n) {
        causale.Numero = n;
        causale.CodCausale = "C" + std::to_string(n);
        ScriviIn(programma / "Causali.DAT", causale, n);
    }
    ScriviContatore((programma / "RecCausa.dat").string(), 5);
    Byte causali = ContenutoFile(programma / "Causali.DAT");
    fs::remove(programma / "Valute.DAT");
    Avvia();
    EXPECT_FALSE(app->Form1.S.Caricato());
    EXPECT_EQ(ContenutoFile(programma / "Causali.DAT"), causali);
    EXPECT_EQ(ContenutoFile(programma / "RecCausa.dat"), (Byte{5, 0}));
    EXPECT_EQ(Stato.NumCausali, 5);
    // A lost file reads as a missing one: empty, no Euro written.
    EXPECT_EQ(fs::file_size(programma / "Valute.DAT"), 0u);
}

// The modes of all that a first start, the opening of an account and its first movement make.
TEST_F(AvvioDifficileTest, FileEFolderPrivatiQualunqueUmask) {
    for (mode_t maschera : {022, 002}) {
        SCOPED_TRACE(maschera);
        fs::remove_all(programma);
        mode_t prima = umask(maschera);
        Avvia();
        ScriviConto("12", "Banca", 0);
        RecImposta imposta;
        imposta.contAvv = "12";
        ScriviImposta(imposta);
        Avvia();
        Stato.Movimenti[++Stato.NumMovimenti] = Mov(1, "01/03/2001", "01/03/2001", 5, "E", "N");
        EXPECT_TRUE(EseguiEvento(AggiungiMovimento));
        umask(prima);

        EXPECT_EQ(fs::file_size(dati / "12.MOV"), RecMovimento::Lunghezza);
        EXPECT_TRUE(fs::exists(programma / "Help01.txt"));
        int visti = 0;
        for (const auto& voce : fs::recursive_directory_iterator(radice)) {
            struct stat info;
            ASSERT_EQ(lstat(voce.path().c_str(), &info), 0);
            EXPECT_EQ(info.st_mode & 07777, voce.is_directory() ? 0700u : 0600u) << voce.path();
            ++visti;
        }
        EXPECT_GT(visti, 30);
    }
}
} // namespace
