// What a screen does on its own: where the lines of a list go and the selection with them, the
// design values back at each unload, one option on per group, and a lost-focus handler that
// sends the focus elsewhere.
#include "screen/Schermo.h"
#include "tests/Ambiente.h"

namespace {
// The register's refills add thousands of lines at once, which must land as AddItem of each. A
// block is sorted by the first 40 bytes of its lines, and compared whole only where those
// agree: lines whose difference lies around the 40th byte. "[" lies between the cases, no case
// folds above 0x7F, a zero byte is a byte.
TEST(Liste, LeRigheAggiunteUnaAllaVoltaOInBloccoEDoveVaLaScelta) {
    const std::string t(38, '7');
    const struct {
        const char* nome;
        bool ordinata;
        std::vector<std::string> presenti, aggiunte, attese;
        int scelta, tolta, sceltaDopo; // the selection before, the line taken away, the selection
    } casi[] = {
        {"before the selection", true, {"b", "d"}, {"c"}, {"b", "c", "d"}, 1, -1, 2},
        {"into nothing", true, {}, {"b", "A", "a", "C"}, {"A", "a", "b", "C"}, -1, -1, -1},
        {"merged", true, {"a", "c"}, {"b", "C", "A"}, {"a", "A", "b", "c", "C"}, 1, -1, 3},
        {"long heads",
         true,
         {t + "xaq"},
         {t + "xzq", t + "xAq", t + "x", t + '\0', t + "\xE0", t + "x[", t + "\xC0", t + "xab"},
         {t + '\0', t + "x", t + "x[", t + "xab", t + "xaq", t + "xAq", t + "xzq", t + "\xC0",
          t + "\xE0"},
         0,
         -1,
         4},
        {"unsorted at the end", false, {"d", "b"}, {"a", "c"}, {"d", "b", "a", "c"}, 0, -1, 0},
        {"taken just above", false, {"a", "b", "c"}, {}, {"b", "c"}, 1, 0, 0},
        {"taken below", false, {"a", "b", "c"}, {}, {"a", "b"}, 1, 2, 1},
        {"selected taken", false, {"a", "b", "c"}, {}, {"a", "c"}, 1, 1, -1},
    };
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.nome);
        Schermo s{"Prova", ""};
        Controllo una{s, TipoControllo::Lista, "Una"}, blocco{s, TipoControllo::Lista, "Blocco"};
        int clic = 0;
        for (Controllo* l : {&una, &blocco}) {
            l->Sorted = caso.ordinata;
            for (const std::string& riga : caso.presenti)
                l->AddItem(riga);
            l->SetListIndex(caso.scelta);
            l->Click = [&clic] { ++clic; };
        }
        for (const std::string& riga : caso.aggiunte)
            una.AddItem(riga);
        unsigned prima = blocco.Revisione();
        blocco.AggiungiRighe(caso.aggiunte);
        for (Controllo* l : {&una, &blocco}) {
            if (caso.tolta >= 0) l->RemoveItem(caso.tolta);
            EXPECT_EQ(l->Righe(), caso.attese);
            EXPECT_EQ(l->ListIndex(), caso.sceltaDopo);
        }
        EXPECT_NE(blocco.Revisione(), prima) << "a list that changed is drawn again";
        EXPECT_EQ(clic, 0) << "a selection that moves with its line is no click";
    }
}

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
    EXPECT_EQ(m.S.Caption + "|" + m.Campo.Text() + "|" + m.Data.Text() + "|" +
                  std::to_string(m.Lista.ListIndex()) + "|" + std::to_string(m.Casella.Value()) +
                  std::to_string(m.OK.Enabled),
              "Scheda|iniziale|__/__/____|-1|01");
    // The next load starts again from the design, and Load runs again.
    m.S.Show();
    EXPECT_EQ(m.Lista.Righe(), (std::vector<std::string>{"caricata"}));
    EXPECT_EQ(m.S.Fuoco(), &m.Campo);
}

// Only the option turned on clicks, and a click takes the focus where a value set in code
// doesn't; a disabled or hidden one doesn't answer.
TEST_F(SchermoTest, UnaOpzioneAccesaPerGruppo) {
    Schermo s{"Opzioni", ""};
    Controllo a1{s, TipoControllo::Opzione, "A1"}, a2{s, TipoControllo::Opzione, "A2"};
    Controllo b{s, TipoControllo::Opzione, "B"}, spenta{s, TipoControllo::Opzione, "Spenta"};
    Controllo nascosta{s, TipoControllo::Opzione, "Nascosta"};
    b.Gruppo = "B";
    spenta.Enabled = nascosta.Visible = false;
    std::string clic, accese;
    for (Controllo* c : {&a1, &a2, &b, &spenta, &nascosta})
        c->Click = [&clic, c] { clic += c->nome; };
    for (Controllo* c : {&a1, &b, &a2, &spenta, &nascosta})
        c->Clicca();
    a1.SetValue(true);
    for (Controllo* c : {&a1, &a2, &b, &spenta, &nascosta})
        if (c->Value()) accese += c->nome;
    EXPECT_EQ(accese, "A1B") << "the other group keeps its choice";
    EXPECT_EQ(clic, "A1BA2A1");
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
