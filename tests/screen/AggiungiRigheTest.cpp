// Many lines at once into a list: the same lines, in the same places, as AddItem of each in
// turn, with the selection following its line. The register's refills rely on it.
#include "screen/Schermo.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {
struct Caso {
    const char* nome;
    bool ordinata;
    std::vector<std::string> presenti;
    int scelta;                         // selected line before, -1 none
    std::vector<std::string> aggiunte;
    std::vector<std::string> attese;
    int sceltaDopo;
};

class AggiungiRigheTest : public ::testing::TestWithParam<Caso> {};

TEST_P(AggiungiRigheTest, ComeAddItemDiOgnuna) {
    const Caso& c = GetParam();
    Schermo s{"Prova", ""};
    Controllo lista{s, TipoControllo::Lista, "Lista"};
    lista.Sorted = c.ordinata;
    for (const std::string& riga : c.presenti) lista.AddItem(riga);
    lista.SetListIndex(c.scelta);
    unsigned prima = lista.Revisione();

    lista.AggiungiRighe(c.aggiunte);

    EXPECT_EQ(lista.Righe(), c.attese);
    EXPECT_EQ(lista.ListIndex(), c.sceltaDopo);
    EXPECT_NE(lista.Revisione(), prima);
}

// Equal lines without regard to case keep the order they came in, after those already there.
INSTANTIATE_TEST_SUITE_P(
    Schermo, AggiungiRigheTest,
    ::testing::Values(
        Caso{"lista_vuota", true, {}, -1, {"b", "A", "a", "C"}, {"A", "a", "b", "C"}, -1},
        Caso{"fuse_con_le_presenti", true, {"a", "c"}, 1, {"b", "C", "A"},
             {"a", "A", "b", "c", "C"}, 3},
        Caso{"scelta_prima_di_tutte", true, {"m"}, 0, {"z", "b"}, {"b", "m", "z"}, 1},
        Caso{"non_ordinata_in_coda", false, {"z"}, 0, {"b", "a"}, {"z", "b", "a"}, 0}),
    [](const auto& info) { return std::string(info.param.nome); });
} // namespace
