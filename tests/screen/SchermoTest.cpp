// What a screen does on its own: the design values back at each unload, one option on per
// group, and a lost-focus handler that sends the focus elsewhere.
#include "screen/Schermo.h"
#include "tests/Ambiente.h"

namespace {
struct Modulo {
    Schermo S{"Modulo", "Scheda"};
    Controllo Campo{S, TipoControllo::Campo, "Campo", "iniziale"};
    Controllo Data{S, TipoControllo::Data, "Data"};
    Controllo Lista{S, TipoControllo::Lista, "Lista"};
    Controllo Casella{S, TipoControllo::Casella, "Casella", "Scelta"};
    Controllo OK{S, TipoControllo::Pulsante, "OK", "OK"};
};

using SchermoTest = Ambiente;

TEST_F(SchermoTest, LoScaricamentoRestituisceIValoriDiProgetto) {
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

// Only the option turned on clicks, and a click takes the focus where a value set in code
// doesn't; a disabled one doesn't answer.
TEST_F(SchermoTest, UnaOpzioneAccesaPerGruppo) {
    Schermo s{"Opzioni", ""};
    Controllo a1{s, TipoControllo::Opzione, "A1"}, a2{s, TipoControllo::Opzione, "A2"};
    Controllo b1{s, TipoControllo::Opzione, "B1"}, b2{s, TipoControllo::Opzione, "B2"};
    Controllo spenta{s, TipoControllo::Opzione, "Spenta"};
    b1.Gruppo = b2.Gruppo = "B";
    spenta.Enabled = false;
    std::string clic, accese;
    for (Controllo* c : {&a1, &a2, &b1, &b2, &spenta})
        c->Click = [&clic, c] { clic += c->nome; };
    for (Controllo* c : {&a1, &b2, &a2, &spenta})
        c->Clicca();
    a1.SetValue(true);
    for (Controllo* c : {&a1, &a2, &b1, &b2, &spenta})
        if (c->Value()) accese += c->nome;
    EXPECT_EQ(accese, "A1B2") << "the other group keeps its choice";
    EXPECT_EQ(clic, "A1B2A2A1");
    EXPECT_EQ(s.Fuoco(), &a2);
}

TEST_F(SchermoTest, UnaPerditaDiFuocoCheLoSpostaVince) {
    Modulo m;
    std::string eventi;
    m.Campo.LostFocus = [&] {
        eventi += "perde Campo|";
        m.Casella.SetFocus();
    };
    m.Casella.GotFocus = [&] { eventi += "prende Casella|"; };
    m.Lista.GotFocus = [&] { eventi += "prende Lista|"; };
    m.S.Show();
    m.Lista.SetFocus();
    EXPECT_EQ(m.S.Fuoco(), &m.Casella);
    EXPECT_EQ(eventi, "perde Campo|prende Casella|");
}
} // namespace
