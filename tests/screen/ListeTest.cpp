// The lines of a list: where a new one goes, alone or many at once, and where the selection
// follows a line added or taken away. The register's refills add thousands at once and must
// land as AddItem of each.
#include "screen/Schermo.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {
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
        std::vector<std::string> aggiunte;
        int tolta; // -1 none
        std::vector<std::string> attese;
        int sceltaDopo;
    } casi[] = {
        {"before the selection", true, {"b", "d"}, 1, {"c"}, -1, {"b", "c", "d"}, 2},
        {"equal goes after", true, {"b", "d"}, 0, {"B"}, -1, {"b", "B", "d"}, 0},
        {"blank before letters", true, {"a"}, 0, {" z"}, -1, {" z", "a"}, 1},
        {"into nothing", true, {}, -1, {"b", "A", "a", "C"}, -1, {"A", "a", "b", "C"}, -1},
        {"merged", true, {"a", "c"}, 1, {"b", "C", "A"}, -1, {"a", "A", "b", "c", "C"}, 3},
        {"all before", true, {"m"}, 0, {"z", "b"}, -1, {"b", "m", "z"}, 1},
        {"long heads",
         true,
         {t + "xaq"},
         0,
         {t + "xzq", t + "xAq", t + "x", t + '\0', t + "\xE0", t + "x[", t + "\xC0", t + "xab"},
         -1,
         {t + '\0', t + "x", t + "x[", t + "xab", t + "xaq", t + "xAq", t + "xzq", t + "\xC0",
          t + "\xE0"},
         4},
        {"unsorted at the end", false, {"d", "b"}, 0, {"a", "c"}, -1, {"d", "b", "a", "c"}, 0},
        {"taken above", false, {"a", "b", "c"}, 2, {}, 0, {"b", "c"}, 1},
        {"taken below", false, {"a", "b", "c"}, 1, {}, 2, {"a", "b"}, 1},
        {"selected taken", false, {"a", "b", "c"}, 1, {}, 1, {"a", "c"}, -1},
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
} // namespace
