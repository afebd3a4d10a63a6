#include "tests/Ambiente.h"

#include "ledger/Immissione.h"
#include "ledger/Registro.h"

#include <string>
#include <vector>

// Today is 05/07/2001 throughout. Date numbers: 01/07/2001 732366 + 181 + 1 = 732548,
// 02/07/2001 732549, 10/07/2001 732557 (post-dated).

namespace {
const std::string dataErrata =
    "[Errore]  Data Errata; Inserire la data nel formato GGMMAAAA immettendo lo zero davanti ai "
    "numeri con una sola cifra. -> OK";
} // namespace

class ImmissioneTest : public AmbienteConto {
protected:
    void SetUp() override {
        AmbienteConto::SetUp();
        Causale(1, "VS", "Versamento contanti in banca", "S", "E");
        Causale(2, "PR", "Prelievo", "N", "U");
        Causale(3, "GC", "GIROCONTO", "S", "U");
        Stato.NumCausali = 3;
    }

    Form9& f() { return app->Form9; }

    // The line filled as the user fills it: the causale is checked as the amount takes the
    // focus, before the amount is typed.
    void Riga(const std::string& dataOper, const std::string& dataValuta,
              const std::string& causale, const std::string& importo,
              const std::string& nrDoc = "", const std::string& descrizione = "") {
        f().DataOper.SetFocus();
        f().DataOper.SetText(dataOper);
        f().DataValuta.SetFocus();
        f().DataValuta.SetText(dataValuta);
        f().Causale.SetFocus();
        f().Causale.SetText(causale);
        f().IMPORTO.SetFocus();
        f().IMPORTO.SetText(importo);
        f().NrDoc.SetFocus();
        f().NrDoc.SetText(nrDoc);
        f().DescMovim.SetFocus();
        f().DescMovim.SetText(descrizione);
    }

    // A double click on the line of movement n in the list on view.
    void Richiama(int n) {
        Controllo& lista = f().ElencoMovim.Visible ? f().ElencoMovim : f().elencoValuta;
        for (int i = 0; i < lista.ListCount(); ++i)
            if (NumeroDaRiga(lista.List(i)) == n) {
                lista.SetListIndex(i);
                lista.DoppioClic();
                return;
            }
        FAIL() << "no line for movement " << n;
    }

    std::vector<double> SaldiTot() const {
        RecTotali t = LeggiTotali();
        return {t.SaldoAllineamento, t.SaldoOperazione, t.SaldoValuta, t.SaldoUltimaData};
    }
};

// OK with a line that can't be stored: the message, the field that gets the focus, and nothing
// stored.
struct CasoRifiuto {
    const char* nome;
    const char* dataOper;
    const char* dataValuta;
    const char* importo;
    std::vector<std::string> messaggi;
    const char* fuoco;
    const char* dataOperDopo;
    const char* dataValutaDopo;
    bool clessidra;
};

class RifiutoTest : public ImmissioneTest, public ::testing::WithParamInterface<CasoRifiuto> {};

TEST_P(RifiutoTest, NienteMemorizzato) {
    const CasoRifiuto& c = GetParam();
    f().S.Show();
    Riga(c.dataOper, c.dataValuta, "VS", c.importo);
    porta.messaggi.clear();

    f().OK.Clicca();

    EXPECT_EQ(porta.messaggi, c.messaggi);
    EXPECT_EQ(Riferimento(*f().S.Fuoco()), c.fuoco);
    EXPECT_EQ(f().DataOper.Text(), c.dataOperDopo);
    EXPECT_EQ(f().DataValuta.Text(), c.dataValutaDopo);
    EXPECT_EQ(porta.clessidra, c.clessidra);
    EXPECT_EQ(Stato.NumMovimenti, 0);
    EXPECT_EQ(LeggiContatore(File(".MOR")), 0);
    EXPECT_EQ(f().ElencoMovim.ListCount(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Immissione, RifiutoTest,
    ::testing::Values(
        CasoRifiuto{"data_operazione_vuota", "", "01/07/2001", "10",
                    {"BEEP", "[ERRORE] Campo data operazione obbligatorio -> OK"},
                    "Form9.DataOper", "__/__/____", "01/07/2001", false},
        CasoRifiuto{"data_valuta_vuota", "01/07/2001", "", "10",
                    {"BEEP", "[ERRORE] Campo data Valuta obbligatorio -> OK"},
                    "Form9.DataValuta", "01/07/2001", "__/__/____", false},
        // Both dates are refused as empty before either is checked.
        CasoRifiuto{"valuta_vuota_prima_del_controllo", "31/04/2001", "", "10",
                    {"BEEP", "[ERRORE] Campo data Valuta obbligatorio -> OK"},
                    "Form9.DataValuta", "31/04/2001", "__/__/____", false},
        CasoRifiuto{"data_operazione_errata", "31/04/2001", "01/07/2001", "10", {dataErrata},
                    "Form9.DataOper", "__/__/____", "01/07/2001", false},
        CasoRifiuto{"data_valuta_errata", "01/07/2001", "29/02/2001", "10", {dataErrata},
                    "Form9.DataValuta", "01/07/2001", "__/__/____", false},
        // Past the dates the hourglass is on, and it stays until the next action.
        CasoRifiuto{"importo_vuoto", "01/07/2001", "02/07/2001", "",
                    {"[] Campo Importo obbligatorio -> OK"}, "Form9.IMPORTO", "01/07/2001",
                    "02/07/2001", true}),
    [](const auto& info) { return std::string(info.param.nome); });

TEST_F(ImmissioneTest, ImportoDivisoPerIlCambioEMostratoMoltiplicato) {
    Stato.Cambio = 1936.27;
    f().S.Show();
    Riga("01/07/2001", "01/07/2001", "VS", "1.000.000");
    f().OK.Clicca();

    // No rounding of the stored quotient.
    EXPECT_EQ(Leggi(".MOV").at(0).IMPORTO, 1000000 / 1936.27);
    const std::string riga = f().ElencoMovim.List(0);
    EXPECT_EQ(riga.substr(riga.size() - 15), "   1.000.000,00");
    EXPECT_EQ(app->MDIForm1.Saldi(4).Text(), "1.000.000,00");

    Richiama(1);
    EXPECT_EQ(f().IMPORTO.Text(), "1.000.000,00");
}

TEST_F(ImmissioneTest, CambioZeroEUnGuastoENienteMemorizzato) {
    Stato.Cambio = 0;
    f().S.Show();
    Riga("01/07/2001", "01/07/2001", "VS", "100");
    porta.messaggi.clear();

    EXPECT_FALSE(EseguiEvento([&] { f().OK.Clicca(); }));

    EXPECT_EQ(porta.messaggi, (std::vector<std::string>{"FAILURE 11 Divisione per zero"}));
    EXPECT_EQ(Stato.NumMovimenti, 0);
    EXPECT_EQ(LeggiContatore(File(".MOR")), 0);
    EXPECT_EQ(f().ElencoMovim.ListCount(), 0);
    EXPECT_EQ(f().IMPORTO.Text(), "100");
}

TEST_F(ImmissioneTest, PostoDiAppoggioConAnnullatoLoConserva) {
    f().S.Show();
    Stato.Movimenti[1].Annullato = "S";
    Riga("01/07/2001", "01/07/2001", "VS", "5");
    f().OK.Clicca();
    EXPECT_EQ(Leggi(".MOV").at(0).Annullato, "S");
}

// The change of a movement in the line is a script; here what the script doesn't meet: the
// last movement, marked for elimination, on a table with no room past it.
TEST_F(ImmissioneTest, CambioDellUltimoMovimentoMarcatoNonNeAggiungeUno) {
    ScriviMovimenti({Mov(1, "01/07/2001", "01/07/2001", 100, "E", "S"),
                     Mov(2, "02/07/2001", "02/07/2001", 40, "U", "N", "PR", "", "S")});
    f().S.Show();
    Richiama(2);
    // Marked for elimination: Del offers to recover it.
    EXPECT_TRUE(f().Del.Enabled);
    EXPECT_EQ(f().Del.Text(), "Rec");
    // Out of the balances and of .TOT while it sits in the line: 100 alone.
    EXPECT_EQ(SaldiTot(), (std::vector<double>{0, 100, 100, 100}));

    f().IMPORTO.SetFocus();
    f().IMPORTO.SetText("45,5");
    f().OK.Clicca();

    EXPECT_EQ(LeggiContatore(File(".MOR")), 2);
    auto mov = Leggi(".MOV");
    ASSERT_EQ(mov.size(), 2u);
    EXPECT_DOUBLE_EQ(mov[1].IMPORTO, 45.5);
    EXPECT_EQ(mov[1].Annullato, "N");
    // The scratch place past the end took the line and was given up.
    EXPECT_EQ(Stato.Movimenti[3].NrOper, 3);
    // 100 - 45.50, aligned -45.50.
    EXPECT_EQ(SaldiTot(), (std::vector<double>{-45.5, 54.5, 54.5, 54.5}));
    EXPECT_EQ(f().Del.Text(), "Del");
    EXPECT_EQ(Numeri(Leggi(".Ord")), (std::vector<int>{1, 2, 0}));
}

TEST_F(ImmissioneTest, GirocontoAnnullatoNonMemorizzaNulla) {
    ScriviMovimenti({Mov(1, "01/07/2001", "01/07/2001", 100, "E", "N")});
    Stato.NumConti = 2;
    f().S.Show();
    // The transfer screen says by the flag that it was left without booking.
    Stato.FlagOperazione = 1;
    Riga("02/07/2001", "02/07/2001", "GC", "50");
    f().OK.Clicca();

    EXPECT_EQ(Stato.FlagOperazione, 0);
    EXPECT_EQ(Stato.NumMovimenti, 1);
    EXPECT_EQ(LeggiContatore(File(".MOR")), 1);
    EXPECT_EQ(Leggi(".MOV").size(), 1u);
    EXPECT_EQ(f().ElencoMovim.ListCount(), 1);
    EXPECT_EQ(f().Causale.Text(), "");
    EXPECT_TRUE(f().DataOper.HaFuoco());
    EXPECT_EQ(f().NrOper.Text(), "2");
    EXPECT_FALSE(porta.clessidra);

    // The next movement takes the next number.
    Riga("03/07/2001", "03/07/2001", "VS", "7");
    f().OK.Clicca();
    EXPECT_EQ(Numeri(Leggi(".MOV")), (std::vector<int>{1, 2}));
}

// A line not suspended stays so under the next causale typed over it; the direction follows.
TEST_F(ImmissioneTest, SospesoNRestaSottoUnAltraCausale) {
    f().S.Show();
    Riga("01/07/2001", "01/07/2001", "PR", "");
    Riga("01/07/2001", "01/07/2001", "VS", "");
    EXPECT_EQ(f().Sospeso.Text() + f().D_A.Text(), "NE");
}
