// Backup and restore of Form18: all accounts to a folder and back into an empty data directory,
// and a folder that fills up or isn't there.
#include "AmbienteChiusura.h"

#include "closing/CopieBak.h"
#include "closing/Form18.h"

#include <sys/mount.h>

namespace {
class Backup : public AmbienteChiusura {
  protected:
    std::map<std::string, Byte> dati;

    // Two accounts: the open one, loaded once, and another whose files are plain bytes.
    void SetUp() override {
        AmbienteChiusura::SetUp();
        ScriviIn(File(".MOV"), Mov(1, "01/03/2001", "01/03/2001", 100, "E", "N"), 1);
        ScriviContatore(File(".MOR"), 1);
        Apri();
        for (std::string e : EstensioniCopia)
            ScriviFile(RisolviNome("ALTRO" + e), Byte(5, 'x'));
        Stato.NumConti = 2;
        Stato.Conti[1].CodConto = "CONTO12345";
        Stato.Conti[2].CodConto = "ALTRO";
        ScriviContatore(NomeFileDati("RecConti.dat"), 2);
        for (long i = 1; i <= 2; ++i)
            ScriviIn(NomeFileDati("Conti.dat"), Stato.Conti[i], i);
        dati = Cartella(".");
    }

    void Copia(const std::string& cartella, bool contoAttivo, short direzione) {
        Form18& f = app->Form18;
        f.S.Carica();
        f.Scelta.Percorso = cartella;
        (contoAttivo ? f.ContoAttivo : f.TuttiConti).SetValue(true);
        Stato.FlagOperazione = direzione;
        CopiaSicurezza();
    }
};

// The table of the accounts is that of the data directory, which had none; the rest comes back.
TEST_F(Backup, AllAccountsRestoredIntoAnEmptyDataDirectory) {
    fs::create_directory("copia");
    Copia("copia", false, 0);
    EXPECT_EQ(Cartella("copia").size(), 20u); // the two of the accounts, and 9 for each
    fs::create_directory("nuova");
    Stato.PercorsoDati = "nuova/";
    porta.risposte.push_back(Risposta::OK);
    Copia("copia", false, 1);
    auto nuova = Cartella("nuova");
    EXPECT_TRUE(nuova["RecConti.dat"].empty());
    for (auto* cartella : {&nuova, &dati}) {
        cartella->erase("RecConti.dat");
        cartella->erase("Conti.dat");
    }
    EXPECT_EQ(nuova, dati);
    EXPECT_EQ(Stato.CodContoAperto.Testo() + Str(Stato.SaldoUltimaData), "CONTO12345   100");
    EXPECT_FALSE(app->Form18.S.Caricato());
}

// The first file of the account goes to /dev/full, bound in its place, which refuses every
// write, even root's; a missing folder fails at once. Nothing in the data directory changes.
// Binding a file needs the right to mount: without it there is nothing to test.
TEST_F(Backup, FullDiskOrMissingFolderReachTheDiskFailureDialogue) {
    struct Caso {
        const char* cartella;
        std::vector<Risposta> risposte;
        std::vector<std::string> messaggi;
        std::size_t copiati;
    };
    const std::string pieno = "[Errore Disco] Disco pieno. Continuare? -> ";
    const std::string fine = "[] Errore irrecuperabile -> OK";
    const std::vector<Caso> casi = {
        {"pieno", {Risposta::Ignora}, {pieno + "Ignora"}, 8},
        {"pieno", {Risposta::Interrompi}, {pieno + "Interrompi", fine}, 0},
        // Riprova runs the copy again, which is given up; the first run goes on.
        {"pieno",
         {Risposta::Riprova, Risposta::Interrompi},
         {pieno + "Riprova", pieno + "Interrompi", fine},
         8},
        {"manca", {}, {"[Errore Disco] Il percorso non esiste -> OK", fine}, 0},
    };
    for (const Caso& caso : casi) {
        fs::remove_all("pieno");
        fs::create_directory("pieno");
        ScriviFile("pieno/CONTO12345.Ord", {});
        if (mount("/dev/full", "pieno/CONTO12345.Ord", nullptr, MS_BIND, nullptr) != 0)
            GTEST_SKIP() << "no right to mount";
        Messaggi();
        porta.risposte.assign(caso.risposte.begin(), caso.risposte.end());
        Copia(caso.cartella, true, 0);
        EXPECT_EQ(Messaggi(), caso.messaggi);
        EXPECT_EQ(Cartella("pieno").size(), caso.copiati);
        EXPECT_EQ(app->Form18.S.Caricato(), caso.copiati == 0);
        EXPECT_EQ(Cartella("."), dati);
        umount("pieno/CONTO12345.Ord");
    }
}
} // namespace
