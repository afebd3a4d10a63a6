#include "tests/Ambiente.h"

#include "store/Testo.h"

// Today is 05/07/2001; amounts with two decimals at the rate 1. The movements are entered in
// date order, so that a line's place in Form11 is also the movement's record in .MOV.

namespace {
std::vector<RecMovimento> Cinque() {
    return {
        Mov(1, "10/01/2001", "10/01/2001", 1000, "E", "N", "VS"),
        Mov(2, "15/02/2001", "16/02/2001", 200, "U", "S", "PR", "7"),
        Mov(3, "20/03/2001", "20/03/2001", 300, "E", "S", "VS"),
        Mov(4, "10/04/2001", "10/04/2001", 50, "U", "N", "PR"),
        Mov(5, "05/05/2001", "05/05/2001", 25.5, "E", "S", "VS"),
    };
}
} // namespace

class CorrezioneTest : public AmbienteConto {
protected:
    Form11& l() { return app->Form11; }
    Form20& c() { return app->Form20; }

    void Apri(const std::vector<RecMovimento>& movimenti) {
        ScriviMovimenti(movimenti);
        app->Form9.S.Show();
        l().S.Show();
    }

    void DoppioClic(int riga) {
        l().List1.SetListIndex(riga);
        l().List1.DoppioClic();
    }

    void Filtra(const std::string& dal, const std::string& al) {
        l().DataOper.SetText(dal);
        l().DataFinale.SetText(al);
        l().OK.Clicca();
    }
};

TEST_F(CorrezioneTest, ImportoMostratoNellaValutaInUsoEMemorizzatoInEuro) {
    Stato.Cambio = 2;
    Apri({Mov(1, "01/03/2001", "01/03/2001", 100, "E", "N")});
    DoppioClic(1);
    // 100 Euro at the rate 2.
    EXPECT_EQ(c().IMPORTO.Text(), "200,00");
    c().IMPORTO.SetText("300");
    c().OK.Clicca();
    // 300 / 2.
    EXPECT_EQ(Leggi(".MOV")[0].IMPORTO, 150);
}

TEST_F(CorrezioneTest, ListaAppenaFiltrataPassaEPrendeIlRecordDelPosto) {
    Apri(Cinque());
    // Four of five: 11 - 5 is not below 5. The first line shows movement 2, but its place
    // gives record 1 of .Ord.
    Filtra("01/02/2001", "05/05/2001");
    ASSERT_EQ(l().List1.List(1).substr(0, 10), "15/02/2001");
    DoppioClic(1);
    EXPECT_TRUE(porta.messaggi.empty());
    EXPECT_EQ(c().NrOper.Text(), "1");
    EXPECT_EQ(c().DataOper.Text(), "10/01/2001");
}

struct CasoRigaInerte {
    const char* nome;
    int riga;
};

class RigaInerteTest : public CorrezioneTest,
                       public ::testing::WithParamInterface<CasoRigaInerte> {};

// Five movements: lines 1 to 5, then the rule (6), the sum not listed (7), the rule (8), the
// balance (9), the count (10) and the blank line (11).
INSTANTIATE_TEST_SUITE_P(Correzione, RigaInerteTest,
                         ::testing::Values(CasoRigaInerte{"riporto", 0},
                                           CasoRigaInerte{"riga_di_trattini", 6},
                                           CasoRigaInerte{"non_elencati", 7},
                                           CasoRigaInerte{"saldo_contabile", 9},
                                           CasoRigaInerte{"conteggio", 10},
                                           CasoRigaInerte{"riga_vuota", 11}),
                         [](const auto& info) { return std::string(info.param.nome); });

TEST_P(RigaInerteTest, NessunaCorrezioneNessunMessaggio) {
    Apri(Cinque());
    ASSERT_EQ(l().List1.ListCount(), 12);
    DoppioClic(GetParam().riga);
    EXPECT_TRUE(porta.messaggi.empty());
    EXPECT_FALSE(c().S.Caricato());
}

TEST_F(CorrezioneTest, LaRigaDellAssegnoNonContaNelPosto) {
    ScriviAssegno(77, "Affitto");
    Apri({Mov(1, "01/03/2001", "01/03/2001", 500, "U", "S", "AS", "77"),
          Mov(2, "02/03/2001", "02/03/2001", 20, "E", "S", "VS")});
    ASSERT_EQ(l().List1.ListCount(), 10);
    DoppioClic(2);
    EXPECT_FALSE(c().S.Caricato());
    DoppioClic(3);
    EXPECT_EQ(c().NrOper.Text(), "2");
    EXPECT_EQ(c().DataOper.Text(), "02/03/2001");
}

TEST_F(CorrezioneTest, ConfermaControllaDateEImporto) {
    Apri(Cinque());
    DoppioClic(3);
    c().DataOper.SetText("");
    c().OK.Clicca();
    c().DataOper.SetText("31/04/2001");
    c().OK.Clicca();
    EXPECT_EQ(c().DataOper.Text(), "__/__/____");
    EXPECT_TRUE(c().DataOper.HaFuoco());
    c().DataOper.SetText("20/03/2001");
    c().DataValuta.SetText("");
    c().OK.Clicca();
    c().DataValuta.SetText("20/03/2001");
    c().IMPORTO.SetText("");
    c().OK.Clicca();
    EXPECT_TRUE(c().IMPORTO.HaFuoco());
    EXPECT_EQ(porta.messaggi,
              (std::vector<std::string>{
                  "BEEP", "[ERRORE] Campo data operazione obbligatorio -> OK",
                  "[Errore]  Data Errata; Inserire la data nel formato GGMMAAAA immettendo lo "
                  "zero davanti ai numeri con una sola cifra. -> OK",
                  "BEEP", "[ERRORE] Campo data Valuta obbligatorio -> OK",
                  "[] Campo Importo obbligatorio -> OK"}));
    // Nothing was written.
    EXPECT_EQ(Leggi(".MOV")[2].IMPORTO, 300);
    EXPECT_TRUE(c().S.Mostrato());
}
