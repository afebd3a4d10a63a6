// The start of the program: what a first start installs and a later one leaves alone, the
// stored preferences it follows, the failures it survives, and the modes of what it makes.
#include "tests/Ambiente.h"

#include "ledger/Registro.h"
#include "shell/PrimoAvvio.h"
#include "store/Testo.h"

#include <sys/stat.h>

namespace {
using AvvioTest = Ambiente;

// The first start installs the files that come with the program, leaving those present alone.
// A later one seeds nothing, even with Valute.DAT lost: no welcome, no Euro, the causali as they
// were.
TEST_F(AvvioTest, IlPrimoAvvioInstallaIlSecondoNonSemina) {
    fs::create_directories(programma);
    ScriviFile(programma / "3.ICO", {'m', 'i', 'a'});
    Avvia();
    fs::path forniti = CartellaForniti();
    for (const char* nome : {"1.ICO", "15.ICO", "Help01.txt"})
        EXPECT_EQ(ContenutoFile(programma / nome), ContenutoFile(forniti / nome)) << nome;
    EXPECT_EQ(ContenutoFile(programma / "3.ICO"), (Byte{'m', 'i', 'a'}));

    Byte causali = ContenutoFile(programma / "Causali.DAT");
    fs::remove(programma / "Valute.DAT");
    Messaggi();
    Avvia();
    EXPECT_FALSE(app->Form1.S.Caricato());
    EXPECT_TRUE(Messaggi().empty());
    EXPECT_EQ(ContenutoFile(programma / "Causali.DAT"), causali);
    EXPECT_EQ(Stato.NumCausali, 3);
    EXPECT_EQ(fs::file_size(programma / "Valute.DAT"), 0u);
}

// A stored path counts when it begins with "/" or a character coded 65 ("A") to 122 ("z").
TEST_F(AvvioTest, PercorsoDatiDalPercorsoMemorizzato) {
    std::string programmaDati = programma.string() + "/dati/";
    std::string assoluto = (radice / "altrove").string() + "/";
    const std::pair<std::string, std::string> casi[] = {
        {"", programmaDati},        {"0", programmaDati},      {"  " + assoluto + " ", assoluto},
        {"Archivio/", "Archivio/"}, {"zeta/", "zeta/"},        {"[x]/", "[x]/"},
        {"{x}/", programmaDati},    {"1dati/", programmaDati},
    };
    Avvia();
    for (const auto& [memorizzato, atteso] : casi) {
        RecImposta imposta;
        imposta.PerAvv = memorizzato;
        ScriviImposta(imposta);
        fs::create_directories(atteso);
        Avvia();
        EXPECT_EQ(Finestra().Codice.Text() + "|" + Stato.PercorsoDati, atteso + "|" + atteso);
        EXPECT_TRUE(Messaggi().empty()) << '"' << memorizzato << '"';
    }
}

// The account of the start, and the modes of all that the start, the opening of the account and
// its first movement make, under a umask that would leave them open to the group.
TEST_F(AvvioTest, ContoDiAvvioEFilePrivati) {
    const std::pair<const char*, std::vector<std::string>> casi[] = {
        {"0", {}},
        {"ABC", {}}, // a letter first: value 0, never opened
        {"123", {"[] il nr. di conto non esiste. ricontrollare i dati inseriti -> OK"}},
        {" 12 ", {}},
    };
    mode_t prima = umask(002);
    Avvia();
    fs::create_directories(dati);
    ScriviConto("12", "Banca di Prova", 1500.5);
    for (const auto& [memorizzato, messaggi] : casi) {
        SCOPED_TRACE(std::string("\"") + memorizzato + "\"");
        RecImposta imposta;
        imposta.decimali = 2;
        imposta.contAvv = memorizzato;
        ScriviImposta(imposta);
        Avvia();
        EXPECT_EQ(Messaggi(), messaggi);
        EXPECT_FALSE(porta.clessidra);
        const bool aperto = Trim(memorizzato) == "12";
        ComandiConto(aperto);
        EXPECT_EQ(app->Form9.S.Mostrato(), aperto);
        MDIForm1& f = Finestra();
        EXPECT_EQ(f.Codice.Text() + "|" + f.DescConto.Text() + "|" + f.Saldi(2).Text(),
                  aperto ? dati.string() + "/12|Banca di Prova|1.500,50" : dati.string() + "/||");
        // A new account: its files come into being empty.
        EXPECT_EQ(fs::exists(dati / "12.MOV"), aperto);
    }
    Stato.Movimenti[++Stato.NumMovimenti] = Mov(1, "01/03/2001", "01/03/2001", 5, "E", "N");
    EXPECT_TRUE(EseguiEvento(AggiungiMovimento));
    umask(prima);
    EXPECT_EQ(fs::file_size(dati / "12.MOV"), RecMovimento::Lunghezza);
    int visti = 0;
    for (const auto& voce : fs::recursive_directory_iterator(radice)) {
        struct stat info;
        ASSERT_EQ(lstat(voce.path().c_str(), &info), 0);
        EXPECT_EQ(info.st_mode & 07777, voce.is_directory() ? 0700u : 0600u) << voce.path();
        ++visti;
    }
    EXPECT_GT(visti, 30);
}

// Wherever the start fails, the box comes and then the window, with no account loaded and the
// account chooser within reach.
TEST_F(AvvioTest, UnGuastoAllAvvioLasciaLaFinestra) {
    RecImposta altrove, senzaTrattino;
    altrove.PerAvv = (radice / "manca").string() + "/";
    senzaTrattino.Combo1 = "Euro";
    auto file = [](const fs::path& nome, Byte byte) { return [=] { ScriviFile(nome, byte); }; };
    auto cartella = [](const fs::path& nome) {
        return [=] { fs::remove(nome), fs::create_directory(nome); };
    };
    const std::pair<std::function<void()>, int> casi[] = {
        {[&] { ScriviImposta(altrove); }, 76},         {file(dati / "RecConti.dat", {101, 0}), 9},
        {file(programma / "RecCausa.dat", {0xFF}), 9}, // one byte: 255 causali
        {cartella(programma / "Valute.DAT"), 52},      {[&] { ScriviImposta(senzaTrattino); }, 5},
    };
    for (const auto& [guasta, numero] : casi) {
        SCOPED_TRACE(numero);
        fs::remove_all(programma);
        Avvia();
        guasta();
        Messaggi();
        Avvia();
        EXPECT_EQ(Messaggi(), (std::vector<std::string>{"FAILURE " + std::to_string(numero) + " " +
                                                        DescrizioneErrore(numero)}));
        EXPECT_EQ(Stato.NumConti, 0);
        ComandiConto(false);
        EXPECT_TRUE(Clic(Finestra().ApriConto));
        EXPECT_TRUE(app->Form7.S.Mostrato());
    }
}
} // namespace
