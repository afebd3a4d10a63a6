#include "screen/Schermo.h"
#include "screen/PiattaformaSenzaSchermo.h"
#include "shell/MDIForm1.h"

#include "tests/Ambiente.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using ConPiattaforma = Ambiente;

TEST(Liste, UnaRigaAggiuntaSpostaLaSceltaSenzaClic) {
    struct Caso {
        const char* nome;
        bool ordinata;
        std::vector<std::string> righe;
        int scelta;
        std::string nuova;
        std::vector<std::string> attese;
        int sceltaAttesa;
    };
    const Caso casi[] = {
        {"before the selection", true, {"b", "d"}, 1, "c", {"b", "c", "d"}, 2},
        {"equal goes after", true, {"b", "d"}, 0, "B", {"b", "B", "d"}, 0},
        {"blank before letters", true, {"a"}, 0, " z", {" z", "a"}, 1},
        {"unsorted at the end", false, {"d", "b"}, 0, "a", {"d", "b", "a"}, 0},
    };
    for (const Caso& caso : casi) {
        Schermo s{"ProvaLista", ""};
        Controllo lista{s, TipoControllo::Lista, "Lista"};
        lista.Sorted = caso.ordinata;
        for (const std::string& r : caso.righe) lista.AddItem(r);
        lista.SetListIndex(caso.scelta);
        int clic = 0;
        lista.Click = [&clic] { ++clic; };
        lista.AddItem(caso.nuova);
        EXPECT_EQ(lista.Righe(), caso.attese) << caso.nome;
        EXPECT_EQ(lista.ListIndex(), caso.sceltaAttesa) << caso.nome;
        EXPECT_EQ(clic, 0) << caso.nome;
    }
}

TEST(Liste, UnaRigaToltaSpostaLaScelta) {
    Schermo s{"ProvaLista", ""};
    Controllo lista{s, TipoControllo::Lista, "Lista"};
    for (const char* r : {"a", "b", "c", "d"}) lista.AddItem(r);
    lista.SetListIndex(2);
    lista.RemoveItem(0);
    EXPECT_EQ(lista.ListIndex(), 1) << "a line above the selection moves it up";
    lista.RemoveItem(2);
    EXPECT_EQ(lista.ListIndex(), 1) << "a line below the selection leaves it";
    lista.RemoveItem(1);
    EXPECT_EQ(lista.ListIndex(), -1) << "the selected line gone, nothing is selected";
}

struct Modulo {
    Schermo S{"Modulo", "Scheda"};
    Controllo Campo{S, TipoControllo::Campo, "Campo", "iniziale"};
    Controllo Data{S, TipoControllo::Data, "Data"};
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
    m.Lista.SetListIndex(0);
    m.Casella.SetValue(true);
    m.OK.Enabled = false;

    m.S.UnloadMe();
    EXPECT_EQ(vistoDaUnload, "cambiato") << "Unload still sees the values of the session";
    EXPECT_EQ(m.S.Caption + "|" + m.Campo.Text() + "|" + m.Data.Text(),
              "Scheda|iniziale|__/__/____");
    EXPECT_EQ(m.Lista.ListIndex(), -1);
    EXPECT_FALSE(m.Casella.Value());
    EXPECT_TRUE(m.OK.Enabled);
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
        for (const Controllo* c : {&A1, &A2, &B1, &B2, &Casella})
            if (c->Value()) s += c->nome;
        return s;
    }
};

using GruppiDiOpzioni = ConPiattaforma;

TEST_F(GruppiDiOpzioni, UnaAccesaPerGruppo) {
    Opzioni o;
    o.A1.Clicca();
    o.B2.Clicca();
    o.A2.Clicca();
    EXPECT_EQ(o.Accese(), "A2B2") << "the other group keeps its choice";
    o.B1.SetValue(true);
    EXPECT_EQ(o.Accese(), "A2B1");
    // Only the option turned on clicks; the one turned off doesn't.
    EXPECT_EQ(o.clic, (std::vector<std::string>{"A1", "B2", "A2", "B1"}));
    EXPECT_EQ(o.S.Fuoco(), &o.A2) << "a click takes the focus, a value set in code doesn't";
}

TEST_F(GruppiDiOpzioni, LaCasellaSiAlternaESpentaONascostaNonRisponde) {
    Opzioni o;
    o.A1.Enabled = false;
    o.A2.Visible = false;
    for (Controllo* c : {&o.Casella, &o.A1, &o.A2, &o.Casella}) c->Clicca();
    EXPECT_EQ(o.Accese(), "");
    EXPECT_EQ(o.clic, (std::vector<std::string>{"Casella", "Casella"}));
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

} // namespace
