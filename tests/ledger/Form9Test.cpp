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
};

TEST_F(Form9Test, OrdineDelleListeEDiOrd) {
    ScriviMovimenti(Sette());
    // A longer .Ord of an earlier time: the file is never shortened.
    ApriRecord(File(".Ord"), RecMovimento::Lunghezza, 1);
    for (long i = 1; i <= 10; ++i) ScriviRecord(Mov(90 + static_cast<int>(i), "01/01/1990",
                                                    "01/01/1990", 1, "E", "S"), i, 1);
    ChiudiRecord(1);

    f().S.Show();

    EXPECT_EQ(NumeriInLista(f().ElencoMovim), (std::vector<int>{6, 5, 4, 3, 2, 1, 7}));
    EXPECT_TRUE(f().ElencoMovim.Visible);
    EXPECT_FALSE(f().elencoValuta.Visible);
    EXPECT_EQ(f().Label25.Text(), "Elenco Movimenti per data operazione");
    EXPECT_EQ(f().DataInizSel.Text(), "10/03/2001");
    EXPECT_EQ(f().DataFineSel.Text(), "05/01/2002");
    EXPECT_EQ(f().NrOper.Text(), "8");
    EXPECT_EQ(Numeri(Leggi(".Ord")), (std::vector<int>{6, 5, 4, 3, 2, 1, 7, 0, 99, 100}));
    // The mark of a movement marked for elimination is the value refill's only.
    const std::string marcato = f().ElencoMovim.List(4);
    EXPECT_EQ(marcato.substr(marcato.size() - 6), " 20,00");

    f().Command2.Clicca();
    EXPECT_EQ(NumeriInLista(f().elencoValuta), (std::vector<int>{5, 6, 4, 3, 2, 1, 7}));
    EXPECT_TRUE(f().elencoValuta.Visible);
    EXPECT_FALSE(f().ElencoMovim.Visible);
    EXPECT_FALSE(f().Command2.Enabled);
    EXPECT_TRUE(f().Command1.Enabled);
    EXPECT_EQ(f().Label25.Text(), "Elenco Movimenti per data Valuta");
    EXPECT_EQ(f().DataInizSel.Text(), "15/02/2000");
    EXPECT_EQ(f().DataFineSel.Text(), "05/01/2002");
    EXPECT_EQ(f().elencoValuta.List(4).substr(f().elencoValuta.List(4).size() - 7), "20,00 *");

    // A new movement goes into the list on view only, and .Ord follows ElencoMovim, which
    // doesn't have it.
    Stato.NumMovimenti = 8;
    Stato.Movimenti[8] = Mov(8, "02/01/2000", "02/01/2000", 5, "E", "S");
    AggiungiMovimento();
    EXPECT_EQ(NumeriInLista(f().elencoValuta), (std::vector<int>{8, 5, 6, 4, 3, 2, 1, 7}));
    EXPECT_EQ(f().ElencoMovim.ListCount(), 7);
    EXPECT_EQ(f().DataInizSel.Text(), "02/01/2000");
    EXPECT_EQ(Numeri(Leggi(".Ord")), (std::vector<int>{6, 5, 4, 3, 2, 1, 7, 0, 99, 100}));

    f().Command1.Clicca();
    EXPECT_EQ(NumeriInLista(f().ElencoMovim), (std::vector<int>{8, 6, 5, 4, 3, 2, 1, 7}));
    EXPECT_EQ(f().Label25.Text(), "Elenco Movimenti per data Operazione");
    EXPECT_FALSE(f().Command1.Enabled);
    EXPECT_TRUE(f().Command2.Enabled);
}

TEST_F(Form9Test, FiltroPoiNuovoMovimentoFuoriDalFiltroLasciaOrdCorto) {
    ScriviMovimenti(Sette());
    f().S.Show();

    f().DataInizSel.SetFocus();
    f().DataInizSel.SetText("01/07/2001");
    f().DataFineSel.SetFocus();
    f().DataFineSel.SetText("07/07/2001");
    f().Ag.Clicca();
    EXPECT_EQ(NumeriInLista(f().ElencoMovim), (std::vector<int>{4, 2}));
    EXPECT_EQ(f().DataInizSel.Text(), "01/07/2001");
    EXPECT_EQ(f().DataFineSel.Text(), "07/07/2001");
    EXPECT_TRUE(f().Ag.Enabled);
    EXPECT_TRUE(f().DataOper.HaFuoco());

    Stato.NumMovimenti = 8;
    Stato.Movimenti[8] = Mov(8, "15/08/2001", "15/08/2001", 100, "E", "N");
    AggiungiMovimento();

    EXPECT_EQ(f().DataInizSel.Text(), "01/07/2001");
    EXPECT_EQ(f().DataFineSel.Text(), "15/08/2001");
    EXPECT_EQ(NumeriInLista(f().ElencoMovim), (std::vector<int>{4, 2, 8}));
    // The three listed, the blank record, then what stood there before.
    EXPECT_EQ(Numeri(Leggi(".Ord")), (std::vector<int>{4, 2, 8, 0, 2, 1, 7, 0}));
    auto mov = Leggi(".MOV");
    ASSERT_EQ(mov.size(), 8u);
    EXPECT_EQ(mov[7].DataOper, "15/08/2001");
    EXPECT_EQ(LeggiContatore(File(".MOR")), 8);
    // 10 + 20 + 30 - 40 + 50 + 60 + 70 + 100, the new one aligned and post-dated.
    EXPECT_EQ(Stato.SaldoUltimaData, 300);
    EXPECT_EQ(Stato.SaldoAllineamento, -10 + 100);
    EXPECT_EQ(app->MDIForm1.Saldi(4).Text(), "300,00");
    RecTotali t = LeggiTotali();
    EXPECT_EQ(t.SaldoUltimaData, 300);
    EXPECT_EQ(t.PrimaDataOperazione, "10/03/2001");

    // "Tutti" shows every movement again and recomputes the dates.
    f().Command3.Clicca();
    // 15/08/2001 numbers 732593: between 30/06/2001 (732555) and 05/01/2002.
    EXPECT_EQ(NumeriInLista(f().ElencoMovim), (std::vector<int>{6, 5, 4, 3, 2, 1, 8, 7}));
    EXPECT_EQ(f().DataInizSel.Text(), "10/03/2001");
    EXPECT_EQ(f().DataFineSel.Text(), "05/01/2002");
}

TEST_F(Form9Test, FiltroConGiornoZeroFallisceELasciaAgUsabile) {
    ScriviMovimenti(Sette());
    f().S.Show();
    // Day 0 passes the check of the field, but the calendar can't read it.
    f().DataInizSel.SetFocus();
    f().DataInizSel.SetText("00/07/2001");
    f().Ag.SetFocus();
    EXPECT_EQ(f().DataInizSel.Text(), "00/07/2001");
    EXPECT_FALSE(EseguiEvento([&] { f().Ag.Clicca(); }));
    ASSERT_FALSE(porta.messaggi.empty());
    EXPECT_EQ(porta.messaggi.back(), "FAILURE 13 Tipo non corrispondente");
    EXPECT_TRUE(f().Ag.Enabled);
}

TEST_F(Form9Test, OrdineConDataInizialeVuotaNonFaNulla) {
    ScriviMovimenti(Sette());
    f().S.Show();
    f().Command2.Clicca();
    f().DataInizSel.SetText("");
    f().Command1.Clicca();
    EXPECT_TRUE(f().Command1.Enabled);
    EXPECT_TRUE(f().elencoValuta.Visible);
}

TEST_F(Form9Test, PerValutaSenzaPrimaDataValutaTieneLeDateDellaSelezione) {
    ScriviMovimenti({Mov(1, "01/03/2001", "", 10, "E", "S"),
                     Mov(2, "20/03/2001", "10/03/2001", 20, "E", "S")});
    f().S.Show();
    EseguiEvento([&] { f().Command2.Clicca(); });
    // The blank value date reads as date number 0: nothing to go by, the dates stay.
    EXPECT_EQ(f().DataInizSel.Text(), "01/03/2001");
    EXPECT_EQ(f().DataFineSel.Text(), "20/03/2001");
    EXPECT_EQ(Stato.PrimaDataValuta, Fisso<10>());
}

// Leaving a selection field with what it holds.
struct CasoUscita {
    const char* nome;
    const char* scritto;
    const char* risultato;
    const char* messaggio;   // "" for none
    bool restaLi;
};

class CampiSelezioneTest : public Form9Test, public ::testing::WithParamInterface<CasoUscita> {};

const std::string dataErrata =
    "[Errore]  Data Errata; Inserire la data nel formato GGMMAAAA immettendo lo zero davanti ai "
    "numeri con una sola cifra. -> OK";
const std::string dataBreve =
    "[Errore]  Data Errata; Inserire la data nel formato GGMMAA immettendo lo zero davanti ai "
    "numeri con una sola cifra. -> OK";

INSTANTIATE_TEST_SUITE_P(
    Registro, CampiSelezioneTest,
    ::testing::Values(
        CasoUscita{"vuoto_diventa_oggi", "__/__/____", "05/07/2001", "", false},
        CasoUscita{"data_buona_resta", "29/02/2000", "29/02/2000", "", false},
        CasoUscita{"trenta_uno_aprile_svuotato", "31/04/2001", "__/__/____", dataErrata.c_str(),
                   false},
        CasoUscita{"anno_incompleto_svuotato", "15/03/____", "__/__/____", dataErrata.c_str(),
                   false},
        CasoUscita{"giorno_zero_passa", "00/03/2001", "00/03/2001", "", false},
        CasoUscita{"testo_corto_trattiene", "5/7/2001", "__/__/____", dataBreve.c_str(), true}),
    [](const auto& info) { return std::string(info.param.nome); });

TEST_P(CampiSelezioneTest, UscitaDalCampo) {
    const CasoUscita& c = GetParam();
    f().S.Show();
    for (Controllo* campo : {&f().DataInizSel, &f().DataFineSel}) {
        porta.messaggi.clear();
        campo->SetFocus();
        campo->SetText(c.scritto);
        f().Ag.SetFocus();
        EXPECT_EQ(campo->Text(), c.risultato) << campo->nome;
        std::vector<std::string> attesi;
        if (*c.messaggio) attesi.push_back(c.messaggio);
        EXPECT_EQ(porta.messaggi, attesi) << campo->nome;
        EXPECT_EQ(campo->HaFuoco(), c.restaLi) << campo->nome;
    }
}

