// Random bytes through every reader of typed text: no crash and no undefined behaviour (the
// sanitizer build runs this too), only the classic failures.
#include "store/Date.h"
#include "store/Formato.h"
#include "store/Guasto.h"
#include "store/Testo.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <functional>
#include <random>
#include <string>

namespace {
// The characters that make the readers take their longer ways, and now and then any byte.
std::string TestoCasuale(std::mt19937& caso) {
    static const std::string utili = "0123456789/_.,-+eEdD ()#\"\\;\t\xC3\xA0";
    std::uniform_int_distribution<int> lunghezza(0, 24), scelta(0, 3), byte(0, 255);
    std::uniform_int_distribution<size_t> utile(0, utili.size() - 1);
    std::string testo;
    for (int n = lunghezza(caso); n > 0; --n)
        testo += scelta(caso) == 0 ? static_cast<char>(byte(caso)) : utili[utile(caso)];
    return testo;
}

void SenzaCrash(const std::function<void()>& azione) {
    try {
        azione();
    } catch (const ErroreEsecuzione& e) {
        EXPECT_TRUE(e.numero == 5 || e.numero == 6 || e.numero == 13) << e.numero;
    }
}

TEST(Fuzz, LettoriDiTestoCasuale) {
    std::mt19937 caso(20240307);
    std::uniform_int_distribution<std::uint64_t> bit;
    std::uniform_int_distribution<int> larghezza(0, 30);
    for (int giro = 0; giro < 4000; ++giro) {
        const std::string testo = TestoCasuale(caso);
        const std::string modello = TestoCasuale(caso);
        SenzaCrash([&] { NumeroData(testo); });
        SenzaCrash([&] { DividiData(testo); });
        SenzaCrash([&] { GiornoCalendario(testo); });
        SenzaCrash([&] { ImportoDaTesto(testo); });
        SenzaCrash([&] { Format(Val(testo), modello); });
        SenzaCrash([&] { Format(std::bit_cast<double>(bit(caso)), modello); });
        SenzaCrash([&] { Str(std::bit_cast<double>(bit(caso))); });

        int n = larghezza(caso);
        EXPECT_EQ(Len(Giustifica(testo, n)), n);
        EXPECT_EQ(UCase(testo).size(), testo.size());
        EXPECT_EQ(Left(testo, n) + Mid(testo, n + 1), testo);
        EXPECT_EQ(Mid(testo, 1, n), Left(testo, n));
    }
}
} // namespace
