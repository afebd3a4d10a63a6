#include "tests/Ambiente.h"

#include "ledger/Registro.h"

// Today is 05/07/2001 throughout.

namespace {
// Seven movements entered out of order. Date numbers of DataOper: 10/03/2001 732435,
// 23/06/2001 and 01/07/2001 both 732548, 07/07/2001 732554, 30/06/2001 732555, 05/01/2002
// 732737. So by operation date: 6 before 5 (value "02/03/2000" before "15/02/2000" as text),
// 4 before 3 (equal numbers, "01/07/2001" before "23/06/2001"), then 2, 1, 7.
// By value date: 15/02/2000 732046 (5), 02/03/2000 732062 (6), then 4, 3, 2, 1, 7.
std::vector<RecMovimento> Sette() {
    return {
        Mov(1, "30/06/2001", "30/06/2001", 10, "E", "S"),
        Mov(2, "07/07/2001", "07/07/2001", 20, "E", "S", "VS", "", "S"),
        Mov(3, "23/06/2001", "23/06/2001", 30, "E", "N"),
        Mov(4, "01/07/2001", "01/07/2001", 40, "U", "N"),
        Mov(5, "10/03/2001", "15/02/2000", 50, "E", "S"),
        Mov(6, "10/03/2001", "02/03/2000", 60, "E", "S"),
        Mov(7, "05/01/2002", "05/01/2002", 70, "E", "S"),
    };
}
} // namespace

class Form9Test : public AmbienteConto {
protected:
    Form9& f() { return app->Form9; }

    void Nuovo(const RecMovimento& m) {
        Stato.NumMovimenti = static_cast<short>(m.NrOper);
        Stato.Movimenti[m.NrOper] = m;
        AggiungiMovimento();
    }

    std::string Date() { return f().DataInizSel.Text() + "-" + f().DataFineSel.Text(); }
};

TEST_F(Form9Test, OrdineDelleListeEDiOrd) {
    ScriviMovimenti(Sette());
    // A longer .Ord of an earlier time: the file is never shortened.
    ApriRecord(File(".Ord"), RecMovimento::Lunghezza, 1);
    for (int i = 1; i <= 10; ++i)
        ScriviRecord(Mov(90 + i, "01/01/1990", "01/01/1990", 1, "E", "S"), i, 1);
    ChiudiRecord(1);
    f().S.Show();
    EXPECT_EQ(NumeriInLista(f().ElencoMovim), (std::vector<int>{6, 5, 4, 3, 2, 1, 7}));
    EXPECT_EQ(Date(), "10/03/2001-05/01/2002");
    EXPECT_EQ(Numeri(Leggi(".Ord")), (std::vector<int>{6, 5, 4, 3, 2, 1, 7, 0, 99, 100}));

    f().Command2.Clicca();
    EXPECT_EQ(NumeriInLista(f().elencoValuta), (std::vector<int>{5, 6, 4, 3, 2, 1, 7}));
    EXPECT_EQ(Date(), "15/02/2000-05/01/2002");
    EXPECT_EQ(f().Label25.Text(), "Elenco Movimenti per data Valuta");
    EXPECT_TRUE(f().elencoValuta.List(4).ends_with(" 20,00 *"));

    // A new movement goes into the list on view only, and .Ord follows ElencoMovim, which
    // doesn't have it.
    Nuovo(Mov(8, "02/01/2000", "02/01/2000", 5, "E", "S"));
    EXPECT_EQ(NumeriInLista(f().elencoValuta), (std::vector<int>{8, 5, 6, 4, 3, 2, 1, 7}));
    EXPECT_EQ(f().ElencoMovim.ListCount(), 7);
    EXPECT_EQ(Date(), "02/01/2000-05/01/2002");
    EXPECT_EQ(Numeri(Leggi(".Ord")), (std::vector<int>{6, 5, 4, 3, 2, 1, 7, 0, 99, 100}));

    f().Command1.Clicca();
    EXPECT_EQ(NumeriInLista(f().ElencoMovim), (std::vector<int>{8, 6, 5, 4, 3, 2, 1, 7}));
    EXPECT_EQ(f().Label25.Text(), "Elenco Movimenti per data Operazione");
}

TEST_F(Form9Test, FiltroPoiNuovoMovimentoFuoriDalFiltroLasciaOrdCorto) {
    ScriviMovimenti(Sette());
    f().S.Show();
    f().DataInizSel.SetText("01/07/2001");
    f().DataFineSel.SetText("07/07/2001");
    f().Ag.Clicca();
    EXPECT_EQ(NumeriInLista(f().ElencoMovim), (std::vector<int>{4, 2}));

    Nuovo(Mov(8, "15/08/2001", "15/08/2001", 100, "E", "N"));
    EXPECT_EQ(Date(), "01/07/2001-15/08/2001");
    EXPECT_EQ(NumeriInLista(f().ElencoMovim), (std::vector<int>{4, 2, 8}));
    // The three listed, the blank record, then what stood there before.
    EXPECT_EQ(Numeri(Leggi(".Ord")), (std::vector<int>{4, 2, 8, 0, 2, 1, 7, 0}));
    // 10 + 20 + 30 - 40 + 50 + 60 + 70 + 100, the new one aligned and post-dated.
    EXPECT_EQ(app->MDIForm1.Saldi(4).Text(), "300,00");
    EXPECT_EQ(Stato.SaldoAllineamento, -10 + 100);

    // "Tutti" shows every movement again and recomputes the dates.
    f().Command3.Clicca();
    // 15/08/2001 numbers 732593: between 30/06/2001 (732555) and 05/01/2002.
    EXPECT_EQ(NumeriInLista(f().ElencoMovim), (std::vector<int>{6, 5, 4, 3, 2, 1, 8, 7}));
    EXPECT_EQ(Date(), "10/03/2001-05/01/2002");
}

TEST_F(Form9Test, GiornoZeroNonSiLegge) {
    ScriviMovimenti(Sette());
    f().S.Show();
    // Day 0 passes the check of the field, but the calendar can't read it.
    f().DataInizSel.SetText("00/07/2001");
    EXPECT_FALSE(EseguiEvento([&] { f().Ag.Clicca(); }));
    EXPECT_EQ(porta.messaggi.back(), "FAILURE 13 Tipo non corrispondente");
    EXPECT_TRUE(f().Ag.Enabled);
}

TEST_F(Form9Test, PerValutaSenzaPrimaDataValutaTieneLeDateDellaSelezione) {
    ScriviMovimenti({Mov(1, "01/03/2001", "", 10, "E", "S"),
                     Mov(2, "20/03/2001", "10/03/2001", 20, "E", "S")});
    f().S.Show();
    EseguiEvento([&] { f().Command2.Clicca(); });
    // The blank value date reads as date number 0: nothing to go by, the dates stay.
    EXPECT_EQ(Date(), "01/03/2001-20/03/2001");
    EXPECT_EQ(Stato.PrimaDataValuta, Fisso<10>());
}

// Leaving a selection field with what it holds: what stays, the message, the focus kept.
TEST_F(Form9Test, UscitaDaiCampiDellaSelezione) {
    const std::string errata = "[Errore]  Data Errata; Inserire la data nel formato GGMMAA";
    const std::string coda = " immettendo lo zero davanti ai numeri con una sola cifra. -> OK";
    const struct {
        const char* scritto;
        const char* risultato;
        std::string messaggio;
        bool restaLi;
    } casi[] = {
        {"__/__/____", "05/07/2001", "", false},
        {"31/04/2001", "__/__/____", errata + "AA" + coda, false},
        {"5/7/2001", "__/__/____", errata + coda, true},
    };
    f().S.Show();
    for (const auto& c : casi)
        for (Controllo* campo : {&f().DataInizSel, &f().DataFineSel}) {
            SCOPED_TRACE(campo->nome + " " + c.scritto);
            porta.messaggi.clear();
            campo->SetFocus();
            campo->SetText(c.scritto);
            f().Ag.SetFocus();
            EXPECT_EQ(campo->Text(), c.risultato);
            EXPECT_EQ(porta.messaggi.empty() ? "" : porta.messaggi[0], c.messaggio);
            EXPECT_EQ(campo->HaFuoco(), c.restaLi);
        }
}
