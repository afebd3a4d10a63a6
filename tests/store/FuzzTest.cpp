// Random text through every reader of typed text and into the fields of the records: no crash
// and no undefined behaviour (the sanitizer build runs this too), only the classic failures.
#include "store/Date.h"
#include "store/Formato.h"

#include "tests/Ambiente.h"

#include <bit>
#include <random>

TEST(Fuzz, TestiCasuali) {
    std::mt19937 caso(20240307);
    // The characters that make the readers take their longer ways, and now and then any byte.
    const std::string utili = "0123456789/_.,-+eEdD ()#\"\\;\t\xC3\xA0\xE2\x82\xAC";
    for (int giro = 0; giro < 8000; ++giro) {
        std::string testo, modello;
        for (std::string* t : {&testo, &modello})
            for (int n = caso() % 25; n > 0; --n)
                *t += caso() % 4 ? utili[caso() % utili.size()] : static_cast<char>(caso());
        const double bit = std::bit_cast<double>(std::uint64_t{caso()} << 32 | caso());
        for (const std::function<void()>& lettura : std::initializer_list<std::function<void()>>{
                 [&] { NumeroData(testo); }, [&] { DividiData(testo); },
                 [&] { GiornoCalendario(testo); }, [&] { ImportoDaTesto(testo); },
                 [&] { Format(Val(testo), modello); }, [&] { Format(bit, modello); },
                 [&] { Str(bit); }}) {
            int numero = NumeroGuasto(lettura);
            ASSERT_TRUE(numero == 0 || numero == 6 || numero == 13) << numero << " " << testo;
        }
        int n = static_cast<int>(caso() % 31);
        EXPECT_EQ(Left(testo, n) + Mid(testo, n + 1), testo);
        // A field keeps its width whatever it is given, and its copies across widths agree.
        Fisso<30> campo = testo;
        Fisso<5> stretto{campo};
        Fisso<10> dieci = testo, copia = dieci;
        dieci = "x";
        EXPECT_EQ(campo.Testo() + stretto.Testo() + copia.Testo(),
                  Giustifica(testo, 30) + Giustifica(testo, 5) + Giustifica(testo, 10));
        Byte scritti(30);
        campo.Codifica(scritti.data());
        campo = stretto;
        EXPECT_EQ(campo.Testo(), Giustifica(Giustifica(testo, 5), 30));
    }
}
