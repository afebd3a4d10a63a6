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

TEST_F(SchermoTest, UnaOpzioneAccesaPerGruppo) {
    Schermo s{"Opzioni", ""};
    Controllo a1{s, TipoControllo::Opzione, "A1"}, a2{s, TipoControllo::Opzione, "A2"};
    Controllo b1{s, TipoControllo::Opzione, "B1"}, b2{s, TipoControllo::Opzione, "B2"};
    Controllo spenta{s, TipoControllo::Opzione, "Spenta"};
    Controllo nascosta{s, TipoControllo::Opzione, "Nascosta"};
    Controllo casella{s, TipoControllo::Casella, "Casella"};
    b1.Gruppo = b2.Gruppo = "B";
    spenta.Enabled = nascosta.Visible = false;
    const std::vector<Controllo*> tutti = {&a1, &a2, &b1, &b2, &spenta, &nascosta, &casella};
    std::string clic;
    for (Controllo* c : tutti)
        c->Click = [&clic, c] { clic += c->nome; };
    auto accese = [&] {
        std::string s;
        for (const Controllo* c : tutti)
            if (c->Value()) s += c->nome;
        return s;
    };

    for (Controllo* c : {&a1, &b2, &casella, &a2, &spenta, &nascosta, &casella})
        c->Clicca();
    EXPECT_EQ(accese(), "A2B2") << "the other group keeps its choice";
    b1.SetValue(true);
    EXPECT_EQ(accese(), "A2B1");
    // Only the option turned on clicks; the one turned off doesn't; a disabled
    // or hidden one not at all.
    EXPECT_EQ(clic, "A1B2CasellaA2CasellaB1");
    EXPECT_EQ(s.Fuoco(), &casella) << "a click takes the focus, a value set in code doesn't";
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
