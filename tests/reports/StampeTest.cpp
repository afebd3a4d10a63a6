// The page breaks of the reports at their limits and one line past them, and the lines of the
// reports that no script prints: the cheque reports and the lists of all accounts.
#include "tests/Ambiente.h"

#include "interest/Staffa.h"
#include "refdata/Causali.h"
#include "reports/Stampe.h"
#include "store/Date.h"

namespace {
std::string Sp(int n) {
    return std::string(static_cast<std::size_t>(n), ' ');
}

struct StampeTest : AmbienteConto {
    void SetUp() override {
        AmbienteConto::SetUp();
        app->Form21.dal.SetText("01/01/2001");
        app->Form21.al.SetText("31/12/2001");
        app->Form21.Combo1.SetText(" TUTTE");
    }

    // The movements of the list, in the order file and in memory.
    void Ord(const std::vector<RecMovimento>& movimenti) {
        for (std::size_t i = 0; i < movimenti.size(); ++i)
            ScriviIn(File(".Ord"), movimenti[i], static_cast<long>(i + 1));
        Stato.NumMovimenti = static_cast<short>(movimenti.size());
    }

    // The printed text lines of the run, without the marks of fonts and pages.
    std::vector<std::string> Righe() const {
        std::vector<std::string> righe;
        for (const std::string& c : porta.carta)
            if (c.front() == '|') righe.push_back(c.substr(1, c.size() - 2));
        return righe;
    }
};

// Cheque 101 of book 3, out for 200 to Mario Rossi. Sheets in field order: movement, sheet,
// book, number, date, amount, payee, note, aligned, available, cancelled.
RecAssegno Emesso() {
    return {0, 0, 3, 101, "15/02/2001", 200, "Mario Rossi", "Affitto", "N", "", "N"};
}

// The empty lines just above the final rule: the end fill and the one line after it.
int Riempimento(const std::vector<std::string>& r) {
    int n = 0;
    for (auto i = r.size() - 4; r[i].empty(); --i)
        ++n;
    return n;
}

// Movements break at 53 lines or more, causali at exactly 57; each page's count starts at 1 with
// the line that opens it. The fill reaches 48 (movements) or 52 (causali) from the last count,
// plus the one line after it. A cheque's payee line counts without a look at the limit: 50 + the
// cheque + its payee = 52, so the next movement is the 53rd; from 51 the count steps over 53 and
// the next movement still breaks the page. The ladder's count starts at 1 and breaks at 55: 53
// rows end page 1 with no fill, the 54th opens page 2, filled to 47 (46 lines).
TEST_F(StampeTest, LaPaginaSiVoltaAlLimiteENonPrima) {
    const RecMovimento cinque = Mov(1, "10/01/2001", "10/01/2001", 5, "E", "S");
    auto movimenti = [&](int n) {
        Ord(std::vector<RecMovimento>(n, cinque));
        StampaMovimenti();
    };
    auto causali = [](int n) {
        Stato.NumCausali = static_cast<short>(n);
        for (int j = 1; j <= n; ++j)
            ScriviCausale(1, j);
        ScriviContatore(NomeFileDati("RecCausa.dat"), Stato.NumCausali);
        StampaCausali();
    };
    auto beneficiario = [&](int n) {
        Stato.NumAssegni = 1;
        Stato.Assegni[1] = Emesso();
        std::vector<RecMovimento> m(n, cinque);
        m.push_back(Mov(2, "15/02/2001", "15/02/2001", 200, "U", "N", "AS", "101"));
        m.push_back(cinque);
        Ord(m);
        StampaMovimenti();
        const std::vector<std::string> r = Righe();
        EXPECT_NE(std::find(r.begin(), r.end(), Sp(68) + "Affitto"), r.end());
    };
    // One movement a day from dal: the rows are the day before and each of them.
    auto staffa = [&](int righe) {
        Stato.NumMovimenti = static_cast<short>(righe - 1);
        for (int i = 1; i < righe; ++i)
            Stato.Movimenti[i] =
                Mov(i, "01/01/2001", TestoDaGiorno(GiornoCalendario("01/01/2001") + i - 1), 5, "E",
                    "S");
        app->Staffa.dal.SetText("01/01/2001");
        app->Staffa.al.SetText(Stato.Movimenti[righe - 1].DataValuta.Testo());
        StampaStaffa();
    };
    struct Caso {
        std::function<void(int)> stampa;
        int righe;
        long pagine;
        int riempimento;
    };
    const std::vector<Caso> casi = {
        {movimenti, 52, 1, 1}, {movimenti, 53, 2, 48},    {causali, 56, 1, 1},
        {causali, 57, 2, 52},  {beneficiario, 50, 2, 48}, {beneficiario, 51, 2, 48},
        {staffa, 53, 1, 0},    {staffa, 54, 2, 46},
    };
    for (std::size_t i = 0; i < casi.size(); ++i) {
        SCOPED_TRACE(i);
        porta.carta.clear();
        casi[i].stampa(casi[i].righe);
        const std::vector<std::string> r = Righe();
        const auto& carta = porta.carta;
        const auto piede = std::find(carta.begin(), carta.end(), "{page}");
        EXPECT_EQ(std::count(carta.begin(), carta.end(), "{page}") + 1, casi[i].pagine);
        if (piede != carta.end()) {
            EXPECT_EQ(piede[-1], "|" + Sp(42) + "Pagina 1|");
        }
        EXPECT_EQ(Riempimento(r), casi[i].riempimento);
        EXPECT_EQ(r.back(), Sp(43) + "Pagina " + std::to_string(casi[i].pagine) + Sp(17) +
                                ".....fine stampa");
    }
}

TEST_F(StampeTest, LeRigheDegliElenchi) {
    Stato.NumAssegni = 3;
    Stato.Assegni[1] = Emesso();
    Stato.Assegni[2] = {0, 0, 3, 102, "20/02/2001", 0, "", "Errato", "S", "", "S"};
    Stato.Assegni[3] = {0, 0, 3, 103, "01/03/2001", 0, "", "", "N", "", "N"};
    for (long j = 1; j <= 3; ++j)
        ScriviIn(File(".FOG"), Stato.Assegni[j], j);
    Stato.NumCarnet = 1;
    ScriviIn(File(".CAR"), RecCarnet{0, 3, "01/02/2001", 0, 101, 110, "N", 7, "", 0}, 1);
    RecConto& conto = Stato.Conti[1];
    conto.TipoConto = "Conto corrente";
    conto.NomeBanca = "Banca Uno";
    conto.Fido = 1500;
    conto.abi = "1234";
    conto.Cab = "5678";
    conto.id = "9";
    ScriviIn(NomeFileDati("Conti.dat"), conto, 1);
    RecTotali totali;
    totali.SaldoOperazione = -200;
    ScriviIn(File(".TOT"), totali, 1);
    Ord({Mov(1, "15/02/2001", "16/02/2001", 200, "U", "N", "AS", "101"),
         Mov(2, "16/02/2001", "16/02/2001", 9, "U", "N", "PR", "101")});

    struct Caso {
        void (*stampa)();
        std::vector<std::string> corpo;
    };
    const std::vector<Caso> casi = {
        {StampaAssegni,
         {" 15/02/2001 16/02/2001         200,00          101  movimento 1" + Sp(11) + " " + Sp(7) +
          "3" + Sp(8) + "N"}},
        {StampaAnnullati,
         {" 20/02/2001" + Sp(9) + Sp(12) + "0" + Sp(10) + "102  Errato" + Sp(16) + " " + Sp(7) +
          "3" + Sp(11) + "S"}},
        {StampaCarnet,
         {Sp(5) + "01/02/2001" + Sp(6) + Sp(10) + "101" + Sp(11) + "10    " + Sp(10) + "110  " +
          " 7" + Sp(23) + "N"}},
        {StampaSituazione,
         {" 15/02/2001" + Sp(9) + "200,00" + Sp(10) + "101  Mario Rossi" + Sp(14) + " " + Sp(7) +
              "  3" + Sp(8),
          " 01/03/2001" + Sp(11) + "0,00" + Sp(10) + "103  Assegno non Emesso       " + " " +
              Sp(7) + "  3" + Sp(8)}},
        {StampaConti,
         {" 123" + Sp(9) + " Conto corrente  Banca Uno" + Sp(16) + "  " + Sp(5) + "1.500,00" +
          " 1234-5678-9"}},
        // The summary's lines have no leading blank; a debit eats into the credit line:
        // 1.500 - 200 = 1.300.
        {StampaRiepilogo,
         {Sp(5) + "123 Banca Uno" + Sp(23) + " " + Sp(6) + "-200,00 " + Sp(5) + "1.500,00 " +
              Sp(5) + "1.300,00",
          Sp(1) + std::string(94, '-'),
          Sp(35) + "Totali " + Sp(6) + "-200,00 " + Sp(5) + "1.500,00 " + Sp(5) + "1.300,00"}},
    };
    for (const Caso& caso : casi) {
        porta.carta.clear();
        caso.stampa();
        const std::vector<std::string> r = Righe();
        // The head holds 10 lines before the body.
        ASSERT_GT(r.size(), 10 + caso.corpo.size());
        EXPECT_EQ(std::vector<std::string>(r.begin() + 10, r.begin() + 10 + caso.corpo.size()),
                  caso.corpo);
        EXPECT_TRUE(r[10 + caso.corpo.size()].empty());
    }
}

// A date that can't be read fails the run: the pointer comes back and the sheet is thrown away.
TEST_F(StampeTest, UnaDataIllegibileButtaViaLaStampa) {
    Ord({Mov(1, "10/01/2001", "10/01/2001", 5, "E", "S")});
    app->Form21.al.SetText("31/02/2001");
    EXPECT_FALSE(EseguiEvento(StampaMovimenti));
    EXPECT_EQ(porta.messaggi.back(), "FAILURE 13 Tipo non corrispondente");
    EXPECT_EQ(porta.carta.back(), "{abandoned}");
    EXPECT_FALSE(porta.clessidra);
}
} // namespace
