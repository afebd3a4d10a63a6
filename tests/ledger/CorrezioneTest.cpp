#include "AmbienteRegistro.h"

#include "store/Testo.h"

// Today is 05/07/2001; amounts with two decimals at the rate 1. The movements are entered in
// date order, so that a line's place in Form11 is also the movement's record in .MOV.

namespace {
const std::string kRifiuto = "[Avvertimento] Questa funzione funziona solo se tutti i movimenti "
                             "sono inclusi nella lista -> OK";

// The last n characters of a line.
std::string Coda(const std::string& riga, std::size_t n) { return riga.substr(riga.size() - n); }

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

class CorrezioneTest : public AmbienteRegistro {
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

TEST_F(CorrezioneTest, ImportoDa100A150SottraeIlNuovoFinoAlCaricamento) {
    Apri({Mov(1, "01/03/2001", "01/03/2001", 100, "E", "N", "VS", "12"),
          Mov(2, "02/03/2001", "02/03/2001", 40, "E", "N", "PR")});
    auto& p = app->MDIForm1;
    ASSERT_EQ(p.Saldi(4).Text(), "140,00");

    DoppioClic(1);
    ASSERT_TRUE(c().S.Mostrato());
    EXPECT_EQ(c().NrOper.Text(), "1");
    EXPECT_EQ(c().DataOper.Text(), "01/03/2001");
    EXPECT_EQ(c().DataValuta.Text(), "01/03/2001");
    EXPECT_EQ(RTrim(c().Causale.Text()), "VS");
    EXPECT_EQ(RTrim(c().DescrCausale.Text()), "Versamento contanti in ba");
    EXPECT_EQ(c().Sospeso.Text(), "N");
    EXPECT_EQ(c().D_A.Text(), "E");
    EXPECT_EQ(c().Annullato.Text(), "N");
    EXPECT_EQ(c().IMPORTO.Text(), "100,00");
    EXPECT_EQ(RTrim(c().NrDoc.Text()), "12");
    EXPECT_EQ(RTrim(c().DescMovim.Text()), "movimento 1");

    c().IMPORTO.SetText("150");
    c().OK.Clicca();

    EXPECT_FALSE(c().S.Caricato());
    std::vector<RecMovimento> mov = Leggi(".MOV");
    ASSERT_EQ(mov.size(), 2u);
    EXPECT_EQ(mov[0].NrOper, 1);
    EXPECT_EQ(mov[0].IMPORTO, 150);
    EXPECT_EQ(Leggi(".Ord")[0].IMPORTO, 150);
    EXPECT_EQ(Coda(app->Form9.ElencoMovim.List(0), 17), "         150,00 *");

    // The old 100 stays in and the new 150 comes out: 140 - 150.
    EXPECT_EQ(Stato.SaldoUltimaData, -10);
    EXPECT_EQ(Stato.SaldoAllineamento, -10);
    EXPECT_EQ(Stato.SaldoOperazione, -10);
    EXPECT_EQ(Stato.SaldoValuta, -10);
    EXPECT_EQ(LeggiTotali().SaldoUltimaData, -10);
    // The panel follows at the next drawing, as pulisci makes.
    EXPECT_EQ(p.Saldi(4).Text(), "140,00");
    app->Form9.pulisci.Clicca();
    EXPECT_EQ(p.Saldi(4).Text(), "-10,00");
    EXPECT_EQ(p.Saldi(1).Text(), "-10,00");

    // Loaded again, the account is right: 150 + 40.
    app->Form9.S.Hide();
    app->Form9.S.Show();
    EXPECT_EQ(Stato.SaldoUltimaData, 190);
    EXPECT_EQ(p.Saldi(4).Text(), "190,00");
}

TEST_F(CorrezioneTest, AnnullatoSMarcaLaListaPerValutaSenzaToccareISaldi) {
    Apri({Mov(1, "01/03/2001", "01/03/2001", 100, "E", "S"),
          Mov(2, "02/03/2001", "02/03/2001", 40, "U", "S")});
    DoppioClic(2);
    c().Annullato.SetText("S");
    c().OK.Clicca();

    EXPECT_EQ(Leggi(".MOV")[1].Annullato, "S");
    app->Form9.Command2.Clicca();
    const auto& righe = app->Form9.elencoValuta.Righe();
    ASSERT_EQ(righe.size(), 2u);
    EXPECT_EQ(Coda(righe[0], 8), "  100,00");
    EXPECT_EQ(Coda(righe[1], 9), "  40,00 *");

    app->Form9.S.Hide();
    app->Form9.S.Show();
    EXPECT_EQ(Stato.SaldoUltimaData, 60);
    EXPECT_EQ(Stato.SaldoOperazione, 60);
}

TEST_F(CorrezioneTest, ListaFiltrataRifiutaLaCorrezione) {
    Apri(Cinque());
    // Two of five listed: 9 lines, and 9 - 5 is below 5.
    Filtra("01/02/2001", "31/03/2001");
    DoppioClic(1);
    EXPECT_EQ(porta.messaggi, std::vector<std::string>{kRifiuto});
    EXPECT_FALSE(c().S.Caricato());
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
    RecAssegno assegno;
    assegno.NrFoglio = 1;
    assegno.NrAssegno = 77;
    assegno.NoteAss = "Affitto";
    ApriRecord(File(".FOG"), RecAssegno::Lunghezza, 1);
    ScriviRecord(assegno, 1, 1);
    ChiudiRecord(1);
    ScriviContatore(File(".NRF"), 1);
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
