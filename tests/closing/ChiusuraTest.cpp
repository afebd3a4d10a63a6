// The periodic close worked out by hand, its list on paper, and its undo, whole or after a cut;
// the backup of Form18 into a folder that fills up or isn't there.
#include "tests/Ambiente.h"

#include "closing/AnnullaChiusura.h"
#include "closing/Chiusura.h"
#include "closing/CopieBak.h"
#include "closing/Form18.h"
#include "ledger/CaricaConto.h"
#include "ledger/Registro.h"
#include "store/Testo.h"

#include <sys/mount.h>

namespace {
// Today 05/07/2001, close at 15/07/2001. Book 1 (cheques 1001-1010, none out, dated on the
// close day, the unissued sheets undated, which counts as early) is finished; book 2
// (2001-2010, 9 out) stays.
// Movement 7 is suspended and its NrDoc names cheque 2002; 10 is after today.
const std::vector<RecMovimento> movimenti = {
    Mov(1, "01/01/2001", "01/01/2001", 10, "U", "N", "CA", "1"),
    Mov(2, "10/01/2001", "10/01/2001", 100, "U", "N", "AS", "1001"),
    Mov(3, "15/01/2001", "15/01/2001", 50, "U", "N", "AS", "1002"),
    Mov(4, "01/02/2001", "01/02/2001", 10, "U", "S", "CA", "2"),
    Mov(5, "05/02/2001", "05/02/2001", 70, "U", "N", "AS", "2001"),
    Mov(6, "01/03/2001", "01/03/2001", 1000, "E", "N", "VS", ""),
    Mov(7, "10/03/2001", "10/03/2001", 300, "U", "S", "PR", "2002"),
    Mov(8, "20/03/2001", "20/03/2001", 200, "E", "S", "VS", ""),
    Mov(9, "01/06/2001", "01/06/2001", 500, "E", "N", "VS", ""),
    Mov(10, "10/07/2001", "10/07/2001", 40, "U", "N", "PR", ""),
    Mov(11, "20/07/2001", "20/07/2001", 25, "E", "N", "VS", "")};

// The open account's folder is the current directory, the data directory "./" and the program
// directory "prog/", so that "./" and the 10-character stem fill exactly the 12 characters of
// the owner field of .chi.
class Chiusura : public AmbienteConto {
  protected:
    std::map<std::string, Byte> originali;

    void SetUp() override {
        AmbienteConto::SetUp();
        fs::create_directory("prog");
        Stato.PercorsoDati = "./";
        Stato.PercorsoProgramma = "prog/";
        Stato.CodContoAperto = "CONTO12345";
        for (const RecMovimento& m : movimenti)
            ScriviIn(File(".MOV"), m, m.NrOper);
        ScriviContatore(File(".MOR"), 11);
        // Books: cost movement, number, date, cost, first and last cheque, closed, sheets out,
        // cost aligned, reserved.
        ScriviIn(File(".CAR"), RecCarnet{1, 1, "15/07/2001", 0, 1001, 1010, "N", 0, "", 0}, 1);
        ScriviIn(File(".CAR"), RecCarnet{4, 2, "01/02/2001", 0, 2001, 2010, "N", 9, "", 0}, 2);
        // Issued: 1001 and 1002 (movements 2, 3), 2001 (movement 5).
        const std::map<std::int16_t, std::int16_t> emessi = {{1, 2}, {2, 3}, {11, 5}};
        for (std::int16_t f = 1; f <= 20; ++f) {
            const std::int16_t c = f > 10 ? 2 : 1;
            RecAssegno a;
            a.NrFoglio = f;
            a.NrCarnet = c;
            a.NrAssegno = c * 1000 + (f - 1) % 10 + 1;
            if (emessi.count(f)) {
                a.NrMovimento = emessi.at(f);
                a.DataAssegno = movimenti[a.NrMovimento - 1].DataOper;
            }
            ScriviIn(File(".FOG"), a, f);
        }
        ScriviContatore(File(".NRC"), 2);
        ScriviContatore(File(".NRF"), 20);
        ScriviIn(File(".RIP"), RecRiporto{"31/12/2000", 1000}, 1);
        Apri();
        originali = Cartella(".");
    }

    void TearDown() override {
        GuastoAllaScrittura(0);
        AmbienteConto::TearDown();
    }

    static std::string File(const std::string& estensione) { return NomeFileConto(estensione); }

    // The account loaded from its files, as opening it does.
    static void Apri() {
        CaricaConto();
        ElencaPerOperazione();
        ScriviOrd();
    }

    // The owner text that lets the undo through, with the carried balance of before the close.
    void Annulla() {
        ScriviIn(File(".chi"), RecChiusura{"31/12/2000", 1000, "./CONTO12345"}, 1);
        porta.risposte.push_back(Risposta::OK);
        AnnullaChiusura();
    }

    bool CopieIntere() {
        return std::all_of(EstensioniCopia.begin(), EstensioniCopia.end(), [this](std::string e) {
            return ContenutoFile(NomeFileProgramma("Bak" + e)) == originali[File(e).substr(2)];
        });
    }

    void Chiudi() {
        porta.risposte.push_back(Risposta::OK);
        ChiusuraPeriodica("15/07/2001");
    }
};

TEST_F(Chiusura, ByHandThenUndoneByteForByte) {
    Chiudi();
    EXPECT_TRUE(CopieIntere());

    // Survivors 4, 5, 7, 8, 11 renumbered 1-5; the old records 6-11 stay behind the count.
    EXPECT_EQ(LeggiContatore(File(".MOR")), 5);
    const int vecchi[] = {4, 5, 7, 8, 11, 6, 7, 8, 9, 10, 11};
    for (int i = 1; i <= 11; ++i) {
        RecMovimento m = LeggiDa<RecMovimento>(File(".MOV"), i);
        EXPECT_EQ(Str(m.NrOper) + " " + Trim(m.DescMovim),
                  Str(i) + " movimento " + std::to_string(vecchi[i - 1]));
    }

    // Book 2 alone at record 1, MovCosto still the number of before the compaction (4). Its
    // sheets at 1-10, NrFoglio unchanged: 2001 to movement 2 (was 5), 2002 to the PR (now 3).
    EXPECT_EQ(LeggiContatore(File(".NRC")), 1);
    EXPECT_EQ(LeggiDa<RecCarnet>(File(".CAR"), 1).MovCosto, 4);
    EXPECT_EQ(LeggiContatore(File(".NRF")), 10);
    for (int k = 1; k <= 10; ++k) {
        RecAssegno a = LeggiDa<RecAssegno>(File(".FOG"), k);
        EXPECT_EQ(a.NrAssegno * 100 + a.NrFoglio, (2000 + k) * 100 + 10 + k);
        EXPECT_EQ(a.NrMovimento, k == 1 ? 2 : k == 2 ? 3 : 0) << k;
    }

    // Removed -10 -100 -50 +1000 +500 -40 = 1300, onto the 1000 carried.
    RecRiporto rip = LeggiDa<RecRiporto>(File(".RIP"), 1);
    EXPECT_EQ(rip.DataRiporto.Testo() + Str(rip.ImportoRiporto), "15/07/2001 2300");
    RecChiusura chi = LeggiDa<RecChiusura>(File(".chi"), 1);
    EXPECT_EQ(chi.DataRiporto.Testo() + chi.CodConto.Testo(), "31/12/2000CONTO12345  ");
    // Last: 2300 -10 -70 -300 +200 +25 = 2145, as before the close. Aligned: 2300 -70 +25.
    // Up to today: 2300 -10 -70 -300 +200, the -40 after today now in the carried balance.
    RecTotali t = LeggiDa<RecTotali>(File(".TOT"), 1);
    EXPECT_EQ(std::vector<double>(
                  {t.SaldoUltimaData, t.SaldoAllineamento, t.SaldoOperazione, t.SaldoValuta}),
              (std::vector<double>{2145, 2255, 2120, 2120}));

    // On paper in the order of the list, each line with the balance removed so far; causali CA
    // and AS are unknown: the description of the line before stays. 52 blank lines fill the
    // page to 58, then the foot.
    const auto& carta = porta.carta;
    auto prima = std::find_if(carta.begin(), carta.end(),
                              [](const std::string& c) { return c.starts_with("| 01/01/2001"); });
    ASSERT_GT(carta.end() - prima, 60);
    EXPECT_EQ(prima[0], "| 01/01/2001 01/01/2001           10,00                    -10,00  1 "
                        "movimento 1                   |");
    EXPECT_EQ(prima[4], "| 01/06/2001 01/06/2001                     500,00       1.340,00 "
                        "Versamento contanti  movimento 9                   |");
    EXPECT_EQ(prima[5], "| 10/07/2001 10/07/2001           40,00                  1.300,00 "
                        "Prelievo  movimento 10                  |");
    EXPECT_EQ(std::count(prima + 6, prima + 58, "||"), 52);
    EXPECT_EQ(prima[58], "| " + std::string(95, '-') + "|");
    EXPECT_EQ(prima[60], "|" + std::string(42, ' ') + "Pagina 1                 ....fine stampa|");

    Annulla();
    EXPECT_EQ(Cartella("."), originali);
}

// Cut at the n-th write, for every n up to a close that runs whole: the undo brings the account
// back each time; a cut among the copies leaves the account untouched.
TEST_F(Chiusura, CutAtEachWriteThenUndone) {
    for (long n = 1;; ++n) {
        for (const auto& [nome, byte] : originali)
            ScriviFile(nome, byte);
        Apri();
        porta.messaggi.clear();
        GuastoAllaScrittura(n);
        Chiudi();
        GuastoAllaScrittura(0);
        if (porta.messaggi.size() == 1) {
            EXPECT_GT(n, 40); // nine copies, and some forty writes of records
            break;
        }
        ASSERT_EQ(porta.messaggi.back(), "[] Errore irrecuperabile -> OK") << n;
        if (CopieIntere()) Annulla();
        EXPECT_EQ(Cartella("."), originali) << "cut at write " << n;
        fs::remove(File(".chi"));
    }
}

// Sixty removed movements of 1: 57 lines on page 1, the 58th opens page 2.
TEST_F(Chiusura, PagesOfFiftyEightLines) {
    for (int i = 1; i <= 60; ++i)
        ScriviIn(File(".MOV"), Mov(i, "01/03/2001", "01/03/2001", 1, "E", "N"), i);
    ScriviContatore(File(".MOR"), 60);
    Apri();
    Chiudi();
    const auto& carta = porta.carta;
    auto pagina = std::find(carta.begin(), carta.end(), "{page}");
    ASSERT_NE(pagina, carta.end());
    EXPECT_EQ(pagina[-1], "|" + std::string(42, ' ') + "Pagina 1|");
    EXPECT_NE(pagina[-4].find("          57,00 "), std::string::npos);
    EXPECT_NE(pagina[18].find("          58,00 "), std::string::npos); // after 17 of head
    EXPECT_EQ(carta[carta.size() - 2],
              "|" + std::string(42, ' ') + "Pagina 2                 ....fine stampa|");
}

// The first file of the account goes to /dev/full, bound in its place, which refuses every
// write, even root's; a missing folder fails at once. Nothing in the data directory changes.
// Binding a file needs the right to mount: without it there is nothing to test.
TEST_F(Chiusura, BackupOnAFullDiskOrAMissingFolder) {
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
        Form18& f = app->Form18;
        f.S.Carica();
        f.Scelta.Percorso = caso.cartella;
        f.ContoAttivo.SetValue(true);
        CopiaSicurezza();
        EXPECT_EQ(Messaggi(), caso.messaggi);
        EXPECT_EQ(Cartella("pieno").size(), caso.copiati);
        EXPECT_EQ(app->Form18.S.Caricato(), caso.copiati == 0);
        EXPECT_EQ(Cartella("."), originali);
        umount("pieno/CONTO12345.Ord");
    }
}
} // namespace
