#include "AmbienteRegistro.h"

#include "ledger/Form4.h"

// Today is 05/07/2001; the open account is "123", the other one "456".

class AllineamentoGirocontoTest : public AmbienteRegistro {
  protected:
    void SetUp() override {
        AmbienteRegistro::SetUp();
        Stato.NumConti = 2;
        Stato.Conti[2].CodConto = "456";
        Stato.NumCausali = 3;
        Stato.Causali[3].CodCausale = "GC";
        Stato.Causali[3].DescCausale = "Giroconto";
    }

    // A "GC" line typed in Form9 and confirmed; on the transfer screen line `riga` is chosen and
    // confirmed, or Uscita pressed.
    void Giroconto(int riga, bool esci = false) {
        porta.cicloModale = [this, riga, esci](Schermo& s) {
            if (&s != &app->Giroconto.S) return;
            app->Giroconto.Combo1.SetListIndex(riga);
            (esci ? app->Giroconto.Command3D1 : app->Giroconto.OK).Clicca();
        };
        Form9& f = app->Form9;
        f.DataOper.SetText("03/03/2001");
        f.DataValuta.SetText("04/03/2001");
        f.Causale.SetText("GC");
        f.IMPORTO.SetFocus();
        f.IMPORTO.SetText("50");
        f.NrDoc.SetText("77");
        f.DescMovim.SetText("  Affitto di marzo per la casa al mare");
        f.OK.Clicca();
    }
};

TEST_F(AllineamentoGirocontoTest, IlGirocontoScriveNeiDueConti) {
    ScriviMovimenti({Mov(1, "01/03/2001", "01/03/2001", 100, "E", "S"),
                     Mov(2, "02/03/2001", "02/03/2001", 20, "E", "N")});
    app->Form9.S.Show();
    Giroconto(1);

    // The other account: its count 0 + 1, the typed fields, "E", and the description cut to 30.
    EXPECT_EQ(LeggiContatore((dir / "456.MOR").string()), 1);
    std::ifstream f456(dir / "456.MOV", std::ios::binary);
    std::string byte{std::istreambuf_iterator<char>(f456), {}};
    ASSERT_EQ(byte.size(), 76u);
    RecMovimento m;
    Decodifica(m, reinterpret_cast<const unsigned char*>(byte.data()));
    EXPECT_EQ(m.NrOper, 1);
    EXPECT_EQ(m.DescMovim, "da: 123 Affitto di marzo per l");
    EXPECT_EQ(m.D_A, "E");
    EXPECT_EQ(m.IMPORTO, 50);
    EXPECT_EQ(m.DataValuta, "04/03/2001");
    EXPECT_EQ(RTrim(m.NrDoc), "77");

    // The open account: movement 3 outgoing, and slot 1 of its table holds the incoming one
    // until the next load, which .Ord shows.
    const std::vector<RecMovimento> mov = Leggi(".MOV");
    ASSERT_EQ(mov.size(), 3u);
    EXPECT_EQ(mov[2].DescMovim, "> 456 Affitto di marzo per la ");
    EXPECT_EQ(mov[2].D_A, "U");
    EXPECT_EQ(mov[0].DescMovim, "movimento 1                   ");
    EXPECT_EQ(Stato.Movimenti[1].DescMovim, m.DescMovim);
    EXPECT_EQ(Leggi(".Ord")[0].DescMovim, m.DescMovim);
    // 100 + 20 - 50.
    EXPECT_EQ(Stato.SaldoOperazione, 70);
}

TEST_F(AllineamentoGirocontoTest, IRifiutiNonScrivonoNulla) {
    ScriviMovimenti({Mov(1, "01/03/2001", "01/03/2001", 100, "U", "S", "AS", "1000")});
    RecAssegno a;
    a.NrMovimento = 1;
    a.NrFoglio = 1;
    a.NrCarnet = 1;
    a.NrAssegno = 1000;
    a.IMPORTO = 100;
    a.Allineato = "N";
    ApriRecord(File(".FOG"), RecAssegno::Lunghezza, 1);
    ScriviRecord(a, 1, 1);
    ChiudiRecord(1);
    ScriviContatore(File(".NRF"), 1);
    app->Form9.S.Show();
    const auto prima = Istantanea();

    // The open account chosen, and Uscita: the movement under entry is dropped.
    Giroconto(0);
    Giroconto(1, true);
    EXPECT_EQ(Stato.NumMovimenti, 1);
    // Alignment refused for an empty value date and a bad operation date.
    Form4& f = app->Form4;
    MostraAllineamento();
    f.ElencoMovim.SetListIndex(0);
    f.ElencoMovim.DoppioClic();
    f.DataValuta.SetText(DataVuotaMaschera);
    f.OK.Clicca();
    f.DataValuta.SetText("04/03/2001");
    f.DataOper.SetText("31/02/2001");
    f.OK.Clicca();
    f.pulisci.Clicca();
    auto dopo = Istantanea();
    // .TOT is written by every redraw of the balances: the twice-applied movement shows there.
    dopo.erase("123.TOT");
    auto attese = prima;
    attese.erase("123.TOT");
    EXPECT_EQ(dopo, attese);

    // Aligned at 90: the sheet takes the statement's figure and is cleared.
    f.ElencoMovim.SetListIndex(0);
    f.ElencoMovim.DoppioClic();
    f.IMPORTO.SetText("90");
    f.OK.Clicca();
    EXPECT_EQ(Leggi(".MOV")[0].Sospeso, "N");
    EXPECT_EQ(Leggi(".MOV")[0].IMPORTO, 90);
    EXPECT_EQ(Stato.Assegni[1].Allineato, "S");
    EXPECT_EQ(Stato.Assegni[1].IMPORTO, 90);
    EXPECT_EQ(Stato.SaldoAllineamento, -90);
}
