// The lines of a list: where a new one goes, alone or many at once, and where the selection
// follows it. The register's refills add thousands at once and must land as AddItem of each.
#include "screen/Schermo.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {
struct Lista {
    Schermo s{"Prova", ""};
    Controllo c{s, TipoControllo::Lista, "Lista"};
    explicit Lista(bool ordinata, const std::vector<std::string>& righe = {}) {
        c.Sorted = ordinata;
        for (const std::string& riga : righe)
            c.AddItem(riga);
    }
};

TEST(Liste, LeRigheAggiunteUnaAllaVoltaOInBloccoEDoveVaLaScelta) {
    // A block is sorted by the first 40 bytes of its lines, and compared whole only where those
    // agree: lines whose difference lies around the 40th byte. "[" lies between the cases, no
    // case folds above 0x7F, a zero byte is a byte.
    const std::string t(38, '7');
    const struct {
        const char* nome;
        bool ordinata;
        std::vector<std::string> presenti;
        int scelta;
        std::vector<std::string> aggiunte, attese;
        int sceltaDopo;
    } casi[] = {
        {"before the selection", true, {"b", "d"}, 1, {"c"}, {"b", "c", "d"}, 2},
        {"equal goes after", true, {"b", "d"}, 0, {"B"}, {"b", "B", "d"}, 0},
        {"blank before letters", true, {"a"}, 0, {" z"}, {" z", "a"}, 1},
        {"into nothing", true, {}, -1, {"b", "A", "a", "C"}, {"A", "a", "b", "C"}, -1},
        {"merged", true, {"a", "c"}, 1, {"b", "C", "A"}, {"a", "A", "b", "c", "C"}, 3},
        {"all before", true, {"m"}, 0, {"z", "b"}, {"b", "m", "z"}, 1},
        {"long heads",
         true,
         {t + "xaq"},
         0,
         {t + "xzq", t + "xAq", t + "x", t + '\0', t + "\xE0", t + "x[", t + "\xC0", t + "xab"},
         {t + '\0', t + "x", t + "x[", t + "xab", t + "xaq", t + "xAq", t + "xzq", t + "\xC0",
          t + "\xE0"},
         4},
        {"unsorted at the end", false, {"d", "b"}, 0, {"a", "c"}, {"d", "b", "a", "c"}, 0},
    };
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.nome);
        Lista una(caso.ordinata, caso.presenti), blocco(caso.ordinata, caso.presenti);
        int clic = 0;
        for (Lista* l : {&una, &blocco}) {
            l->c.SetListIndex(caso.scelta);
            l->c.Click = [&clic] { ++clic; };
        }
        for (const std::string& riga : caso.aggiunte)
            una.c.AddItem(riga);
        unsigned prima = blocco.c.Revisione();
        blocco.c.AggiungiRighe(caso.aggiunte);
        for (Lista* l : {&una, &blocco}) {
            EXPECT_EQ(l->c.Righe(), caso.attese);
            EXPECT_EQ(l->c.ListIndex(), caso.sceltaDopo);
        }
        EXPECT_NE(blocco.c.Revisione(), prima) << "a list that changed is drawn again";
        EXPECT_EQ(clic, 0) << "a selection that moves with its line is no click";
    }
}

TEST(Liste, UnaRigaToltaSpostaLaScelta) {
    Lista l(false, {"a", "b", "c", "d"});
    l.c.SetListIndex(2);
    l.c.RemoveItem(0);
    EXPECT_EQ(l.c.ListIndex(), 1) << "a line above the selection moves it up";
    l.c.RemoveItem(2);
    EXPECT_EQ(l.c.ListIndex(), 1) << "a line below the selection leaves it";
    l.c.RemoveItem(1);
    EXPECT_EQ(l.c.ListIndex(), -1) << "the selected line gone, nothing is selected";
}

} // namespace
