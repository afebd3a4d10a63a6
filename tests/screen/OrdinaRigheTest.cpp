// A refill sorts its lines by their first 40 bytes and compares whole lines only when those
// agree: the order must be AddItem's, line by line, whatever the lines hold.
#include "screen/Schermo.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace {
std::vector<std::string> ComeAddItem(const std::vector<std::string>& righe) {
    Schermo s{"Prova", ""};
    Controllo lista{s, TipoControllo::Lista, "Lista"};
    lista.Sorted = true;
    for (const std::string& riga : righe) lista.AddItem(riga);
    return lista.Righe();
}

std::vector<std::string> InUnaVolta(const std::vector<std::string>& righe) {
    Schermo s{"Prova", ""};
    Controllo lista{s, TipoControllo::Lista, "Lista"};
    lista.Sorted = true;
    lista.AggiungiRighe(righe);
    return lista.Righe();
}

TEST(OrdinaRighe, ComeAddItemSuRigheDiOgniGenere) {
    std::mt19937 gen(40);
    auto tra = [&](int a, int b) { return std::uniform_int_distribution<int>(a, b)(gen); };
    const std::string testa(38, '7');
    const struct {
        const char* nome;
        std::function<std::string()> riga;
    } generi[] = {
        // Letters of both cases from a few: many lines equal without regard to case.
        {"corte", [&] {
             std::string r;
             for (int k = tra(0, 3); k > 0; --k) r += "aAbB"[tra(0, 3)];
             return r;
         }},
        // The same first 40 bytes, the difference after them, in case too.
        {"stessa testa", [&] { return testa + "x" + std::string(1, "aAzZ"[tra(0, 3)]) + "q"; }},
        // Around the 40th byte: shorter and longer, a blank or a zero byte there.
        {"intorno al quarantesimo byte", [&] {
             return testa.substr(0, static_cast<std::size_t>(tra(36, 38))) +
                    std::string(static_cast<std::size_t>(tra(0, 4)), "\0 a~"[tra(0, 3)]);
         }},
        // Bytes of every value: above 0x7F no case folds, and "[" to "`" lie between the cases.
        {"byte qualunque", [&] {
             std::string r;
             for (int k = tra(0, 50); k > 0; --k) r += static_cast<char>(tra(0, 255));
             return r;
         }},
        {"righe del registro", [&] {
             char riga[64];
             std::snprintf(riga, sizeof riga, " %06d  %02d/%02d/2001 %02d/%02d/2001 %04d %s",
                           tra(732367, 732400), tra(1, 28), tra(1, 12), tra(1, 28), tra(1, 12),
                           tra(1, 9999), tra(0, 1) ? "AS" : "as");
             return std::string(riga);
         }},
    };
    for (const auto& genere : generi) {
        for (int giro = 0; giro < 20; ++giro) {
            std::vector<std::string> righe(static_cast<std::size_t>(tra(0, 300)));
            for (std::string& riga : righe) riga = genere.riga();
            EXPECT_EQ(InUnaVolta(righe), ComeAddItem(righe)) << genere.nome << ", giro " << giro;
        }
    }
}
} // namespace
