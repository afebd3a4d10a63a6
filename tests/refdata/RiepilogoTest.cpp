// The summary of accounts, Form22: the balance by operation or by value date read from each
// account's .TOT, the totals, and the card of an account shown for reading.
#include "tests/shell/Ambiente.h"

#include "refdata/Conti.h"
#include "store/Testo.h"

namespace {
std::string Sp(int n) { return std::string(static_cast<std::size_t>(n), ' '); }

RecMovimento Movimento(short nr, const std::string& oper, const std::string& valuta,
                       double importo, const std::string& dA) {
    RecMovimento m;
    m.NrOper = nr;
    m.DataOper = oper;
    m.DataValuta = valuta;
    m.Causale = "VS";
    m.IMPORTO = importo;
    m.Sospeso = "S";
    m.D_A = dA;
    m.Annullato = "N";
    return m;
}
} // namespace

struct RiepilogoTest : AmbienteAvviato {
    Form22& r() { return app->Form22; }

    std::string Totali(const std::string& saldo, const std::string& fido,
                       const std::string& disponibile) {
        auto colonna = [](const std::string& s) {
            return Sp(15 - static_cast<int>(s.size())) + s;
        };
        return Sp(16) + "Totali " + colonna(saldo) + " " + colonna(fido) + " " +
               colonna(disponibile) + " ";
    }
};

TEST_F(RiepilogoTest, NessunConto) {
    Stato.FormatoImporti = "#,###,###,##0.00";
    r().S.Show();
    EXPECT_EQ(r().DataVis.Text(), "15-03-2001");
    EXPECT_EQ(r().List1.ListCount(), 0);
    EXPECT_EQ(r().Totali.Text(), Totali("0,00", "0,00", "0,00"));
    EXPECT_TRUE(r().Dataop(0).Value());
}

TEST_F(RiepilogoTest, DueContiEUnaValutaPostergata) {
    // Account 123 is opened once, which writes its .TOT: 500 in on 01/03, 200 out on 10/03
    // with value 20/03, after today. By operation date 300, by value date 500. Account 45 was
    // never opened.
    ScriviConto("123", "Banca Uno", 1000, 1);
    ScriviConto("45", "Banca Due", 250, 2);
    ScriviIn(dati / "123.MOV", Movimento(1, "01/03/2001", "01/03/2001", 500, "E"), 1);
    ScriviIn(dati / "123.MOV", Movimento(2, "10/03/2001", "20/03/2001", 200, "U"), 2);
    ScriviContatore((dati / "123.MOR").string(), 2);
    Avvia();
    Messaggi();
    Stato.FormatoImporti = "#,###,###,##0.00";
    Stato.CodContoAperto = "123";
    Stato.IndiceConto = CercaConto("123");
    app->Form9.S.Show();
    ChiudiConto();
    ASSERT_FALSE(fs::exists(dati / "45.TOT"));

    r().S.Show();
    const std::string banca1 = "Banca Uno" + Sp(19), banca2 = "Banca Due" + Sp(19);
    // The numbers padded on the left put 45 ahead of 123.
    EXPECT_EQ(r().List1.Righe(),
              (std::vector<std::string>{
                  Sp(10) + "45 " + banca2 + " " + Sp(11) + "0,00 " + Sp(9) + "250,00 " + Sp(9) +
                      "250,00",
                  Sp(9) + "123 " + banca1 + " " + Sp(9) + "300,00 " + Sp(7) + "1.000,00 " +
                      Sp(7) + "1.300,00"}));
    EXPECT_EQ(r().Totali.Text(), Totali("300,00", "1.250,00", "1.550,00"));
    // Never opened: its .TOT is made, empty, and reads as zero.
    EXPECT_TRUE(fs::exists(dati / "45.TOT"));
    EXPECT_EQ(fs::file_size(dati / "45.TOT"), 0u);

    r().Dataop(1).Clicca();
    EXPECT_EQ(r().List1.List(1), Sp(9) + "123 " + banca1 + " " + Sp(9) + "500,00 " + Sp(7) +
                                     "1.000,00 " + Sp(7) + "1.500,00");
    EXPECT_EQ(r().Totali.Text(), Totali("500,00", "1.250,00", "1.750,00"));

    r().Dataop(0).Clicca();
    EXPECT_EQ(r().Totali.Text(), Totali("300,00", "1.250,00", "1.550,00"));
}

TEST_F(RiepilogoTest, DoppioClicMostraLaSchedaSoloPerLeggere) {
    ScriviConto("123", "Banca Uno", 1000, 1);
    ScriviConto("45", "Banca Due", 250, 2);
    Avvia();
    Messaggi();
    Stato.FormatoImporti = "#,###,###,##0.00";
    r().S.Show();
    r().List1.SetListIndex(1);
    r().List1.DoppioClic();

    Form10& scheda = app->Form10;
    ASSERT_TRUE(scheda.S.Mostrato());
    EXPECT_EQ(scheda.CodConto.Text(), "123");
    EXPECT_EQ(scheda.NomeBanca.Text(), "Banca Uno");
    EXPECT_EQ(scheda.Fido.Text(), "1.000,00");
    EXPECT_EQ(Stato.FlagOperazione, 1);
    EXPECT_EQ(Stato.IndiceConto, 0);

    // Conferma only closes the card: no account is opened.
    scheda.Saldi.Clicca();
    EXPECT_FALSE(scheda.S.Caricato());
    EXPECT_EQ(Stato.FlagOperazione, 0);
    EXPECT_FALSE(app->Form9.S.Caricato());
    EXPECT_EQ(Stato.ContoAperto, 0);
    EXPECT_EQ(Trim(Stato.CodContoAperto), "");
}
