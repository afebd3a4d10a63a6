// The start of the program: the first start of an installation, the later ones, the data
// directory and the start account.
#include "tests/shell/Ambiente.h"

#include "shell/PrimoAvvio.h"
#include "store/Testo.h"

namespace {
// A text field as it lies on disk: one byte a character, blank-padded.
void Accoda(Byte& b, const std::string& testo, std::size_t larghezza) {
    std::string campo = testo + std::string(larghezza - testo.size(), ' ');
    b.insert(b.end(), campo.begin(), campo.end());
}

Byte CausaleSeme(unsigned char numero, const std::string& codice, const std::string& desc) {
    Byte b{numero, 0};
    Accoda(b, codice, 5);
    Accoda(b, desc, 25);
    Accoda(b, "SU1", 3);
    return b;
}

using AvvioTest = Ambiente;

TEST_F(AvvioTest, PrimoAvvioScriveICausaliELEuro) {
    Avvia();
    EXPECT_TRUE(Messaggi().empty());

    Byte causali = CausaleSeme(1, "AS", "ASSEGNO");
    for (const Byte& r : {CausaleSeme(2, "CA", "CARNET"), CausaleSeme(3, "GC", "GIROCONTO")})
        causali.insert(causali.end(), r.begin(), r.end());
    EXPECT_EQ(ContenutoFile(programma / "Causali.DAT"), causali);
    EXPECT_EQ(ContenutoFile(programma / "RecCausa.dat"), (Byte{3, 0}));

    // Records 1 to 14 never written: zeros up to record 15.
    Byte valute(14 * 60, 0);
    Byte euro{15, 0};
    Accoda(euro, "Euro", 25);
    for (unsigned char c : {0, 0, 0, 0, 0, 0, 0xF0, 0x3F})
        euro.push_back(c); // 1.0
    Accoda(euro, "Unione Europea", 25);
    valute.insert(valute.end(), euro.begin(), euro.end());
    EXPECT_EQ(ContenutoFile(programma / "Valute.DAT"), valute);

    // What the start only read is left behind empty.
    for (const fs::path& vuoto : {programma / "colori.col", programma / "Imposta.DAT",
                                  dati / "RecConti.dat", dati / "Conti.dat"}) {
        ASSERT_TRUE(fs::exists(vuoto)) << vuoto;
        EXPECT_EQ(fs::file_size(vuoto), 0u) << vuoto;
    }
    EXPECT_EQ(Stato.NumCausali, 3);
    EXPECT_EQ(Trim(Stato.Causali[3].DescCausale), "GIROCONTO");
}

TEST_F(AvvioTest, PrimoAvvioMostraIlBenvenutoEIComandiDelContoSpenti) {
    Avvia();
    Form1& benvenuto = app->Form1;
    EXPECT_EQ(benvenuto.S.Stato(), StatoSchermo::Visibile);
    EXPECT_EQ(benvenuto.S.Caption, "Informazioni");
    EXPECT_EQ(benvenuto.Label1.Text(), "MARENDOLA VERSIONE 1.00");
    EXPECT_EQ(benvenuto.Label2.Text(), "INFORMAZIONI PRELIMINARI ");
    EXPECT_EQ(benvenuto.Label3.Text(),
              "Attenzione ! Questo messaggio non verrà più mostrato in seguito");
    EXPECT_EQ(benvenuto.Text1.Text(), "Complimenti per la scelta che avete effettuato! "
                                      "dimostrate sin da ora di essere una persona "
                                      "intelligente. ");
    const std::string& resto = benvenuto.Text2.Text();
    EXPECT_EQ(resto.rfind("Per poter utilizzare correttamente il programma", 0), 0u);
    EXPECT_NE(resto.find("dovranno essere immessi successivamente.\nQuindi indicare"),
              std::string::npos);
    EXPECT_NE(resto.find("secondo leproprie esigenze"), std::string::npos);
    EXPECT_NE(resto.find("rapportate con L'Euro.\nSe i valori"), std::string::npos);
    EXPECT_NE(resto.find("altre valute. \nBuon lavoro"), std::string::npos);
    EXPECT_TRUE(resto.ends_with("per la gestione dei Vs. conti bancari."));

    MDIForm1& f = Finestra();
    EXPECT_EQ(f.S.Stato(), StatoSchermo::Visibile);
    for (Controllo* c : {&f.Files, &f.Stampe, &f.Visualizza, &f.Immissioni, &f.PulStampe,
                         &f.PulsMovimenti, &f.Manut, &f.BottCarnet, &f.Vista, &f.chiusure})
        EXPECT_FALSE(c->Enabled) << c->nome;
    for (Controllo* c : {&f.File, &f.NuovoConto, &f.ApriConto, &f.esci, &f.Command3D2})
        EXPECT_TRUE(c->Enabled) << c->nome;
    for (int i = 0; i <= 5; ++i)
        EXPECT_EQ(f.Saldi(i).Text(), "") << i;
    EXPECT_EQ(f.DescConto.Text(), "");
    EXPECT_EQ(f.Codice.Text(), programma.string() + "/dati/");

    benvenuto.Command1.Clicca();
    EXPECT_FALSE(benvenuto.S.Caricato());
}

TEST_F(AvvioTest, PrimoAvvioInstallaIFileFornitiSenzaToccareQuelliPresenti) {
    fs::create_directories(programma);
    std::ofstream(programma / "3.ICO") << "mia";
    Avvia();
    std::string forniti = fs::path(CartellaForniti()).string();
    ASSERT_FALSE(forniti.empty());
    for (int n = 1; n <= 15; ++n) {
        std::string nome = std::to_string(n) + ".ICO";
        ASSERT_TRUE(fs::exists(programma / nome)) << nome;
        if (n != 3) {
            EXPECT_EQ(ContenutoFile(programma / nome), ContenutoFile(fs::path(forniti) / nome));
        }
    }
    EXPECT_EQ(ContenutoFile(programma / "3.ICO"), (Byte{'m', 'i', 'a'}));
    EXPECT_EQ(ContenutoFile(programma / "Help01.txt"),
              ContenutoFile(fs::path(forniti) / "Help01.txt"));
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

TEST_F(AvvioTest, CausaliPotateNonSonoRiseminate) {
    Avvia();
    // The maintenance of the causali can leave none: the count says 0, the records stay.
    ScriviContatore((programma / "RecCausa.dat").string(), 0);
    Avvia();
    EXPECT_FALSE(app->Form1.S.Caricato());
    EXPECT_EQ(Stato.NumCausali, 0);
    EXPECT_EQ(ContenutoFile(programma / "RecCausa.dat"), (Byte{0, 0}));
}

TEST_F(AvvioTest, FormatoDegliImportiDaiDecimali) {
    struct Caso {
        const char* nome;
        std::int16_t decimali;
        const char* formato;
    } casi[] = {
        {"nessun decimale", 0, "#,###,###,##0"},
        {"due", 2, "#,###,###,##0.00"},
        {"quattro, solo da file", 4, "#,###,###,##0.0000"},
        {"oltre quattro", 5, ""},
        {"negativo", -1, ""},
    };
    for (const Caso& c : casi) {
        RecImposta imposta;
        imposta.decimali = c.decimali;
        fs::create_directories(programma);
        ScriviImposta(imposta);
        Avvia();
        EXPECT_EQ(Stato.FormatoImporti, c.formato) << c.nome;
    }
}

TEST_F(AvvioTest, PercorsoDatiDalPercorsoMemorizzato) {
    std::string programmaDati = programma.string() + "/dati/";
    std::string assoluto = (radice / "altrove").string() + "/";
    struct Caso {
        const char* nome;
        std::string memorizzato;
        std::string atteso;
    } casi[] = {
        {"vuoto", "", programmaDati},
        {"zero di un percorso vuoto", "0", programmaDati},
        {"assoluto", assoluto, assoluto},
        {"assoluto fra spazi", "  " + assoluto + " ", assoluto},
        {"lettera, relativo", "Archivio/", "Archivio/"},
        {"z, ultimo codice ammesso", "zeta/", "zeta/"},
        {"parentesi, dentro i codici ammessi", "[x]/", "[x]/"},
        {"graffa, oltre i codici ammessi", "{x}/", programmaDati},
        {"cifra", "1dati/", programmaDati},
    };
    for (const Caso& c : casi) {
        fs::create_directories(programma);
        RecImposta imposta;
        imposta.PerAvv = c.memorizzato;
        ScriviImposta(imposta);
        fs::create_directories(c.atteso);
        Avvia();
        EXPECT_EQ(Stato.PercorsoDati, c.atteso) << c.nome;
        EXPECT_EQ(Finestra().Codice.Text(), c.atteso) << c.nome;
        EXPECT_TRUE(fs::exists(fs::path(c.atteso) / "RecConti.dat")) << c.nome;
        EXPECT_TRUE(Messaggi().empty()) << c.nome;
    }
}

TEST_F(AvvioTest, PercorsoDatiCheNonEsisteFallisceAlPrimoFile) {
    fs::create_directories(programma);
    RecImposta imposta;
    imposta.PerAvv = (radice / "manca").string() + "/";
    ScriviImposta(imposta);
    Avvia();
    EXPECT_EQ(Messaggi(), (std::vector<std::string>{"FAILURE 76 " + DescrizioneErrore(76)}));
}

TEST_F(AvvioTest, ContoDiAvvio) {
    struct Caso {
        const char* nome;
        const char* memorizzato;
        bool aperto;
        std::vector<std::string> messaggi;
    } casi[] = {
        {"nessuno", "", false, {}},
        {"zero", "0", false, {}},
        {"lettera in testa: valore 0, mai aperto", "ABC", false, {}},
        {"assente dai conti",
         "123",
         false,
         {"[] il nr. di conto non esiste. ricontrollare i dati inseriti -> OK"}},
        {"presente", "12", true, {}},
        {"presente fra spazi", " 12 ", true, {}},
    };
    for (const Caso& c : casi) {
        fs::create_directories(dati);
        ScriviConto("12", "Banca di Prova", 1500.5);
        RecImposta imposta;
        imposta.decimali = 2;
        imposta.contAvv = c.memorizzato;
        ScriviImposta(imposta);
        Avvia();
        EXPECT_EQ(Messaggi(), c.messaggi) << c.nome;
        EXPECT_FALSE(porta.clessidra) << c.nome;

        MDIForm1& f = Finestra();
        for (Controllo* k : {&f.Files, &f.Stampe, &f.Visualizza, &f.Immissioni, &f.PulStampe,
                             &f.PulsMovimenti, &f.Manut, &f.BottCarnet, &f.Vista, &f.chiusure})
            EXPECT_EQ(k->Enabled, c.aperto) << c.nome << " " << k->nome;
        EXPECT_EQ(app->Form9.S.Mostrato(), c.aperto) << c.nome;
        if (c.aperto) {
            EXPECT_EQ(f.Codice.Text(), dati.string() + "/12") << c.nome;
            EXPECT_EQ(f.DescConto.Text(), "Banca di Prova") << c.nome;
            EXPECT_EQ(f.Saldi(2).Text(), "1.500,50") << c.nome;
            EXPECT_EQ(Stato.IndiceConto, 1) << c.nome;
            EXPECT_EQ(Stato.ContoAperto, 1) << c.nome;
            // A new account: its files come into being empty.
            EXPECT_TRUE(fs::exists(dati / "12.MOV")) << c.nome;
        } else {
            EXPECT_EQ(f.Codice.Text(), dati.string() + "/") << c.nome;
            EXPECT_EQ(f.DescConto.Text(), "") << c.nome;
            EXPECT_EQ(f.Saldi(2).Text(), "") << c.nome;
        }
    }
}
} // namespace
