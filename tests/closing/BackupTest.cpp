// Backup and restore of Form18: all accounts to a folder and back into an empty data directory,
// and a folder that fills up or isn't there.
#include "AmbienteChiusura.h"

#include "closing/Form18.h"
#include "ledger/CaricaConto.h"
#include "ledger/Registro.h"

#include <vector>

namespace {
const char* const Estensioni[] = {".Ord", ".FOG", ".MOV", ".MOR", ".TOT",
                                  ".NRC", ".CAR", ".NRF", ".RIP"};

class Backup : public AmbienteChiusura {
protected:
    std::map<std::string, std::string> dati;

    // Two accounts: the open one, loaded once, and another whose files are plain bytes.
    void SetUp() override {
        AmbienteChiusura::SetUp();
        RecMovimento m;
        m.NrOper = 1;
        m.DataOper = m.DataValuta = "01/03/2001";
        m.Causale = "VS";
        m.IMPORTO = 100;
        m.Sospeso = m.Annullato = "N";
        m.D_A = "E";
        Scrivi(File(".MOV"), m, 1);
        ScriviContatore(File(".MOR"), 1);
        CaricaConto();
        ElencaPerOperazione();
        ScriviOrd();
        for (const char* e : Estensioni)
            std::ofstream(std::string("ALTRO") + e, std::ios::binary) << "altro" << e;
        Stato.NumConti = 2;
        Stato.Conti[1].CodConto = "CONTO12345";
        Stato.Conti[2].CodConto = "ALTRO";
        ScriviContatore(NomeFileDati("RecConti.dat"), 2);
        for (long i = 1; i <= 2; ++i) Scrivi(NomeFileDati("Conti.dat"), Stato.Conti[i], i);
        dati = Cartella(".");
        app->Form18.S.Carica();
    }

    void Copia(const std::string& cartella, bool contoAttivo, short direzione) {
        Form18& f = app->Form18;
        f.Scelta.Percorso = cartella;
        (contoAttivo ? f.ContoAttivo : f.TuttiConti).SetValue(true);
        Stato.FlagOperazione = direzione;
        CopiaSicurezza();
    }
};

TEST_F(Backup, AllAccountsRestoredIntoAnEmptyDataDirectory) {
    fs::create_directory("copia");
    Copia("copia", false, 0);
    auto copia = Cartella("copia");
    EXPECT_EQ(copia.size(), 20u);
    EXPECT_EQ(copia["RecConti.dat"], dati["RecConti.dat"]);
    EXPECT_EQ(copia["Conti.dat"], dati["Conti.dat"]);
    EXPECT_FALSE(app->Form18.S.Caricato());

    fs::create_directory("nuova");
    Stato.PercorsoDati = "nuova/";
    app->Form18.S.Carica();
    porta.risposte.push_back(Risposta::OK);
    Copia("copia", false, 1);
    auto nuova = Cartella("nuova");
    for (const char* stelo : {"CONTO12345", "ALTRO"})
        for (const char* e : Estensioni) {
            std::string nome = stelo + std::string(e);
            EXPECT_EQ(nuova[nome], dati[nome]) << nome;
        }
    // The table of the accounts is that of the data directory, which had none.
    EXPECT_EQ(Stato.NumConti, 0);
    EXPECT_EQ(Stato.FlagOperazione, 0);
    EXPECT_EQ(Stato.CodContoAperto.Testo(), "CONTO12345  ");
    EXPECT_DOUBLE_EQ(Stato.SaldoUltimaData, 100);
}

// The first file of the account goes to /dev/full, which refuses every write even to root.
TEST_F(Backup, FullDiskReachesTheDiskFailureDialogue) {
    struct Caso {
        std::vector<Risposta> risposte;
        std::vector<std::string> messaggi;
        std::size_t copiati;
        bool scaricato;
    };
    const std::string pieno = "[Errore Disco] Disco pieno. Continuare? -> ";
    const std::vector<Caso> casi = {
        {{Risposta::Ignora}, {pieno + "Ignora"}, 8, true},
        {{Risposta::Interrompi}, {pieno + "Interrompi", "[] Errore irrecuperabile -> OK"}, 0,
         false},
        // Riprova runs the copy again, which fails and is given up; the first run goes on.
        {{Risposta::Riprova, Risposta::Interrompi},
         {pieno + "Riprova", pieno + "Interrompi", "[] Errore irrecuperabile -> OK"},
         8,
         true},
    };
    for (const Caso& caso : casi) {
        fs::remove_all("pieno");
        fs::create_directory("pieno");
        fs::create_symlink("/dev/full", "pieno/CONTO12345.Ord");
        porta.messaggi.clear();
        porta.risposte.assign(caso.risposte.begin(), caso.risposte.end());
        app->Form18.S.Carica();
        Copia("pieno", true, 0);
        EXPECT_EQ(porta.messaggi, caso.messaggi);
        EXPECT_EQ(Cartella("pieno").size(), caso.copiati);
        EXPECT_EQ(app->Form18.S.Caricato(), !caso.scaricato);
        EXPECT_EQ(Cartella("."), dati);
    }
}

TEST_F(Backup, MissingFolderStopsWithNothingLost) {
    Copia("manca", false, 0);
    EXPECT_EQ(porta.messaggi,
              (std::vector<std::string>{"[Errore Disco] Il percorso non esiste -> OK",
                                        "[] Errore irrecuperabile -> OK"}));
    EXPECT_FALSE(fs::exists("manca"));
    EXPECT_EQ(Cartella("."), dati);
}
} // namespace
