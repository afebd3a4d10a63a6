// The page breaks of the list reports at their limits and one line past them, and the lines of
// the reports that no script prints: the cheque reports, whose tables no screen of this build
// fills yet, and the lists of all accounts.
#include "tests/Ambiente.h"

#include "interest/Staffa.h"
#include "refdata/Causali.h"
#include "reports/Stampe.h"
#include "store/Date.h"
#include "store/Guasto.h"
#include "store/Testo.h"

#include <algorithm>

namespace {
std::string Sp(int n) {
    return std::string(static_cast<std::size_t>(n), ' ');
}

RecAssegno Foglio(int numero, const std::string& data, double importo, const std::string& traente,
                  const std::string& note, const std::string& allineato,
                  const std::string& annullato) {
    RecAssegno a;
    a.NrCarnet = 3;
    a.NrAssegno = numero;
    a.DataAssegno = data;
    a.IMPORTO = importo;
    a.traente = traente;
    a.NoteAss = note;
    a.Allineato = allineato;
    a.AssegnoAnnullato = annullato;
    return a;
}
} // namespace

class StampeTest : public AmbienteConto {
  protected:
    void SetUp() override {
        AmbienteConto::SetUp();
        app->Form21.dal.SetText("01/01/2001");
        app->Form21.al.SetText("31/12/2001");
        app->Form21.Combo1.SetText(" TUTTE");
    }

    void Ord(const std::vector<RecMovimento>& movimenti) {
        ApriRecord(File(".Ord"), RecMovimento::Lunghezza, 1);
        for (std::size_t i = 0; i < movimenti.size(); ++i)
            ScriviRecord(movimenti[i], static_cast<long>(i + 1), 1);
        ChiudiRecord(1);
        Stato.NumMovimenti = static_cast<short>(movimenti.size());
    }

    // The printed text lines of the run, without the marks of fonts and pages.
    std::vector<std::string> Righe() const {
        std::vector<std::string> righe;
        for (const std::string& c : porta.carta)
            if (c.front() == '|') righe.push_back(c.substr(1, c.size() - 2));
        return righe;
    }
    long Pagine() const { return std::count(porta.carta.begin(), porta.carta.end(), "{page}") + 1; }
    // The empty lines just above the final rule: the end fill and the one line after it.
    int Riempimento() const {
        const std::vector<std::string> r = Righe();
        int n = 0;
        for (auto i = r.size() - 4; r[i].empty(); --i)
            ++n;
        return n;
    }
};

// Movements break at 53 lines or more, causali at exactly 57; each page's count starts at 1 with
// the line that opens it. The fill reaches 48 (movements) or 52 (causali) from the last count.
TEST_F(StampeTest, LaPaginaSiVoltaAlLimiteENonPrima) {
    struct Caso {
        bool movimenti;
        int righe;
        long pagine;
        int riempimento;
    };
    for (const Caso& c : {Caso{true, 52, 1, 1}, Caso{true, 53, 2, 48}, Caso{false, 56, 1, 1},
                          Caso{false, 57, 2, 52}}) {
        porta.carta.clear();
        if (c.movimenti) {
            Ord(std::vector<RecMovimento>(c.righe,
                                          Mov(1, "10/01/2001", "10/01/2001", 5, "E", "S")));
            StampaMovimenti();
        } else {
            Stato.NumCausali = static_cast<short>(c.righe);
            for (int j = 1; j <= c.righe; ++j)
                ScriviCausale(1, j);
            ScriviContatore(radice.string() + "/RecCausa.dat", Stato.NumCausali);
            StampaCausali();
        }
        SCOPED_TRACE(std::to_string(c.righe));
        EXPECT_EQ(Pagine(), c.pagine);
        EXPECT_EQ(Riempimento(), c.riempimento);
        if (c.pagine == 2) {
            auto piede = std::find(porta.carta.begin(), porta.carta.end(), "{page}");
            EXPECT_EQ(*(piede - 1), "|" + Sp(42) + "Pagina 1|");
        }
        EXPECT_EQ(Righe().back(),
                  Sp(43) + "Pagina " + std::to_string(c.pagine) + Sp(17) + ".....fine stampa");
    }
}

// A cheque's payee line counts without a look at the limit, so the count can step over 53: the
// next movement still breaks the page.
TEST_F(StampeTest, IlBeneficiarioContaESpingeOltreIlLimite) {
    Stato.NumAssegni = 1;
    Stato.Assegni[1] = Foglio(101, "15/02/2001", 200, "Mario Rossi", "Affitto", "N", "N");
    std::vector<RecMovimento> m(51, Mov(1, "10/01/2001", "10/01/2001", 5, "E", "S"));
    m.push_back(Mov(2, "15/02/2001", "15/02/2001", 200, "U", "N", "AS", "101"));
    m.push_back(Mov(3, "16/02/2001", "16/02/2001", 5, "E", "S"));
    Ord(m);
    StampaMovimenti();
    const std::vector<std::string> r = Righe();
    EXPECT_NE(std::find(r.begin(), r.end(), Sp(68) + "Affitto"), r.end());
    EXPECT_EQ(Pagine(), 2);
}

TEST_F(StampeTest, LeRigheDegliElenchi) {
    Stato.NumAssegni = 3;
    Stato.Assegni[1] = Foglio(101, "15/02/2001", 200, "Mario Rossi", "Affitto", "N", "N");
    Stato.Assegni[2] = Foglio(102, "20/02/2001", 0, "", "Errato", "S", "S");
    Stato.Assegni[3] = Foglio(103, "01/03/2001", 0, "", "", "N", "N");
    ApriRecord(File(".FOG"), RecAssegno::Lunghezza, 1);
    for (long j = 1; j <= 3; ++j)
        ScriviRecord(Stato.Assegni[j], j, 1);
    ChiudiRecord(1);
    Stato.NumCarnet = 1;
    RecCarnet c;
    c.NrCarnet = 3;
    c.DataCarnet = "01/02/2001";
    c.NrInf = 101;
    c.NrFinale = 110;
    c.Chiuso = "N";
    c.FogliFuori = 7;
    ApriRecord(File(".CAR"), RecCarnet::Lunghezza, 1);
    ScriviRecord(c, 1, 1);
    ChiudiRecord(1);
    RecConto& conto = Stato.Conti[1];
    conto.TipoConto = "Conto corrente";
    conto.NomeBanca = "Banca Uno";
    conto.Fido = 1500;
    conto.abi = "1234";
    conto.Cab = "5678";
    conto.id = "9";
    ApriRecord(radice.string() + "/Conti.dat", RecConto::Lunghezza, 1);
    ScriviRecord(conto, 1, 1);
    ChiudiRecord(1);
    RecTotali totali;
    totali.SaldoOperazione = -200;
    ApriRecord(File(".TOT"), RecTotali::Lunghezza, 1);
    ScriviRecord(totali, 1, 1);
    ChiudiRecord(1);
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
        // The summary's lines have no leading blank; a debit eats into the credit line.
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

// No book in the dates: one page, its head, the fill from a count of 0 (52 and one more line,
// beneath the head's own empty line) and the end mark.
TEST_F(StampeTest, UnaSelezioneVuotaEUnaPaginaSola) {
    StampaCarnet();
    EXPECT_EQ(Pagine(), 1);
    EXPECT_EQ(Riempimento(), 1 + 52 + 1);
    EXPECT_EQ(Righe().size(), 10u + 53 + 3);
    EXPECT_EQ(porta.carta.back(), "{end}");
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

// The ladder's print: 53 rows fill the first page (its count starts at 1 and breaks at 55) and
// end with no fill; the 54th opens the second, filled from 1 to 47.
TEST_F(StampeTest, LaStaffaVoltaPaginaAl54Riga) {
    for (int righe : {53, 54}) {
        porta.carta.clear();
        // One movement a day from dal: the rows are the day before and each of them.
        Stato.NumMovimenti = static_cast<short>(righe - 1);
        for (int i = 1; i < righe; ++i)
            Stato.Movimenti[i] =
                Mov(i, "01/01/2001", TestoDaGiorno(GiornoCalendario("01/01/2001") + i - 1), 5, "E",
                    "S");
        app->Staffa.dal.SetText("01/01/2001");
        app->Staffa.al.SetText(Stato.Movimenti[righe - 1].DataValuta.Testo());
        StampaStaffa();
        SCOPED_TRACE(std::to_string(righe));
        EXPECT_EQ(Pagine(), righe == 53 ? 1 : 2);
        EXPECT_EQ(Riempimento(), righe == 53 ? 0 : 46);
        EXPECT_EQ(Righe().back(),
                  Sp(43) + "Pagina " + std::to_string(Pagine()) + Sp(17) + ".....fine stampa");
    }
}
