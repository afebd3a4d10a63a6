#include "tests/Ambiente.h"

#include "ledger/Immissione.h"
#include "ledger/Registro.h"

// Today is 05/07/2001 throughout. The typing of a movement and its change are the scripts
// immissione_*; here the refusals and the cases the scripts don't meet.

class ImmissioneTest : public AmbienteConto {
protected:
    void SetUp() override {
        AmbienteConto::SetUp();
        Causale(1, "VS", "Versamento contanti in banca", "S", "E");
        Causale(2, "PR", "Prelievo", "N", "U");
        f().S.Show();
    }

    Form9& f() { return app->Form9; }

    // The line filled as the user fills it: the causale is checked as the amount takes the
    // focus, before the amount is typed.
    void Riga(const std::string& oper, const std::string& valuta, const std::string& causale,
              const std::string& importo) {
        for (auto [campo, testo] : {std::pair{&f().DataOper, oper}, {&f().DataValuta, valuta},
                                    {&f().Causale, causale}, {&f().IMPORTO, importo}}) {
            campo->SetFocus();
            campo->SetText(testo);
        }
        f().NrDoc.SetFocus();
    }
};

// OK with a line that can't be stored: the messages, the field that gets the focus, emptied
// when it is a date, the hourglass, and nothing stored.
TEST_F(ImmissioneTest, RigaRifiutata) {
    const std::string errata =
        "[Errore]  Data Errata; Inserire la data nel formato GGMMAAAA immettendo lo zero davanti "
        "ai numeri con una sola cifra. -> OK";
    const std::string operazione = "[ERRORE] Campo data operazione obbligatorio -> OK";
    const std::string valuta = "[ERRORE] Campo data Valuta obbligatorio -> OK";
    const struct {
        const char *dataOper, *dataValuta, *importo;
        std::vector<std::string> messaggi;
        const char* fuoco;
    } casi[] = {
        {"", "01/07/2001", "10", {"BEEP", operazione}, "Form9.DataOper"},
        {"01/07/2001", "", "10", {"BEEP", valuta}, "Form9.DataValuta"},
        // Both dates are refused as empty before either is checked.
        {"31/04/2001", "", "10", {"BEEP", valuta}, "Form9.DataValuta"},
        {"31/04/2001", "01/07/2001", "10", {errata}, "Form9.DataOper"},
        {"01/07/2001", "29/02/2001", "10", {errata}, "Form9.DataValuta"},
        {"01/07/2001", "02/07/2001", "", {"[] Campo Importo obbligatorio -> OK"}, "Form9.IMPORTO"},
    };
    for (const auto& c : casi) {
        SCOPED_TRACE(c.messaggi.back());
        Riga(c.dataOper, c.dataValuta, "VS", c.importo);
        porta.messaggi.clear();
        porta.clessidra = false;
        f().OK.Clicca();
        EXPECT_EQ(porta.messaggi, c.messaggi);
        EXPECT_EQ(Riferimento(*f().S.Fuoco()), c.fuoco);
        for (Controllo* data : {&f().DataOper, &f().DataValuta})
            EXPECT_EQ(data->Text(), data->HaFuoco() ? "__/__/____"
                                    : data == &f().DataOper ? c.dataOper : c.dataValuta);
        // Past the dates the hourglass is on, and it stays until the next action.
        EXPECT_EQ(porta.clessidra, *c.importo == 0);
        EXPECT_EQ(LeggiContatore(File(".MOR")), 0);
        EXPECT_EQ(f().ElencoMovim.ListCount(), 0);
    }
}

TEST_F(ImmissioneTest, ImportoDivisoPerIlCambioEMostratoMoltiplicato) {
    Stato.Cambio = 1936.27;
    Stato.Conti[1].Fido = 1000;
    Riga("01/07/2001", "01/07/2001", "VS", "1.000.000");
    f().OK.Clicca();
    // No rounding of the stored quotient.
    EXPECT_EQ(Leggi(".MOV").at(0).IMPORTO, 1000000 / 1936.27);
    EXPECT_TRUE(f().ElencoMovim.List(0).ends_with("   1.000.000,00"));
    EXPECT_EQ(app->MDIForm1.Saldi(4).Text(), "1.000.000,00");
    // The credit line, 1000 Euro, is 1,936,270 lire over the balance by operation date.
    EXPECT_EQ(app->MDIForm1.Saldi(5).Text(), "2.936.270,00");
    f().ElencoMovim.SetListIndex(0);
    f().ElencoMovim.DoppioClic();
    EXPECT_EQ(f().IMPORTO.Text(), "1.000.000,00");

    Stato.Cambio = 0;
    f().pulisci.Clicca();
    Riga("01/07/2001", "01/07/2001", "VS", "100");
    porta.messaggi.clear();
    EXPECT_FALSE(EseguiEvento([&] { f().OK.Clicca(); }));
    EXPECT_EQ(porta.messaggi, (std::vector<std::string>{"FAILURE 11 Divisione per zero"}));
    EXPECT_EQ(LeggiContatore(File(".MOR")), 1);
}

// The last movement, marked for elimination, changed on a table with no room past it: Del
// offers to recover it while it sits in the line, and the change stores it unmarked.
TEST_F(ImmissioneTest, CambioDellUltimoMovimentoMarcato) {
    ScriviMovimenti({Mov(1, "01/07/2001", "01/07/2001", 100, "E", "S"),
                     Mov(2, "02/07/2001", "02/07/2001", 40, "U", "N", "PR", "", "S")});
    f().S.UnloadMe();
    f().S.Show();
    f().ElencoMovim.SetListIndex(1);
    f().ElencoMovim.DoppioClic();
    EXPECT_EQ(f().Del.Text(), "Rec");
    f().IMPORTO.SetFocus();
    f().IMPORTO.SetText("45,5");
    f().OK.Clicca();
    EXPECT_EQ(LeggiContatore(File(".MOR")), 2);
    EXPECT_DOUBLE_EQ(Leggi(".MOV").at(1).IMPORTO, 45.5);
    EXPECT_EQ(Leggi(".MOV").at(1).Annullato, "N");
    // 100 - 45.50, aligned -45.50.
    EXPECT_EQ(LeggiTotali().SaldoAllineamento, -45.5);
    EXPECT_EQ(LeggiTotali().SaldoUltimaData, 54.5);
}
