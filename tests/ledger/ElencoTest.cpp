#include "tests/Ambiente.h"

#include "ledger/ElencoMovimenti.h"

// Today is 05/07/2001; amounts with two decimals at the rate 1. Causale VS reads "Versamento
// contanti" in the list (its first 20 characters, trimmed), PR "Prelievo".

namespace {
std::string Sp(int n) { return std::string(static_cast<std::size_t>(n), ' '); }

// Five movements entered in date order, so that .Ord and .MOV agree, carried balance 100.
// Running balance over all of them: 100, 1100, 900, 1200, 1150, 1175.50.
std::vector<RecMovimento> Cinque() {
    return {
        Mov(1, "10/01/2001", "10/01/2001", 1000, "E", "N", "VS"),
        Mov(2, "15/02/2001", "16/02/2001", 200, "U", "S", "PR", "7"),
        Mov(3, "20/03/2001", "20/03/2001", 300, "E", "S", "VS"),
        Mov(4, "10/04/2001", "10/04/2001", 50, "U", "N", "PR"),
        Mov(5, "05/05/2001", "05/05/2001", 25.5, "E", "S", "VS"),
    };
}

std::string Trenta(const std::string& testo) {
    return testo + Sp(30 - static_cast<int>(testo.size()));
}
} // namespace

class ElencoTest : public AmbienteConto {
protected:
    Form11& l() { return app->Form11; }

    // The account loaded by the entry screen, which writes .Ord, then the list on top of it.
    void Apri(const std::vector<RecMovimento>& movimenti, double riporto) {
        ScriviMovimenti(movimenti);
        ScriviRiporto(riporto);
        app->Form9.S.Show();
        l().S.Show();
    }

    void Filtra(const std::string& dal, const std::string& al, int causale = 0) {
        l().DataOper.SetText(dal);
        l().DataFinale.SetText(al);
        l().Combo1.SetListIndex(causale);
        l().OK.Clicca();
    }

    const std::vector<std::string>& Righe() { return l().List1.Righe(); }
};

struct CasoRiporto {
    const char* nome;
    double importo;
    std::string riga;
    std::string primoSaldo;   // after a first movement of 40 in
};

class RiportoTest : public ElencoTest, public ::testing::WithParamInterface<CasoRiporto> {};

// Zero and below: one blank, the amount, eleven blanks; above zero ten blanks ahead of it.
INSTANTIATE_TEST_SUITE_P(
    Elenco, RiportoTest,
    ::testing::Values(
        CasoRiporto{"positivo", 1000,
                    "31/12/2000" + Sp(12) + Sp(10) + Sp(7) + "1.000,00" + Sp(7) + "1.000,00" +
                        "  Riporto Chiusura precedente",
                    Sp(7) + "1.040,00"},
        CasoRiporto{"negativo", -250.5,
                    "31/12/2000" + Sp(12) + Sp(1) + Sp(8) + "-250,50" + Sp(11) + Sp(8) +
                        "-250,50" + "  Riporto Chiusura precedente",
                    Sp(8) + "-210,50"},
        CasoRiporto{"zero_come_negativo", 0,
                    "31/12/2000" + Sp(12) + Sp(1) + Sp(11) + "0,00" + Sp(11) + Sp(11) + "0,00" +
                        "  Riporto Chiusura precedente",
                    Sp(10) + "40,00"}),
    [](const auto& info) { return std::string(info.param.nome); });

TEST_P(RiportoTest, RigaZeroEPrimoSaldo) {
    const CasoRiporto& c = GetParam();
    ScriviMovimenti({Mov(1, "01/03/2001", "01/03/2001", 40, "E", "S")});
    ScriviRiporto(c.importo);
    app->Form9.S.Show();
    l().S.Show();
    ASSERT_EQ(l().List1.ListCount(), 8);
    EXPECT_EQ(Righe()[0], c.riga);
    // The running balance starts from the carried amount.
    EXPECT_EQ(Righe()[1].substr(49, 15), c.primoSaldo);
}

TEST_F(ElencoTest, DueCausaliConLaStessaDescrizioneVinceLaPrima) {
    Stato.NumCausali = 3;
    Stato.Causali[3].CodCausale = "P2";
    Stato.Causali[3].DescCausale = "Prelievo";
    Apri({Mov(1, "01/03/2001", "01/03/2001", 10, "U", "S", "P2"),
          Mov(2, "02/03/2001", "02/03/2001", 20, "U", "S", "PR")},
         0);
    ASSERT_EQ(l().Combo1.ListCount(), 4);
    // Either line of "Prelievo" selects PR, the first in the table.
    for (int riga : {1, 2}) {
        SCOPED_TRACE(riga);
        Filtra("01/03/2001", "02/03/2001", riga);
        ASSERT_EQ(l().List1.ListCount(), 8);
        EXPECT_EQ(Righe()[1].substr(0, 10), "02/03/2001");
        EXPECT_EQ(Righe()[3], "Riporto saldo movimenti non elencati " + Sp(12) + Sp(9) +
                                  "-10,00" + "  = Euro -10,00");
    }
}

TEST_F(ElencoTest, SegnoDelleSommeSoloEAggiunge) {
    // The list adds "E" and subtracts anything else: a blank D_A, which the balances add,
    // subtracts here.
    Apri({Mov(1, "01/03/2001", "01/03/2001", 10, " ", "S", "VS")}, 0);
    EXPECT_EQ(Righe()[1].substr(22, 27), Sp(1) + Sp(10) + "10,00" + Sp(11));
    EXPECT_EQ(Righe()[1].substr(49, 15), Sp(9) + "-10,00");
    EXPECT_EQ(Stato.SaldoUltimaData, 10);
}

TEST_F(ElencoTest, LaListaLeggeOrdEdEntraNellaTabella) {
    // Entered out of date order: the list follows .Ord, and the table of the account now
    // holds .Ord's records, dimensioned for the movements alone.
    Apri({Mov(1, "20/03/2001", "20/03/2001", 10, "E", "S"),
          Mov(2, "01/03/2001", "01/03/2001", 20, "E", "S")},
         0);
    EXPECT_EQ(Righe()[1].substr(0, 10), "01/03/2001");
    EXPECT_EQ(Righe()[2].substr(0, 10), "20/03/2001");
    EXPECT_EQ(Stato.Movimenti.Limite(), 2);
    EXPECT_EQ(Stato.Movimenti[1].NrOper, 2);
    EXPECT_EQ(Stato.Movimenti[2].NrOper, 1);
}

TEST_F(ElencoTest, AssegnoAggiungeLaRigaDelDettaglioEContaNeiMovimenti) {
    ScriviAssegno(123456, "Affitto marzo");
    Apri({Mov(1, "01/03/2001", "01/03/2001", 500, "U", "S", "AS", "123456"),
          Mov(2, "02/03/2001", "02/03/2001", 20, "E", "S", "AS", "999"),
          Mov(3, "03/03/2001", "03/03/2001", 30, "E", "S", "VS")},
         0);
    ASSERT_EQ(l().List1.ListCount(), 11);
    // The causale AS isn't in the table: no description between the two pairs of blanks.
    EXPECT_EQ(Righe()[1].substr(64), "    123456 " + Trenta("movimento 1"));
    EXPECT_EQ(Righe()[2], Sp(66) + "Affitto marzo");
    EXPECT_EQ(Righe()[3].substr(0, 10), "02/03/2001");
    EXPECT_EQ(Righe()[9], Sp(68) + "nr. movimenti: 4");
}

TEST_F(ElencoTest, DataDellaSelezioneNonValidaFallisceDopoIlRiporto) {
    Apri(Cinque(), 100);
    l().DataOper.SetText("31/02/2001");
    EXPECT_EQ(NumeroGuasto([&] { l().OK.Clicca(); }), 13);
    EXPECT_EQ(l().List1.ListCount(), 1);
}
