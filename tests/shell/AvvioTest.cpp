// The start of the program: what a first start installs and a later one leaves alone, the
// stored preferences it follows, the currency it takes, the failures it survives, and the modes
// of what it makes.
#include "tests/Ambiente.h"

#include "ledger/Registro.h"
#include "shell/PrimoAvvio.h"
#include "store/Testo.h"

#include <tuple>

#include <sys/stat.h>

namespace {
struct AvvioTest : Ambiente {
    // A start after the preferences have been stored as `cambia` sets them.
    void AvviaCon(const std::function<void(RecImposta&)>& cambia) {
        RecImposta imposta;
        cambia(imposta);
        ScriviImposta(imposta);
        Avvia();
    }
    // An installation that has started once, with some of the rates entered, started again.
    void Installa(const std::string& valuta, const std::string& conto = "") {
        Avvia();
        Messaggi();
        ScriviValuta(2, "Franco", "Belgio", 40.3399);
        ScriviValuta(5, "Franco", "Francia", 6.55957);
        ScriviValuta(7, "Lira", "Italia", 1936.27);
        AvviaCon([&](RecImposta& i) { i.decimali = 2, i.Combo1 = valuta, i.contAvv = conto; });
    }
};

// The first start installs the files that come with the program, leaving those present alone;
// a later one seeds nothing, even with Valute.DAT lost: no welcome, no Euro, the same causali.
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
        fs::create_directories(atteso);
        AvviaCon([&](RecImposta& i) { i.PerAvv = memorizzato; });
        EXPECT_EQ(Finestra().Codice.Text() + "|" + Stato.PercorsoDati, atteso + "|" + atteso);
        EXPECT_TRUE(Messaggi().empty()) << '"' << memorizzato << '"';
    }
}

TEST_F(AvvioTest, ValutaPredefinitaCercataPerNome) {
    const std::tuple<const char*, const char*, double> casi[] = {
        // No default: line 0, whose text belongs to no record, so the rate stays as it was.
        {"", " - ", 1},
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

// The account of the start in Lire, then at each rate chosen; and the modes of all that the
// start, the account and its new movement make, under a umask that would open them to the group.
TEST_F(AvvioTest, IlContoDiAvvioAlCambioDiOgniScelta) {
    const std::pair<const char*, std::vector<std::string>> casi[] = {
        {"ABC", {}}, // a letter first: value 0, never opened
        {"123", {"[] il nr. di conto non esiste. ricontrollare i dati inseriti -> OK"}},
        {" 12 ", {}},
    };
    mode_t prima = umask(002);
    Avvia();
    ScriviConto("12", "Banca di Prova", 1000);
    ScriviIn(dati / "12.MOV", Mov(1, "15/03/2001", "15/03/2001", 1234.56, "E", "N"), 1);
    ScriviContatore((dati / "12.MOR").string(), 1);
    for (const auto& [memorizzato, messaggi] : casi) {
        SCOPED_TRACE(memorizzato);
        Installa("Lira - Italia", memorizzato);
        EXPECT_EQ(Messaggi(), messaggi);
        EXPECT_FALSE(porta.clessidra);
        const bool aperto = Trim(memorizzato) == "12";
        ComandiConto(aperto);
        EXPECT_EQ(app->Form9.S.Mostrato(), aperto);
    }
    // 1000 * 1936,27 = 1.936.270; 1234,56 * 1936,27 = 2.390.441,4912.
    MDIForm1& f = Finestra();
    const Controllo& elenco = app->Form9.ElencoMovim;
    EXPECT_EQ(f.Codice.Text() + "|" + f.DescConto.Text() + "|" + f.Saldi(2).Text(),
              dati.string() + "/12|Banca di Prova|1.936.270,00");
    EXPECT_TRUE(elenco.List(0).ends_with("   2.390.441,49 *")) << elenco.List(0);
    // France's rate, which a line never written then keeps: 1000 * 6,55957 = 6.559,57.
    Seleziona(f.Combo1, "Franco - Francia");
    Seleziona(f.Combo1, " - ");
    EXPECT_EQ(f.Saldi(2).Text(), "6.559,57");
    Seleziona(f.Combo1, "Euro");
    for (int i : {0, 1, 3, 4})
        EXPECT_EQ(f.Saldi(i).Text(), "1.234,56") << i;
    EXPECT_EQ(f.Saldi(2).Text(), "1.000,00");
    // The availability through whole numbers: 1000 + 1234,56 = 2234,56, rounded to 2235.
    EXPECT_EQ(f.Saldi(5).Text(), "2.235,00");
    EXPECT_TRUE(elenco.List(0).ends_with("   1.234,56 *")) << elenco.List(0);
    // Lira is line 14 of the combo, after eleven lines never written, Euro and two Franchi.
    fs::remove(programma / "15.ICO");
    EXPECT_FALSE(EseguiEvento([&] { f.Combo1.SetListIndex(14); }));
    EXPECT_EQ(Messaggi(), (std::vector<std::string>{"FAILURE 53 " + DescrizioneErrore(53)}));
    EXPECT_EQ(f.Saldi(2).Text(), "1.000,00");

    Stato.Movimenti[++Stato.NumMovimenti] = Mov(2, "01/03/2001", "01/03/2001", 5, "E", "N");
    EXPECT_TRUE(EseguiEvento(AggiungiMovimento));
    umask(prima);
    EXPECT_EQ(fs::file_size(dati / "12.MOV"), 2 * RecMovimento::Lunghezza);
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
