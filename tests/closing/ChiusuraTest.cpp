// The periodic close worked out by hand, its list on paper, and its undo, whole or after a cut.
#include "AmbienteChiusura.h"

#include "closing/AnnullaChiusura.h"
#include "closing/Chiusura.h"
#include "ledger/CaricaConto.h"
#include "ledger/Registro.h"

#include <vector>

namespace {
RecCarnet Libretto(int nr, const std::string& data, int inf, int fogliFuori, int movCosto) {
    RecCarnet c;
    c.MovCosto = static_cast<std::int16_t>(movCosto);
    c.NrCarnet = static_cast<std::int16_t>(nr);
    c.DataCarnet = data;
    c.CostoCarnet = 10;
    c.NrInf = inf;
    c.NrFinale = inf + 9;
    c.Chiuso = "N";
    c.FogliFuori = static_cast<std::int16_t>(fogliFuori);
    c.CostoAllineato = "N";
    return c;
}

RecAssegno Foglio(int record, int carnet, int numero, const std::string& data, int movimento) {
    RecAssegno a;
    a.NrMovimento = static_cast<std::int16_t>(movimento);
    a.NrFoglio = static_cast<std::int16_t>(record);
    a.NrCarnet = static_cast<std::int16_t>(carnet);
    a.NrAssegno = numero;
    a.DataAssegno = data;
    return a;
}

// Today 05/07/2001, close at 15/07/2001 (date number 732366 + 181 + 15 = 732562).
// Book 1 (1001-1010) is finished: no sheet out, all ten dated by the close (the unissued ones
// blank, which counts as 0). Book 2 (2001-2010) has 9 sheets out and stays.
std::vector<RecMovimento> Movimenti() {
    return {
        // Book 1: its cost and two cheques go with it.
        Mov(1, "01/01/2001", "01/01/2001", 10, "U", "N", "CA", "1"),
        Mov(2, "10/01/2001", "10/01/2001", 100, "U", "N", "AS", "1001"),
        Mov(3, "15/01/2001", "15/01/2001", 50, "U", "N", "AS", "1002"),
        // Book 2: its cost (suspended) and a cheque stay.
        Mov(4, "01/02/2001", "01/02/2001", 10, "U", "S", "CA", "2"),
        Mov(5, "05/02/2001", "05/02/2001", 70, "U", "N", "AS", "2001"),
        // Aligned: goes.
        Mov(6, "01/03/2001", "01/03/2001", 1000, "E", "N", "VS", ""),
        // Suspended, so it stays; its NrDoc is the number of a sheet of book 2.
        Mov(7, "10/03/2001", "10/03/2001", 300, "U", "S", "PR", "2002"),
        Mov(8, "20/03/2001", "20/03/2001", 200, "E", "S", "VS", ""),
        // Aligned: go, the second dated after today.
        Mov(9, "01/06/2001", "01/06/2001", 500, "E", "N", "VS", ""),
        Mov(10, "10/07/2001", "10/07/2001", 40, "U", "N", "PR", ""),
        // After the close: stays.
        Mov(11, "20/07/2001", "20/07/2001", 25, "E", "N", "VS", ""),
    };
}

class Chiusura : public AmbienteChiusura {
protected:
    std::map<std::string, std::string> originali;

    void SetUp() override {
        AmbienteChiusura::SetUp();
        auto movimenti = Movimenti();
        for (std::size_t i = 0; i < movimenti.size(); ++i)
            Scrivi(File(".MOV"), movimenti[i], static_cast<long>(i + 1));
        ScriviContatore(File(".MOR"), 11);
        Scrivi(File(".CAR"), Libretto(1, "01/01/2001", 1001, 0, 1), 1);
        Scrivi(File(".CAR"), Libretto(2, "01/02/2001", 2001, 9, 4), 2);
        ScriviContatore(File(".NRC"), 2);
        for (int k = 1; k <= 20; ++k) {
            int carnet = k <= 10 ? 1 : 2, numero = carnet * 1000 + (k - 1) % 10 + 1;
            std::string data = numero == 1001 ? "10/01/2001"
                               : numero == 1002 ? "15/01/2001"
                               : numero == 2001 ? "05/02/2001" : "";
            int movimento = numero == 1001 ? 2 : numero == 1002 ? 3 : numero == 2001 ? 5 : 0;
            Scrivi(File(".FOG"), Foglio(k, carnet, numero, data, movimento), k);
        }
        ScriviContatore(File(".NRF"), 20);
        RecRiporto riporto;
        riporto.DataRiporto = "31/12/2000";
        riporto.ImportoRiporto = 1000;
        Scrivi(File(".RIP"), riporto, 1);
        Apri();
        originali = Cartella(".");
    }

    // What opening the account does.
    void Apri() {
        CaricaConto();
        ElencaPerOperazione();
        ScriviOrd();
    }

    // The owner text that lets the undo through, with the carried balance of before the close.
    void ChiCheAccetta() {
        RecChiusura chi;
        chi.DataRiporto = "31/12/2000";
        chi.ImportoRiporto = 1000;
        chi.CodConto = "./CONTO12345";
        Scrivi(File(".chi"), chi, 1);
    }

    void Annulla() {
        porta.risposte.push_back(Risposta::OK);
        AnnullaChiusura();
    }
};

TEST_F(Chiusura, ByHandThenUndoneByteForByte) {
    porta.risposte.push_back(Risposta::OK);
    ChiusuraPeriodica("15/07/2001");

    // Survivors renumbered; behind the count the old records 6 to 11 stay.
    auto mov = Movimenti();
    EXPECT_EQ(LeggiContatore(File(".MOR")), 5);
    const int sopravvissuti[] = {4, 5, 7, 8, 11};
    for (int i = 0; i < 5; ++i) {
        RecMovimento atteso = mov[static_cast<std::size_t>(sopravvissuti[i] - 1)];
        atteso.NrOper = static_cast<std::int16_t>(i + 1);
        RecMovimento letto = LeggiUno<RecMovimento>(File(".MOV"), i + 1);
        EXPECT_EQ(letto.NrOper, atteso.NrOper);
        EXPECT_EQ(letto.DescMovim, atteso.DescMovim);
        EXPECT_EQ(letto.Annullato, "N");
    }
    for (int i = 6; i <= 11; ++i)
        EXPECT_EQ(LeggiUno<RecMovimento>(File(".MOV"), i).NrOper, i);

    // Book 2 alone, compacted to record 1, with MovCosto of before the compaction (4).
    EXPECT_EQ(LeggiContatore(File(".NRC")), 1);
    RecCarnet c = LeggiUno<RecCarnet>(File(".CAR"), 1);
    EXPECT_EQ(c.NrCarnet, 2);
    EXPECT_EQ(c.MovCosto, 4);
    // Its ten sheets at records 1-10: 2001 to movement 2 (old 5), 2002 taken over by the
    // suspended PR of NrDoc "2002", now movement 3; NrFoglio keeps the old record number.
    EXPECT_EQ(LeggiContatore(File(".NRF")), 10);
    const int movimentoFoglio[] = {2, 3, 0, 0, 0, 0, 0, 0, 0, 0};
    for (int k = 1; k <= 10; ++k) {
        RecAssegno a = LeggiUno<RecAssegno>(File(".FOG"), k);
        EXPECT_EQ(a.NrAssegno, 2000 + k);
        EXPECT_EQ(a.NrCarnet, 2);
        EXPECT_EQ(a.NrFoglio, 10 + k);
        EXPECT_EQ(a.NrMovimento, movimentoFoglio[k - 1]) << k;
    }

    // Removed: -10 -100 -50 +1000 +500 -40 = 1300, onto the 1000 carried.
    RecRiporto rip = LeggiUno<RecRiporto>(File(".RIP"), 1);
    EXPECT_EQ(rip.DataRiporto, "15/07/2001");
    EXPECT_DOUBLE_EQ(rip.ImportoRiporto, 2300);
    RecChiusura chi = LeggiUno<RecChiusura>(File(".chi"), 1);
    EXPECT_EQ(chi.DataRiporto, "31/12/2000");
    EXPECT_DOUBLE_EQ(chi.ImportoRiporto, 1000);
    EXPECT_EQ(chi.CodConto.Testo(), "CONTO12345  ");

    // 2300 -10 -70 -300 +200 +25: the last balance is that of before (1000 + all = 2145);
    // aligned 2300 -70 +25; by date up to today 2300 -10 -70 -300 +200, so the -40 dated
    // after today now counts through the carried balance.
    RecTotali t = LeggiUno<RecTotali>(File(".TOT"), 1);
    EXPECT_DOUBLE_EQ(t.SaldoUltimaData, 2145);
    EXPECT_DOUBLE_EQ(t.SaldoAllineamento, 2255);
    EXPECT_DOUBLE_EQ(t.SaldoOperazione, 2120);
    EXPECT_DOUBLE_EQ(t.SaldoValuta, 2120);

    // The copies are the files of before the close.
    for (const char* e : {".Ord", ".FOG", ".MOV", ".MOR", ".TOT", ".NRC", ".CAR", ".NRF", ".RIP"})
        EXPECT_EQ(Contenuto(std::string("prog/Bak") + e), originali["CONTO12345" + std::string(e)])
            << e;

    // The list: six lines, the causale of CA and AS unknown, so the last known description.
    const std::vector<std::string> righe = {
        " 01/01/2001 01/01/2001           10,00                    -10,00  1 movimento 1",
        " 10/01/2001 10/01/2001          100,00                   -110,00  1001 movimento 2",
        " 15/01/2001 15/01/2001           50,00                   -160,00  1002 movimento 3",
        " 01/03/2001 01/03/2001                   1.000,00         840,00 Versamento contanti  "
        "movimento 6",
        " 01/06/2001 01/06/2001                     500,00       1.340,00 Versamento contanti  "
        "movimento 9",
        " 10/07/2001 10/07/2001           40,00                  1.300,00 Prelievo  movimento 10",
    };
    auto& carta = porta.carta;
    auto testata = std::find(carta.begin(), carta.end(),
                             "|  al 15/07/2001               Getione conto corrente|");
    ASSERT_NE(testata, carta.end());
    auto riga = std::find(testata, carta.end(), "| " + std::string(95, '-') + "|");
    ASSERT_NE(riga, carta.end());
    riga += 4;    // the rule, the heading, the rule, a blank line
    for (const std::string& r : righe) {
        ASSERT_NE(riga, carta.end());
        // DescMovim keeps its 30 characters.
        std::size_t descrizione = r.size() - r.rfind("movimento");
        EXPECT_EQ(*riga++, "|" + r + std::string(30 - descrizione, ' ') + "|");
    }
    // Blank lines up to line 58: 52 after the six.
    EXPECT_EQ(std::count(riga, riga + 52, "||"), 52);
    EXPECT_EQ(carta.back(), "{end}");
    EXPECT_EQ(carta[carta.size() - 2], "|                                          Pagina 1"
                                        "                 ....fine stampa|");
    EXPECT_EQ(std::count(carta.begin(), carta.end(), "{page}"), 0);

    // Refused as the owner text is only the stem.
    Annulla();
    EXPECT_EQ(porta.messaggi.back(), "[Errore]  I dati che si tenta di recuperare appartengono "
                                     "ad un altro conto, operazione annullata -> OK");
    ChiCheAccetta();
    Annulla();
    EXPECT_EQ(Cartella("."), originali);
}

// A close cut at the n-th write, for every n up to a close that runs whole; the undo brings the
// account back each time. A cut among the copies leaves the account untouched.
TEST_F(Chiusura, CutAtEachWriteThenUndone) {
    for (long n = 1;; ++n) {
        for (const auto& [nome, byte] : originali) {
            std::ofstream(nome, std::ios::binary | std::ios::trunc) << byte;
        }
        fs::remove(File(".chi"));
        Apri();
        porta.messaggi.clear();
        porta.risposte.push_back(Risposta::OK);
        GuastoAllaScrittura(n);
        ChiusuraPeriodica("15/07/2001");
        GuastoAllaScrittura(0);
        if (porta.messaggi.size() == 1) {    // the question alone: the close ran whole
            EXPECT_GT(n, 40);    // nine copies, and some forty writes of records
            break;
        }
        ASSERT_EQ(porta.messaggi.back(), "[] Errore irrecuperabile -> OK") << n;
        bool copieIntere = true;
        for (const char* e :
             {".Ord", ".FOG", ".MOV", ".MOR", ".TOT", ".NRC", ".CAR", ".NRF", ".RIP"})
            copieIntere &= Contenuto(std::string("prog/Bak") + e) ==
                           originali["CONTO12345" + std::string(e)];
        if (!copieIntere) {
            EXPECT_EQ(Cartella("."), originali) << n;
            continue;
        }
        ChiCheAccetta();
        Annulla();
        EXPECT_EQ(Cartella("."), originali) << "cut at write " << n;
    }
}

// Sixty removed movements: 57 lines on the first page, the break at the 58th.
TEST_F(Chiusura, PagesOfFiftyEightLines) {
    for (int i = 1; i <= 60; ++i)
        Scrivi(File(".MOV"), Mov(i, "01/03/2001", "01/03/2001", 1, "E", "N", "VS", ""), i);
    ScriviContatore(File(".MOR"), 60);
    ScriviContatore(File(".NRC"), 0);
    ScriviContatore(File(".NRF"), 0);
    Apri();
    porta.carta.clear();
    porta.risposte.push_back(Risposta::OK);
    ChiusuraPeriodica("15/07/2001");
    const auto& carta = porta.carta;
    auto pagina = std::find(carta.begin(), carta.end(), "{page}");
    ASSERT_NE(pagina, carta.end());
    EXPECT_EQ(*(pagina - 1), "|                                          Pagina 1|");
    // Line 57 on page 1 shows a balance of 57, line 58 is the first of page 2.
    EXPECT_NE((pagina - 4)->find("          57,00 "), std::string::npos);
    auto dopo = std::find_if(pagina, carta.end(), [](const std::string& r) {
        return r.find("          58,00 ") != std::string::npos;
    });
    ASSERT_NE(dopo, carta.end());
    EXPECT_EQ(std::count(pagina, carta.end(), "{page}"), 1);
    // Three lines on page 2, then 55 blank ones to line 58.
    EXPECT_EQ(std::count(dopo + 3, dopo + 58, "||"), 55);
    EXPECT_EQ(carta[carta.size() - 2], "|                                          Pagina 2"
                                        "                 ....fine stampa|");
    EXPECT_DOUBLE_EQ(LeggiUno<RecRiporto>(File(".RIP"), 1).ImportoRiporto, 1060);
}
} // namespace
