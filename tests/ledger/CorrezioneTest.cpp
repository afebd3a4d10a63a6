#include "tests/Ambiente.h"

// Today is 05/07/2001. The movements are entered in date order, so that a line's place in Form11
// is also their record in .MOV. The flow is a script; here which lines open it, and the rate.

class CorrezioneTest : public AmbienteConto {
protected:
    Form11& l() { return app->Form11; }
    Form20& c() { return app->Form20; }

    // Five movements, or the ones given, with the list of all of them on view.
    void Apri(std::vector<RecMovimento> movimenti = {}) {
        if (movimenti.empty())
            for (int n = 1; n <= 5; ++n)
                movimenti.push_back(Mov(n, "1" + std::to_string(n) + "/03/2001",
                                        "1" + std::to_string(n) + "/03/2001", 100 * n, "E", "S"));
        ScriviMovimenti(movimenti);
        app->Form9.S.Show();
        l().S.Show();
    }

    void DoppioClic(int riga) {
        l().List1.SetListIndex(riga);
        l().List1.DoppioClic();
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

// Five movements: lines 1 to 5, then the rule (6), the sum not listed (7), the rule (8), the
// balance (9), the count (10) and the blank line (11); the carried line and those after the
// movements open nothing and say nothing.
TEST_F(CorrezioneTest, RigheCheNonSonoMovimenti) {
    Apri();
    ASSERT_EQ(l().List1.ListCount(), 12);
    for (int riga : {0, 6, 7, 9, 10, 11}) {
        SCOPED_TRACE(riga);
        DoppioClic(riga);
        EXPECT_TRUE(porta.messaggi.empty());
        EXPECT_FALSE(c().S.Caricato());
    }
    DoppioClic(5);
    EXPECT_EQ(c().NrOper.Text(), "5");
    // Four of five listed: 11 - 5 is not below 5. The first line shows movement 2, but its
    // place gives record 1 of .Ord.
    l().DataOper.SetText("12/03/2001");
    l().OK.Clicca();
    DoppioClic(1);
    EXPECT_TRUE(porta.messaggi.empty());
    EXPECT_EQ(c().DataOper.Text(), "11/03/2001");
    // One of five: 8 - 5 is below 5.
    l().DataOper.SetText("15/03/2001");
    l().OK.Clicca();
    DoppioClic(1);
    EXPECT_EQ(porta.messaggi, (std::vector<std::string>{
                                  "[Avvertimento] Questa funzione funziona solo se tutti i "
                                  "movimenti sono inclusi nella lista -> OK"}));
}

// Each refusal of OK in turn, with its message and the focus; nothing is written.
TEST_F(CorrezioneTest, ConfermaControllaDateEImporto) {
    Apri();
    DoppioClic(3);
    const char* vuota = "__/__/____";
    const struct {
        const char *dataOper, *dataValuta, *importo;
        std::vector<std::string> messaggi;
        Controllo* fuoco;
    } casi[] = {
        {"", "13/03/2001", "300", {"BEEP", "[ERRORE] Campo data operazione obbligatorio -> OK"},
         &c().DataOper},
        {"13/03/2001", "", "300", {"BEEP", "[ERRORE] Campo data Valuta obbligatorio -> OK"},
         &c().DataValuta},
        {"13/03/2001", "13/03/2001", "", {"[] Campo Importo obbligatorio -> OK"}, &c().IMPORTO},
    };
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.messaggi.back());
        c().DataOper.SetText(*caso.dataOper ? caso.dataOper : vuota);
        c().DataValuta.SetText(*caso.dataValuta ? caso.dataValuta : vuota);
        c().IMPORTO.SetText(caso.importo);
        porta.messaggi.clear();
        c().OK.Clicca();
        EXPECT_EQ(porta.messaggi, caso.messaggi);
        EXPECT_TRUE(caso.fuoco->HaFuoco());
    }
    EXPECT_EQ(Leggi(".MOV")[2].IMPORTO, 300);
    EXPECT_TRUE(c().S.Mostrato());
}
