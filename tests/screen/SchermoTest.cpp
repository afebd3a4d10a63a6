#include "screen/Schermo.h"
#include "screen/PiattaformaSenzaSchermo.h"
#include "shell/MDIForm1.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

struct ConPiattaforma : ::testing::Test {
    PiattaformaSenzaSchermo piattaforma;
    void SetUp() override { ImpostaPiattaforma(&piattaforma); }
    void TearDown() override { ImpostaPiattaforma(nullptr); }
};

struct Inserimento {
    const char* nome;
    bool ordinata;
    std::vector<std::string> righe;
    int scelta;
    std::string nuova;
    std::vector<std::string> attese;
    int sceltaAttesa;
};

class InserimentoOrdinato : public ::testing::TestWithParam<Inserimento> {};

TEST_P(InserimentoOrdinato, RigheEScelta) {
    const Inserimento& caso = GetParam();
    Schermo s{"ProvaLista", ""};
    Controllo lista{s, TipoControllo::Lista, "Lista"};
    lista.Sorted = caso.ordinata;
    for (const std::string& r : caso.righe)
        lista.AddItem(r);
    lista.SetListIndex(caso.scelta);
    int clic = 0;
    lista.Click = [&clic] { ++clic; };

    lista.AddItem(caso.nuova);

    EXPECT_EQ(lista.Righe(), caso.attese);
    EXPECT_EQ(lista.ListIndex(), caso.sceltaAttesa);
    EXPECT_EQ(clic, 0) << "a line added moves the selection without a click";
}

INSTANTIATE_TEST_SUITE_P(
    Liste, InserimentoOrdinato,
    ::testing::Values(
        Inserimento{"primaDellaScelta", true, {"b", "d"}, 1, "c", {"b", "c", "d"}, 2},
        Inserimento{"dopoLaScelta", true, {"b", "d"}, 0, "c", {"b", "c", "d"}, 0},
        Inserimento{"inTesta", true, {"b", "d"}, 0, "a", {"a", "b", "d"}, 1},
        Inserimento{"ugualeVaDopo", true, {"b", "d"}, 0, "B", {"b", "B", "d"}, 0},
        Inserimento{"maiuscoleIgnorate", true, {"B", "c"}, 1, "a", {"a", "B", "c"}, 2},
        Inserimento{"minuscolaDopoMaiuscola", true, {"A", "C"}, 1, "b", {"A", "b", "C"}, 2},
        Inserimento{"spazioPrimaDelleLettere", true, {"a"}, 0, " z", {" z", "a"}, 1},
        Inserimento{"senzaScelta", true, {"b", "d"}, -1, "a", {"a", "b", "d"}, -1},
        Inserimento{"nonOrdinataInCoda", false, {"d", "b"}, 0, "a", {"d", "b", "a"}, 0}),
    [](const ::testing::TestParamInfo<Inserimento>& info) { return info.param.nome; });

TEST(RimozioneRiga, LaSceltaSegueLeRighe) {
    Schermo s{"ProvaLista", ""};
    Controllo lista{s, TipoControllo::Lista, "Lista"};
    for (const char* r : {"a", "b", "c", "d"})
        lista.AddItem(r);

    lista.SetListIndex(2);
    lista.RemoveItem(0);
    EXPECT_EQ(lista.ListIndex(), 1) << "a line above the selection moves it up";
    lista.RemoveItem(2);
    EXPECT_EQ(lista.ListIndex(), 1) << "a line below the selection leaves it";
    lista.RemoveItem(1);
    EXPECT_EQ(lista.ListIndex(), -1) << "the selected line gone, nothing is selected";
    EXPECT_EQ(lista.Righe(), (std::vector<std::string>{"b"}));
}

struct Modulo {
    Schermo S{"Modulo", "Scheda"};
    Controllo Campo{S, TipoControllo::Campo, "Campo", "iniziale"};
    Controllo Data{S, TipoControllo::Data, "Data"};
    Controllo Etichetta{S, TipoControllo::Etichetta, "Etichetta", "Titolo"};
    Controllo Lista{S, TipoControllo::Lista, "Lista"};
    Controllo Casella{S, TipoControllo::Casella, "Casella", "Scelta"};
    Controllo OK{S, TipoControllo::Pulsante, "OK", "OK"};
};

using Scaricamento = ConPiattaforma;

TEST_F(Scaricamento, RestituisceIValoriDiProgetto) {
    Modulo m;
    // What Load puts in is the program's doing, not the design: it goes at the unload too.
    m.S.Load = [&m] { m.Lista.AddItem("caricata"); };
    std::string vistoDaUnload;
    m.S.Unload = [&] { vistoDaUnload = m.Campo.Text(); };

    m.S.Show();
    m.S.Caption = "Altra scheda";
    m.Campo.SetText("cambiato");
    m.Data.SetText("15/03/2001");
    m.Etichetta.SetText("Altro titolo");
    m.Lista.AddItem("seconda");
    m.Lista.SetListIndex(1);
    m.Casella.SetValue(true);
    m.OK.Enabled = false;
    m.Campo.Visible = false;

    m.S.UnloadMe();

    EXPECT_EQ(vistoDaUnload, "cambiato") << "Unload still sees the values of the session";
    EXPECT_EQ(m.S.Stato(), StatoSchermo::Scaricato);
    EXPECT_EQ(m.S.Fuoco(), nullptr);
    EXPECT_EQ(m.S.Caption, "Scheda");
    EXPECT_EQ(m.Campo.Text(), "iniziale");
    EXPECT_EQ(m.Data.Text(), "__/__/____");
    EXPECT_EQ(m.Etichetta.Text(), "Titolo");
    EXPECT_EQ(m.Lista.ListCount(), 0);
    EXPECT_EQ(m.Lista.ListIndex(), -1);
    EXPECT_FALSE(m.Casella.Value());
    EXPECT_TRUE(m.OK.Enabled);
    EXPECT_TRUE(m.Campo.Visible);

    // The next load starts again from the design, and Load runs again.
    m.S.Show();
    EXPECT_EQ(m.Lista.Righe(), (std::vector<std::string>{"caricata"}));
    EXPECT_EQ(m.S.Fuoco(), &m.Campo);
}

struct Opzioni {
    Schermo S{"Opzioni", ""};
    Controllo A1{S, TipoControllo::Opzione, "A1"};
    Controllo A2{S, TipoControllo::Opzione, "A2"};
    Controllo B1{S, TipoControllo::Opzione, "B1"};
    Controllo B2{S, TipoControllo::Opzione, "B2"};
    Controllo Casella{S, TipoControllo::Casella, "Casella"};
    std::vector<std::string> clic;

    Opzioni() {
        for (Controllo* c : {&A1, &A2, &B1, &B2, &Casella})
            c->Click = [this, c] { clic.push_back(c->nome); };
        B1.Gruppo = B2.Gruppo = "B";
    }
    std::string Accese() const {
        std::string s;
        for (const Controllo* c : {&A1, &A2, &B1, &B2})
            if (c->Value()) s += c->nome;
        return s;
    }
};

using GruppiDiOpzioni = ConPiattaforma;

TEST_F(GruppiDiOpzioni, UnaAccesaPerGruppo) {
    Opzioni o;
    o.A1.Clicca();
    o.B2.Clicca();
    EXPECT_EQ(o.Accese(), "A1B2");

    o.A2.Clicca();
    EXPECT_EQ(o.Accese(), "A2B2") << "the other group keeps its choice";
    o.B1.SetValue(true);
    EXPECT_EQ(o.Accese(), "A2B1");
    // Only the option turned on clicks; the one turned off doesn't.
    EXPECT_EQ(o.clic, (std::vector<std::string>{"A1", "B2", "A2", "B1"}));
    EXPECT_EQ(o.S.Fuoco(), &o.A2) << "a click takes the focus, a value set in code doesn't";
}

TEST_F(GruppiDiOpzioni, LaCasellaSiAlternaEClicca) {
    Opzioni o;
    o.Casella.Clicca();
    EXPECT_TRUE(o.Casella.Value());
    o.Casella.Clicca();
    EXPECT_FALSE(o.Casella.Value());
    EXPECT_EQ(o.clic, (std::vector<std::string>{"Casella", "Casella"}));
    EXPECT_EQ(o.Accese(), "") << "a check box is in no group of options";
}

TEST_F(GruppiDiOpzioni, SpentaOInvisibileNonRispondeAlClic) {
    Opzioni o;
    o.A1.Enabled = false;
    o.A1.Clicca();
    o.A2.Visible = false;
    o.A2.Clicca();
    EXPECT_EQ(o.Accese(), "");
    EXPECT_TRUE(o.clic.empty());
}

using Fuoco = ConPiattaforma;

TEST_F(Fuoco, UnaPerditaDiFuocoCheLoSpostaVince) {
    Modulo m;
    std::vector<std::string> eventi;
    m.Campo.LostFocus = [&] {
        eventi.push_back("perde Campo");
        m.Casella.SetFocus();
    };
    m.Casella.GotFocus = [&] { eventi.push_back("prende Casella"); };
    m.Lista.GotFocus = [&] { eventi.push_back("prende Lista"); };
    m.S.Show();

    m.Lista.SetFocus();

    EXPECT_EQ(m.S.Fuoco(), &m.Casella);
    EXPECT_EQ(eventi, (std::vector<std::string>{"perde Campo", "prende Casella"}));
}

struct Voce {
    const char* nome;
    bool menuAcceso, menuVisibile, voceAccesa;
    bool scelta;
};

class MenuPrincipale : public ::testing::TestWithParam<Voce> {};

// `movimenti` stands in the submenu Stampe of the menu File.
TEST_P(MenuPrincipale, UnaVoceDiUnMenuSpentoNonSiSceglie) {
    const Voce& caso = GetParam();
    PiattaformaSenzaSchermo piattaforma;
    ImpostaPiattaforma(&piattaforma);
    MDIForm1 f;
    int scelte = 0;
    f.movimenti.Click = [&scelte] { ++scelte; };
    f.Stampe.Enabled = caso.menuAcceso;
    f.Stampe.Visible = caso.menuVisibile;
    f.movimenti.Enabled = caso.voceAccesa;

    f.movimenti.Clicca();

    EXPECT_EQ(scelte, caso.scelta ? 1 : 0);
    ImpostaPiattaforma(nullptr);
}

INSTANTIATE_TEST_SUITE_P(Voci, MenuPrincipale,
                         ::testing::Values(Voce{"tuttoAcceso", true, true, true, true},
                                           Voce{"menuSpento", false, true, true, false},
                                           Voce{"menuNascosto", true, false, true, false},
                                           Voce{"voceSpenta", true, true, false, false}),
                         [](const ::testing::TestParamInfo<Voce>& info) {
                             return info.param.nome;
                         });

TEST(MenuPrincipaleAllAvvio, LeStampeSonoSpenteSenzaConto) {
    PiattaformaSenzaSchermo piattaforma;
    ImpostaPiattaforma(&piattaforma);
    MDIForm1 f;
    int scelte = 0;
    f.movimenti.Click = [&scelte] { ++scelte; };
    f.MenMovimenti.Click = [&scelte] { ++scelte; };

    f.movimenti.Clicca();
    f.MenMovimenti.Clicca();

    EXPECT_EQ(scelte, 0) << "Stampe and Immissioni are off until an account is open";
    AbilitaComandiConto(f, true);
    f.movimenti.Clicca();
    f.MenMovimenti.Clicca();
    EXPECT_EQ(scelte, 2);
    ImpostaPiattaforma(nullptr);
}

} // namespace
