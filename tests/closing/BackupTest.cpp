// The backup of Form18 into a folder that fills up or isn't there.
#include "AmbienteChiusura.h"

#include "closing/CopieBak.h"
#include "closing/Form18.h"

#include <sys/mount.h>

namespace {
class Backup : public AmbienteChiusura {
  protected:
    std::map<std::string, Byte> dati;

    void SetUp() override {
        AmbienteChiusura::SetUp();
        ScriviIn(File(".MOV"), Mov(1, "01/03/2001", "01/03/2001", 100, "E", "N"), 1);
        ScriviContatore(File(".MOR"), 1);
        Apri();
        dati = Cartella(".");
    }

    // The open account's backup into `cartella`.
    void Copia(const std::string& cartella) {
        Form18& f = app->Form18;
        f.S.Carica();
        f.Scelta.Percorso = cartella;
        f.ContoAttivo.SetValue(true);
        CopiaSicurezza();
    }
};

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
        Copia(caso.cartella);
        EXPECT_EQ(Messaggi(), caso.messaggi);
        EXPECT_EQ(Cartella("pieno").size(), caso.copiati);
        EXPECT_EQ(app->Form18.S.Caricato(), caso.copiati == 0);
        EXPECT_EQ(Cartella("."), dati);
        umount("pieno/CONTO12345.Ord");
    }
}
} // namespace
