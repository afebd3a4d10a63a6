// The start of the program: the first start of an installation, the later ones, the data
// directory and the start account.
#include "tests/Ambiente.h"

#include "shell/PrimoAvvio.h"
#include "store/Testo.h"

namespace {
// A text field as it lies on disk: one byte a character, blank-padded.
void Accoda(Byte& b, const std::string& testo, std::size_t larghezza) {
    std::string campo = testo + std::string(larghezza - testo.size(), ' ');
    b.insert(b.end(), campo.begin(), campo.end());
}

using AvvioTest = Ambiente;

TEST_F(AvvioTest, PrimoAvvioInstallaIFileFornitiSenzaToccareQuelliPresenti) {
    fs::create_directories(programma);
    ScriviFile(programma / "3.ICO", {'m', 'i', 'a'});
    Avvia();
    fs::path forniti = CartellaForniti();
    ASSERT_FALSE(forniti.empty());
    for (int n = 1; n <= 15; ++n) {
        std::string nome = std::to_string(n) + ".ICO";
        if (n != 3) EXPECT_EQ(ContenutoFile(programma / nome), ContenutoFile(forniti / nome));
    }
    EXPECT_EQ(ContenutoFile(programma / "3.ICO"), (Byte{'m', 'i', 'a'}));
    EXPECT_EQ(ContenutoFile(programma / "Help01.txt"), ContenutoFile(forniti / "Help01.txt"));
}

TEST_F(AvvioTest, SecondoAvvioSenzaBenvenutoNeSemina) {
    Avvia();
    Byte causali = ContenutoFile(programma / "Causali.DAT");
    Byte valute = ContenutoFile(programma / "Valute.DAT");
    Avvia();
    EXPECT_FALSE(app->Form1.S.Caricato());
    EXPECT_TRUE(Messaggi().empty());
    EXPECT_EQ(ContenutoFile(programma / "Causali.DAT"), causali);
    EXPECT_EQ(ContenutoFile(programma / "Valute.DAT"), valute);
}

TEST_F(AvvioTest, FormatoDegliImportiDaiDecimali) {
    const std::pair<std::int16_t, const char*> casi[] = {
        {0, "#,###,###,##0"}, {2, "#,###,###,##0.00"}, {4, "#,###,###,##0.0000"},
        {5, ""}, {-1, ""}};
    fs::create_directories(programma);
    for (const auto& [decimali, formato] : casi) {
        RecImposta imposta;
        imposta.decimali = decimali;
        ScriviImposta(imposta);
        Avvia();
        EXPECT_EQ(Stato.FormatoImporti, formato) << decimali;
    }
}

TEST_F(AvvioTest, PercorsoDatiDalPercorsoMemorizzato) {
    std::string programmaDati = programma.string() + "/dati/";
    std::string assoluto = (radice / "altrove").string() + "/";
    const std::pair<std::string, std::string> casi[] = {
        {"", programmaDati},
        {"0", programmaDati},
        {assoluto, assoluto},
        {"  " + assoluto + " ", assoluto},
        {"Archivio/", "Archivio/"},
        {"zeta/", "zeta/"}, // "z", the last code of a letter
        {"[x]/", "[x]/"},   // between the codes of "A" and "z"
        {"{x}/", programmaDati},
        {"1dati/", programmaDati},
    };
    Avvia();
    for (const auto& [memorizzato, atteso] : casi) {
        fs::create_directories(programma);
        RecImposta imposta;
        imposta.PerAvv = memorizzato;
        ScriviImposta(imposta);
        fs::create_directories(atteso);
        Avvia();
        EXPECT_EQ(Finestra().Codice.Text() + "|" + Stato.PercorsoDati, atteso + "|" + atteso);
        EXPECT_TRUE(Messaggi().empty()) << '"' << memorizzato << '"';
    }

    RecImposta imposta;
    imposta.PerAvv = (radice / "manca").string() + "/";
    ScriviImposta(imposta);
    Avvia();
    EXPECT_EQ(Messaggi(), (std::vector<std::string>{"FAILURE 76 " + DescrizioneErrore(76)}));
}

TEST_F(AvvioTest, ContoDiAvvio) {
    const std::pair<const char*, std::vector<std::string>> casi[] = {
        {"", {}},
        {"0", {}},
        {"ABC", {}}, // a letter first: value 0, never opened
        {"123", {"[] il nr. di conto non esiste. ricontrollare i dati inseriti -> OK"}},
        {"12", {}},
        {" 12 ", {}},
    };
    Avvia();
    for (const auto& [memorizzato, messaggi] : casi) {
        SCOPED_TRACE(std::string("\"") + memorizzato + "\"");
        fs::create_directories(dati);
        ScriviConto("12", "Banca di Prova", 1500.5);
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
}
} // namespace
